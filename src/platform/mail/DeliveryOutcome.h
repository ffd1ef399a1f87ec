#pragma once

#include <QString>

namespace mail {

/// How far a message had got when its delivery ended.
enum class DeliveryStage {
    NotTried,  ///< no server was looked for
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

/// What ended it.
enum class DeliveryCause {
    Server,    ///< what the server said or did
    TimedOut,  ///< it said nothing in time
    NoServer,  ///< the recipient's domain has no mail server, or none could be found out
    Stopped,   ///< by the user
    Program,   ///< the program did not go on: something is missing, or not allowed
};

/// What became of a message.
struct DeliveryOutcome {
    bool delivered = false;
    int code = 0;          ///< the server's reply code, 0 without an answer
    QString text;          ///< what the server said, or (Italian) what went wrong
    bool ofLogin = false;  ///< the login failed; the server has not heard of the message
    DeliveryStage stage = DeliveryStage::NotTried;
    DeliveryCause cause = DeliveryCause::Program;
    bool unanswered =
        false;  ///< the server has got all of the message and not answered: it may have taken it
};

}  // namespace mail
