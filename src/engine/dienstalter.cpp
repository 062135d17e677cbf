// Dates of the service-age worksheet and the final steps of the pay groups.
#include "engine/dienstalter.h"

#include <cstdio>

namespace lonvir {

namespace {

bool schaltjahr(int jahr) {
    return (jahr % 4 == 0 && jahr % 100 != 0) || jahr % 400 == 0;
}

int monatstage(int monat, int jahr) {
    static const int tage[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return monat == 2 && schaltjahr(jahr) ? 29 : tage[monat - 1];
}

// Days since 1.1.1970 of the proleptic Gregorian calendar.
long tagnummer(const Datum& d) {
    const int j = d.monat <= 2 ? d.jahr - 1 : d.jahr;
    const long era = (j >= 0 ? j : j - 399) / 400;
    const long jahrderaera = j - era * 400;
    const long tagdesjahres = (153L * (d.monat + (d.monat > 2 ? -3 : 9)) + 2) / 5 + d.tag - 1;
    const long tagderaera = jahrderaera * 365 + jahrderaera / 4 - jahrderaera / 100 + tagdesjahres;
    return era * 146097 + tagderaera - 719468;
}

Datum ausnummer(long z) {
    z += 719468;
    const long era = (z >= 0 ? z : z - 146096) / 146097;
    const long tagderaera = z - era * 146097;
    const long jahrderaera =
        (tagderaera - tagderaera / 1460 + tagderaera / 36524 - tagderaera / 146096) / 365;
    const long tagdesjahres =
        tagderaera - (365 * jahrderaera + jahrderaera / 4 - jahrderaera / 100);
    const long mp = (5 * tagdesjahres + 2) / 153;
    Datum d;
    d.tag = static_cast<int>(tagdesjahres - (153 * mp + 2) / 5 + 1);
    d.monat = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    d.jahr = static_cast<int>(jahrderaera + era * 400 + (d.monat <= 2 ? 1 : 0));
    return d;
}

int zahl(const std::string& text, std::size_t von, std::size_t laenge) {
    int n = 0;
    for (std::size_t i = von; i < von + laenge; ++i) {
        if (i >= text.size() || text[i] < '0' || text[i] > '9')
            throw Datumfehler("Datum nicht lesbar: " + text);
        n = n * 10 + (text[i] - '0');
    }
    return n;
}

} // namespace

Datum datumlesen(const std::string& text) {
    const auto trenner = [&](std::size_t i) {
        return i < text.size() && (text[i] == '.' || text[i] == '/');
    };
    if (text.size() < 9 || text.size() > 10 || !trenner(2) || !trenner(5))
        throw Datumfehler("Datum nicht lesbar: " + text);
    Datum d{zahl(text, 0, 2), zahl(text, 3, 2), zahl(text, 6, text.size() - 6)};
    if (d.jahr < 100 || d.monat < 1 || d.monat > 12 || d.tag < 1 ||
        d.tag > monatstage(d.monat, d.jahr))
        throw Datumfehler("Datum nicht lesbar: " + text);
    return d;
}

std::string datumtext(const Datum& d) {
    char puffer[16];
    std::snprintf(puffer, sizeof puffer, "%02d.%02d.%04d", d.tag % 100, d.monat % 100,
                  d.jahr % 10000);
    return puffer;
}

Datum monatedazu(const Datum& d, int monate) {
    const int gesamt = d.jahr * 12 + (d.monat - 1) + monate;
    Datum e;
    e.jahr = gesamt / 12;
    e.monat = gesamt % 12 + 1;
    const int letzter = monatstage(e.monat, e.jahr);
    e.tag = d.tag > letzter ? letzter : d.tag;
    return e;
}

Datum jahredazu(const Datum& d, int jahre) {
    return monatedazu(d, jahre * 12);
}

Datum tagedazu(const Datum& d, int tage) {
    return ausnummer(tagnummer(d) + tage);
}

int monatsabstand(const Datum& von, const Datum& bis) {
    return (bis.jahr - von.jahr) * 12 + (bis.monat - von.monat);
}

int jahresabstand(const Datum& von, const Datum& bis) {
    return bis.jahr - von.jahr;
}

long tagesabstand(const Datum& von, const Datum& bis) {
    return tagnummer(bis) - tagnummer(von);
}

int dienstaltergruppe(const Sitzung& s) {
    const int art = s.personalart();
    int gruppe = 0;
    if (art >= 0 && art <= 5)
        gruppe = art;
    else if (art == 6)
        gruppe = 5; // BAT VKA: the same age steps as BAT Bund/Länder
    else if (art >= 7 && art <= 17)
        gruppe = 6;
    else
        return 24;
    return s.merkmal[2] == 1 ? gruppe + 12 : gruppe;
}

int dienstalterbesoldungsgruppe(const Sitzung& s) {
    return s.merkmal[5];
}

int endstufe(int gruppe, int besoldungsgruppe) {
    const int g = besoldungsgruppe;
    if (gruppe == 0 || gruppe == 12) {
        if (g < 0)
            return 0;
        if (g <= 3)
            return 8;
        if (g <= 5)
            return 9;
        if (g == 6)
            return 10;
        if (g == 7)
            return 12;
        if (g <= 12)
            return 13;
        if (g <= 18)
            return 14;
        if (g <= 20)
            return 15;
        return 0;
    }
    if (gruppe == 2 || gruppe == 14)
        return g == 0 ? 14 : g > 0 && g <= 20 ? 15 : 0;
    return 0;
}

int batendstufe(int v, int vorher) {
    switch (v) {
    case 0:
    case 1:
    case 2:
    case 7:
    case 8:
    case 9:
    case 10:
        return 13;
    case 3:
    case 4:
    case 13:
    case 14:
        return 12;
    case 11:
        return 11;
    case 12:
        return 15;
    case 15:
    case 16:
        return 10;
    case 17:
    case 18:
    case 19:
        return 9;
    default:
        return vorher;
    }
}

int stufe1996(int monate) {
    // The whole-number part, cut towards zero: -5 months give 0, plus 1.
    const int stufe = monate / 24 + 1;
    return stufe < 1 ? 1 : stufe;
}

} // namespace lonvir
