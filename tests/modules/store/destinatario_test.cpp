// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/store/Destinatario.h"

#include <gtest/gtest.h>

namespace destinatario_test {

using namespace destinatario;

namespace {

/// Each text is the name of its column in capitals.
Valori numbered() {
    Valori values;
    for (const schema::Campo field : schema::ordineTabella)
        values[field] = NomeColonna(field).toUpper();
    return values;
}

QStringList named(const schema::Ordine& order) {
    QStringList names;
    for (const schema::Campo field : order)
        names << NomeColonna(field);
    return names;
}

}  // namespace

TEST(InsertStatement, NamesTheColumnsInTheirOrderAndEndsWithABlank) {
    EXPECT_EQ(IstruzioneNuovo("7", "True", numbered()),
              "INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs, nom, piva, ind, cap, loc, prov, tel, "
              "fax, campo1, campo2, campo3, campo4, campo5, campo6, campo7, campo8, campo9) VALUES (7, True, "
              "'EMAIL', 'RGS', 'NOM', 'PIVA', 'IND', 'CAP', 'LOC', 'PROV', 'TEL', 'FAX', 'CAMPO1', 'CAMPO2', "
              "'CAMPO3', 'CAMPO4', 'CAMPO5', 'CAMPO6', 'CAMPO7', 'CAMPO8', 'CAMPO9') ");
}

TEST(InsertStatement, WritesTwoQuotesForAColumnWithoutAValue) {
    Valori values;
    values[schema::email] = "a@x.it";
    EXPECT_TRUE(IstruzioneNuovo("0", "False", values).contains("(0, False, 'a@x.it', '', '', "));
}

TEST(InsertStatement, DoublesNoQuote) {
    Valori values;
    values[schema::email] = "d'a@x.it";
    EXPECT_TRUE(IstruzioneNuovo("0", "True", values).contains("'d'a@x.it'"));
}

TEST(UpdateStatement, SetsTheColumnsInTheirOrder) {
    EXPECT_EQ(
        IstruzioneModifica("41", "7", "False", numbered()),
        "UPDATE [tb_destinatari] SET id_grp = 7, sel = False, email = 'EMAIL', rgs = 'RGS', nom = 'NOM', "
        "piva = 'PIVA', ind = 'IND', cap = 'CAP', loc = 'LOC', prov = 'PROV', tel = 'TEL', fax = 'FAX', "
        "campo1 = 'CAMPO1', campo2 = 'CAMPO2', campo3 = 'CAMPO3', campo4 = 'CAMPO4', campo5 = 'CAMPO5', "
        "campo6 = 'CAMPO6', campo7 = 'CAMPO7', campo8 = 'CAMPO8', campo9 = 'CAMPO9' WHERE id = 41 ;");
}

TEST(CopyStatement, TakesAllTextsAndTheMarkAlong) {
    EXPECT_EQ(
        IstruzioneCopia("3", "12"),
        "INSERT INTO tb_destinatari (id_grp,rgs, nom, piva, ind, cap, loc, prov, tel, fax, email, campo1, "
        "campo2, campo3, campo4, campo5, campo6, campo7, campo8, campo9, sel) SELECT 12 as id_grp, rgs, "
        "nom, piva, ind, cap, loc, prov, tel, fax, email, campo1, campo2, campo3, campo4, campo5, campo6, "
        "campo7, campo8, campo9, sel FROM tb_destinatari WHERE id_grp = 3 ;");
}

TEST(Placeholders, AreAppliedInTheirOrder) {
    EXPECT_EQ(named(schema::ordineSegnaposto),
              (QStringList{"rgs", "nom", "email", "piva", "ind", "cap", "loc", "prov", "tel", "fax", "campo1",
                           "campo2", "campo3", "campo4", "campo5", "campo6", "campo7", "campo8", "campo9"}));
    EXPECT_EQ(Segnaposto(schema::campo9), ":::campo9:::");
}

TEST(ColumnLimit, KeepsAValueOfExactlyTheLimitAndCutsOneCharacterMore) {
    const std::array<int, schema::numeroCampi> expected{70,  70,  15,  255, 10,  70,  2,   15,  15, 255,
                                                        255, 255, 255, 255, 255, 255, 255, 255, 255};
    for (const schema::Campo field : schema::ordineTabella) {
        const int limit = expected[field];
        const QString whole = QString(limit - 1, u'a') + u'z';
        EXPECT_EQ(Taglia(whole, field), whole);
        EXPECT_EQ(Taglia(whole + u'!', field), whole);
    }
}

}  // namespace destinatario_test
