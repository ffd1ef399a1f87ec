// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QSslCertificate>
#include <QString>

namespace oauth {

/// The authorities that connections trust: the system's, and those of the *.pem files of the folder. Without
/// a folder only the system's.
QList<QSslCertificate> trustedCertificates(const QString& folder);

}  // namespace oauth
