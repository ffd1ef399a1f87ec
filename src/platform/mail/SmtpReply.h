// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace mail {

/// The reply of a server (RFC 5321 4.2).
struct SmtpReply {
    int code = 0;     ///< 200 to 599
    QByteArray text;  ///< without the codes; the lines are separated by LF

    bool positive() const { return code / 100 == 2; }
    bool intermediate() const { return code / 100 == 3; }
};

/// Longest line that is accepted, line end included: well above the 512 octets of RFC 5321 4.5.3.1.5.
inline constexpr qsizetype maxReplyLine = 4096;
/// Most octets of one reply with all its lines.
inline constexpr qsizetype maxReplySize = 32768;

struct ReplyParse {
    enum class State {
        Incomplete,  ///< valid so far, more bytes are needed
        Complete,    ///< `reply` and `next` are set
        Malformed,   ///< no code, a NUL, or more than the limits allow
    };
    State state = State::Incomplete;
    SmtpReply reply;
    qsizetype next = 0;  ///< offset of the first byte after the reply
};

/// Reads the reply that starts at `offset` of `bytes`. A line ends at CR LF or at a lone LF. Where the lines
/// of one reply have different codes, the last one counts.
ReplyParse parseSmtpReply(QByteArrayView bytes, qsizetype offset);

/// Whether these bytes say that the server has accepted a message: the reply to the final point begins with
/// three digits, the first a 2. Whatever follows, even if it never ends, the message will be delivered.
bool isAcceptance(QByteArrayView reply);
/// The three digits of an acceptance.
int acceptanceCode(QByteArrayView reply);

/// `text` in one line, as it can be shown or logged: each control character, and each invisible character
/// that changes how others are shown (direction marks), becomes a blank.
QString printable(QByteArrayView text);

}  // namespace mail
