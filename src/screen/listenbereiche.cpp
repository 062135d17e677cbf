// The text ranges of the lists that change with the staff class.
#include "screen/listenbereiche.h"

namespace lonvir {

namespace {

// `anzahl` blocks of `breite` records each, the first starting at `anfang`.
std::vector<Textbereich> gleichebloecke(int anfang, int breite, int anzahl) {
    std::vector<Textbereich> bloecke;
    for (int i = 0; i < anzahl; ++i)
        bloecke.push_back({anfang + i * breite, anfang + i * breite + breite - 1});
    return bloecke;
}

// BAT Bund/Länder and VKA share one table of titles; two ranges of records are left out.
std::vector<Textbereich> batbloecke() {
    std::vector<Textbereich> b = {{1101, 1115}, {1116, 1130}, {1131, 1145}};
    for (int anfang = 1161; anfang <= 1281; anfang += 15)
        b.push_back({anfang, anfang + 14});
    for (Textbereich t : {Textbereich{1296, 1305}, Textbereich{1306, 1320}, Textbereich{1321, 1335},
                          Textbereich{1336, 1350}, Textbereich{1351, 1365}, Textbereich{1381, 1395},
                          Textbereich{1396, 1410}, Textbereich{1411, 1430}})
        b.push_back(t);
    return b;
}

} // namespace

Textbereich gruppenbereich(int art, int jahr) {
    switch (art) {
    case 0:
        return {3001, 3021};
    case 1:
        return {3023, 3033};
    case 2:
        return {3035, 3038};
    case 3:
        return {3040, 3049};
    case 4:
        return {3051, 3056};
    case 5:
        return {3058, 3077};
    case 6:
        return {3079, 3095};
    case 7:
        // The nursing tariff has one group more from 1998.
        return {3097, jahr == 1998 ? 3111 : 3110};
    case 8:
        return {3112, 3128};
    case 9:
        return {3129, 3146};
    case 10:
        return {3147, 3162};
    case 11:
        return {3164, 3179};
    case 12:
        return {3181, 3187};
    case 13:
        return {3191, 3210};
    case 14:
        return {3212, 3231};
    case 15:
        return {3233, 3253};
    case 16:
        return {3255, 3269};
    case 17:
        return {3271, 3290};
    default:
        return {3000, 3000};
    }
}

std::vector<Textbereich> amtsbloecke(int art) {
    switch (art) {
    case 0:
        return {{1, 10},    {11, 30},   {31, 50},   {51, 70},   {71, 95},   {96, 120},  {121, 140},
                {141, 165}, {166, 190}, {191, 220}, {221, 230}, {231, 260}, {261, 280}, {281, 300},
                {301, 320}, {321, 360}, {361, 400}, {401, 410}, {411, 450}, {451, 490}, {491, 530}};
    case 1:
        return {{531, 540}, {541, 570}, {571, 610}, {611, 650}, {651, 681}, {682, 750},
                {751, 790}, {791, 810}, {811, 830}, {831, 840}, {841, 850}};
    case 2:
        return {{851, 860}, {861, 870}, {871, 880}, {881, 890}};
    case 3:
        return {{891, 910},   {911, 950},   {951, 980},   {981, 1000},  {1001, 1020},
                {1021, 1040}, {1041, 1050}, {1051, 1070}, {1071, 1074}, {1081, 1090}};
    case 4:
        // The fifth group of the candidates has no titles.
        return {{1081, 1082},  {1083, 1085}, {1086, 1088}, {1089, 1091},
                Textbereich{}, {1092, 1095}, {1096, 1100}};
    case 5:
    case 6:
        return batbloecke();
    case 7:
        return gleichebloecke(1431, 10, 14);
    case 8:
        return gleichebloecke(1571, 10, 17);
    case 9:
    case 10:
    case 11:
        return gleichebloecke(1741, 3, 16);
    case 12:
        return gleichebloecke(1791, 5, 7);
    case 13:
        return gleichebloecke(1831, 10, 20);
    case 14:
        return gleichebloecke(2041, 10, 20);
    case 15:
        return gleichebloecke(2251, 10, 21);
    case 16:
        return gleichebloecke(2521, 10, 15);
    case 17:
        return gleichebloecke(2681, 10, 20);
    default:
        return {};
    }
}

Textbereich familienbereich(int art, bool reform) {
    if (art >= 0 && art <= 3)
        return reform ? Textbereich{4141, 4152} : Textbereich{3359, 3370};
    if (art == 4)
        return {3378, 3381};
    if (art >= 8 && art <= 12)
        return {3371, 3377};
    if (art == 18)
        return {2839, 2840};
    return {3359, 3370};
}

Textbereich zulagenbereich(int art) {
    return art == 0 ? Textbereich{4155, 4159} : Textbereich{3390, 3449};
}

Textbereich monatsbereich(int art) {
    if (art >= 0 && art <= 4)
        return {3487, 3499};
    if (art >= 12 && art <= 15)
        return {3513, 3525};
    return {3500, 3512};
}

Textbereich umlagebereich(int art) {
    return art < 5 ? Textbereich{4035, 4037} : Textbereich{3552, 3554};
}

} // namespace lonvir
