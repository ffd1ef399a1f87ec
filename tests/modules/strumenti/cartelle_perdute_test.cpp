// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/CartellePerdute.h"

#include <gtest/gtest.h>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/store/RecordsetDB.h"
#include "modules/strumenti/Giro.h"
#include "platform/ado/Connection.h"
#include "support/SampleFolder.h"

namespace cartelle_perdute_test {

using testing_support::SampleFolder;

namespace {

class CartellePerduteTest : public testing::Test {
  protected:
    static int group(const char* name, int parent) {
        SampleFolder::run(
            QString("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (%1, '%2')").arg(parent).arg(name));
        return look("SELECT * FROM [tb_gruppi] ORDER BY id DESC", u"id");
    }
    static void recipient(const QString& group) {
        SampleFolder::run("INSERT INTO [tb_destinatari] (id_grp, sel, email) VALUES (" + group +
                          ", True, 'a@x.it')");
    }
    static int look(const QString& statement, QStringView column) {
        ado::Recordset rs = RecordsetDB();
        rs.setSource(statement);
        esigi(rs.open());
        return static_cast<int>(esigi(esigi(rs.value(column)).toInteger()));
    }
    static int parentOf(int id) {
        return look(QString("SELECT * FROM [tb_gruppi] WHERE id = %1").arg(id), u"id_up");
    }
    static qint64 inGroup(int id) {
        ado::Recordset rs = RecordsetDB();
        rs.setSource(QString("SELECT * FROM [tb_destinatari] WHERE id_grp = %1").arg(id));
        esigi(rs.open());
        return rs.recordCount();
    }
    static CartellePerdute find() {
        ContaPerCartella conta(connDB);
        strumenti::GiraTutto([&](auto time) { return conta.Avanza(time); }, [] {});
        return {AlberoCartelle::Leggi(), conta};
    }

    SampleFolder folder;
};

}  // namespace

TEST_F(CartellePerduteTest, NothingIsLostInASoundDatabase) {
    group("Dentro", 1);
    recipient("1");
    recipient("0");
    const CartellePerdute perdute = find();
    EXPECT_TRUE(perdute.voci.empty());
    EXPECT_EQ(perdute.cartelle, 0);
    EXPECT_EQ(perdute.destinatari, 0);
}

TEST_F(CartellePerduteTest, TableWithoutTheColumnOfTheGroupsIsAFailure) {
    recipient("1");
    ado::closeAll();
    SampleFolder::renameInFile(folder.database(), "id_grp", "id_grx");
    ContaPerCartella conta(connDB);
    Result<bool> step = false;
    while (step.ok() && !step.value())
        step = conta.Avanza(std::chrono::milliseconds(1));
    EXPECT_EQ(step.status().code(), ErrorCode::ItemNotFound);
    EXPECT_TRUE(step.status().text().contains("id_grp")) << step.status().text().toStdString();
}

TEST_F(CartellePerduteTest, GroupsWithoutAParentComeUnderTheRootWithAllBelow) {
    const int lost = group("Orfana", 77);
    const int below = group("Sotto", lost);
    recipient(QString::number(below));
    const CartellePerdute perdute = find();
    EXPECT_EQ(perdute.cartelle, 2);
    EXPECT_EQ(perdute.destinatari, 1);
    ASSERT_EQ(perdute.voci.size(), 2u);
    EXPECT_EQ(perdute.voci[0].nome, "Orfana");
    EXPECT_EQ(perdute.voci[0].motivo, "La cartella che la contiene non c'è");
    EXPECT_EQ(perdute.voci[1].motivo, "Sta dentro \"Orfana\", perduta anch'essa");
    RecuperaCartelle(perdute);
    EXPECT_EQ(parentOf(lost), 0);
    EXPECT_EQ(parentOf(below), lost);
    EXPECT_TRUE(find().voci.empty());
}

TEST_F(CartellePerduteTest, CirclesAreOpenedAtOnePlace) {
    const int a = group("A", 0);
    const int b = group("B", a);
    const int c = group("C", b);
    SampleFolder::run(QString("UPDATE [tb_gruppi] SET id_up = %1 WHERE id = %2").arg(c).arg(a));
    const int itself = group("Sé stessa", 0);
    SampleFolder::run(QString("UPDATE [tb_gruppi] SET id_up = %1 WHERE id = %1").arg(itself));
    const CartellePerdute perdute = find();
    EXPECT_EQ(perdute.cartelle, 4);
    RecuperaCartelle(perdute);
    EXPECT_EQ(parentOf(a), 0);
    EXPECT_EQ(parentOf(b), a);
    EXPECT_EQ(parentOf(c), b);
    EXPECT_EQ(parentOf(itself), 0);
    EXPECT_TRUE(find().voci.empty());
}

TEST_F(CartellePerduteTest, RecipientsOfMissingGroupsComeUnderTheRoot) {
    recipient("1");
    recipient("55");
    recipient("55");
    recipient("-3");
    recipient("NULL");
    const CartellePerdute perdute = find();
    EXPECT_EQ(perdute.cartelle, 0);
    EXPECT_EQ(perdute.destinatari, 4);
    EXPECT_EQ(perdute.mancanti, (std::vector<std::int32_t>{-3, 55}));
    RecuperaCartelle(perdute);
    EXPECT_EQ(inGroup(0), 4);
    EXPECT_EQ(inGroup(1), 1);
    EXPECT_TRUE(find().voci.empty());
}

TEST_F(CartellePerduteTest, WhatFoundItsWayBackMeanwhileStays) {
    const int lost = group("Orfana", 77);
    recipient(QString::number(lost + 5));
    const CartellePerdute perdute = find();
    SampleFolder::run(QString("UPDATE [tb_gruppi] SET id_up = 1 WHERE id = %1").arg(lost));
    while (group("Nuova", 0) < lost + 5) {
    }
    RecuperaCartelle(perdute);
    EXPECT_EQ(parentOf(lost), 1);
    EXPECT_EQ(inGroup(lost + 5), 1);
    EXPECT_EQ(inGroup(0), 0);
}

}  // namespace cartelle_perdute_test
