// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/RicercaMX.h"

#include <gtest/gtest.h>

namespace ricerca_mx_test {

namespace {

using dns::Answer;

Answer answer(Answer::Kind kind, const QList<dns::Exchanger>& exchangers = {}) {
    Answer made;
    made.kind = kind;
    made.exchangers = exchangers;
    return made;
}

TEST(RicercaMX, LowestPreferenceIsTheServerAndOfEqualOnesTheFirst) {
    const ServerMX found = ServerDi(answer(
        Answer::Kind::Records, {{30, "c.example"}, {10, "b.example"}, {10, "a.example"}, {20, "d.it"}}));
    EXPECT_EQ(found.server, "b.example");
    EXPECT_EQ(found.motivo, "");
}

TEST(RicercaMX, WithoutAServerOneSentenceSaysWhy) {
    Answer failure = answer(Answer::Kind::Failure);
    failure.why = "il DNS non risponde";
    for (const auto& [given, wanted] :
         {std::pair(failure,
                    "Ricerca del server di posta non riuscita: il DNS non risponde. Riprovare più tardi."),
          std::pair(answer(Answer::Kind::NoName),
                    "Il dominio del destinatario non ha un server di posta: non esiste (NXDOMAIN)."),
          std::pair(answer(Answer::Kind::NoRecords),
                    "Il dominio del destinatario non ha un server di posta: il DNS non ne indica."),
          std::pair(answer(Answer::Kind::Records),
                    "Il dominio del destinatario non ha un server di posta: il DNS non ne indica."),
          std::pair(answer(Answer::Kind::Records, {{0, ""}}),
                    "Il dominio del destinatario non accetta posta (null MX).")}) {
        const ServerMX found = ServerDi(given);
        EXPECT_EQ(found.server, "");
        EXPECT_EQ(found.motivo, wanted);
    }
}

TEST(RicercaMX, TextThatIsNoDomainIsReportedAtOnceAndNobodyIsAsked) {
    RicercaMX look;
    ServerMX found;
    look.Avvia("[127.0.0.1]", [&](const ServerMX& one) { found = one; });
    EXPECT_FALSE(look.InCorso());
    EXPECT_EQ(found.motivo, "Il dominio del destinatario non è valido.");
}

}  // namespace

}  // namespace ricerca_mx_test
