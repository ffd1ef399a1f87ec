#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace oauth {

/// What a browser brings to the redirect address (RFC 6749 4.1.2, RFC 8252 7.3): the head of an HTTP/1.x
/// request.
struct RedirectRequest {
    enum class State {
        Incomplete,  ///< the head has not come whole
        Refused,     ///< too long, no request, or a parameter that is not as it has to be
        OtherPage,   ///< some other page is asked for, such as an icon
        Answer,      ///< an answer of the provider; who sent it shows in `state`
    };
    State kind = State::Incomplete;
    QByteArray state;
    QByteArray code;   ///< empty with an error
    QByteArray error;  ///< the provider's word, such as "access_denied"; empty with a code
};

/// The longest head that is read.
inline constexpr qsizetype longestRequestHead = 64 * 1024;

/// Reads what has come so far. Fields of the head are not looked at. Each parameter may stand once
/// (RFC 6749 3.1); code, state and error hold printable ASCII, at most 4096 characters.
RedirectRequest parseRedirectRequest(QByteArrayView input);

}  // namespace oauth
