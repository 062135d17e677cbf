// Typing into the row boxes t(row): the key filter, the confirmation, the limits of the hours
// and days rows, and the hint of a clicked box.
#include "core/pfennig.h"
#include "core/zeichen.h"
#include "engine/berechnen.h"
#include "engine/tarifluecke.h"
#include "screen/form1.h"

#include <cctype>
#include <cstdlib>

namespace lonvir {

namespace {

constexpr const char* achtzig = "Der Wert mußte auf 80 herabgesetzt werden";
constexpr const char* tagegrenze =
    "Die Anzahl der Tage mußte auf 31 herabgesetzt werden, weil nur dann die Lohnsteuer und "
    "die Sozialversicherungsbeiträge richtig berechnet werden können.";

bool durchgelassen(int key) {
    return key == taste::rueck || key == taste::enter || key == '+' || key == ',' || key == '-' ||
           (key >= '0' && key <= '9');
}

} // namespace

std::int32_t betragauslesen(const std::string& text) {
    const std::string t = getrimmt(text);
    std::int64_t hundertstel = 0;
    int nachkomma = -1; // digits after the comma so far; -1 before it
    int rest = 0;       // the first digit past the hundredths, for the rounding
    bool restnichtnull = false;
    for (char c : t) {
        if (c == '.')
            continue;
        if (c == ',' && nachkomma < 0) {
            nachkomma = 0;
            continue;
        }
        if (!std::isdigit(static_cast<unsigned char>(c)))
            break;
        const int ziffer = c - '0';
        if (nachkomma < 2) {
            hundertstel = hundertstel * 10 + ziffer;
            if (hundertstel > 2147483647LL * 100)
                throw Laufzeitfehler::ueberlauf();
        } else if (nachkomma == 2) {
            rest = ziffer;
        } else if (ziffer != 0) {
            restnichtnull = true;
        }
        if (nachkomma >= 0)
            ++nachkomma;
    }
    // Whole DM and a single decimal are filled up to hundredths.
    for (int stellen = nachkomma < 0 ? 0 : nachkomma; stellen < 2; ++stellen)
        hundertstel *= 10;
    // To the nearest hundredth, ties to the even neighbour.
    if (rest > 5 || (rest == 5 && (restnichtnull || hundertstel % 2 == 1)))
        ++hundertstel;
    return pf::int32(hundertstel);
}

std::string betragseingabe(std::int32_t pfennig) {
    const std::int64_t betrag = std::llabs(static_cast<std::int64_t>(pfennig));
    std::string text = std::to_string(betrag / 100);
    if (betrag % 100 != 0)
        text += (betrag % 100 < 10 ? ",0" : ",") + std::to_string(betrag % 100);
    return text;
}

int Form1::t_KeyPress(int zeile, int key) {
    Bildzeile& z = bild.zeilen[static_cast<std::size_t>(zeile)];
    s.aktuellezeile = static_cast<std::int16_t>(zeile);
    if (!z.hatWertfeld || z.gesperrt)
        return 0;
    const std::string text = getrimmt(z.wert);
    // A full box of eight characters is reset, whatever the key.
    if (zeichenzahl(text) == 8) {
        if (jahresgehaltgesperrt())
            return 0;
        s.wert[zeile] = 0;
        s.eingabe[zeile] = 0;
        zeilemalen(zeile);
        naechsterfocus();
        // The reset stays as it is; the status line says why, so the entry is not lost unseen.
        bild.hinweis = "Höchstens sieben Zeichen: " + text + " wurde verworfen, Zeile " +
                       std::to_string(zeile) + " steht wieder auf 0,00.";
        return 0;
    }
    if (!durchgelassen(key))
        return 0;
    if (key != taste::enter && key != '+' && key != '-')
        return key;
    if (jahresgehaltgesperrt())
        return 0;
    std::int32_t betrag = betragauslesen(text);
    if (key == '-')
        betrag = pf::negiert(betrag);
    bestaetigen(zeile, betrag, key == '-');
    return 0;
}

void Form1::bestaetigen(int zeile, std::int32_t betrag, bool minus) {
    s.eingabe[zeile] = betrag;
    s.wert[zeile] = betrag;
    // "-" on the hours and days rows and on row 29 clears the row.
    if (minus && (zeile <= 3 || zeile == 29)) {
        s.eingabe[zeile] = 0;
        s.wert[zeile] = 0;
    }
    zeilemalen(zeile);
    grenzenpruefen(zeile);
    zeilenabhaengig(zeile);
    neuberechnen(zeile);
}

bool Form1::betraguebernehmen(int zeile, std::int32_t betrag) {
    const bool mitfeld = zeile >= 0 && zeile <= 45 &&
                         bild.zeilen[static_cast<std::size_t>(zeile)].hatWertfeld &&
                         !bild.zeilen[static_cast<std::size_t>(zeile)].gesperrt;
    if (!mitfeld) {
        if (s.dialoge)
            s.dialoge->zeigen({"Rechner",
                               "In Zeile " + std::to_string(zeile) +
                                   " kann kein Betrag eingetragen werden. Bitte klicken Sie "
                                   "zuerst auf den Betrag der Zeile, in die das Ergebnis soll.",
                               Symbol::ausruf, Knoepfe::ok});
        return false;
    }
    s.aktuellezeile = static_cast<std::int16_t>(zeile);
    bestaetigen(zeile, betrag, betrag < 0);
    return true;
}

void Form1::korrigieren(int zeile, std::int32_t wert, const char* text, const char* titel) {
    s.wert[zeile] = wert;
    s.eingabe[zeile] = wert;
    if (s.dialoge)
        s.dialoge->zeigen({titel, text, Symbol::ausruf, Knoepfe::ok});
    zeilemalen(zeile);
}

// The limits of the hours and days rows: repaired, never refused.
void Form1::grenzenpruefen(int zeile) {
    const int modus = s.merkmal[21]; // 0 "Wochenstd. von normal", 1 "Prozent von normal"
    if (zeile == 0 && modus == 0 && s.wert[0] > 8000)
        korrigieren(0, 8000, achtzig, "Korrektur");
    if (zeile == 1 && modus == 0) {
        if (s.wert[1] > 8000)
            korrigieren(1, 8000, achtzig, "Korrektur");
        const std::int32_t doppelt = pf::mal(2, s.wert[0]);
        if (s.wert[1] > doppelt)
            korrigieren(1, doppelt,
                        "Die vereinbarte Stundenzahl mußte auf das doppelte der "
                        "Normalstundenzahl begrenzt werden.",
                        "Begrenzung");
    }
    if (zeile == 0 && modus == 1 && s.wert[0] > 10000)
        korrigieren(0, 10000, "Der Wert mußte auf 100 herabgesetzt werden", "Korrektur");
    if (zeile == 1 && modus == 1 && s.wert[1] > 20000)
        korrigieren(1, 20000, "Der Wert mußte auf 200 herabgesetzt werden", "Korrektur");
    // The days rows have their own title "Korektur", with one r; it stays so.
    if ((zeile == 2 || zeile == 3) && s.wert[zeile] > 3100)
        korrigieren(zeile, 3100, tagegrenze, "Korektur");
    if (zeile == 3 && s.wert[3] > s.wert[2])
        korrigieren(3, s.wert[2],
                    "Die zu bezahlenden Tage mußten auf die Gesamtzahl der Tage begrenzt werden.",
                    "Begrenzung");
}

// The switch columns that follow the text of a box: part-time and paid days from rows 0 to
// 3, the supplementary pension from row 25.
void Form1::zeilenabhaengig(int zeile) {
    if (zeile <= 1)
        schaltermalen(T);
    else if (zeile <= 3)
        schaltermalen(P);
    else if (zeile == 25 && getrimmt(bild.zeilen[25].wert) == "0,00")
        schaltermalen(Z);
}

void Form1::neuberechnen(int zeile) {
    s.Neuberechnung = -1;
    s.aenderungscode = static_cast<std::int16_t>(zeile);
    nachrechnen(s);
    positionensetzen();
    schaltermalen();
    tarifhinweis();
}

void Form1::tarifhinweis() {
    static const std::string anfang = "Für diese Gruppe ist kein Tarifbetrag installiert";
    if (const auto hinweis = tariflueckenhinweis(s))
        bild.hinweis = *hinweis;
    else if (bild.hinweis.rfind(anfang, 0) == 0)
        bild.hinweis.clear();
}

void Form1::naechsterfocus() {
    z_Click(22);
    bild.fokuswunsch = {Fokusziel::liste, 22};
}

void Form1::t_Click(int zeile) {
    s.aktuellezeile = static_cast<std::int16_t>(zeile);
    switch (zeile) {
    case 0:
        bild.hinweis = "Wochenstunden normal";
        return;
    case 1:
        bild.hinweis = "Teilzeit-Wochenstunden";
        return;
    case 2:
        bild.hinweis = "Arbeitstage normal";
        return;
    case 3:
        bild.hinweis = "Zu bezahlende Arbeitstage";
        return;
    case 5:
        bild.hinweis = "Überstundensatz";
        return;
    default:
        break;
    }
    if ((zeile >= 7 && zeile <= 31) || (zeile >= 33 && zeile <= 45)) {
        const Bildzeile& z = bild.zeilen[static_cast<std::size_t>(zeile)];
        if (z.position >= 0 && z.position < static_cast<int>(z.liste.size()))
            bild.hinweis = getrimmt(z.liste[static_cast<std::size_t>(z.position)]);
        else
            bild.hinweis.clear();
    }
}

void Form1::t_GotFocus(int zeile) {
    zwischenwert = 0;
    std::string& text = bild.zeilen[static_cast<std::size_t>(zeile)].wert;
    text.erase(text.find_last_not_of(' ') + 1);
}

void Form1::betragtippen(int zeile, std::int32_t pfennig) {
    t_GotFocus(zeile);
    Bildzeile& z = bild.zeilen[static_cast<std::size_t>(zeile)];
    z.wert.clear();
    bild.fokuswunsch = {Fokusziel::wertfeld, zeile};
    for (char c : betragseingabe(pfennig)) {
        if (t_KeyPress(zeile, c) != 0)
            z.wert += c;
        // A reset of the box moves the focus away: the rest of the keys go elsewhere.
        if (!(bild.fokuswunsch == Fokus{Fokusziel::wertfeld, zeile}))
            return;
    }
    t_KeyPress(zeile, pfennig < 0 ? '-' : taste::enter);
}

} // namespace lonvir
