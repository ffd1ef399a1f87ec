#include "modules/store/Schema.h"

#include <gtest/gtest.h>

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
