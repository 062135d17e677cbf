// Group names, family and spouse texts and month short names of the annual overview's print.
#include "reports/merkmaltexte.h"

#include <array>
#include <string_view>
#include <vector>

namespace lonvir {

namespace {

using Namen = std::vector<std::string_view>;

// Besoldungsordnung A: A 5, A 9, A 10 and A 13 stand on several groups.
const Namen besoldungA = {"A 1",  "A 2",  "A 3",  "A 4",  "A 5",  "A 5",  "A 6",
                          "A 7",  "A 8",  "A 9",  "A 10", "A 9",  "A 10", "A 11",
                          "A 12", "A 13", "A 13", "A 13", "A 14", "A 15", "A 16"};
const Namen besoldungB = {"B 1", "B 2", "B 3", "B 4",  "B 5", "B 6",
                          "B 7", "B 8", "B 9", "B 10", "B 11"};
const Namen besoldungC = {"C 1", "C 2", "C 3", "C 4"};
const Namen besoldungR = {"R 1", "R 2", "R 3", "R 4", "R 5", "R 6", "R 7", "R 8", "R 9", "R 10"};
const Namen anwaerter = {"Anw. eD", "Anw. mD", "Anw. gD", "Anw. hD", "Anw. hD", "Anw. hD"};
const Namen batWest = {"BAT I",    "BAT Ia",   "BAT Ib",  "BAT IIa", "BAT IIb",
                       "BAT III",  "BAT IVa",  "BAT IVb", "BAT Va",  "BAT Vb",
                       "BAT Vb",   "BAT Vc",   "BAT VIa", "BAT VIb", "BAT VII",
                       "BAT VIII", "BAT VIII", "BAT IXa", "BAT IXb", "BAT X"};
const Namen batOst = {"BAT I",    "BAT Ia",   "BAT Ib",  "BAT II", "BAT III", "BAT IVa",
                      "BAT IVb",  "BAT Vb",   "BAT Vb",  "BAT Vc", "BAT VIb", "BAT VII",
                      "BAT VIII", "BAT VIII", "BAT IXa", "BAT IX", "BAT X"};
const Namen kr = {"KR I",   "KR II",   "KR III", "KR IV", "KR V",  "KR Va",  "KR VI",
                  "KR VII", "KR VIII", "KR IX",  "KR X",  "KR XI", "KR XII", "KR XIII"};
const Namen lohngruppen = {"Lohngr. 1",  "Lohngr. 1a", "Lohngr. 2",  "Lohngr. 2a", "Lohngr. 3",
                           "Lohngr. 3a", "Lohngr. 4",  "Lohngr. 4a", "Lohngr. 5",  "Lohngr. 5a",
                           "Lohngr. 6",  "Lohngr. 6a", "Lohngr. 7",  "Lohngr. 7a", "Lohngr. 8",
                           "Lohngr. 8a", "Lohngr. 9"};
const Namen fahrer = {"LG4 < 200",  "LG4 > 199",  "LG4 > 224",  "LG4 > 248",
                      "LG4a < 200", "LG4a > 199", "LG4a > 224", "LG4a > 248",
                      "LG5 < 200",  "LG5 > 199",  "LG5 > 224",  "LG5 > 248",
                      "LG5a < 200", "LG5a > 199", "LG5a > 224", "LG5a > 248"};
const Namen kirchlich = {"I",    "Ia",  "Ib",  "II", "III", "IVa", "IVb",  "Vb",  "Vc", "VI", "VII",
                         "VIII", "IXa", "IXb", "X",  "XI",  "XII", "XIII", "XIV", "XV", "XVI"};
const Namen bahn = {"E 1", "E 2",  "E 3",  "E 4",  "E 5",  "E 6",  "E 7", "E 8",
                    "E 9", "E 10", "E 11", "AT 1", "AT 2", "AT 3", "AT 4"};
const Namen roemisch = {"I",  "II",  "III",  "IV",  "V",  "VI",  "VII",  "VIII",  "IX",  "X",
                        "XI", "XII", "XIII", "XIV", "XV", "XVI", "XVII", "XVIII", "XIX", "XX"};

std::optional<std::string> ausliste(const Namen& namen, int gruppe) {
    if (gruppe < 0 || gruppe >= static_cast<int>(namen.size()))
        return std::nullopt;
    return std::string(namen[static_cast<std::size_t>(gruppe)]);
}

// The BAT lists run over the groups 0 to 19 of the pay scale; a group of that range without
// a name of its own in the list prints "BAT X", the catch-all.
std::optional<std::string> batliste(const Namen& namen, int gruppe) {
    if (gruppe < 0 || gruppe > 19)
        return std::nullopt;
    return ausliste(namen, gruppe).value_or("BAT X");
}

} // namespace

std::optional<std::string> gruppenname(int personalart, int gruppe) {
    switch (personalart) {
    case 0:
        return ausliste(besoldungA, gruppe);
    case 1:
        return ausliste(besoldungB, gruppe);
    case 2:
        return ausliste(besoldungC, gruppe);
    case 3:
        return ausliste(besoldungR, gruppe);
    case 4:
        return ausliste(anwaerter, gruppe);
    case 5:
    case 13:
    case 14:
        return batliste(batWest, gruppe);
    case 6:
        return batliste(batOst, gruppe);
    case 7:
        return ausliste(kr, gruppe);
    case 8:
        return ausliste(lohngruppen, gruppe);
    case 9:
    case 10:
    case 11:
        return ausliste(fahrer, gruppe);
    case 12:
        return std::string("Azubi");
    case 15:
        return ausliste(kirchlich, gruppe);
    case 16:
        return ausliste(bahn, gruppe);
    case 17:
        return std::string("ohne");
    case 18:
        return ausliste(roemisch, gruppe);
    default:
        return std::nullopt;
    }
}

std::string familientext(int personalart, int familie) {
    static const Namen ortszuschlag = {"ld",       "vh, 0 Ki", "vh, 1 Ki",  "vh, 2 Ki",
                                       "vh, 3 Ki", "vh, 4 Ki", "vh, 5 Ki",  "vh, 6 Ki",
                                       "ld, 1 Ki", "ld, 2 Ki", "ld. in U.", "manuell"};
    static const Namen sozialzuschlag = {"kein SZ", "SZ 1 Ki", "SZ 2 Ki", "SZ 3 Ki",
                                         "SZ 4 Ki", "SZ 5 Ki", "SZ 6 Ki"};
    static const Namen sonst = {"ld", "vh §62(1)", "vh §62(2)"};
    const bool ozListe = (personalart >= 0 && personalart <= 3) ||
                         (personalart >= 5 && personalart <= 7) ||
                         (personalart >= 13 && personalart <= 17);
    const bool szListe = personalart >= 8 && personalart <= 11;
    const Namen& liste = ozListe ? ortszuschlag : szListe ? sozialzuschlag : sonst;
    return ausliste(liste, familie).value_or("");
}

std::string ehegattentext(int ehegatte) {
    static const Namen texte = {"nein", "ja voll", "ja > 49%", "ja < 50%"};
    return ausliste(texte, ehegatte).value_or("");
}

std::string monatskuerzel(int monat, int jahr) {
    static constexpr std::array<std::string_view, 12> kuerzel = {
        "Jan", "Feb", "Mrz", "Apr", "Mai", "Jun", "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};
    if (monat >= 1 && monat <= 12)
        return std::string(kuerzel[static_cast<std::size_t>(monat - 1)]);
    if (monat == 13) {
        std::string j = std::to_string(jahr % 100);
        return j.size() < 2 ? "0" + j : j;
    }
    return "";
}

} // namespace lonvir
