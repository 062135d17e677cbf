// Compiling the preset settings.
#include "installation/vorgaben.h"

#include "core/cp1252.h"
#include "core/satzdatei.h"
#include "installation/quelltext.h"
#include "records/bytes.h"
#include "start/einstellungen.h"
#include "start/sitzung.h"

#include <string>

namespace lonvir::installation {

namespace {

int jahrindex(const Quellzeile& z, const std::filesystem::path& quelle) {
    const std::int32_t jahr = ganzzahl(z.felder[0], quelle, z.zeile);
    if (jahr != 1997 && jahr != 1998)
        quellfehler(quelle, z.zeile, "Das Jahr muss 1997 oder 1998 sein.");
    return jahr - 1997;
}

int element(const Quellzeile& z, const std::filesystem::path& quelle, int oben) {
    const std::int32_t i = ganzzahl(z.felder[2], quelle, z.zeile);
    if (i < 0 || i > oben)
        quellfehler(quelle, z.zeile,
                    "Element " + std::to_string(i) + " liegt nicht zwischen 0 und " +
                        std::to_string(oben) + ".");
    return i;
}

void zeilesetzen(Voeinsatz& v, const Quellzeile& z, const std::filesystem::path& quelle) {
    const std::string& feld = z.felder[1];
    const std::string& wert = z.felder[3];
    if (feld == "voreinstellung")
        v.voreinstellung[element(z, quelle, 40)] = currency(wert, quelle, z.zeile);
    else if (feld == "vorgabewert")
        v.vorgabewert[element(z, quelle, 14)] = ganzzahl(wert, quelle, z.zeile);
    else if (feld == "dienststelle1")
        v.dienststelle1 = bytes::fest(utf8NachCp1252(wert), 40);
    else if (feld == "dienststelle2")
        v.dienststelle2 = bytes::fest(utf8NachCp1252(wert), 40);
    else if (feld == "dienststellenort")
        v.dienststellenort = bytes::fest(utf8NachCp1252(wert), 20);
    else if (feld == "berichtszeile")
        v.berichtszeile = bytes::fest(utf8NachCp1252(wert), 100);
    else
        quellfehler(quelle, z.zeile, "Unbekanntes Feld \"" + feld + "\".");
}

template <typename Satz> void satzschreiben(Satzdatei& d, int nummer, const Satz& satz) {
    std::array<std::uint8_t, Satz::laenge> b{};
    satz.schreiben(b);
    d.schreiben(nummer, b);
}

} // namespace

std::array<Voeinsatz, 2> voelesenausquelle(const std::filesystem::path& quelle) {
    std::array<Voeinsatz, 2> voe;
    for (const Quellzeile& z : tsvlesen(quelle)) {
        if (z.felder.size() < 4)
            quellfehler(quelle, z.zeile, "Jahr, Feld, Element und Wert werden gebraucht.");
        zeilesetzen(voe[static_cast<std::size_t>(jahrindex(z, quelle))], z, quelle);
    }
    return voe;
}

Dimsatz dimlesenausquelle(const std::filesystem::path& quelle) {
    const Sitzung standard; // the default screen size of an empty file
    Dimsatz d = dimvorgaben(standard);
    std::array<bool, 46> gesetzt{};
    for (const Quellzeile& z : tsvlesen(quelle)) {
        if (z.felder.size() < 2)
            quellfehler(quelle, z.zeile, "Zeile und Farbe werden gebraucht.");
        const std::int32_t zeile = ganzzahl(z.felder[0], quelle, z.zeile);
        const std::int32_t farbe = ganzzahl(z.felder[1], quelle, z.zeile);
        if (zeile < 0 || zeile > 45 || farbe < 0 || farbe > 15)
            quellfehler(quelle, z.zeile, "Zeile 0 bis 45 und Farbe 0 bis 15 erwartet.");
        if (gesetzt[static_cast<std::size_t>(zeile)])
            quellfehler(quelle, z.zeile, "Zeile " + std::to_string(zeile) + " steht doppelt.");
        gesetzt[static_cast<std::size_t>(zeile)] = true;
        d.zeilenfarbe[zeile] = static_cast<std::int16_t>(farbe);
    }
    for (std::size_t zeile = 0; zeile < gesetzt.size(); ++zeile)
        if (!gesetzt[zeile])
            throw Dateifehler(quelle.string(),
                              "Die Farbe der Zeile " + std::to_string(zeile) + " fehlt.");
    return d;
}

std::array<Kvsatz, 24> kvlesenausquelle(const std::filesystem::path& quelle) {
    std::array<Kvsatz, 24> kv{};
    for (const Quellzeile& z : tsvlesen(quelle)) {
        if (z.felder.size() < 5)
            quellfehler(quelle, z.zeile, "Kasse, Jahr, Monat, Satz und Quelle werden gebraucht.");
        const std::int32_t kasse = ganzzahl(z.felder[0], quelle, z.zeile);
        const int jahr = jahrindex(Quellzeile{z.zeile, {z.felder[1]}}, quelle);
        const std::int32_t monat = ganzzahl(z.felder[2], quelle, z.zeile);
        const std::int32_t satz = pfennig(z.felder[3], quelle, z.zeile); // hundredths of a %
        if (kasse < 0 || kasse > 27 || monat < 1 || monat > 12 || satz < 0 || satz > 2000)
            quellfehler(quelle, z.zeile,
                        "Kasse 0 bis 27, Monat 1 bis 12, Satz 0 bis 20 % erwartet.");
        for (int m = monat - 1; m <= 11; ++m)
            kv[static_cast<std::size_t>(jahr * 12 + m)].satz[kasse] =
                static_cast<std::int16_t>(satz);
    }
    return kv;
}

void voeschreibennach(const std::array<Voeinsatz, 2>& voe, const std::filesystem::path& ziel) {
    Satzdatei d;
    d.oeffnen(ziel, Voeinsatz::laenge);
    satzschreiben(d, 1, voe[0]);
    satzschreiben(d, 2, voe[1]);
}

void dimschreibennach(const Dimsatz& dim, const std::array<Kvsatz, 24>& kv,
                      const std::filesystem::path& ziel) {
    Satzdatei d;
    d.oeffnen(ziel, Dimsatz::laenge);
    satzschreiben(d, 1, dim);
    satzschreiben(d, 2, Kvsatz{}); // record 2 is read by nothing: left zero
    for (std::size_t m = 0; m < kv.size(); ++m)
        satzschreiben(d, 3 + static_cast<int>(m), kv[m]);
}

} // namespace lonvir::installation
