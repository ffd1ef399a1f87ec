// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/IndirizziDoppi.h"

#include <gtest/gtest.h>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/strumenti/Giro.h"
#include "platform/ado/Connection.h"
#include "support/SampleFolder.h"

namespace indirizzi_doppi_test {

namespace {

class IndirizziDoppiTest : public testing::Test {
  protected:
    int add(const char* email, bool sel = true) {
        return folder.addRecipient({{"email", QString::fromUtf8(email)}, {"sel", sel ? "1" : "0"}});
    }
    static std::vector<IndirizziDoppi::Doppio> find() {
        IndirizziDoppi indirizzi(connDB);
        strumenti::GiraTutto([&](auto time) { return indirizzi.Avanza(time); }, [] {});
        return indirizzi.Doppi();
    }

    testing_support::SampleFolder folder;
};

}  // namespace

TEST_F(IndirizziDoppiTest, CaseAndBlanksAtTheEndsMakeNoDifference) {
    const int first = add(" Anna@Example.it");
    add("bruno@example.it");
    const int second = add("anna@example.IT  ");
    add("anna @example.it");
    const auto doppi = find();
    ASSERT_EQ(doppi.size(), 1u);
    EXPECT_EQ(doppi[0].indirizzo, "Anna@Example.it");
    ASSERT_EQ(doppi[0].destinatari.size(), 2u);
    EXPECT_EQ(doppi[0].destinatari[0].id, first);
    EXPECT_EQ(doppi[0].destinatari[1].id, second);
    EXPECT_EQ(doppi[0].destinatari[1].gruppo, 1);
}

TEST_F(IndirizziDoppiTest, TableWithoutItsColumnsIsAFailure) {
    add("anna@example.it");
    ado::closeAll();
    testing_support::SampleFolder::renameInFile(folder.database(), "id_grp", "id_grx");
    IndirizziDoppi indirizzi(connDB);
    Result<bool> step = false;
    while (step.ok() && !step.value())
        step = indirizzi.Avanza(std::chrono::milliseconds(1));
    EXPECT_EQ(step.status().code(), ErrorCode::ItemNotFound);
}

TEST_F(IndirizziDoppiTest, OnlySelectedOnesCount) {
    add("anna@example.it");
    add("anna@example.it", false);
    EXPECT_TRUE(find().empty());
}

TEST_F(IndirizziDoppiTest, RecipientsWithoutAnAddressAreNoDoubles) {
    add("");
    add("   ");
    folder.addRecipients({{{"email", QString()}}, {{"email", QString()}}});
    EXPECT_TRUE(find().empty());
}

TEST_F(IndirizziDoppiTest, AllButTheFirstAreDeselected) {
    add("zeta@example.it");
    add("anna@example.it");
    add("ANNA@example.it");
    add("zeta@example.it");
    add("zeta@example.it");
    add("zeta@example.it", false);
    const auto doppi = find();
    ASSERT_EQ(doppi.size(), 2u);
    EXPECT_EQ(doppi[0].indirizzo, "anna@example.it");
    DeselezionaDoppi(doppi);
    EXPECT_EQ(testing_support::SampleFolder::selected().size(), 2);
    EXPECT_TRUE(testing_support::SampleFolder::selected().contains("zeta@example.it"));
    EXPECT_TRUE(testing_support::SampleFolder::selected().contains("anna@example.it"));
    EXPECT_TRUE(find().empty());
}

// More than fit into one statement.
TEST_F(IndirizziDoppiTest, ManyAreDeselectedInBlocks) {
    QList<testing_support::SampleFolder::Columns> all;
    for (int i = 0; i < 2500; ++i)
        all << testing_support::SampleFolder::Columns{{"email", "uno@example.it"}};
    folder.addRecipients(all);
    const auto doppi = find();
    ASSERT_EQ(doppi.size(), 1u);
    EXPECT_EQ(doppi[0].destinatari.size(), 2500u);
    DeselezionaDoppi(doppi);
    EXPECT_EQ(testing_support::SampleFolder::selected().size(), 1);
}

TEST_F(IndirizziDoppiTest, MissingDatabaseIsAFailure) {
    folder.hideDatabase();
    EXPECT_THROW(find(), Fallimento);
    folder.showDatabase();
}

}  // namespace indirizzi_doppi_test
