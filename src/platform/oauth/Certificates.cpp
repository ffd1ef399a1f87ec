// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/oauth/Certificates.h"

#include <QDir>
#include <QSslConfiguration>

namespace oauth {

QList<QSslCertificate> trustedCertificates(const QString& folder) {
    static const QList<QSslCertificate> system = QSslConfiguration::systemCaCertificates();
    QList<QSslCertificate> all = system;
    if (folder.isEmpty()) return all;
    for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.pem")}, QDir::Files))
        all += QSslCertificate::fromPath(file.filePath(), QSsl::Pem);
    return all;
}

}  // namespace oauth
