// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "modules/core/Errori.h"
#include "modules/core/Fallimento.h"

namespace failure_test {

TEST(Failure, UnguardedStatementThrowsNumberAndText) {
    try {
        esigi(Status(ErrorCode::FileNotFound, QStringLiteral("manca")));
        FAIL();
    } catch (const Fallimento& failure) {
        EXPECT_EQ(failure.numero(), 53);
        EXPECT_EQ(failure.testo(), QStringLiteral("manca"));
        EXPECT_STREQ(failure.what(), "manca");
    }
}

TEST(Failure, WithoutATextItHasTheStandardOne) {
    try {
        fallisci(ErrorCode::TypeMismatch);
    } catch (const Fallimento& failure) {
        EXPECT_EQ(failure.testo(), QStringLiteral("Tipo non corrispondente"));
    }
    EXPECT_FALSE(testoErrore(static_cast<ErrorCode>(12345)).isEmpty());
}

TEST(Failure, SuccessHandsTheValueOn) {
    EXPECT_NO_THROW(esigi(Status()));
    EXPECT_EQ(esigi(Result<int>(5)), 5);
}

TEST(Failure, CarryOnKeepsTheTargetRemembersAndContinues) {
    Prosegui prosegui;
    int target = 1;
    EXPECT_FALSE(prosegui(
        [&] { target = esigi(Result<int>(Status(ErrorCode::Overflow, QStringLiteral("troppo")))); }));
    EXPECT_EQ(target, 1);
    EXPECT_TRUE(prosegui([&] { target = 2; }));
    EXPECT_EQ(target, 2);
    EXPECT_EQ(prosegui.numero(), 6) << "a later success does not clear it";
    EXPECT_EQ(prosegui.testo(), QStringLiteral("troppo"));
}

TEST(Failure, NearestCarryOnCallerTakesIt) {
    Prosegui outer;
    bool behind = false;
    outer([&] {
        Prosegui inner;
        inner([] { fallisci(ErrorCode::Overflow); });
        behind = true;
        fallisci(ErrorCode::TypeMismatch);
    });
    EXPECT_TRUE(behind);
    EXPECT_EQ(outer.numero(), 13);
}

TEST(Failure, FallBackReturnsTheDefault) {
    EXPECT_EQ(ripiega(7, []() -> int { fallisci(ErrorCode::Overflow); }), 7);
    EXPECT_EQ(ripiega(7, [] { return 8; }), 8);
}

}  // namespace failure_test
