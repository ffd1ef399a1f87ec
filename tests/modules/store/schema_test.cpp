// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/store/Schema.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>

#include "modules/store/NuovoDatabase.h"
#include "platform/jet/EmptyDatabase.h"

namespace schema_test {

namespace {

std::string sha256(const std::vector<jet::Page>& pages) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const jet::Page& page : pages)
        hash.addData(QByteArray(reinterpret_cast<const char*>(page.data()), jet::pageSize));
    return hash.result().toHex().toStdString();
}

}  // namespace

TEST(Schema, RecipientsHaveTheirTwentyTwoColumnsInOrder) {
    const std::array<std::u16string_view, 22> order{
        u"id",     u"id_grp", u"rgs",    u"nom",    u"piva",   u"ind",    u"cap",    u"loc",
        u"prov",   u"tel",    u"fax",    u"email",  u"campo1", u"campo2", u"campo3", u"campo4",
        u"campo5", u"campo6", u"campo7", u"campo8", u"campo9", u"sel"};
    for (std::size_t i = 0; i < order.size(); ++i)
        EXPECT_TRUE(schema::colonneDestinatari[i].nome == order[i]) << i;
}

TEST(Schema, TextsHaveTheirLimits) {
    const std::array<int, 22> limits{0,   0,   70,  70,  15,  255, 10,  70,  2,   15,  15,
                                     255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 0};
    for (std::size_t i = 0; i < limits.size(); ++i)
        EXPECT_EQ(schema::colonneDestinatari[i].massimo, limits[i]) << i;
}

TEST(NewDatabase, HasTheKnownBytes) {
    EXPECT_EQ(sha256(jet::emptyDatabase(schema::TabelleNuove())),
              "b1c55eb849af1f66c8dd237aa4565266530dc0c678c4cf2c2be1f901b59777f7");
}

TEST(NewDatabase, WithoutEmptyTextsHasTheKnownBytes) {
    EXPECT_EQ(sha256(jet::emptyDatabase(
                  {schema::TabellaNuova(schema::tabellaGruppi, schema::colonneGruppi, false),
                   schema::TabellaNuova(schema::tabellaDestinatari, schema::colonneDestinatari, false)})),
              "62eb82bb914a22e91abf17873efe6426a3fde206f3693c03411226c4648e06d1");
}

}  // namespace schema_test
