// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <QByteArray>
#include <QObject>
#include <QTcpServer>
#include <set>

#include "support/TestCertificates.h"
#include "torture/Misbehaviour.h"

/// An SMTP server on loopback that does one thing wrong. It runs on the event loop of its thread, and keeps
/// account of what it received and said.
class OddServer : public QTcpServer {
    Q_OBJECT
  public:
    struct Offer {
        bool startTls = false;
        bool pipelining = false;
        bool chunking = false;
        QByteArray login;  ///< mechanisms; empty: none
        int refused = -1;  ///< message whose recipient is refused
        testing_support::TlsIdentity identity;
        QByteArray secret;  ///< that must not come unencrypted where TLS was offered
    };
    /// What is known of a message.
    struct Account {
        int whole = 0;          ///< how often all of it came; not in a flight on a connection that said 421
        bool accepted = false;  ///< a reply that begins with 2 was sent in the place of the one to its end
    };

    OddServer(const Misbehaviour& bad, Offer offer);
    ~OddServer() override;

    /// The client is about to send this message. Its recipient is r0@example.it for number 0.
    void expect(int message) { m_current = message; }
    /// Nothing is being sent: the moment for what comes unasked.
    void idle();

    Account account(int message) const;
    /// Rises with everything that shows a client that the server still works.
    long activity() const { return m_activity; }
    bool misbehaved() const { return m_misbehaved; }
    bool gotSecretInTheClear() const { return m_gotSecret; }

  protected:
    void incomingConnection(qintptr descriptor) override;

  private:
    friend class OddConnection;
    bool isWrong(Misbehaviour::Stage stage);
    void note(int message, bool whole, bool accepted);

    const Misbehaviour m_bad;
    const Offer m_offer;
    int m_current = 0;
    long m_activity = 0;
    bool m_misbehaved = false;
    bool m_gotSecret = false;
    std::map<int, Account> m_accounts;
    std::set<class OddConnection*> m_connections;
};
