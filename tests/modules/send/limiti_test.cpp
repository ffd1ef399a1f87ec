// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Limiti.h"

#include <QLocale>

#include "platform/system/Clock.h"
#include "support/Vectors.h"

namespace limiti_test {

namespace {

// Advances the clock without waiting, under the Italian number format.
class Limits : public testing::Test {
  protected:
    void SetUp() override {
        QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
        sys::clock() = {[this] { return time; },
                        [this](std::chrono::milliseconds span) {
                            EXPECT_GT(span.count(), 0);
                            time = time.addMSecs(span.count());
                            ++sleeps;
                        }};
    }
    void TearDown() override {
        sys::clock() = sys::systemClock();
        QLocale::setDefault(m_before);
    }

    LimiteBlocco started(const QString& minutes, const QString& number) const {
        LimiteBlocco limit;
        limit.bloccoAttivo = true;
        limit.avvia(minutes, number);
        return limit;
    }
    // Ends a message after `seconds`; returns the seconds for which the limit then blocked.
    qint64 message(LimiteBlocco& limit, int seconds) {
        time = time.addSecs(seconds);
        const QDateTime ended = time;
        limit.applica();
        return ended.secsTo(time);
    }

    QDateTime time{QDate(2026, 11, 21), QTime(9, 0)};
    int sleeps = 0;

  private:
    QLocale m_before;
};

}  // namespace

TEST_F(Limits, PauseAndTimeOutAreThoseOfTheVectors) {
    for (const QJsonValue vector : vectorsOf(QStringLiteral("send/pause.json"))) {
        const QString text = vector[QLatin1String("text")].toString();
        if (vector[QLatin1String("op")].toString() == QLatin1String("pausa")) {
            EXPECT_EQ(MillisecondiPausa(text), vector[QLatin1String("ms")].toInt()) << text.toStdString();
        } else {
            EXPECT_EQ(SecondiTimeout(text), vector[QLatin1String("seconds")].toInt()) << text.toStdString();
        }
    }
}

TEST_F(Limits, EveryEntryOfThePauseListHasItsInterval) {
    const std::vector<std::pair<const char*, int>> entries{
        {"0.0 ", 200},  {"0.5 ", 500},  {"1.0 ", 1000}, {"1.5 ", 1500}, {"2.0 ", 2000},
        {"2.5 ", 2500}, {"3.0 ", 3000}, {"3.5 ", 3500}, {"4.0 ", 4000}, {"4.5 ", 4500},
        {"5.0 ", 5000}, {"10 ", 10000}, {"20 ", 20000}, {"30 ", 30000}, {"60 ", 60000}};
    for (const auto& [entry, milliseconds] : entries) {
        for (const char* word : {"", "secondi", "5"}) {
            EXPECT_EQ(MillisecondiPausa(QLatin1String(entry) + QLatin1String(word)), milliseconds)
                << entry << word;
        }
    }
    EXPECT_EQ(MillisecondiPausa(QString()), 200);
}

TEST_F(Limits, EveryEntryOfTheTimeOutListHasItsSeconds) {
    const std::vector<std::pair<const char*, int>> entries{
        {"5  ", 5}, {"10 ", 10}, {"20 ", 20}, {"30 ", 30}, {"60 ", 60}};
    for (const auto& [entry, seconds] : entries) {
        EXPECT_EQ(SecondiTimeout(QLatin1String(entry) + QStringLiteral("secondi")), seconds);
    }
}

TEST_F(Limits, WindowAndNumberAreReadAsTheVectorsSay) {
    for (const QJsonValue vector : vectorsOf(QStringLiteral("send/setup.json"))) {
        LimiteBlocco limit;
        limit.avvia(vector[QLatin1String("txtBloccoMin")].toString(),
                    vector[QLatin1String("txtBloccoNum")].toString());
        if (vector[QLatin1String("txtBloccoMin")].isString()) {
            EXPECT_EQ(limit.bloccoSecondi, vector[QLatin1String("bloccoSecondi")].toInt());
        } else {
            EXPECT_EQ(limit.bloccoMax, vector[QLatin1String("bloccoMax")].toInt());
        }
        EXPECT_EQ(limit.bloccoInizio, time);
        EXPECT_EQ(limit.bloccoConta, 1);
    }
}

TEST_F(Limits, TextThatIsNoNumberKeepsTheOldValue) {
    LimiteBlocco limit = started(QStringLiteral("5"), QStringLiteral("50"));
    limit.bloccoConta = 7;
    time = time.addSecs(60);
    limit.avvia(QStringLiteral("cinque"), QStringLiteral("99999999999"));
    EXPECT_EQ(limit.bloccoSecondi, 300);
    EXPECT_EQ(limit.bloccoMax, 50);
    EXPECT_EQ(limit.bloccoConta, 1);
    EXPECT_EQ(limit.bloccoInizio, time);
}

TEST_F(Limits, BlockLimitBlocksAsTheVectorsSay) {
    for (const QJsonValue vector : vectorsOf(QStringLiteral("send/block.json"))) {
        SCOPED_TRACE(vector[QLatin1String("name")].toString().toStdString());
        LimiteBlocco limit;
        limit.bloccoAttivo = vector[QLatin1String("bloccoAttivo")].toBool();
        limit.bloccoMax = vector[QLatin1String("bloccoMax")].toInt();
        limit.bloccoSecondi = vector[QLatin1String("bloccoSecondi")].toInt();
        limit.avvia({}, {});
        const QDateTime start = time;
        const QJsonArray gaps = vector[QLatin1String("gaps")].toArray();
        const QJsonArray waits = vector[QLatin1String("waits")].toArray();
        const QJsonArray ticks = vector[QLatin1String("ticks")].toArray();
        ASSERT_EQ(gaps.size(), ticks.size());
        for (int i = 0; i < ticks.size(); ++i) {
            const QJsonValue tick = ticks[i];
            if (!tick[QLatin1String("goes_on")].toBool()) break;  // the run ends: the step is left out
            EXPECT_EQ(message(limit, gaps[i].toInt()), waits[i].toInt()) << i;
            EXPECT_EQ(start.secsTo(time), tick[QLatin1String("left_at")].toInt()) << i;
            EXPECT_EQ(limit.bloccoConta, tick[QLatin1String("bloccoConta")].toInt()) << i;
            EXPECT_EQ(start.secsTo(limit.bloccoInizio), tick[QLatin1String("bloccoInizio")].toInt()) << i;
            if (limit.bloccoAttivo) {
                EXPECT_EQ(limit.bloccoTrascorsi, tick[QLatin1String("bloccoTrascorsi")].toInt()) << i;
            }
        }
    }
}

TEST_F(Limits, FiftyInFiveMinutesWaitAfterTheFiftiethUntilThreeHundredSeconds) {
    LimiteBlocco limit = started(QStringLiteral("5"), QStringLiteral("50"));
    const QDateTime start = time;
    for (int round = 1; round <= 2; ++round) {
        for (int i = 1; i < 50; ++i)
            EXPECT_EQ(message(limit, 1), 0) << i;
        EXPECT_GT(message(limit, 1), 0);
        EXPECT_EQ(start.secsTo(time), 300 * round);
        EXPECT_EQ(limit.bloccoConta, 1);
    }
}

TEST_F(Limits, LimitOfOneOrNoneWaitsOutTheWindowEachTime) {
    for (const char* number : {"1", "0"}) {
        LimiteBlocco limit = started(QStringLiteral("1"), QLatin1String(number));
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(message(limit, 10), 50);
    }
}

TEST_F(Limits, WindowOfNoMinutesBlocksOnlyInItsFirstSecond) {
    LimiteBlocco limit = started(QStringLiteral("0"), QStringLiteral("1"));
    EXPECT_EQ(message(limit, 0), 0);
    EXPECT_EQ(limit.bloccoConta, 1) << "the window began again";
    EXPECT_EQ(message(limit, 1), 0);
    EXPECT_EQ(limit.bloccoConta, 2) << "the window was over";
}

TEST_F(Limits, SlowStartEndsTheLimiting) {
    LimiteBlocco limit = started(QStringLiteral("1"), QStringLiteral("2"));
    EXPECT_EQ(message(limit, 61), 0);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(message(limit, 0), 0);
}

TEST_F(Limits, FractionsAreThoseOfTheUsersLocale) {
    const LimiteBlocco limit = started(QStringLiteral("2,5"), QStringLiteral("2,6"));
    EXPECT_EQ(limit.bloccoSecondi, 150);
    EXPECT_EQ(limit.bloccoMax, 3);
    EXPECT_EQ(started(QStringLiteral("2.5"), QStringLiteral("1")).bloccoSecondi, 0) << "no number in Italian";
}

TEST_F(Limits, UncheckedBoxNeverBlocks) {
    LimiteBlocco limit;
    limit.avvia(QStringLiteral("5"), QStringLiteral("1"));
    EXPECT_EQ(message(limit, 0), 0);
    EXPECT_EQ(limit.bloccoConta, 1);
}

TEST_F(Limits, TimeIsReadInWholeSecondsOfTheClock) {
    time = time.addMSecs(900);
    LimiteBlocco limit = started(QStringLiteral("1"), QStringLiteral("1"));
    const QDateTime start = time;
    limit.applica();
    EXPECT_EQ(start.msecsTo(time), 59100) << "from second 0 to second 60 of the clock";
    EXPECT_EQ(limit.bloccoTrascorsi, 60);
    EXPECT_LE(sleeps, 60) << "it sleeps from second to second";
}

}  // namespace limiti_test
