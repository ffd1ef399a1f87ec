// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/store/CercaOvunque.h"

#include <gtest/gtest.h>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "support/SampleFolder.h"

namespace cerca_ovunque_test {

using testing_support::SampleFolder;

namespace {

using PerCartella = std::map<std::int32_t, qint64>;

class CercaOvunqueTest : public testing::Test {
  protected:
    static void add(const QString& group, const char* name, bool sel = true) {
        SampleFolder::run(QString("INSERT INTO [tb_destinatari] (id_grp, sel, nom) VALUES (%1, %2, '%3')")
                              .arg(group, sel ? "True" : "False", QString::fromUtf8(name)));
    }
    static CercaOvunque searched(const QString& text, bool selectedOnly = false) {
        CercaOvunque search(connDB, text, selectedOnly);
        while (!esigi(search.Avanza(std::chrono::microseconds(0)))) {
        }
        return search;
    }

    SampleFolder folder;
};

}  // namespace

TEST_F(CercaOvunqueTest, CountsMatchesByGroup) {
    add("1", "Niccolò");
    add("7", "NICCOLO");
    add("7", "Anna");
    add("0", "niccolo d`este");
    const CercaOvunque search = searched("niccolò");
    EXPECT_EQ(search.Trovati(), 3);
    EXPECT_EQ(search.PerCartella(), (PerCartella{{0, 1}, {1, 1}, {7, 1}}));
}

TEST_F(CercaOvunqueTest, LooksAmongTheSelectedOnly) {
    add("1", "Anna", false);
    add("1", "Anna", true);
    add("2", "Bruno", true);
    EXPECT_EQ(searched("anna", true).Trovati(), 1);
    EXPECT_EQ(searched("", true).PerCartella(), (PerCartella{{1, 1}, {2, 1}}));
}

TEST_F(CercaOvunqueTest, NumbersOfRowAndGroupAreNotLookedAt) {
    for (int i = 0; i < 40; ++i)
        add("31", "Anna");
    EXPECT_EQ(searched("31").Trovati(), 0);
    EXPECT_EQ(searched("true").Trovati(), 0);
}

TEST_F(CercaOvunqueTest, ThoseWithoutAGroupAreCountedAlone) {
    add("NULL", "Anna");
    const CercaOvunque search = searched("anna");
    EXPECT_EQ(search.Trovati(), 1);
    EXPECT_TRUE(search.PerCartella().empty());
}

TEST_F(CercaOvunqueTest, AMissingDatabaseIsAFailure) {
    folder.hideDatabase();
    EXPECT_FALSE(CercaOvunque(connDB, "a", false).Avanza(std::chrono::hours(1)).ok());
    folder.showDatabase();
}

}  // namespace cerca_ovunque_test
