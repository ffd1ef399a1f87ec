// SPDX-License-Identifier: GPL-3.0-or-later
#include "TestDatabase.h"

namespace recordset_test {

namespace {

using ado::CursorType;
using ado::LockType;
using ado::Recordset;
using ado::Value;

class RecordsetTest : public ado::TestDatabase {
  protected:
    void addGroups(const QStringList& names) const {
        for (const QString& name : names)
            run(QStringLiteral("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, '%1')").arg(name));
    }
    void addRecipient(int group, const char* rgs, const char* email) const {
        run(QStringLiteral(
                "INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs) VALUES (%1, True, '%2', '%3') ")
                .arg(group)
                .arg(QString::fromUtf8(email), QString::fromUtf8(rgs)));
    }
    static std::string text(const Recordset& rows, const char* field) {
        const auto value = rows.value(QString::fromUtf8(field));
        if (!value.ok()) return "error " + std::to_string(static_cast<int>(value.status().code()));
        return value.value().isNull() ? "(null)" : value.value().toTextOrEmpty(QLocale::c()).toStdString();
    }
};

}  // namespace

TEST_F(RecordsetTest, AnEmptyTableIsAtBothMarks) {
    Recordset rows = open("SELECT * FROM [tb_gruppi] WHERE id_up = 0 ORDER BY nome ASC;");
    EXPECT_TRUE(rows.isBof());
    EXPECT_TRUE(rows.isEof());
    EXPECT_EQ(rows.recordCount(), 0);
    EXPECT_EQ(rows.moveFirst().code(), ErrorCode::NoCurrentRecord);
    EXPECT_EQ(rows.moveNext().code(), ErrorCode::NoCurrentRecord);
    EXPECT_EQ(rows.value(u"nome").status().code(), ErrorCode::NoCurrentRecord);
}

TEST_F(RecordsetTest, FieldsComeInTheOrderOfTheTable) {
    Recordset rows = open("SELECT * FROM tb_destinatari WHERE id_grp = 1 ORDER BY rgs ASC;");
    ASSERT_EQ(rows.fieldCount(), 22);
    EXPECT_EQ(rows.fieldName(0), QStringLiteral("id"));
    EXPECT_EQ(rows.fieldName(1), QStringLiteral("id_grp"));
    EXPECT_EQ(rows.fieldName(2), QStringLiteral("rgs"));
    EXPECT_EQ(rows.fieldName(11), QStringLiteral("email"));
    EXPECT_EQ(rows.fieldName(21), QStringLiteral("sel"));
    EXPECT_EQ(rows.fieldName(22), QString());
}

TEST_F(RecordsetTest, AnUnknownFieldIsAnError) {
    addGroups({QStringLiteral("Clienti")});
    Recordset rows = open("SELECT * FROM [tb_gruppi];");
    EXPECT_EQ(rows.value(u"cognome").status().code(), ErrorCode::ItemNotFound);
    EXPECT_EQ(rows.value(7).status().code(), ErrorCode::ItemNotFound);
    EXPECT_EQ(text(rows, "NOME"), "Clienti");
    EXPECT_EQ(rows.value(2).value(), Value(QStringLiteral("Clienti")));
}

TEST_F(RecordsetTest, AForwardOnlyCursorDoesNotKnowItsCount) {
    addGroups({QStringLiteral("a")});
    Recordset rows =
        open(QStringLiteral("SELECT * FROM [tb_gruppi];"), CursorType::ForwardOnly, LockType::ReadOnly);
    EXPECT_EQ(rows.recordCount(), -1);
    EXPECT_EQ(open(QStringLiteral("SELECT * FROM [tb_gruppi];"), CursorType::Keyset).recordCount(), 1);
}

TEST_F(RecordsetTest, MovesOverRowsAndStopsAfterTheLast) {
    addGroups({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    Recordset rows = open("SELECT * FROM [tb_gruppi] ORDER BY nome ASC;");
    EXPECT_TRUE(rows.move(2).ok());
    EXPECT_EQ(text(rows, "nome"), "c");
    EXPECT_TRUE(rows.move(-1).ok());
    EXPECT_EQ(text(rows, "nome"), "b");
    EXPECT_TRUE(rows.move(5).ok());
    EXPECT_TRUE(rows.isEof());
    EXPECT_FALSE(rows.isBof());
    EXPECT_EQ(text(rows, "nome"), "error 3021");
    EXPECT_EQ(rows.moveNext().code(), ErrorCode::NoCurrentRecord);
    EXPECT_TRUE(rows.moveFirst().ok());
    EXPECT_EQ(text(rows, "nome"), "a");
    EXPECT_TRUE(rows.move(-1).ok());
    EXPECT_TRUE(rows.isBof());
    EXPECT_EQ(text(rows, "nome"), "error 3021");
    EXPECT_TRUE(rows.moveNext().ok());
    EXPECT_EQ(text(rows, "nome"), "a");
    EXPECT_TRUE(rows.move(0).ok());
    EXPECT_EQ(text(rows, "nome"), "a");
}

TEST_F(RecordsetTest, NullAndTheEmptyTextAreTwoThings) {
    run("INSERT INTO [tb_destinatari] (id_grp, rgs, nom) VALUES (1, 'Azienda', '')");
    Recordset rows = open("SELECT * FROM [tb_destinatari] WHERE id = 1 ;");
    EXPECT_EQ(text(rows, "nom"), "");
    EXPECT_EQ(text(rows, "email"), "(null)");
    EXPECT_EQ(rows.value(u"email").value().toText().status().code(), ErrorCode::InvalidNull);
}

TEST_F(RecordsetTest, TrueIsMinusOneAtTheRecordsetsEdge) {
    run("INSERT INTO [tb_destinatari] (id_grp, sel) VALUES (1, True)");
    run("INSERT INTO [tb_destinatari] (id_grp, sel) VALUES (1, False)");
    Recordset rows = open("SELECT * FROM [tb_destinatari];");
    EXPECT_EQ(rows.value(u"sel").value(), Value(true));
    EXPECT_EQ(rows.value(u"sel").value().toInteger().value(), -1);
    EXPECT_EQ(open("SELECT * FROM [tb_destinatari] WHERE sel = True ;").recordCount(), 1);
    EXPECT_EQ(open("SELECT * FROM [tb_destinatari] WHERE sel = -1").recordCount(), 1);
    EXPECT_EQ(open("SELECT * FROM [tb_destinatari] WHERE sel = False").recordCount(), 1);
    Recordset values = open("SELECT sel, id FROM [tb_destinatari] WHERE sel = True");
    EXPECT_EQ(values.value(u"sel").value(), Value(true));
    EXPECT_EQ(values.value(u"id").value(), Value(1));
}

TEST_F(RecordsetTest, TrueSortsBeforeFalseHoweverTheRowsAreFound) {
    for (const char* row : {"1, False", "2, True", "1, True"})
        run(QStringLiteral("INSERT INTO [tb_destinatari] (id_grp, sel) VALUES (%1)").arg(QLatin1String(row)));
    for (const char* found : {"", " WHERE id_grp IN (1, 2)", " WHERE id_grp = 1 OR sel = True"})
        EXPECT_EQ(
            column(("SELECT * FROM [tb_destinatari]" + std::string(found) + " ORDER BY sel, id").c_str(),
                   "id"),
            "2|3|1")
            << found;
    EXPECT_EQ(column("SELECT * FROM [tb_destinatari] WHERE NOT (sel = True) OR id_grp = 7", "id"), "1");
}

TEST_F(RecordsetTest, OrdersWithoutCaseAccentsAfterBaseLettersNullFirst) {
    for (const char* name :
         {"'zeta'", "'Per\u00f2'", "'perone'", "'PERO'", "Null", "''", "'pera'", "'9'", "'10'"})
        run(QStringLiteral("INSERT INTO tb_gruppi (id_up, nome) VALUES (0, %1)")
                .arg(QString::fromUtf8(name)));
    EXPECT_EQ(column("SELECT * FROM [tb_gruppi] WHERE id_up = 0 ORDER BY nome ASC;", "nome"),
              "(null)||10|9|pera|PERO|Per\u00f2|perone|zeta");
    EXPECT_EQ(column("SELECT nome FROM [tb_gruppi] ORDER BY nome DESC;", "nome"),
              "zeta|perone|Per\u00f2|PERO|pera|9|10||(null)");
    EXPECT_EQ(column("SELECT nome FROM [tb_gruppi] WHERE nome = 'pero'", "nome"), "PERO");
    EXPECT_EQ(column("SELECT nome FROM [tb_gruppi] WHERE nome >= 'perone' ORDER BY nome", "nome"),
              "perone|zeta");
}

TEST_F(RecordsetTest, EqualTextsCompareEqualWithoutCaseAndTrailingBlanks) {
    addGroups({QStringLiteral("Clienti")});
    EXPECT_EQ(column("SELECT nome FROM tb_gruppi WHERE nome = 'CLIENTI  '", "nome"), "Clienti");
    EXPECT_EQ(column("SELECT nome FROM tb_gruppi WHERE nome <> 'clienti'", "nome"), "");
}

TEST_F(RecordsetTest, RowsEqualInAllSortColumnsKeepTheirOrder) {
    for (int i = 0; i < 50; ++i)
        run("INSERT INTO [tb_destinatari] (id_grp, sel, rgs, email) VALUES (1, True, 'Uguale', 'a@b.it')");
    const char* statement =
        "SELECT * FROM [tb_destinatari] WHERE [sel] = True ORDER BY rgs ASC, email ASC, nom ASC, loc ASC, "
        "ind ASC;";
    const std::string first = column(statement, "id");
    ado::closeAll();
    EXPECT_EQ(column(statement, "id"), first);
    run("UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = 1;");
    EXPECT_EQ("1|" + column(statement, "id"), first);
    run("UPDATE [tb_destinatari] SET [sel] = True WHERE [id] = 1;");
    EXPECT_EQ(column(statement, "id"), first);
}

TEST_F(RecordsetTest, TheAutoNumberOfANewRowIsKnownBeforeItIsPosted) {
    addGroups({QStringLiteral("a"), QStringLiteral("b")});
    Recordset rows = open("SELECT * FROM [tb_gruppi];");
    ASSERT_TRUE(rows.addNew().ok());
    EXPECT_TRUE(rows.setValue(u"id_up", 0).ok());
    EXPECT_TRUE(rows.setValue(u"nome", QStringLiteral("L'ultimo")).ok());
    EXPECT_EQ(text(rows, "id"), "3");
    EXPECT_EQ(text(rows, "nome"), "L'ultimo");
    const auto status = rows.update();
    ASSERT_TRUE(status.ok()) << ado::words(status);
    EXPECT_EQ(text(rows, "id"), "3");
    EXPECT_EQ(text(rows, "nome"), "L'ultimo");
    EXPECT_EQ(rows.recordCount(), 3);
    rows.close();
    EXPECT_EQ(column("SELECT * FROM [tb_gruppi] WHERE id = 3 ;", "nome"), "L'ultimo");
}

TEST_F(RecordsetTest, ANewRowThatIsGivenUpIsNotWritten) {
    Recordset rows = open("SELECT * FROM [tb_gruppi];");
    ASSERT_TRUE(rows.addNew().ok());
    EXPECT_TRUE(rows.setValue(u"nome", QStringLiteral("mai")).ok());
    rows.close();
    EXPECT_EQ(open("SELECT * FROM [tb_gruppi];").recordCount(), 0);
}

TEST_F(RecordsetTest, TwoNewRowsAtOnceGetTwoNumbers) {
    Recordset first = open("SELECT * FROM [tb_gruppi];");
    Recordset second = open("SELECT * FROM [tb_gruppi];");
    ASSERT_TRUE(first.addNew().ok());
    ASSERT_TRUE(second.addNew().ok());
    EXPECT_NE(text(first, "id"), text(second, "id"));
    EXPECT_TRUE(second.update().ok());
    EXPECT_TRUE(first.update().ok());
    EXPECT_EQ(open("SELECT * FROM [tb_gruppi];").recordCount(), 2);
}

TEST_F(RecordsetTest, ChangesTheCurrentRowWhenItIsPosted) {
    addGroups({QStringLiteral("a"), QStringLiteral("b")});
    Recordset rows = open("SELECT * FROM [tb_gruppi] WHERE id = 2 ORDER BY nome ASC;");
    ASSERT_TRUE(rows.setValue(u"nome", QStringLiteral("\u201cl'altro\u201d")).ok());
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id = 2", "nome"), "b");
    ASSERT_TRUE(rows.update().ok());
    EXPECT_EQ(text(rows, "nome"), "\u201cl'altro\u201d");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi ORDER BY id", "nome"), "a|\u201cl'altro\u201d");
}

TEST_F(RecordsetTest, AChangedCellIsReadByNumberAlsoAfterAnUnchangedOne) {
    addGroups({QStringLiteral("a")});
    Recordset rows = open("SELECT * FROM [tb_gruppi];");
    const int name = 2;
    ASSERT_EQ(rows.value(name).value(), Value(QStringLiteral("a")));
    ASSERT_TRUE(rows.setValue(u"nome", QStringLiteral("b")).ok());
    EXPECT_EQ(rows.value(0).value(), Value(1));
    EXPECT_EQ(rows.value(name).value(), Value(QStringLiteral("b")));
    ASSERT_TRUE(rows.addNew().ok());
    EXPECT_EQ(rows.value(0).value(), Value(2));
    EXPECT_TRUE(rows.value(name).value().isNull());
}

TEST_F(RecordsetTest, ATextLongerThanItsColumnIsNotPosted) {
    run("INSERT INTO [tb_destinatari] (id_grp, prov) VALUES (1, 'RA')");
    Recordset rows = open("SELECT * FROM [tb_destinatari] WHERE id = 1 ;");
    ASSERT_TRUE(rows.setValue(u"prov", QStringLiteral("RAV")).ok());
    EXPECT_EQ(rows.update().code(), ErrorCode::FieldTooSmall);
    EXPECT_EQ(column("SELECT * FROM [tb_destinatari]", "prov"), "RA");
}

TEST_F(RecordsetTest, AChangeThatCannotBePostedKeepsTheRecordsetOnItsRow) {
    addRecipient(1, "Acero", "a@x.it");
    addRecipient(1, "Betulla", "b@x.it");
    Recordset rows = open("SELECT * FROM [tb_destinatari] ORDER BY id;");
    ASSERT_TRUE(rows.moveNext().ok());
    ASSERT_TRUE(rows.setValue(u"prov", QStringLiteral("RAV")).ok());
    EXPECT_EQ(rows.moveFirst().code(), ErrorCode::FieldTooSmall);
    EXPECT_EQ(rows.addNew().code(), ErrorCode::FieldTooSmall);
    EXPECT_EQ(text(rows, "rgs"), "Betulla");
    ASSERT_TRUE(rows.setValue(u"prov", QStringLiteral("RA")).ok());
    ASSERT_TRUE(rows.moveFirst().ok());
    EXPECT_EQ(text(rows, "rgs"), "Acero");
    EXPECT_EQ(column("SELECT * FROM [tb_destinatari] WHERE id = 2", "prov"), "RA");
}

TEST_F(RecordsetTest, AFieldOfANewRowIsEmptyUntilItIsSet) {
    Recordset rows = open("SELECT * FROM [tb_destinatari];");
    ASSERT_TRUE(rows.addNew().ok());
    EXPECT_EQ(rows.value(u"sel").value(), Value(false));
    EXPECT_TRUE(rows.value(u"email").value().isNull());
    ASSERT_TRUE(rows.setValue(u"sel", Value(true)).ok());
    EXPECT_EQ(rows.value(u"sel").value(), Value(true));
}

TEST_F(RecordsetTest, WhatDoesNotFitAColumnsTypeIsRefused) {
    addGroups({QStringLiteral("a")});
    Recordset rows = open("SELECT * FROM [tb_gruppi];");
    EXPECT_EQ(rows.setValue(u"id_up", QStringLiteral("uno")).code(), ErrorCode::TypeMismatch);
    EXPECT_EQ(rows.setValue(u"id_up", 3000000000LL).code(), ErrorCode::Overflow);
    EXPECT_EQ(rows.setValue(u"cognome", 1).code(), ErrorCode::ItemNotFound);
    EXPECT_TRUE(rows.setValue(u"id_up", QStringLiteral("12")).ok());
    EXPECT_EQ(rows.value(u"id_up").value(), Value(12));
    EXPECT_TRUE(rows.setValue(u"id", 9).ok());
    EXPECT_EQ(rows.update().code(), ErrorCode::NotSupported);
}

TEST_F(RecordsetTest, AReadOnlyRecordsetCannotBeChanged) {
    addGroups({QStringLiteral("a")});
    Recordset rows =
        open(QStringLiteral("SELECT * FROM [tb_gruppi];"), CursorType::ForwardOnly, LockType::ReadOnly);
    EXPECT_EQ(rows.setValue(u"nome", QStringLiteral("b")).code(), ErrorCode::NotSupported);
    EXPECT_EQ(rows.addNew().code(), ErrorCode::NotSupported);
    Recordset values = open("SELECT nome FROM [tb_gruppi];");
    EXPECT_EQ(values.setValue(u"nome", QStringLiteral("b")).code(), ErrorCode::NotSupported);
}

TEST_F(RecordsetTest, RowsInsertedWhileItIsOpenAreNotSeen) {
    addGroups({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    Recordset rows = open("SELECT * FROM [tb_gruppi];");
    int seen = 0;
    for (; !rows.isEof() && seen < 100; ++seen) {
        run(QStringLiteral("INSERT INTO tb_gruppi (id_up, nome) VALUES (1, '%1')").arg(seen));
        ASSERT_TRUE(rows.moveNext().ok());
    }
    EXPECT_EQ(seen, 3);
    EXPECT_EQ(open("SELECT * FROM [tb_gruppi];").recordCount(), 6);
}

TEST_F(RecordsetTest, ARowDeletedSinceIsAnErrorAndTheNextOneIsNot) {
    addGroups({QStringLiteral("a"), QStringLiteral("b")});
    Recordset rows = open("SELECT * FROM [tb_gruppi] ORDER BY nome;");
    ASSERT_TRUE(rows.moveNext().ok());
    run("DELETE FROM tb_gruppi WHERE nome = 'a'");
    EXPECT_EQ(text(rows, "nome"), "b");
    EXPECT_TRUE(rows.moveFirst().ok());
    EXPECT_EQ(text(rows, "nome"), "error 3021");
    EXPECT_EQ(rows.recordCount(), 2);
    EXPECT_TRUE(rows.moveNext().ok());
    EXPECT_EQ(text(rows, "nome"), "b");
}

TEST_F(RecordsetTest, AListOfColumnsHasJustThoseAndShowsRowsAsTheyAreNow) {
    addRecipient(1, "Rossi", "r@x.it");
    addRecipient(1, "Bianchi", "b@x.it");
    Recordset rows =
        open("SELECT EMAIL, [rgs], sel FROM [tb_destinatari] WHERE id_grp = 1 ORDER BY rgs DESC");
    ASSERT_EQ(rows.fieldCount(), 3);
    EXPECT_EQ(rows.fieldName(0), QStringLiteral("email"));
    EXPECT_EQ(rows.fieldName(1), QStringLiteral("rgs"));
    EXPECT_EQ(rows.value(0).value(), Value(QStringLiteral("r@x.it")));
    EXPECT_EQ(rows.value(2).value(), Value(true));
    EXPECT_EQ(rows.value(u"nom").status().code(), ErrorCode::ItemNotFound);
    run("UPDATE [tb_destinatari] SET email = 'nuovo@x.it' WHERE rgs = 'Bianchi'");
    ASSERT_TRUE(rows.moveNext().ok());
    EXPECT_EQ(text(rows, "email"), "nuovo@x.it");
    EXPECT_EQ(text(rows, "rgs"), "Bianchi");
    EXPECT_EQ(rows.recordCount(), 2);
    EXPECT_EQ(rows.setValue(u"rgs", QStringLiteral("x")).code(), ErrorCode::NotSupported);
    EXPECT_EQ(rows.addNew().code(), ErrorCode::NotSupported);
}

TEST_F(RecordsetTest, CanBeOpenedAgainWithAnotherSource) {
    addGroups({QStringLiteral("a"), QStringLiteral("b")});
    Recordset rows = open("SELECT * FROM [tb_gruppi] WHERE id = 1");
    EXPECT_EQ(text(rows, "nome"), "a");
    rows.close();
    EXPECT_FALSE(rows.isOpen());
    EXPECT_TRUE(rows.isEof());
    rows.setSource(QStringLiteral("SELECT * FROM [tb_gruppi] WHERE id = 2"));
    ASSERT_TRUE(rows.open().ok());
    EXPECT_EQ(text(rows, "nome"), "b");
}

TEST_F(RecordsetTest, ValuesOfExpressionsAndCountsCanBeSelected) {
    addGroups({QStringLiteral("a"), QStringLiteral("b")});
    EXPECT_EQ(column("SELECT count(*) AS n FROM [tb_gruppi]", "n"), "2");
    EXPECT_EQ(column("SELECT id + 1 AS n, nome FROM [tb_gruppi] ORDER BY 1 DESC", "n"), "3|2");
    EXPECT_EQ(column("SELECT * FROM [tb_gruppi] ORDER BY 3 DESC", "nome"), "b|a");
}

TEST_F(RecordsetTest, ComparingANumberWithSomethingElseFindsNothing) {
    addGroups({QStringLiteral("a")});
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id = Null", "id"), "");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id = 'x'", "id"), "");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id = 1.5", "id"), "");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id = 9999999999", "id"), "");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id = '1'", "id"), "1");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id = 1.0", "id"), "1");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id IN (1, 2, 1)", "id"), "1");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id_up IN (0, 5) AND nome = 'A' ORDER BY nome", "id"),
              "1");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id = 1 OR id_up = 0 ORDER BY nome", "id"), "1");
    EXPECT_EQ(column("SELECT nome, count(*) AS n FROM tb_gruppi GROUP BY nome ORDER BY nome", "n"), "1");
}

TEST_F(RecordsetTest, AMissingColumnOrTableFailsAtOpening) {
    Recordset rows;
    ASSERT_TRUE(rows.setActiveConnection(connection).ok());
    rows.setSource(QStringLiteral("SELECT * FROM [tb_gruppi] WHERE cognome = 1"));
    EXPECT_EQ(rows.open().code(), ErrorCode::ItemNotFound);
    EXPECT_FALSE(rows.isOpen());
    rows.setSource(QStringLiteral("SELECT * FROM [tb_altro] ;"));
    EXPECT_EQ(rows.open().code(), ErrorCode::TableNotFound);
    rows.setSource(QStringLiteral("DELETE FROM [tb_gruppi]"));
    EXPECT_EQ(rows.open().code(), ErrorCode::NotSupported);
    rows.setSource(QStringLiteral("SELECT * FROM [tb_gruppi] WHERE"));
    EXPECT_EQ(rows.open().code(), ErrorCode::SyntaxError);
}

}  // namespace recordset_test
