// Picking list entries z(row), the switches of the pay rows, the service-age box and the name
// of the person.
#include "core/cp1252.h"
#include "core/zeichen.h"
#include "engine/schritte.h"
#include "screen/form1.h"
#include "screen/hauptmenue.h"
#include "screen/stufenliste.h"
#include "start/texte.h"

#include <cctype>

namespace lonvir {

namespace {

constexpr const char* jahresgehalttext =
    "Während das JAHRESGEHALT eingestellt ist, können keine Änderungen vorgenommen werden. "
    "Bitte stellen Sie ein Monatsgehalt ein.";

// "MM.19JJ" with a month of 1 to 12.
bool bdagueltig(const std::string& t) {
    const auto ziffer = [&t](std::size_t i) {
        return std::isdigit(static_cast<unsigned char>(t[i])) != 0;
    };
    if (t.size() != 7 || !ziffer(0) || !ziffer(1) || t[2] != '.' || t[3] != '1' || t[4] != '9' ||
        !ziffer(5) || !ziffer(6))
        return false;
    const int monat = (t[0] - '0') * 10 + (t[1] - '0');
    return monat >= 1 && monat <= 12;
}

} // namespace

bool Form1::jahresgehaltgesperrt() {
    if (s.merkmal[20] != 12)
        return false;
    if (s.dialoge)
        s.dialoge->zeigen(
            {"Keine Änderung möglich", jahresgehalttext, Symbol::ausruf, Knoepfe::ok});
    return true;
}

void Form1::z_GotFocus(int zeile) {
    s.aktuellezeile = static_cast<std::int16_t>(zeile);
    vorherigestufe = zeile == 7 ? static_cast<std::int16_t>(bild.zeilen[7].position) : -1;
    // The test looks at row 15, whose list has seven entries: as built it never fires.
    const bool zeilen =
        (zeile >= 0 && zeile <= 14) || (zeile >= 16 && zeile <= 41) || (zeile >= 43 && zeile <= 53);
    if (s.merkmal[15] == 12 && zeilen && s.dialoge)
        s.dialoge->zeigen({"Jahresgehalt ändern", jahresgehalttext, Symbol::ausruf, Knoepfe::ok});
}

// Row 7 changed by hand while the step follows the service age: the user is asked whether the
// start of the service age is to go. True when the change goes on.
bool Form1::stufenfrage() {
    const bool berechnet =
        !ohneDienstalter(s.personalart()) && s.merkmal[1] <= 1 && !getrimmt(s.bdabeginn).empty();
    if (stufeohnefrage || vorherigestufe < 0 || !berechnet || s.dialoge == nullptr)
        return true;
    const std::string bda = "BDA";
    const std::string frage =
        "Das Programm hat die Dienstaltersstufe aufgrund des oben eingegebenen " + bda +
        " s berechnet. Bei manueller Änderung der Dienstaltersstufen wird das " + bda +
        " gelöscht und die automatische Berechnung wird abgeschaltet. Später kann durch "
        "Eingabe des " +
        bda +
        "s die automatische Berechnung wieder aktiviert werden. Wollen Sie (was nicht "
        "empfehlenswert ist) manuell ändern?";
    if (s.dialoge->zeigen({"BDA", frage, Symbol::frage, Knoepfe::jaNein}) == Knopf::ja) {
        s.bdabeginn = std::string(7, ' ');
        bild.bdabeginn.clear();
        return true;
    }
    bild.zeilen[7].position = vorherigestufe;
    return false;
}

void Form1::positionenuebernehmen() {
    for (int zeile = 0; zeile <= 45; ++zeile) {
        const Bildzeile& z = bild.zeilen[static_cast<std::size_t>(zeile)];
        if (z.hatListe)
            s.merkmal[zeile] = static_cast<std::int16_t>(z.position < 0 ? 0 : z.position);
    }
}

void Form1::z_Click(int zeile) {
    if (s.aenderungssperre != 0 || !bild.zeilen[static_cast<std::size_t>(zeile)].aktiv)
        return;
    // 1. and 2.
    s.aktuellezeile = static_cast<std::int16_t>(zeile);
    if (zeile == 7) {
        if (bild.zeilen[7].position == vorherigestufe) {
            mauszeigerNormal();
            return;
        }
        if (!stufenfrage())
            return;
    }
    // 3.
    positionenuebernehmen();
    // 4.
    if (s.merkmal[20] == 12) {
        jahressicht();
        return;
    }
    switch (zeile) {
    case 0:
        if (s.startphase != 0) {
            bild.zeilen[0].position = s.aktuelleperson - 1;
            s.merkmal[0] = static_cast<std::int16_t>(s.aktuelleperson - 1);
        }
        s.aktuelleperson = static_cast<std::int16_t>(s.merkmal[0] + 1);
        bildauffrischen();
        return;
    case 1:
        if (s.merkmal[1] != 2)
            s.merkmal[1] = s.personalart() < 5 ? 0 : 1;
        if (s.merkmal[1] <= 1) {
            s.bdabeginn = "01.1997";
            s.merkmal[7] = 0;
            bild.zeilen[7].position = 0;
        } else {
            s.bdabeginn = std::string(7, ' ');
        }
        bild.zeilen[1].position = s.merkmal[1];
        bild.bdabeginn = getrimmt(cp1252NachUtf8(s.bdabeginn));
        break;
    case 4:
        if (s.personalart() > 4)
            for (int z = 37; z <= 40; ++z)
                s.merkmal[z] = 0;
        personalartlisten();
        positionenklemmen();
        positionensetzen();
        sperrbild();
        break;
    case 5:
    case 6:
        if (zeile == 5)
            amtsliste();
        stufenliste();
        positionenklemmen();
        positionensetzen();
        break;
    case 20:
        bildauffrischen();
        return;
    default:
        break;
    }
    // 5.
    neuberechnen(zeile);
}

void Form1::z_DblClick(int zeile) {
    const std::optional<int> kontext = zeilenhilfe(s.personalart(), zeile);
    if (!kontext) {
        if (s.dialoge)
            s.dialoge->zeigen({"HILFE",
                               "Für die in Zeile 2 eingestellten Bediensteten sind noch keine "
                               "Hilfetexte verfügbar.",
                               Symbol::ausruf, Knoepfe::ok});
        return;
    }
    if (hilfe)
        hilfe->zeigen(*kontext);
}

void Form1::F1(int zeile) {
    s.aktuellezeile = static_cast<std::int16_t>(zeile);
    z_DblClick(zeile);
}

void Form1::Picture1_Click() {
    // The help context of the menu entry MLonvir97, "Über LONVIR97".
    if (hilfe)
        hilfe->zeigen(20940);
}

int Form1::z_KeyPress(int zeile, int key) {
    if (zeile != 0 || key != taste::enter)
        return key;
    const int nummer = textnummer::ersterName + s.merkmal[0];
    textschreiben(s, nummer, bild.zeilen[0].editiertext);
    Bildzeile& namen = bild.zeilen[0];
    const auto position = static_cast<std::size_t>(s.merkmal[0]);
    if (position < namen.liste.size()) {
        namen.liste[position] = textgetrimmt(s, nummer);
        ++namen.listenstand;
    }
    return 0;
}

int Form1::BDABeginn_KeyPress(int key) {
    const std::string text = getrimmt(bild.bdabeginn);
    if (text.empty() && (s.merkmal[1] == 0 || s.merkmal[1] == 1) && s.dialoge)
        s.dialoge->zeigen({"BDA-Beginn",
                           "Ohne Eingabe des Beginns des Besoldungs-/Vergütungsdienstalters kann "
                           "keine Gehaltsberechnung durchgeführt werden. In der Regel ist dies der "
                           "Monat, in dem der 21. Geburtstag liegt.",
                           Symbol::ausruf, Knoepfe::ok});
    if (key != taste::enter)
        return key;
    if (jahresgehaltgesperrt())
        return 0;
    if (!bdagueltig(text)) {
        bild.bdabeginn.clear();
        s.bdabeginn = std::string(7, ' ');
        return 0;
    }
    s.bdabeginn = utf8NachCp1252(text);
    bild.bdabeginn = text;
    stufeausbda(s);
    // Beyond the list the last entry is taken.
    stufeklemmen(s);
    bild.zeilen[7].position = s.merkmal[7];
    stufeohnefrage = true;
    z_Click(7);
    stufeohnefrage = false;
    return 0;
}

void Form1::schalterclick(Schalterart art, int zeile, bool an) {
    s.aktuellezeile = static_cast<std::int16_t>(zeile);
    if (jahresgehaltgesperrt()) {
        schaltermalen(art);
        return;
    }
    Schalter* felder[] = {&s.lst, &s.soz, &s.zvk, &s.wei, &s.tei, &s.bru};
    (*felder[art])[zeile] = an ? 1 : 0;
    bild.schalter[static_cast<std::size_t>(art)].gesetzt[zeile] = an;
    z_Click(zeile);
}

void Form1::lst_Click(int zeile, bool an) {
    schalterclick(L, zeile, an);
}
void Form1::soz_Click(int zeile, bool an) {
    schalterclick(S, zeile, an);
}
void Form1::zvk_Click(int zeile, bool an) {
    schalterclick(Z, zeile, an);
}
void Form1::wei_Click(int zeile, bool an) {
    schalterclick(W, zeile, an);
}
void Form1::tei_Click(int zeile, bool an) {
    schalterclick(T, zeile, an);
}
void Form1::bru_Click(int zeile, bool an) {
    schalterclick(P, zeile, an);
}

void Form1::auswahltreffen(int zeile, int position) {
    z_GotFocus(zeile);
    bild.zeilen[static_cast<std::size_t>(zeile)].position = position;
    z_Click(zeile);
}

void Form1::bdatippen(const std::string& text) {
    bild.bdabeginn = text;
    BDABeginn_KeyPress(taste::enter);
}

void Form1::umbenennen(const std::string& name) {
    z_GotFocus(0);
    bild.zeilen[0].editiertext = name;
    z_KeyPress(0, taste::enter);
}

void Form1::schalterklicken(Schalterart art, int zeile, bool an) {
    schalterclick(art, zeile, an);
}

} // namespace lonvir
