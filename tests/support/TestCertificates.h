// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSslCertificate>
#include <QSslKey>
#include <QString>
#include <QTemporaryDir>

namespace testing_support {

/// A key and the certificate that a test server shows.
struct TlsIdentity {
    QSslKey key;
    QSslCertificate certificate = QSslCertificate();
    QByteArray newestProtocol = QByteArray();  ///< OpenSSL's name of it, such as "TLSv1.1"; empty: any
};

/// An authority and server certificates, made by the openssl program when they are first asked for.
class TestCertificates {
  public:
    static const TestCertificates& get();

    /// Folder with the authority's certificate as a .pem file, to be trusted.
    QString trustFolder() const { return m_trust.path(); }

    const TlsIdentity& good() const { return m_good; }  ///< for localhost, 127.0.0.1, posta.example
    const TlsIdentity& selfSigned() const { return m_selfSigned; }  ///< for localhost
    const TlsIdentity& expired() const { return m_expired; }        ///< for localhost, by the authority
    const TlsIdentity& wrongName() const { return m_wrongName; }    ///< for another host, by the authority

  private:
    TestCertificates();
    TlsIdentity issue(const QString& name, const QString& subjectAltName, int days);
    void run(const QStringList& arguments) const;

    QTemporaryDir m_work;
    QTemporaryDir m_trust;
    TlsIdentity m_good, m_selfSigned, m_expired, m_wrongName;
};

}  // namespace testing_support
