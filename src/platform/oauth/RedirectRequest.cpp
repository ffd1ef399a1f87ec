// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/oauth/RedirectRequest.h"

#include <algorithm>
#include <optional>
#include <QByteArrayList>

namespace oauth {

namespace {

constexpr qsizetype longestParameter = 4096;

RedirectRequest refused() {
    return {RedirectRequest::State::Refused, {}, {}, {}};
}

bool isPlain(const QByteArray& text) {
    return text.size() <= longestParameter &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= 0x20 && c <= 0x7E; });
}

/// Decodes a form-encoded value; none where it is not complete.
std::optional<QByteArray> decoded(QByteArray value) {
    const auto isHex = [](char c) { return QByteArrayView("0123456789abcdefABCDEF").contains(c); };
    for (qsizetype at = value.indexOf('%'); at >= 0; at = value.indexOf('%', at + 3))
        if (at + 2 >= value.size() || !isHex(value[at + 1]) || !isHex(value[at + 2])) return std::nullopt;
    return QByteArray::fromPercentEncoding(value.replace('+', ' '));
}

/// Stores the parameters. False where one occurs twice or is invalid.
bool takeParameters(const QByteArray& query, RedirectRequest& request) {
    struct Known {
        const char* name;
        QByteArray& place;
        bool seen = false;
    };
    Known known[] = {{"state", request.state}, {"code", request.code}, {"error", request.error}};
    for (const QByteArray& parameter : query.split('&')) {
        const qsizetype equals = parameter.indexOf('=');
        const QByteArray name = parameter.left(equals < 0 ? parameter.size() : equals);
        for (Known& one : known) {
            if (name != one.name) continue;
            const std::optional<QByteArray> value = decoded(parameter.mid(name.size() + 1));
            if (one.seen || !value || !isPlain(*value)) return false;
            one.seen = true;
            one.place = *value;
        }
    }
    return true;
}

}  // namespace

RedirectRequest parseRedirectRequest(QByteArrayView input) {
    const qsizetype end = input.indexOf(QByteArrayView("\r\n\r\n"));
    if (end < 0 ? input.size() > longestRequestHead : end > longestRequestHead) return refused();
    if (end < 0) return {};
    const QByteArray line = input.first(input.indexOf(QByteArrayView("\r\n"))).toByteArray();
    const QByteArrayList words = line.split(' ');
    if (words.size() != 3 || words[0] != "GET" || !words[2].startsWith("HTTP/1.") ||
        !words[1].startsWith('/'))
        return refused();
    const QByteArray& target = words[1];
    if (target != "/" && !target.startsWith("/?")) return {RedirectRequest::State::OtherPage, {}, {}, {}};
    RedirectRequest request;
    if (!takeParameters(target.mid(2), request)) return refused();
    if (request.code.isEmpty() == request.error.isEmpty()) return refused();
    request.kind = RedirectRequest::State::Answer;
    return request;
}

}  // namespace oauth
