#pragma once

#include <QString>

namespace mail {

/// What became of a message.
struct DeliveryOutcome {
    bool delivered = false;
    int code = 0;          ///< the server's reply code, 0 without an answer
    QString text;          ///< what the server said, or (Italian) what went wrong
    bool ofLogin = false;  ///< the login failed; the server has not heard of the message
};

}  // namespace mail
