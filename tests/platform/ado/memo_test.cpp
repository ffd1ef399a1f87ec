// SPDX-License-Identifier: GPL-3.0-or-later
// Memo fields through statements and recordsets.
#include "support/JetTables.h"
#include "TestDatabase.h"

namespace memo_test {

namespace {

class MemoFieldTest : public ado::TestDatabase {
  protected:
    void SetUp() override {
        TestDatabase::SetUp();
        jettables::addTable(
            path.toStdString(), "note",
            {{"id", jet::Type::Long, 0, true}, {"titolo", jet::Type::Text, 50}, {"nota", jet::Type::Memo}},
            {{{{0, true}}, 0x89}});
    }
    static std::string text(size_t length) { return std::string(length, 'm'); }
    std::string notes() { return column("SELECT nota FROM note ORDER BY id", "nota"); }
};

}  // namespace

TEST_F(MemoFieldTest, StatementsInsertAndChangeThem) {
    for (const size_t length : {5, 900, 9000})
        run("INSERT INTO [note] (titolo, nota) VALUES ('titolo', '" + QString::fromStdString(text(length)) +
            "')");
    run("INSERT INTO [note] (titolo) VALUES ('senza')");
    EXPECT_EQ(notes(), text(5) + "|" + text(900) + "|" + text(9000) + "|(null)");
    run("UPDATE [note] SET nota = '" + QString::fromStdString(text(3000)) + "' WHERE id > 1");
    EXPECT_EQ(notes(), text(5) + "|" + text(3000) + "|" + text(3000) + "|" + text(3000));
    run("UPDATE [note] SET nota = NULL WHERE id = 2");
    run("UPDATE [note] SET titolo = 'altro'");
    EXPECT_EQ(notes(), text(5) + "|(null)|" + text(3000) + "|" + text(3000));
    EXPECT_EQ(run("INSERT INTO [note] (titolo, nota) SELECT titolo, nota FROM [note]"), 4);
    EXPECT_EQ(run("DELETE FROM [note] WHERE id <= 4"), 4);
    EXPECT_EQ(notes(), text(5) + "|(null)|" + text(3000) + "|" + text(3000));
}

}  // namespace memo_test
