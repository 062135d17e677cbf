// Rebuilding the screen from the record of the current person and month, the rules of the
// staff class, and the year view.
#include "core/cp1252.h"
#include "engine/berechnen.h"
#include "screen/form1.h"
#include "start/satzzugriff.h"
#include "start/vorgang.h"

namespace lonvir {

namespace {

std::string ohneblanks(const std::string& roh) {
    const auto anfang = roh.find_first_not_of(' ');
    if (anfang == std::string::npos)
        return {};
    return cp1252NachUtf8(roh.substr(anfang, roh.find_last_not_of(' ') - anfang + 1));
}

// Capitals of the month title; the umlauts of UTF-8 (C3 A0..BE) have theirs 0x20 below.
std::string grossbuchstaben(std::string text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char& c = reinterpret_cast<unsigned char&>(text[i]);
        if (c >= 'a' && c <= 'z')
            c = static_cast<unsigned char>(c - 0x20);
        else if (c == 0xC3 && i + 1 < text.size()) {
            unsigned char& d = reinterpret_cast<unsigned char&>(text[++i]);
            if (d >= 0xA0 && d <= 0xBE && d != 0xB7)
                d = static_cast<unsigned char>(d - 0x20);
        }
    }
    return text;
}

} // namespace

void Form1::bildauffrischen() {
    // The refresh reads each record and text it needs once.
    Lesezeitraum zeitraum(s);
    // 1.
    s.aenderungssperre = -1;
    s.bildwirdgebaut = -1;
    bild.sanduhr = true;
    // 2. The month's record; the year position reads the twelve months.
    s.aktuellerdatei = static_cast<std::int16_t>(s.merkmal[20] + 1);
    const bool jahr = s.merkmal[20] == 12;
    if (jahr) {
        jahresansicht = true;
        jahressumme(s);
        jahresansicht = false;
    } else {
        s.jahressperre = 0;
        satzlesen(s);
    }
    // 3.
    personalartlisten();
    kvliste();
    beitragslisten();
    if (!jahr)
        eingabewerte(s);
    // 4. and 5.
    bild.bdabeginn = ohneblanks(s.bdabeginn);
    if (s.Tablettseite == 48 || s.Tablettseite == 49)
        s.Tablettseite = 0;
    // 6.
    positionenklemmen();
    positionensetzen();
    // 7. and 8.
    bild.bdabeginn = ohneblanks(s.bdabeginn);
    sperrbild();
    // 9.
    s.aenderungscode = 0;
    berechnen(s);
    // 10.
    allezeilen();
    schaltermalen();
    positionensetzen();
    bild.bdabeginn = ohneblanks(s.bdabeginn);
    // The caption names the tax law the month was just computed with.
    jahresanzeige();
    // 11.
    s.aenderungssperre = 0;
    s.bildwirdgebaut = 0;
    bild.sanduhr = false;
    tarifhinweis();
}

// The clamp of the refresh: above the last position the last, below 0 the first.
void Form1::positionenklemmen() {
    for (int zeile = 0; zeile <= 45; ++zeile) {
        const Bildzeile& z = bild.zeilen[static_cast<std::size_t>(zeile)];
        if (!z.hatListe)
            continue;
        const int letzte = static_cast<int>(z.liste.size()) - 1;
        if (s.merkmal[zeile] > letzte)
            s.merkmal[zeile] = static_cast<std::int16_t>(letzte);
        if (s.merkmal[zeile] < 0)
            s.merkmal[zeile] = 0;
    }
}

void Form1::positionensetzen() {
    for (int zeile = 0; zeile <= 45; ++zeile) {
        Bildzeile& z = bild.zeilen[static_cast<std::size_t>(zeile)];
        if (z.hatListe)
            z.position = s.merkmal[zeile];
    }
    const Bildzeile& monat = bild.zeilen[20];
    if (monat.position >= 0 && monat.position < static_cast<int>(monat.liste.size()))
        bild.monatstitel = grossbuchstaben(monat.liste[static_cast<std::size_t>(monat.position)]);
}

// Civil servants and candidates (staff classes below 5) pay no social insurance through the
// employer: their insurance rows are preset and locked, and the switches are hidden.
void Form1::sperrbild() {
    const bool beamte = s.personalart() < 5;
    if (beamte) {
        bild.zeilen[11].aktiv = !(s.ist1997() && s.merkmal[20] < 6);
        s.merkmal[1] = s.personalart() == 1 ? 3 : 0;
        s.merkmal[29] = 1;
        s.merkmal[37] = 29;
        s.merkmal[38] = 4;
        s.merkmal[39] = 1;
        s.merkmal[40] = 1;
        textlistesetzen(25, 4035, 4037);
    } else {
        bild.zeilen[11].aktiv = true;
        s.merkmal[29] = 0;
        textlistesetzen(25, 3552, 3554);
    }
    for (int zeile = 37; zeile <= 40; ++zeile) {
        bild.zeilen[static_cast<std::size_t>(zeile)].aktiv = !beamte;
        bild.zeilen[static_cast<std::size_t>(zeile)].gesperrt = beamte;
    }
    bild.zeilen[30].gesperrt = beamte;
    bild.schalterblock = !beamte;
    if (s.merkmal[25] > 2)
        s.merkmal[25] = 2;
    for (int zeile : {1, 25, 29, 37, 38, 39, 40})
        bild.zeilen[static_cast<std::size_t>(zeile)].position = s.merkmal[zeile];
}

void Form1::jahressicht() {
    jahresansicht = true;
    bild.sanduhr = true;
    // Every row the sum of the twelve stored months; the lists show December's positions.
    jahressumme(s);
    positionensetzen();
    schaltermalen();
    jahresansicht = false;
    bild.sanduhr = false;
}

void Form1::spiegeln() {
    positionensetzen();
    allezeilen();
    bild.zeilen[7].aktiv = s.stufen.aktiv;
    bild.bdabeginn = ohneblanks(s.bdabeginn);
    schaltermalen();
}

} // namespace lonvir
