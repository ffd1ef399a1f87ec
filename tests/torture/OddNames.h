// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <netinet/in.h>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <map>
#include <mutex>
#include <QByteArray>
#include <random>
#include <thread>
#include <vector>

/// A name server on loopback, over UDP and TCP on one port, in a thread of its own. The name that is asked
/// for says what it does wrong: with "c<number>." in front of it, the case of that number.
class OddNames {
  public:
    enum class Kind {
        Good,
        Silence,
        LateTry,  ///< answers when it is asked again
        Delayed,
        WrongId,
        WrongQuestion,
        OtherPort,
        NoReply,  ///< without the bit of a reply
        Cut,      ///< some octets of the reply
        TooLongForUdp,
        TooLongTcpCloses,
        TooLongTcpSilent,
        TooLongTcpLies,  ///< about the length
        TooLongNoEnd,    ///< the flag over TCP as well
        NameLoop,
        NameBeyond,
        NameForward,
        LyingCount,
        LyingLength,  ///< of a record
        Huge,
        ManyRecords,
        AliasLoop,
        AliasChain,
        ErrorCode,
        Empty,
        Garbage,
        Changed,  ///< some octets
        Thrice,
        Echo,  ///< the question
        End,   ///< number of kinds
    };

    /// The address that only replies name which nobody may believe.
    static constexpr const char* lie = "198.51.100.66";
    static constexpr const char* truth = "203.0.113.25";  ///< the first of the true ones

    explicit OddNames(unsigned seed);
    ~OddNames();
    OddNames(const OddNames&) = delete;

    std::uint16_t port() const { return m_port; }
    static Kind kindOf(unsigned seed, int number);
    static const char* nameOf(Kind kind);

  private:
    struct Later {
        std::chrono::steady_clock::time_point when;
        QByteArray reply;
        sockaddr_in to;
    };
    void serve();
    void onDatagram();
    void onConnection();
    void sendLater();
    void send(const QByteArray& reply, const sockaddr_in& to) const;

    const unsigned m_seed;
    int m_udp = -1;
    int m_tcp = -1;
    int m_otherPort = -1;
    std::uint16_t m_port = 0;
    std::map<QByteArray, int> m_asked;  ///< how often each question came
    std::vector<Later> m_later;
    std::vector<int> m_held;  ///< connections that are left open
    std::atomic<bool> m_stop = false;
    std::thread m_thread;
};
