// SPDX-License-Identifier: GPL-3.0-or-later
// The outcome of a delivery: how far it got, and what ended it.
#pragma once

#include <QString>

namespace mail {

/// How far a message had got when its delivery ended.
enum class DeliveryStage {
    NotTried,  ///< no server was looked up
    Connecting,
    Greeting,
    Hello,
    Tls,
    Login,
    Sender,     ///< MAIL FROM
    Recipient,  ///< RCPT TO
    Data,       ///< DATA, before any of the message went out
    Body,       ///< the message itself, up to the reply to its final point
};

/// The cause of its end.
enum class DeliveryCause {
    Server,    ///< what the server said or did
    TimedOut,  ///< no reply in time
    NoServer,  ///< the recipient's domain has no mail server, or the look-up failed
    Stopped,   ///< by the user
    Program,   ///< the program itself: something is missing, or not allowed
};

/// The outcome of a message.
struct DeliveryOutcome {
    bool delivered = false;
    int code = 0;          ///< the server's reply code, 0 without an answer
    QString text;          ///< what the server said, or (Italian) what went wrong
    bool ofLogin = false;  ///< the login failed; the server has received nothing of the message
    DeliveryStage stage = DeliveryStage::NotTried;
    DeliveryCause cause = DeliveryCause::Program;
    bool unanswered =
        false;  ///< the server received the whole message and has not replied: it may have accepted it
};

}  // namespace mail
