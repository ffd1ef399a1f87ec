// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <random>

/// What a mail server does wrong, and when.
struct Misbehaviour {
    /// The moment: a reply, or what the server does instead of the next step.
    enum class Stage {
        Greeting,
        Hello,
        StartTls,
        Handshake,  ///< instead of its side of the TLS handshake
        Login,
        Reset,
        Sender,
        Recipient,
        Data,
        Body,  ///< while the message comes in
        Point,
        Chunk,  ///< the reply to BDAT
        Idle,   ///< after an outcome
        End,    ///< number of stages
    };
    enum class Kind {
        Silence,
        Drop,
        Reset,
        CutAndDrop,     ///< some octets of the reply
        CutAndSilence,  ///< the same, and the connection stays
        NoLineEnd,
        LoneLineFeed,
        EndlessLine,
        EndlessLines,  ///< of one reply
        LongReply,     ///< many lines, below or above what is accepted
        OtherCode,
        Farewell,  ///< 421
        Split,     ///< the reply in small pieces
        Garbage,
        Twice,
        Early,  ///< the next reply as well
        TwoCodes,
        Echo,  ///< what the client said
        DropAfter,
        End,  ///< number of kinds
    };
    Stage stage = Stage::Greeting;
    Kind kind = Kind::Silence;
    int message = 0;          ///< before which one this happens
    bool everywhere = false;  ///< on every connection, not on the first alone
    bool goesOn = false;      ///< with every message from then on
    unsigned dice = 0;        ///< decides the rest

    static Misbehaviour any(std::mt19937& random, int messages);

    /// The name of stage and kind.
    QByteArray name() const;

    /// The octets to send in place of `reply`, which has its line end. `heard` is the last line of the
    /// client.
    QByteArray spoilt(const QByteArray& reply, const QByteArray& heard) const;
};
