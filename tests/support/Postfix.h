// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <QString>
#include <QTemporaryDir>

namespace testing_support {

/// A complete private Postfix, in a private network (see enterPrivateNetwork): configuration, queue and
/// mailboxes are in a temporary folder. It takes mail only after a login, for mailboxes of `example.it`,
/// delivered to one Maildir, and for `altrove.example`, relayed to a port of the loopback.
///
/// User names and passwords are those of Postfix::user and Postfix::password.
class Postfix {
  public:
    static constexpr quint16 submission = 587;       ///< STARTTLS, every mechanism
    static constexpr quint16 implicitTls = 465;      ///< TLS from the start
    static constexpr quint16 firstMechanism = 2001;  ///< one port for each of mechanisms(), in order
    static QByteArrayList mechanisms() {
        return {"PLAIN", "LOGIN", "CRAM-MD5", "SCRAM-SHA-256", "SCRAM-SHA-1"};
    }
    static constexpr quint16 onlyPasswords = 2000;  ///< only the mechanisms PLAIN and LOGIN
    static inline const QString user = QStringLiteral("utente");
    static inline const QString password = QStringLiteral("perché-no");

    /// `relayPort` is where mail for altrove.example goes. Shows the certificate of TestCertificates::good().
    explicit Postfix(quint16 relayPort);
    ~Postfix();

    /// Empty when it runs.
    const QString& problem() const { return m_problem; }
    /// False where files cannot be given to the users that the server's parts run as.
    bool isPossible() const { return m_isPossible; }

    /// Waits for that many messages in the Maildir and returns them unchanged, in no order.
    QByteArrayList mail(qsizetype count) const;
    QByteArray log() const;

  private:
    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    void write(const char* name, const QByteArray& text);
    bool run(const QString& program, const QStringList& arguments, const QByteArray& input = {});
    void configure(quint16 relayPort);
    void giveAway(const char* name, const char* owner);

    QTemporaryDir m_folder;
    QString m_problem;
    bool m_isPossible = true;
};

}  // namespace testing_support
