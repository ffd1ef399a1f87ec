// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace oauth {

/// The request of a browser to the redirect address (RFC 6749 4.1.2, RFC 8252 7.3): the head of an HTTP/1.x
/// request.
struct RedirectRequest {
    enum class State {
        Incomplete,  ///< the head is not complete yet
        Refused,     ///< too long, no request, or an invalid parameter
        OtherPage,   ///< some other page is asked for, such as an icon
        Answer,      ///< an answer of the provider; `state` identifies the sender
    };
    State kind = State::Incomplete;
    QByteArray state;
    QByteArray code;   ///< empty with an error
    QByteArray error;  ///< the provider's error code, such as "access_denied"; empty with a code
};

/// The longest head that is accepted.
inline constexpr qsizetype longestRequestHead = 64 * 1024;

/// Reads what has come so far. Header fields are ignored. Each parameter may occur once
/// (RFC 6749 3.1); code, state and error contain printable ASCII, at most 4096 characters.
RedirectRequest parseRedirectRequest(QByteArrayView input);

}  // namespace oauth
