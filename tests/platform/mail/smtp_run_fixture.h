// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/mail/smtp_fixture.h"

inline const QString database = QStringLiteral("/nessuna/data.mdb");
inline const QString rossi = QStringLiteral("rossi@example.it");

/// The state that outlives the control.
struct Remembered {
    mail::AcceptedList accepted;
};

/// A client in a run.
class RunClient : private Remembered, public Client {
  public:
    using Remembered::accepted;

    explicit RunClient(quint16 port = 25) : Client(port) {
        smtp.Accepted = &accepted;
        smtp.Database = database;
        smtp.BeginRun();
    }

    /// One tick that could read its row, up to its Send.
    void begin(qint64 number, const QString& address = rossi) {
        smtp.BeginTick();
        smtp.ToAddress = address;
        smtp.RecipientNumber = number;
        heard.clear();
        smtp.Send();
        EXPECT_TRUE(heard.isEmpty()) << "an outcome came from within Send";
    }

    /// The same, and waits for the outcome, which must be the only one.
    Heard tick(qint64 number, const QString& address = rossi) {
        begin(number, address);
        return outcome();
    }

    Heard outcome() {
        waitForOutcome();
        turn();
        EXPECT_EQ(heard.size(), 1);
        return heard.isEmpty() ? Heard{} : heard.first();
    }

    bool remembers(qint64 number, const QString& address = rossi) const {
        return accepted.holds(mail::DatabaseFile::at(database), number, address);
    }
};
