// SPDX-License-Identifier: GPL-3.0-or-later
// What others send during a login by OAuth 2.0: a browser's request, a token endpoint's answer; and the
// file of the providers.
#include <cstdint>
#include <cstdlib>

#include "platform/oauth/Provider.h"
#include "platform/oauth/RedirectRequest.h"
#include "platform/oauth/Token.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void checkRequest(const QByteArray& bytes) {
    using State = oauth::RedirectRequest::State;
    const oauth::RedirectRequest request = oauth::parseRedirectRequest(bytes);
    if (request.kind == State::Incomplete) require(bytes.size() <= oauth::longestRequestHead);
    if (request.kind == State::Answer) {
        require(request.code.isEmpty() != request.error.isEmpty());
        for (const char c : request.state + request.code + request.error)
            require(c >= 0x20 && c < 0x7F);
        // What comes after the head changes nothing.
        require(oauth::parseRedirectRequest(bytes + "\r\n\r\nx").code == request.code);
    }
}

void checkAnswer(const QByteArray& bytes) {
    const QDateTime now = QDateTime::fromSecsSinceEpoch(1'800'000'000);
    const auto token = oauth::parseTokenAnswer(bytes, {QStringLiteral("mail")}, now);
    if (token.ok()) {
        require(oauth::isTokenText(token.value().access));
        require(token.value().expires >= now && token.value().expires <= now.addDays(1));
    } else {
        for (const QChar c : token.status().text())
            require(c.isPrint());
    }
}

void checkProviders(const QByteArray& bytes) {
    const auto providers = oauth::parseProviders(bytes, QStringLiteral("p"));
    if (!providers.ok()) return;
    for (const oauth::Provider& provider : providers.value()) {
        require(!provider.id.contains(u'/') && !provider.id.contains(u'.'));
        require(provider.tokenEndpoint.scheme() == QLatin1String("https"));
        require(oauth::providerOf(providers.value(), provider.smtpHosts.first())->id == provider.id);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    checkRequest(bytes);
    checkAnswer(bytes);
    checkProviders(bytes);
    return 0;
}
