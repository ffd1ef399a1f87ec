// SPDX-License-Identifier: GPL-3.0-or-later
// The request that a browser makes at the end of a consent, and the listener that waits for it.
#include <algorithm>
#include <QCoreApplication>

#include "oauth_fixture.h"
#include "platform/oauth/RedirectListener.h"
#include "platform/oauth/RedirectRequest.h"

namespace redirect_test {

namespace {

using oauth::parseRedirectRequest;
using oauth::RedirectListener;
using State = oauth::RedirectRequest::State;

QByteArray get(const QByteArray& target) {
    return "GET " + target + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n";
}

TEST(OAuthRedirect, AnswerIsReadWhereverItsParametersAre) {
    const auto answer = parseRedirectRequest(get("/?scope=a&code=4%2F0A+b&state=xyz"));
    ASSERT_EQ(answer.kind, State::Answer);
    EXPECT_EQ(answer.code, "4/0A b");
    EXPECT_EQ(answer.state, "xyz");
    const auto error = parseRedirectRequest(get("/?error=access_denied&state=xyz"));
    ASSERT_EQ(error.kind, State::Answer);
    EXPECT_EQ(error.error, "access_denied");
}

TEST(OAuthRedirect, HeadThatHasNotComeWholeIsWaitedFor) {
    const QByteArray whole = get("/?code=a&state=b");
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_EQ(parseRedirectRequest(whole.left(length)).kind, State::Incomplete) << length;
}

TEST(OAuthRedirect, OtherPagesAreNoAnswer) {
    for (const char* target : {"/favicon.ico", "/x?code=a&state=b", "//evil.example/?code=a&state=b"})
        EXPECT_EQ(parseRedirectRequest(get(target)).kind, State::OtherPage) << target;
}

TEST(OAuthRedirect, HostileRequestsAreRefused) {
    const QByteArray longCode = "/?state=b&code=" + QByteArray(5000, 'x');
    for (const QByteArray& request :
         {get("/"), get("/?"), get("/?state=b"), get("/?code=a&error=b&state=c"),
          get("/?code=a&code=a&state=b"), get("/?code=a&state=b&state=b"), get("/?code=a%0D%0Ab&state=b"),
          get("/?code=a%00&state=b"), get("/?code=%zz&state=b"), get("/?code=a%4"),
          get("/?code=%E2%82%AC&state=b"), get(longCode), get("http://127.0.0.1/?code=a&state=b"),
          get("/?code=a b&state=c"), QByteArray("POST /?code=a&state=b HTTP/1.1\r\n\r\n"),
          QByteArray("GET /?code=a&state=b\r\n\r\n"), QByteArray("\r\n\r\n"),
          QByteArray(oauth::longestRequestHead + 1, 'x')})
        EXPECT_EQ(parseRedirectRequest(request).kind, State::Refused) << request.left(60).constData();
}

class OAuthListener : public OAuth {
  protected:
    OAuthListener() {
        QObject::connect(
            &listener, &RedirectListener::answered,
            [this](const QByteArray& code, const QByteArray& error) { answers.append(code + '|' + error); });
        EXPECT_TRUE(listener.listen("127.0.0.1", state).ok());
    }
    QByteArray bring(const QByteArray& query) { return ask(listener.port(), get("/?" + query)); }

    const QByteArray state = "AbCdEfGhIjKlMnOpQrStUvWxYz0123456789-_AbCdE";
    RedirectListener listener;
    QByteArrayList answers;
};

TEST_F(OAuthListener, TakesOneAnswerAndThenListensNoMore) {
    const quint16 port = listener.port();
    EXPECT_TRUE(bring("code=a&state=" + state).startsWith("HTTP/1.1 200 OK\r\n"));
    EXPECT_EQ(answers, QByteArrayList{"a|"});
    QTcpSocket late;
    late.connectToHost(QHostAddress::LocalHost, port);
    EXPECT_FALSE(late.waitForConnected());
    EXPECT_EQ(late.error(), QAbstractSocket::ConnectionRefusedError);
}

TEST_F(OAuthListener, AnotherStateIsShownAnErrorAndChangesNothing) {
    for (const QByteArray& other :
         {QByteArray(), state.chopped(1), state + 'x', state.toLower(), state.mid(1)})
        EXPECT_TRUE(bring("code=evil&state=" + other).startsWith("HTTP/1.1 400 "));
    EXPECT_TRUE(bring("code=evil").startsWith("HTTP/1.1 400 "));
    EXPECT_EQ(answers, QByteArrayList());
    bring("code=a&state=" + state);
    EXPECT_EQ(answers, QByteArrayList{"a|"});
}

TEST_F(OAuthListener, OtherRequestsDoNotDisturbIt) {
    EXPECT_TRUE(ask(listener.port(), get("/favicon.ico")).startsWith("HTTP/1.1 404 "));
    EXPECT_TRUE(ask(listener.port(), QByteArray(100000, 'x')).startsWith("HTTP/1.1 400 "));
    EXPECT_TRUE(bring("error=access_denied&state=" + state).contains("non è stato concesso"));
    EXPECT_EQ(answers, QByteArrayList{"|access_denied"});
}

TEST_F(OAuthListener, PageContainsNothingOfTheRequest) {
    const QByteArray page = bring("code=%3Cscript%3E&state=" + state);
    EXPECT_FALSE(page.contains("script>"));
    EXPECT_TRUE(page.contains("default-src 'none'"));
    EXPECT_EQ(answers, QByteArrayList{"<script>|"});
}

TEST_F(OAuthListener, AnswerInPiecesBesideIdleConnectionsIsTaken) {
    QList<QTcpSocket*> idle;
    for (int i = 0; i < 8; ++i) {
        idle.append(new QTcpSocket(&listener));
        idle.last()->connectToHost(QHostAddress::LocalHost, listener.port());
        ASSERT_TRUE(idle.last()->waitForConnected());
    }
    QTcpSocket browser;
    browser.connectToHost(QHostAddress::LocalHost, listener.port());
    ASSERT_TRUE(browser.waitForConnected());
    for (const char c : get("/?code=a&state=" + state)) {
        browser.write(&c, 1);
        browser.waitForBytesWritten();
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(turnUntil([&] { return !answers.isEmpty(); }));
    EXPECT_EQ(answers, QByteArrayList{"a|"});
}

TEST_F(OAuthListener, FloodOfConnectionsIsTurnedAwayAndTheAnswerStillComes) {
    QList<QTcpSocket*> idle;
    for (int i = 0; i < 20; ++i) {
        idle.append(new QTcpSocket(&listener));
        idle.last()->connectToHost(QHostAddress::LocalHost, listener.port());
        ASSERT_TRUE(idle.last()->waitForConnected());
    }
    const auto isTurnedAway = [](const QTcpSocket* one) {
        return one->state() == QAbstractSocket::UnconnectedState;
    };
    EXPECT_TRUE(turnUntil([&] { return std::count_if(idle.begin(), idle.end(), isTurnedAway) >= 4; }));
    for (QTcpSocket* one : idle)
        one->abort();
    EXPECT_TRUE(turnUntil([&] {
        bring("code=a&state=" + state);  // until the listener has seen them go
        return !answers.isEmpty();
    }));
    EXPECT_EQ(answers, QByteArrayList{"a|"});
}

/// Nothing but the loopback address can be connected to.
TEST_F(OAuthListener, IsNotToBeReachedFromOutside) {
    QTcpServer same;
    EXPECT_FALSE(same.listen(QHostAddress::LocalHost, listener.port()));
    EXPECT_TRUE(same.listen(QHostAddress("127.0.0.2"), listener.port()));
}

}  // namespace

}  // namespace redirect_test
