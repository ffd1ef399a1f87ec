// SPDX-License-Identifier: GPL-3.0-or-later
// The list of the folders that the selected recipients are in.
#include "modules/send/Cartelle.h"

#include <gtest/gtest.h>

#include "support/SampleFolder.h"

namespace cartelle_test {

using testing_support::SampleFolder;

namespace {

class CartelleTest : public testing::Test {
  protected:
    /// Groups "G01", "G02" and so on, from number 2, with one selected recipient each.
    static void groups(int count) {
        for (int i = 1; i <= count; ++i) {
            SampleFolder::run(
                QString("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'G%1')").arg(i, 2, 10, QChar('0')));
            recipient(i + 1);
        }
    }
    static void recipient(int group, bool selected = true) {
        SampleFolder::run(
            QString("INSERT INTO [tb_destinatari] (id_grp, sel, email) VALUES (%1, %2, 'a@x.it')")
                .arg(QString::number(group), selected ? "True" : "False"));
    }

    SampleFolder folder;
};

}  // namespace

TEST_F(CartelleTest, LargestComeFirstAndLostOnesLast) {
    EXPECT_EQ(CartelleSelezionate().toStdString(), "");
    groups(2);
    recipient(3);
    recipient(0);
    recipient(1, false);
    for (int i = 0; i < 5; ++i)
        recipient(99);
    EXPECT_EQ(CartelleSelezionate().toStdString(), "G02 2, Database Mailing 1, G01 1, cartelle perdute 5");
}

TEST_F(CartelleTest, AfterTenTheRestIsSummedUp) {
    groups(11);
    EXPECT_TRUE(CartelleSelezionate().endsWith("G10 1, G11 1"));
    SampleFolder::run("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'G12')");
    for (int i = 0; i < 3; ++i)
        recipient(13);
    EXPECT_EQ(CartelleSelezionate().toStdString(),
              "G12 3, G01 1, G02 1, G03 1, G04 1, G05 1, G06 1, G07 1, G08 1, G09 1, altre 2 cartelle 2");
}

}  // namespace cartelle_test
