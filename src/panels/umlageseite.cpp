// Page 8 for civil servants: how the levy for their pensions of the month comes about.
#include "core/betragstext.h"
#include "panels/seiten.h"

namespace lonvir {

namespace {

// The rate wert(25), hundredths of a percent, as a factor with three decimals: 450 is
// "0,045"; the fourth decimal is rounded, ties to even.
std::string satztext(std::int32_t hundertstelprozent) {
    std::int32_t tausendstel = hundertstelprozent / 10;
    const std::int32_t rest = hundertstelprozent % 10;
    if (rest > 5 || (rest == 5 && tausendstel % 2 != 0))
        ++tausendstel;
    std::string nachkomma = std::to_string(tausendstel % 1000);
    nachkomma.insert(0, 3 - nachkomma.size(), '0');
    return std::to_string(tausendstel / 1000) + "," + nachkomma;
}

constexpr int gesamtzeile = 22;

} // namespace

void umlageseite(Tablett& t) {
    Sitzung& s = t.s;
    // 1.
    ueberschrift(t, "U M L A G E   F Ü R   D I E");
    erklaerzeile(t, 1, "B E A M T E N V E R S O R G U N G", std::nullopt);
    t.zeile[1].fett = true;
    // 3. The dotted filler stands in rows 2 to 20; the pay rows take their places below.
    for (int i = 2; i <= 20; ++i)
        erklaerzeile(t, i, punktzeile, std::nullopt);
    // 2.
    t.umlagewert.fuellen(0);
    for (int j = 7; j <= 19; ++j) {
        std::string text = t.zeilenname(j);
        if (s.zvk[j] == 1) {
            const Currency produkt = s.zahlwert[j] * Currency::ganz(s.wert[25]);
            t.umlagewert[j] = Currency::gerundet(produkt.alsDouble() / 10000.0).gerundetInt32();
            text += " x " + satztext(s.wert[25]);
        } else {
            text += "0,000 x ";
        }
        erklaerzeile(t, j - 5, text, t.umlagewert[j]);
    }
    // 4. The total is what the engine computed, not the sum of the rows.
    erklaerzeile(t, gesamtzeile, "GESAMTUMLAGE", s.wert[31]);
    t.zeile[gesamtzeile].fett = true;
}

} // namespace lonvir
