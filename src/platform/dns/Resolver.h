#pragma once

#include <functional>
#include <memory>
#include <QByteArray>

#include "platform/dns/Answer.h"

namespace dns {

/// Asks the machine's name servers (resolv.conf(5), read when the object is made) on the event loop of the
/// thread: over UDP, and over TCP where an answer does not fit. Names are asked for as they are, without the
/// search list and without the hosts file.
class Resolver {
  public:
    using Done = std::function<void(const Answer& answer)>;

    struct Times {
        int tryMs = 2000;        ///< for the first try; each further one gets twice the time
        int tries = 2;           ///< for each name server
        int deadlineMs = 10000;  ///< after this a question fails, whatever is still under way
    };

    explicit Resolver(const Times& times);
    Resolver() : Resolver(Times()) {}
    /// Questions that are open are dropped.
    ~Resolver();
    Resolver(const Resolver&) = delete;
    Resolver& operator=(const Resolver&) = delete;

    /// Asks these servers instead, as "address:port" parted by commas.
    void setServers(const QByteArray& servers);

    /// `done` is called once, from the event loop, never from within this call; it may ask on, and it may
    /// destroy the resolver.
    void ask(const Question& question, Done done);

    /// No `done` of a question asked so far is called any more.
    void cancel();

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

}  // namespace dns
