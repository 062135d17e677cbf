// The text ranges of the lists that change with the staff class.
#include "screen/listenbereiche.h"

#include <gtest/gtest.h>

namespace lonvir {

TEST(Listenbereiche, GruppenJePersonalart) {
    EXPECT_EQ(gruppenbereich(0, 1997), (Textbereich{3001, 3021}));
    EXPECT_EQ(gruppenbereich(4, 1997).eintraege(), 6); // 3051..3056
    EXPECT_EQ(gruppenbereich(9, 1997), (Textbereich{3129, 3146}));
    EXPECT_EQ(gruppenbereich(17, 1997), (Textbereich{3271, 3290}));
    EXPECT_EQ(gruppenbereich(18, 1997), (Textbereich{3000, 3000}));
    // The nursing tariff: 3097..3110 in 1997, one group more from 1998.
    EXPECT_EQ(gruppenbereich(7, 1997).eintraege(), 14);
    EXPECT_EQ(gruppenbereich(7, 1998).eintraege(), 15);
}

TEST(Listenbereiche, AmtsbloeckeJePersonalart) {
    const std::pair<int, std::size_t> anzahl[] = {
        {0, 21}, {1, 11},  {2, 4},  {3, 10},  {4, 7},   {5, 20},  {6, 20},  {7, 14},  {8, 17},
        {9, 16}, {11, 16}, {12, 7}, {13, 20}, {14, 20}, {15, 21}, {16, 15}, {17, 20}, {18, 0}};
    for (auto [art, n] : anzahl)
        EXPECT_EQ(amtsbloecke(art).size(), n) << "Personalart " << art;
    EXPECT_EQ(amtsbloecke(0)[20], (Textbereich{491, 530}));
    EXPECT_EQ(amtsbloecke(3)[9], (Textbereich{1081, 1090}));
    // Candidates: the fifth group has no titles.
    EXPECT_EQ(amtsbloecke(4)[4].eintraege(), 0);
    EXPECT_EQ(amtsbloecke(4)[6], (Textbereich{1096, 1100}));
    // BAT: 1146..1160 and 1366..1380 are left out; 15-wide blocks from 1161 to 1281.
    const std::vector<Textbereich> bat = amtsbloecke(5);
    EXPECT_EQ(bat[2], (Textbereich{1131, 1145}));
    EXPECT_EQ(bat[3], (Textbereich{1161, 1175}));
    EXPECT_EQ(bat[11], (Textbereich{1281, 1295}));
    EXPECT_EQ(bat[12], (Textbereich{1296, 1305}));
    EXPECT_EQ(bat[16], (Textbereich{1351, 1365}));
    EXPECT_EQ(bat[17], (Textbereich{1381, 1395}));
    EXPECT_EQ(bat[19], (Textbereich{1411, 1430}));
    // The last block of each evenly cut table.
    EXPECT_EQ(amtsbloecke(7).back(), (Textbereich{1561, 1570}));
    EXPECT_EQ(amtsbloecke(8).back(), (Textbereich{1731, 1740}));
    EXPECT_EQ(amtsbloecke(10).back(), (Textbereich{1786, 1788}));
    EXPECT_EQ(amtsbloecke(12).back(), (Textbereich{1821, 1825}));
    EXPECT_EQ(amtsbloecke(13).back(), (Textbereich{2021, 2030}));
    EXPECT_EQ(amtsbloecke(14).back(), (Textbereich{2231, 2240}));
    EXPECT_EQ(amtsbloecke(15).back(), (Textbereich{2451, 2460}));
    EXPECT_EQ(amtsbloecke(16).back(), (Textbereich{2661, 2670}));
    EXPECT_EQ(amtsbloecke(17).back(), (Textbereich{2871, 2880}));
}

TEST(Listenbereiche, FamilienstandNachPersonalartUndReform) {
    EXPECT_EQ(familienbereich(0, true), (Textbereich{4141, 4152}));
    EXPECT_EQ(familienbereich(3, true), (Textbereich{4141, 4152}));
    EXPECT_EQ(familienbereich(3, false), (Textbereich{3359, 3370}));
    EXPECT_EQ(familienbereich(4, true), (Textbereich{3378, 3381}));
    EXPECT_EQ(familienbereich(5, true), (Textbereich{3359, 3370}));
    EXPECT_EQ(familienbereich(17, false), (Textbereich{3359, 3370}));
    EXPECT_EQ(familienbereich(8, true), (Textbereich{3371, 3377}));
    EXPECT_EQ(familienbereich(12, false), (Textbereich{3371, 3377}));
    EXPECT_EQ(familienbereich(18, true), (Textbereich{2839, 2840}));
}

TEST(Listenbereiche, MonateZulagenUndUmlage) {
    for (int art : {0, 4})
        EXPECT_EQ(monatsbereich(art), (Textbereich{3487, 3499}));
    for (int art : {5, 11, 16, 18})
        EXPECT_EQ(monatsbereich(art), (Textbereich{3500, 3512}));
    for (int art : {12, 15})
        EXPECT_EQ(monatsbereich(art), (Textbereich{3513, 3525}));
    EXPECT_EQ(monatsbereich(0).eintraege(), 13);
    EXPECT_EQ(zulagenbereich(0), (Textbereich{4155, 4159}));
    EXPECT_EQ(zulagenbereich(1), (Textbereich{3390, 3449}));
    EXPECT_EQ(umlagebereich(4), (Textbereich{4035, 4037}));
    EXPECT_EQ(umlagebereich(5), (Textbereich{3552, 3554}));
}

} // namespace lonvir
