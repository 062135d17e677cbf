// The settings records: defaults, the formulas of the stored steps, the place of the user.
#include "start/einstellungen.h"

#include "core/pfennig.h"
#include "start/bestandspruefung.h"
#include "start/kvsaetze.h"

#include <array>

namespace lonvir {

namespace {

void farbenvorgeben(Dimsatz& d) {
    auto setzen = [&d](int von, int bis, std::int16_t farbe) {
        for (int z = von; z <= bis; ++z)
            d.zeilenfarbe[z] = farbe;
    };
    setzen(0, 3, 14);
    setzen(4, 4, 12);
    setzen(5, 6, 14);
    setzen(7, 10, 10);
    setzen(11, 16, 11);
    setzen(17, 19, 7);
    setzen(20, 31, 14);
    setzen(32, 36, 10);
    setzen(37, 40, 11);
    setzen(41, 44, 7);
    setzen(45, 45, 14);
}

// A ceiling in Pfennig: (v * schritt + basis) * 100, computed in Currency, then rounded to
// 32 bits. With whole steps every product is exact.
std::int32_t grenze(const Sitzung& s, int i, int schritt, int basis) {
    const Currency dm = s.voreinstellung[i] * Currency::ganz(schritt) + Currency::ganz(basis);
    return (dm * Currency::ganz(100)).gerundetInt32();
}

// A multiplier stored in thousandths above 1: v / 1000 + 1, in floating point, rounded.
Currency multiplikator(const Sitzung& s, int i) {
    return Currency::gerundet(s.voreinstellung[i].alsDouble() / 1000 + 1);
}

// A rate stored in tenths of a percent of the whole contribution above its base; the
// employee pays half: (v / 10 + basis) / 2, in floating point, rounded.
Currency halbsatz(const Sitzung& s, int i, double basis) {
    return Currency::gerundet((s.voreinstellung[i].alsDouble() / 10 + basis) / 2);
}

std::int32_t ganzzahl(const Sitzung& s, int i) {
    return s.voreinstellung[i].gerundetInt32();
}

// A settings record that fails its checks is reported once; its defaults serve this run and
// the record is not written, so that nothing of it is lost.
void einstellungsschaden(Sitzung& s, bool& gesperrt, const std::string& datei, int satz,
                         const std::string& grund) {
    if (!gesperrt && s.dialoge)
        s.dialoge->zeigen({"Einstellungen beschädigt",
                           "Satz " + std::to_string(satz) + " der Datei " + datei +
                               " ist beschädigt: " + grund +
                               ". Für diesen Lauf gelten die Vorgaben; die Datei wird nicht "
                               "überschrieben.",
                           Symbol::ausruf, Knoepfe::ok});
    gesperrt = true;
}

} // namespace

Dimsatz dimvorgaben(const Sitzung& s) {
    Dimsatz d;
    farbenvorgeben(d);
    d.form1top = Currency::ganz(0);
    d.form1left = Currency::ganz(0);
    d.form1height = Currency::ganz(s.bildschirmhoehe - 320);
    d.form1width = Currency::ganz(s.bildschirmbreite);
    d.form2top = Currency::ganz(1000);
    d.form2left = Currency::ganz(0);
    d.form2height = Currency::ganz(s.bildschirmhoehe - 1000);
    d.form2width = Currency::ganz(s.bildschirmbreite);
    d.form3top = Currency::ganz(0);
    d.form3left = Currency::ganz(0);
    d.lstrtabtop = d.form1top + Currency::ganz(650);
    d.lstrtableft = d.form1left;
    d.passwortart = Currency::ganz(0);
    d.anzahlpersonen = 1;
    d.reserve230 = 1;
    return d;
}

void dimlesen(Sitzung& s) {
    Satzdatei& f = s.datei(datei::dim);
    s.erstbenutzung = f.laenge() == 0;
    if (s.erstbenutzung) {
        // The pair at offset 172 keeps what the working copy held; nothing reads it.
        Dimsatz alt = s.dim;
        s.dim = dimvorgaben(s);
        s.dim.reserve172 = alt.reserve172;
        s.dim.reserve180 = alt.reserve180;
        return;
    }
    std::array<std::uint8_t, Dimsatz::laenge> b{};
    f.lesen(1, b);
    const Dimsatz gelesen = Dimsatz::lesen(b);
    if (const auto grund = dimpruefen(gelesen)) {
        einstellungsschaden(s, s.dimGesperrt, "Lonvir97.dim", 1, *grund);
        s.dim = dimvorgaben(s);
        return;
    }
    s.dim = gelesen;
}

void dimschreiben(Sitzung& s) {
    if (s.dimGesperrt)
        return; // a damaged record is reported, not overwritten with the defaults
    std::array<std::uint8_t, Dimsatz::laenge> b{};
    s.dim.schreiben(b);
    s.datei(datei::dim).schreiben(1, b);
}

int voesatznummer(const Sitzung& s) {
    return s.ist1997() ? 1 : 2;
}

void voelesen(Sitzung& s) {
    Satzdatei& f = s.datei(datei::voe);
    Voeinsatz v; // an empty file: all zero, blank strings
    if (f.laenge() != 0) {
        std::array<std::uint8_t, Voeinsatz::laenge> b{};
        f.lesen(voesatznummer(s), b);
        v = Voeinsatz::lesen(b);
        if (const auto grund = voepruefen(v)) {
            einstellungsschaden(s, s.voeGesperrt, "Lonvir97.voe", voesatznummer(s), *grund);
            v = Voeinsatz{};
        }
    }
    s.voreinstellung = v.voreinstellung;
    s.vorgabewert = v.vorgabewert;
    s.dienststelle1 = v.dienststelle1;
    s.dienststelle2 = v.dienststelle2;
    s.dienststellenort = v.dienststellenort;
    s.berichtszeile = v.berichtszeile;
    aktualisieren(s);
    // The health-insurance rates belong to the year as this record does.
    kvsaetzelesen(s);
}

void voeschreiben(Sitzung& s) {
    if (s.voeGesperrt)
        return; // a damaged record is reported, not overwritten with the defaults
    Voeinsatz v;
    v.dienststelle1 = s.dienststelle1;
    v.dienststelle2 = s.dienststelle2;
    v.dienststellenort = s.dienststellenort;
    v.berichtszeile = s.berichtszeile;
    v.voreinstellung = s.voreinstellung;
    v.vorgabewert = s.vorgabewert;
    // The place of the user, so that the next start returns to it.
    v.voreinstellung[14] = Currency::ganz(s.schicht);
    v.voreinstellung[15] = Currency::ganz(s.aktuelleperson);
    v.voreinstellung[16] = Currency::ganz(s.merkmal[20]);
    std::array<std::uint8_t, Voeinsatz::laenge> b{};
    v.schreiben(b);
    s.datei(datei::voe).schreiben(voesatznummer(s), b);
}

void aktualisieren(Sitzung& s) {
    vorgabenableiten(s);
    // Person 0 is no person: the start treats it as person 1.
    const std::int32_t person = ganzzahl(s, 15);
    s.aktuelleperson = pf::int16(person < 1 ? 1 : person);
}

void vorgabenableiten(Sitzung& s) {
    Einstellungswerte& e = s.einstellungen;
    e.pvsatz = halbsatz(s, 1, 1.5);
    e.rvsatz = halbsatz(s, 2, 19.5);
    e.avsatz = halbsatz(s, 3, 6.0);
    e.bmgKvWest = grenze(s, 4, 50, 6000);
    e.bmgPvWest = grenze(s, 5, 50, 6000);
    e.bmgRvWest = grenze(s, 6, 50, 8000);
    e.bmgAvWest = grenze(s, 7, 50, 8000);
    e.geringWest = grenze(s, 8, 10, 600);
    e.bmgKvOst = grenze(s, 9, 25, 5300);
    e.bmgPvOst = grenze(s, 10, 25, 5300);
    e.bmgRvOst = grenze(s, 11, 50, 7000);
    e.bmgAvOst = grenze(s, 12, 50, 7000);
    e.geringOst = grenze(s, 13, 10, 500);
    e.multiplikatorBeamte = multiplikator(s, 18);
    e.abMonatBeamte = ganzzahl(s, 19);
    e.multiplikatorAngestellte = multiplikator(s, 20);
    e.abMonatAngestellte = ganzzahl(s, 21);
    e.tarifmonat1 = ganzzahl(s, 22);
    e.ab_tarif2 = ganzzahl(s, 23);
    e.ab_tarif3 = ganzzahl(s, 24);
    e.ab_tarif4 = ganzzahl(s, 25);
    e.liste26 = ganzzahl(s, 26);
    e.zvkmodus = ganzzahl(s, 27);
    e.kirchenpausch = ganzzahl(s, 28);
    for (int i = 0; i <= 3; ++i)
        e.zuwendungsquote[i] = s.voreinstellung[30 + i];
    e.steuerrecht1998 = ganzzahl(s, steuerrecht1998element) == 1;
}

int textfarbe(int zeilenfarbe) {
    switch (zeilenfarbe) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 8:
    case 9:
    case 12:
    case 13:
        return 15;
    default:
        return 0;
    }
}

} // namespace lonvir
