// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <QProcess>
#include <QTemporaryDir>

namespace testing_support {

/// A name server as Debian has it, with records of the test's own: 127.0.0.1, port 53, in a private network
/// (see enterPrivateNetwork). It asks nobody else.
class NameServer {
  public:
    enum class Program { Unbound, Dnsmasq };

    struct Exchanger {
        QByteArray domain;
        int preference;
        QByteArray host;
    };
    struct Address {
        QByteArray host;
        QByteArray address;
    };
    struct Alias {
        QByteArray name;
        QByteArray target;
    };
    struct Records {
        QList<Exchanger> exchangers;
        QList<Address> addresses;
        QList<Alias> aliases;
        QByteArrayList others = {};  ///< further records in the form of a zone file; Unbound only
    };

    /// Waits until it answers.
    NameServer(Program program, const Records& records);
    ~NameServer();

    /// Empty when it runs.
    const QByteArray& problem() const { return m_problem; }

  private:
    QTemporaryDir m_folder;
    QProcess m_process;
    QByteArray m_problem;
};

}  // namespace testing_support
