// The steps of one class of the table viewer in the working rows of the tax panel.
#include "reports/tabellenerklaerung.h"

namespace lonvir {

void tabellenzeileerklaeren(Sitzung& s, const Lohnsteuertabelle& t, std::int16_t steuerklasse) {
    // The fill ran the class for the band's wage already; its line is what the run gives.
    const Tabellenzeile& z = t.zeilen[steuerklasse];
    for (int i = 0; i <= 27; ++i)
        s.lstwert[i] = 0;
    // The amounts are whole Pfennig already; a band's bound never leaves 32 bits.
    s.lstwert[1] = t.tabellenlohn.gerundetInt32();
    s.lstwert[7] = t.tabellenlohn.gerundetInt32();
    s.lstwert[8] = t.band.unten.gerundetInt32();
    s.lstwert[9] = t.band.oben.gerundetInt32();
    s.lstwert[10] = z.lohnsteuer.gerundetInt32();
    s.lstwert[11] = z.solidaritaetszuschlag.gerundetInt32();
    s.lstwert[12] = z.kirchensteuer.gerundetInt32();
}

} // namespace lonvir
