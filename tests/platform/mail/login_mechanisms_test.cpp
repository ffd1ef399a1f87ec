// SPDX-License-Identifier: GPL-3.0-or-later
// Which mechanism is tried, and which one after it.
#include <gtest/gtest.h>

#include <initializer_list>

#include "platform/mail/LoginMechanisms.h"

namespace login_mechanisms_test {

using mail::LoginMechanisms;
using mail::LoginTerms;
using mail::SmtpReply;

namespace {

const QByteArrayList everything{"LOGIN", "PLAIN", "GSSAPI", "CRAM-MD5", "SCRAM-SHA-1", "SCRAM-SHA-256"};
const SmtpReply unknown{504, "5.5.4 what"};
const SmtpReply wrong{535, "5.7.8 authentication failed"};
const SmtpReply noMechanism{535, "5.7.8 Error: authentication failed: no mechanism available"};

/// Every mechanism that is tried while the server accepts none.
QByteArrayList tried(const LoginTerms& terms) {
    LoginMechanisms mechanisms(terms);
    QByteArrayList names;
    for (bool goesOn = !mechanisms.isEmpty(); goesOn; goesOn = mechanisms.refused(unknown))
        names += mechanisms.current();
    return names;
}

/// How many mechanisms are tried with a server that sends these replies, the last one repeatedly.
int tries(const LoginTerms& terms, std::initializer_list<SmtpReply> replies) {
    LoginMechanisms mechanisms(terms);
    int count = 1;
    for (auto reply = replies.begin(); mechanisms.refused(*reply); ++count)
        if (reply + 1 != replies.end()) ++reply;
    return count;
}

TEST(LoginMechanisms, UnderVerifiedTlsThePasswordComesBeforeTheOldDigest) {
    EXPECT_EQ(tried({.offered = everything, .verifiedTls = true}),
              (QByteArrayList{"SCRAM-SHA-256", "SCRAM-SHA-1", "PLAIN", "LOGIN", "CRAM-MD5"}));
}

TEST(LoginMechanisms, WithoutTlsEveryDigestComesBeforeThePassword) {
    const QByteArrayList order{"SCRAM-SHA-256", "SCRAM-SHA-1", "CRAM-MD5", "PLAIN", "LOGIN"};
    EXPECT_EQ(tried({.offered = everything, .clearAllowed = true}), order);
    EXPECT_EQ(tried({.clearAllowed = true}), order);
}

TEST(LoginMechanisms, PasswordIsLeftOutWhereItMayNotGoInTheClear) {
    const QByteArrayList order{"SCRAM-SHA-256", "SCRAM-SHA-1", "CRAM-MD5"};
    EXPECT_EQ(tried({.offered = everything}), order);
    EXPECT_EQ(tried({}), order);
    const auto leftOut = [](const LoginTerms& terms) { return LoginMechanisms(terms).leftOutInTheClear(); };
    EXPECT_TRUE(leftOut({}));
    EXPECT_TRUE(leftOut({.offered = QByteArrayList{"LOGIN"}}));
    EXPECT_FALSE(leftOut({.offered = QByteArrayList{"CRAM-MD5"}}));
    EXPECT_FALSE(leftOut({.verifiedTls = true}));
    EXPECT_FALSE(leftOut({.clearAllowed = true}));
}

TEST(LoginMechanisms, GuessesUnderTlsBeginWithWhatNearlyEveryServerKnows) {
    EXPECT_EQ(tried({.verifiedTls = true}),
              (QByteArrayList{"PLAIN", "LOGIN", "SCRAM-SHA-256", "SCRAM-SHA-1", "CRAM-MD5"}));
}

TEST(LoginMechanisms, OnlyWhatIsOfferedAndKnownIsTried) {
    EXPECT_EQ(tried({.offered = QByteArrayList{"LOGIN", "NTLM"}, .verifiedTls = true}),
              QByteArrayList{"LOGIN"});
    EXPECT_TRUE(LoginMechanisms({.offered = QByteArrayList{"NTLM"}}).isEmpty());
    EXPECT_TRUE(LoginMechanisms({.offered = QByteArrayList()}).isEmpty());
}

TEST(LoginMechanisms, RefusalOfTheMechanismIsFollowedByTheNext) {
    for (const int code : {500, 501, 502, 504, 534, 538})
        EXPECT_EQ(tries({.offered = everything, .clearAllowed = true}, {{code, "no"}}), 5) << code;
    for (const char* text :
         {"no mechanism available", "Unsupported authentication MECHANISM.", "Unbekannter Mechanismus",
          "meccanismo sconosciuto", "mécanisme inconnu", "mecanismo desconocido"})
        EXPECT_EQ(tries({.offered = everything, .verifiedTls = true}, {{535, text}}), 5) << text;
}

TEST(LoginMechanisms, RefusalOfThePasswordIsFinalWhereTheListIsTheServers) {
    EXPECT_EQ(tries({.offered = everything, .verifiedTls = true}, {wrong}), 1);
    EXPECT_EQ(tries({.offered = everything, .verifiedTls = true}, {unknown, wrong}), 2);
}

TEST(LoginMechanisms, RefusalOfThePasswordIsFollowedByOneMoreGuessAtMost) {
    for (const SmtpReply& second : {wrong, unknown, noMechanism})
        EXPECT_EQ(tries({.verifiedTls = true}, {wrong, second}), 2) << second.code;
    EXPECT_EQ(tries({.verifiedTls = true}, {noMechanism, wrong, unknown}), 3);
}

TEST(LoginMechanisms, TemporaryFailureAndAnyOtherRefusalAreFinal) {
    for (const int code : {421, 432, 450, 454, 521, 525, 550, 554})
        for (const LoginTerms& terms : {LoginTerms{}, LoginTerms{.offered = everything}})
            EXPECT_EQ(tries(terms, {{code, "no mechanism available"}}), 1) << code;
}

TEST(LoginMechanisms, OnlyARefusalOfThePasswordIsKept) {
    LoginMechanisms mechanisms({.verifiedTls = true});
    mechanisms.refused(noMechanism);
    mechanisms.refused({534, "too weak"});
    EXPECT_FALSE(mechanisms.credentialsRefusal());
    mechanisms.refused(wrong);
    mechanisms.refused({535, "other words"});
    ASSERT_TRUE(mechanisms.credentialsRefusal());
    EXPECT_EQ(mechanisms.credentialsRefusal()->text, wrong.text);

    LoginMechanisms temporary({.verifiedTls = true});
    temporary.refused({454, "try later"});
    EXPECT_FALSE(temporary.credentialsRefusal());
}

}  // namespace

}  // namespace login_mechanisms_test
