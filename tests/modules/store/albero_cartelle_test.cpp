// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "modules/store/AlberoCartelle.h"

namespace albero_cartelle_test {

namespace {

using Numeri = std::vector<std::int32_t>;

Cartella cartella(std::int32_t id, std::int32_t padre, const char* nome = "x") {
    return {id, false, padre, QString::fromUtf8(nome)};
}

Numeri numeri(const std::vector<Cartella>& cartelle) {
    Numeri tutti;
    for (const Cartella& una : cartelle)
        tutti.push_back(una.id);
    return tutti;
}

}  // namespace

TEST(AlberoCartelle, EmptyTableHasTheRootAlone) {
    const AlberoCartelle albero({});
    EXPECT_EQ(albero.Ordine(), Numeri{0});
    EXPECT_TRUE(albero.Raggiunta(0));
    EXPECT_EQ(albero.Chiavi(0), QStringList{"K0"});
    EXPECT_TRUE(albero.Perdute().empty());
    EXPECT_TRUE(albero.CapiDellePerdute().empty());
}

TEST(AlberoCartelle, OrderIsThatOfTheOpenTree) {
    const AlberoCartelle albero(
        {cartella(5, 0), cartella(2, 9), cartella(9, 0), cartella(7, 5), cartella(1, 9)});
    EXPECT_EQ(albero.Ordine(), (Numeri{0, 5, 7, 9, 2, 1}));
}

TEST(AlberoCartelle, WaysLeadFromTheRoot) {
    const AlberoCartelle albero({cartella(5, 0, "Soci"), cartella(7, 5, "Nuovi"), cartella(8, 7, "Maggio")});
    EXPECT_EQ(albero.Chiavi(8), (QStringList{"K0", "K5", "K7", "K8"}));
    EXPECT_EQ(albero.Percorso(8), "Soci / Nuovi / Maggio");
    EXPECT_EQ(albero.Percorso(0), "Database Mailing");
    EXPECT_EQ(albero.Percorso(3), "");
    EXPECT_TRUE(albero.Chiavi(3).isEmpty());
}

TEST(AlberoCartelle, GroupsWithoutAParentAreLostWithAllBelow) {
    Cartella senza = cartella(4, 0, "Senza");
    senza.senzaPadre = true;
    const AlberoCartelle albero({cartella(1, 0), cartella(2, 77, "Orfana"), cartella(3, 2), senza});
    EXPECT_EQ(numeri(albero.Perdute()), (Numeri{2, 3, 4}));
    EXPECT_EQ(albero.CapiDellePerdute(), (Numeri{2, 4}));
    EXPECT_FALSE(albero.Raggiunta(3));
    EXPECT_TRUE(albero.Chiavi(3).isEmpty());
    EXPECT_EQ(albero.Percorso(2), "Orfana");
}

TEST(AlberoCartelle, OneOfEachCircleIsItsHead) {
    const AlberoCartelle albero({cartella(1, 0), cartella(6, 8), cartella(8, 9), cartella(9, 6),
                                 cartella(3, 8), cartella(2, 3), cartella(12, 12), cartella(13, 12)});
    EXPECT_EQ(numeri(albero.Perdute()), (Numeri{2, 3, 6, 8, 9, 12, 13}));
    EXPECT_EQ(albero.CapiDellePerdute(), (Numeri{6, 12}));
}

TEST(AlberoCartelle, HeadsUnderTheRootTakeAllAlong) {
    std::vector<Cartella> cartelle{cartella(1, 0),  cartella(6, 8), cartella(8, 6),   cartella(3, 6),
                                   cartella(4, 70), cartella(5, 4), cartella(20, 21), cartella(21, 20)};
    const std::vector<std::int32_t> capi = AlberoCartelle(cartelle).CapiDellePerdute();
    for (Cartella& una : cartelle)
        if (std::find(capi.begin(), capi.end(), una.id) != capi.end()) una.padre = 0;
    EXPECT_TRUE(AlberoCartelle(cartelle).Perdute().empty());
}

TEST(AlberoCartelle, AGroupWithTheNumberOfTheRootMakesNoCircle) {
    const AlberoCartelle albero({cartella(0, 0), cartella(1, 0)});
    EXPECT_EQ(albero.Ordine(), (Numeri{0, 1}));
}

// Too deep for recursion on any stack.
TEST(AlberoCartelle, DepthIsNotLimited) {
    std::vector<Cartella> cartelle;
    for (std::int32_t id = 1; id <= 200000; ++id)
        cartelle.push_back(cartella(id, id - 1));
    const AlberoCartelle albero(std::move(cartelle));
    EXPECT_EQ(albero.Ordine().size(), 200001u);
    EXPECT_EQ(albero.Chiavi(200000).size(), 200001);
}

}  // namespace albero_cartelle_test
