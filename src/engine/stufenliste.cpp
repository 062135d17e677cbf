// The step list of row 7 by staff class and pay group: which steps a person can be on.
#include "engine/stufenliste.h"

#include "engine/schritte.h"

namespace lonvir {

namespace {

constexpr std::int16_t stufe1 = 3328;  // "Stufe 1" of the employees' lists
constexpr std::int16_t stufe1a = 3344; // "Stufe 1" of the civil servants' lists

Stufenliste texte(std::int16_t anfang, std::int16_t ende) {
    Stufenliste l;
    l.gebaut = true;
    l.mitTexten = true;
    l.anfang = anfang;
    l.ende = ende;
    return l;
}

// Besoldungsordnung A: one list for all groups after the reform, before it by group.
Stufenliste besoldungA(int gruppe, bool reform) {
    if (reform || gruppe == 7)
        return texte(stufe1a, 3355);
    if (gruppe <= 3)
        return texte(stufe1a, 3351);
    if (gruppe <= 5)
        return texte(stufe1a, 3352);
    if (gruppe == 6)
        return texte(stufe1a, 3353);
    if (gruppe <= 12)
        return texte(stufe1a, 3356);
    if (gruppe <= 18)
        return texte(stufe1a, 3357);
    return texte(stufe1a, 3358);
}

// Besoldungsordnung R from group 2: the fixed pay, then the steps up to the end of the list
// built before; the end is not reset here.
Stufenliste besoldungR(int gruppe, const Stufenliste& vorher) {
    if (gruppe <= 1)
        return texte(stufe1, 3342);
    Stufenliste l = texte(stufe1, vorher.ende);
    l.festesGrundgehalt = true;
    return l;
}

// BAT Bund/Länder and the two church tariffs.
Stufenliste batBundLaender(int gruppe) {
    if (gruppe <= 2)
        return texte(stufe1, 3341);
    if (gruppe <= 10)
        return texte(stufe1, 3340);
    if (gruppe == 11)
        return texte(stufe1, 3338);
    if (gruppe == 12)
        return texte(stufe1, 3342);
    if (gruppe <= 14)
        return texte(stufe1, 3339);
    if (gruppe <= 19)
        return texte(stufe1, 3337);
    return texte(stufe1, 3336);
}

Stufenliste batVka(int gruppe) {
    if (gruppe <= 1)
        return texte(stufe1a, 3353);
    if (gruppe == 9 || gruppe == 14 || gruppe == 16)
        return texte(stufe1a, 3352);
    if (gruppe == 15)
        return texte(stufe1a, 3351);
    return texte(stufe1a, 3354);
}

Stufenliste paritaetisch(int gruppe) {
    if (gruppe == 3 || gruppe == 10 || gruppe == 11)
        return texte(stufe1a, 3355);
    if (gruppe <= 8)
        return texte(stufe1a, 3356);
    if (gruppe == 9)
        return texte(stufe1a, 3354);
    if (gruppe <= 13)
        return texte(stufe1a, 3353);
    if (gruppe <= 16)
        return texte(stufe1a, 3352);
    return texte(stufe1a, 3351);
}

Stufenliste bahn(int gruppe) {
    if (gruppe <= 3)
        return texte(2895, 2897);
    if (gruppe <= 5)
        return texte(2899, 2901);
    if (gruppe <= 10)
        return texte(2903, 2905);
    return texte(2907, 2914);
}

} // namespace

int letztestufengruppe(int personalart) {
    switch (personalart) {
    case 0:
        return 20;
    case 2:
        return 3;
    case 3:
        return 9;
    case 5:
    case 13:
    case 14:
        return 25;
    case 6:
        return 15;
    case 12:
        return 4;
    case 15:
        return 22;
    case 16:
        return 14;
    default:
        return -1;
    }
}

Stufenliste stufenlistefuer(int personalart, int gruppe, bool reform, const Stufenliste& vorher) {
    Stufenliste l;
    switch (personalart) {
    case 0:
        return besoldungA(gruppe, reform);
    case 1:
        // Besoldungsordnung B has a fixed pay only; the list cannot be used.
        l = vorher;
        l.gebaut = true;
        l.festesGrundgehalt = true;
        l.mitTexten = false;
        l.aktiv = false;
        return l;
    case 2:
        return texte(stufe1a, gruppe == 0 ? 3357 : 3358);
    case 3:
        return besoldungR(gruppe, vorher);
    case 5:
    case 13:
    case 14:
        return batBundLaender(gruppe);
    case 6:
        return batVka(gruppe);
    case 7:
        return texte(stufe1a, 3352);
    case 8:
        return texte(2881, 2888);
    case 9:
    case 10:
    case 11:
        return texte(2891, 2893);
    case 15:
        return paritaetisch(gruppe);
    case 16:
        return bahn(gruppe);
    case 17:
        return texte(stufe1, 3343);
    default:
        // Anwärter, apprentices and "ohne" keep the list as it stands.
        return vorher;
    }
}

void stufenliste(Sitzung& s) {
    const int art = s.personalart();
    const int letzte = letztestufengruppe(art);
    if (letzte >= 0 && s.merkmal[5] > letzte)
        s.merkmal[5] = static_cast<std::int16_t>(letzte);
    const bool reform = !s.ist1997() || s.merkmal[20] >= 6;
    s.stufen = stufenlistefuer(art, s.merkmal[5], reform, s.stufen);
    if (art != 1)
        stufeausbda(s);
}

void stufeklemmen(Sitzung& s) {
    const int letzte = s.stufen.letzteposition();
    if (s.merkmal[7] > letzte)
        s.merkmal[7] = static_cast<std::int16_t>(letzte);
    if (s.merkmal[7] < 0)
        s.merkmal[7] = 0;
}

} // namespace lonvir
