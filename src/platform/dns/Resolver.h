// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <QByteArray>

#include "platform/dns/Answer.h"

namespace dns {

/// A client of the machine's name servers (resolv.conf(5), read by the constructor) on the thread's event
/// loop: over UDP, and over TCP where an answer does not fit. Names are asked for unchanged, without the
/// search list and the hosts file.
class Resolver {
  public:
    using Done = std::function<void(const Answer& answer)>;

    struct Times {
        int tryMs = 2000;        ///< for the first try; each further one gets twice the time
        int tries = 2;           ///< for each name server
        int deadlineMs = 10000;  ///< a question fails after this, whatever is under way
    };

    explicit Resolver(const Times& times);
    Resolver() : Resolver(Times()) {}
    /// Drops the open questions.
    ~Resolver();
    Resolver(const Resolver&) = delete;
    Resolver& operator=(const Resolver&) = delete;

    /// Asks these servers instead, as "address:port" separated by commas.
    void setServers(const QByteArray& servers);

    /// `done` is called once, from the event loop, never from within this call; it may ask again, and may
    /// destroy the resolver.
    void ask(const Question& question, Done done);

    /// No `done` of a question asked so far is called any more.
    void cancel();

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

}  // namespace dns
