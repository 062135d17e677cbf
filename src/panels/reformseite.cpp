// Page 68: the pay before and after the reform of 1 July 1997, and the pay rows of the month.
#include "core/pfennig.h"
#include "engine/tarifdatei.h"
#include "engine/ueberleitung.h"
#include "panels/namen.h"
#include "panels/seiten.h"
#include "start/satzzugriff.h"
#include "start/texte.h"

#include <optional>

namespace lonvir {

namespace {

constexpr int kopftext = 4161;
constexpr int ersterblock = 14;
constexpr int letztezeile = 28;

// The Stellenzulage of a line as the transition allowance counts it.
std::int32_t stellenzulage(const Sitzung& s, const Tarifsatz& t) {
    switch (s.merkmal[9]) {
    case 0:
        return t.wert[25];
    case 1:
        return t.wert[14];
    case 2:
        return s.nebenwert[24];
    default:
        return 0;
    }
}

// The amounts of the first block, by row 1 to 14; none where a row is a text only.
std::array<std::optional<std::int32_t>, ersterblock + 1> vergleich(Sitzung& s) {
    std::array<std::optional<std::int32_t>, ersterblock + 1> b{};
    if (s.personalart() != 0)
        return b;
    const Personalsatz juli = personalsatzlesen(s, datei::juli1997, s.aktuelleperson);
    const bool ost = s.merkmal[2] == 1;
    const int stufe = altestufe(s, juli);
    const Tarifsatz alt =
        tarifsatz(s, tarifsatznummer(0, juli.merkmal[5], ost), datei::tarif2von1997);
    const Tarifsatz neu = tarifsatz(s, tarifsatznummer(0, s.merkmal[5], ost), datei::tarif3von1997);
    const bool jahr1998 = !s.ist1997();
    b[1] = alt.wert[stufe];
    b[2] = alt.wert[15];
    b[3] = stellenzulage(s, alt);
    b[4] = s.basis_alt;
    b[5] = s.merkmal[7] >= 0 && s.merkmal[7] <= 26 ? neu.wert[s.merkmal[7]] : 0;
    b[6] = s.wert[8];
    b[7] = stellenzulage(s, neu);
    b[8] = s.basis_neu;
    b[9] = s.basis_alt - s.basis_neu;
    b[10] = s.wert[10];
    if (jahr1998) {
        // A third of the rise of basic pay and Stellenzulage, as the allowance takes it off.
        const std::int32_t anstieg = pf::minus(pf::plus(s.wert[9], s.wert[7]), s.basis_neu);
        const std::int32_t drittel = pf::gerundet(static_cast<double>(anstieg) / 3);
        b[11] = drittel < 0 ? 0 : drittel;
        b[12] = s.wert[10];
    }
    return b;
}

} // namespace

bool reformseiteoffen(const Sitzung& s) {
    return !(s.personalart() == 0 && s.merkmal[20] < 6 && s.ist1997());
}

void reformseite(Tablett& t) {
    ueberschrift(t, textgetrimmt(t.s, kopftext));
    const auto betraege = vergleich(t.s);
    for (int i = 1; i <= ersterblock; ++i)
        erklaerzeile(t, i, textgetrimmt(t.s, kopftext + i), betraege[static_cast<std::size_t>(i)]);
    // The second block: the pay rows of the month that bear an amount, and the gross pay.
    int i = ersterblock + 1;
    for (int zeile : {7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 22}) {
        if (i > letztezeile)
            break;
        if (t.s.wert[zeile] == 0 && zeile != 22)
            continue;
        erklaerzeile(t, i++, zeile == 22 ? "Bruttogehalt" : t.zeilenname(zeile), t.s.wert[zeile]);
    }
    t.Command2.text = "Schließen";
    t.Command2.lage = {seitenlage::links,
                       seitenlage::anfang + (letztezeile + 1) * seitenlage::abstand, 1500, 400};
    t.Command2.sichtbar = true;
    t.fokus = {Tablettfokusart::knopf, 2};
}

} // namespace lonvir
