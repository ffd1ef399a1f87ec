// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/ServerVerdict.h"

#include <gtest/gtest.h>

namespace server_verdict_test {

namespace {

QString verdict(int code, const char* text) {
    return mail::verdictOf({false, code, QString::fromUtf8(text)});
}

bool tells(const QString& verdict, const char* what) {
    return verdict.contains(QString::fromUtf8(what));
}

TEST(ServerVerdict, RecognisesSpamByTheServersWords) {
    for (const char* text :
         {"5.7.1 Message rejected as spam", "5.7.1 [1.2.3.4] This message is likely unsolicited mail.",
          "5.7.0 JUNK mail", "5.7.999 bulk mail is not taken, limit your rate"}) {
        const QString told = verdict(550, text);
        EXPECT_TRUE(tells(told, "posta indesiderata (spam), codice 5.7.")) << told.toStdString();
        EXPECT_TRUE(told.endsWith(QString::fromUtf8(text).section(u' ', 1))) << told.toStdString();
    }
}

TEST(ServerVerdict, ReportsTheRate) {
    for (const char* text :
         {"4.7.28 unusual rate of unsolicited mail, you are rate limited", "4.7.1 Too many messages",
          "4.7.0 sending quota exceeded", "4.7.650 throttled", "4.7.1 connection limit reached"}) {
        EXPECT_TRUE(tells(verdict(421, text), "la frequenza degli invii, per ora, codice 4.7.")) << text;
    }
    EXPECT_TRUE(tells(verdict(550, "5.7.1 daily limit exceeded"), "la frequenza degli invii, codice 5.7.1"));
}

TEST(ServerVerdict, EverythingElseOfTheClassIsPolicy) {
    EXPECT_EQ(verdict(550, "5.7.26 Unauthenticated email is not accepted due to domain's DMARC policy"),
              "Il server rifiuta il messaggio per le sue regole, codice 5.7.26: Unauthenticated email is not "
              "accepted "
              "due to domain's DMARC policy");
    for (const char* text :
         {"5.7.1 Relay access denied", "5.7.1", "5.7.1  corporate policy", "5.7.509 moderated"})
        EXPECT_TRUE(tells(verdict(554, text), "per le sue regole, codice 5.7.")) << text;
    EXPECT_TRUE(tells(verdict(451, "4.7.1 greylisted"), "per le sue regole, per ora, codice 4.7.1"));
}

TEST(ServerVerdict, OtherOutcomesHaveNone) {
    for (const char* text : {"", "5.1.1 no such user, spam", "spam", "550 5.7.1 spam", "5.7 spam",
                             "5.7.x spam", "5.7.1234 spam", "2.7.0 ok", "6.7.1 spam", "x 5.7.1 spam"})
        EXPECT_EQ(verdict(550, text), QString()) << text;
    for (const int code : {530, 534, 535, 538})
        EXPECT_EQ(verdict(code, "5.7.0 Authentication required"), QString()) << code;
    EXPECT_EQ(mail::verdictOf({true, 250, "5.7.1 spam"}), QString());
    EXPECT_EQ(mail::verdictOf({false, 454, "4.7.0 too many failures", true}), QString());
}

}  // namespace

}  // namespace server_verdict_test
