// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestCertificates.h"

#include <QFile>
#include <QProcess>

namespace testing_support {

namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

TlsIdentity load(const QString& key, const QString& certificate) {
    return {QSslKey(contents(key), QSsl::Ec), QSslCertificate(contents(certificate)), {}};
}

const QStringList newKey = {"-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes"};

}  // namespace

const TestCertificates& TestCertificates::get() {
    static const TestCertificates made;
    return made;
}

void TestCertificates::run(const QStringList& arguments) const {
    QProcess openssl;
    openssl.setWorkingDirectory(m_work.path());
    openssl.start(QStringLiteral("openssl"), arguments);
    if (!openssl.waitForFinished() || openssl.exitCode() != 0)
        qFatal("openssl %s: %s", qPrintable(arguments.join(u' ')),
               openssl.readAllStandardError().constData());
}

TestCertificates::TestCertificates() {
    run(QStringList{"req", "-x509"} + newKey +
        QStringList{"-keyout", "ca.key", "-out", "ca.pem", "-subj", "/CN=Authority of the tests", "-days",
                    "30"});
    QFile::copy(m_work.filePath(QStringLiteral("ca.pem")), m_trust.filePath(QStringLiteral("ca.pem")));
    run(QStringList{"req", "-x509"} + newKey +
        QStringList{"-keyout", "self.key", "-out", "self.pem", "-subj", "/CN=localhost", "-addext",
                    "subjectAltName=DNS:localhost", "-days", "30"});
    m_selfSigned =
        load(m_work.filePath(QStringLiteral("self.key")), m_work.filePath(QStringLiteral("self.pem")));
    m_good =
        issue(QStringLiteral("good"), QStringLiteral("DNS:localhost,IP:127.0.0.1,DNS:posta.example"), 30);
    m_expired = issue(QStringLiteral("expired"), QStringLiteral("DNS:localhost"), -1);
    m_wrongName = issue(QStringLiteral("wrong"), QStringLiteral("DNS:mail.invalid"), 30);
}

TlsIdentity TestCertificates::issue(const QString& name, const QString& subjectAltName, int days) {
    const QString key = name + ".key", request = name + ".csr", pem = name + ".pem", extra = name + ".ext";
    QFile extensions(m_work.filePath(extra));
    if (!extensions.open(QIODevice::WriteOnly)) qFatal("cannot write %s", qPrintable(extra));
    extensions.write("subjectAltName=" + subjectAltName.toLatin1() + '\n');
    extensions.close();
    run(QStringList{"req"} + newKey + QStringList{"-keyout", key, "-out", request, "-subj", "/CN=" + name});
    run({"x509", "-req", "-in", request, "-CA", "ca.pem", "-CAkey", "ca.key", "-CAcreateserial", "-out", pem,
         "-days", QString::number(days), "-extfile", extra});
    return load(m_work.filePath(key), m_work.filePath(pem));
}

}  // namespace testing_support
