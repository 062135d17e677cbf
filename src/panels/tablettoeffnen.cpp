// Opening a page: clear, width, placement beside or over the left column, dispatch, show.
#include "engine/berechnen.h"
#include "engine/monatladen.h"
#include "engine/schritte.h"
#include "panels/dienstalterseite.h"
#include "panels/namen.h"
#include "panels/seiten.h"
#include "panels/tablett.h"
#include "panels/tarife.h"
#include "panels/vorgabeseiten.h"

namespace lonvir {

Tablett::Tablett(Sitzung& sitzung, Form1lage& f, Hilfe* h) : s(sitzung), form(f), hilfe(h) {
    bauer_[6] = [](Tablett& t) {
        lohnsteuerzeilen(t);
        lohnsteuerbetraege(t);
    };
    bauer_[7] = [](Tablett&) {}; // reserved: only the width rule of 4550 applies
    bauer_[8] = [](Tablett& t) {
        if (t.s.personalart() > 4) {
            zvkzeilen(t);
            zvkbetraege(t);
        } else {
            umlageseite(t);
        }
    };
    bauer_[23] = jahreswerteseite;
    bauer_[29] = [](Tablett& t) {
        sozialzeilen(t);
        sozialbetraege(t);
    };
    bauer_[35] = teilzeitseite;
    bauer_[2] = passwortseite;
    bauer_[44] = tarifstrukturseite;
    bauer_[61] = markierseite;
    bauer_[63] = sozvorgabenseite;
    bauer_[64] = weihnachtsseite;
    bauer_[65] = zvkvorgabenseite;
    bauer_[4] = amtseite;
    bauer_[22] = namenseite;
    bauer_[68] = reformseite;
    // The tariff editor and the text editor are forms of their own: the face shows them.
    for (int seite : {54, 55, 56, 57, 58, 59, 60, 62})
        bauer_[seite] = [](Tablett& t) { t.formwunsch = "Tarife"; };
    bauer_[69] = [](Tablett& t) {
        t.textvon = 5001;
        t.textbis = 6000;
        t.formwunsch = "Textedit";
    };
    bauer_[42] = dienstalterseite;
    bauer_[43] = bruttoregler;
    bauer_[47] = jahresuebertrag;
    bauer_[67] = versionsseite;
    zeilenname = [this](int z) { return zeilenbezeichnung(s, z); };
    linkespalteauffrischen = [this] {
        const std::int16_t monat = s.merkmal[20] >= 0 && s.merkmal[20] <= 12 ? s.merkmal[20] : 0;
        monatladen(s, s.aktuelleperson, monat);
    };
    passwortzeigen = [this] { passwortverlangt = true; };
    bdauebernehmen = [this](const std::string& text) {
        s.bdabeginn = text;
        stufeausbda(s);
        s.Neuberechnung = -1;
        s.aenderungscode = 7;
        nachrechnen(s);
    };
    auswahlsetzen = [this](int zeile, int position) {
        s.merkmal[zeile] = static_cast<std::int16_t>(position);
        if (zeile == 20) {
            monatladen(s, s.aktuelleperson, static_cast<std::int16_t>(position));
            return;
        }
        s.Neuberechnung = -1;
        s.aenderungscode = static_cast<std::int16_t>(zeile);
        nachrechnen(s);
    };
}

void Tablett::seiteanmelden(int seite, Seitenbauer bauer) {
    bauer_.try_emplace(seite, std::move(bauer));
}

void Tablett::seiteoeffnen(int nummer) {
    // Another page ends the gross mode first, as leaving page 43 does.
    if (s.bruttomodus == 1 && nummer != 43)
        Form_Deactivate();
    sanduhr = true;
    s.Tablettseite = static_cast<std::int16_t>(nummer);
    tablettoeffnen();
}

void Tablett::tablettoeffnen() {
    // 1.
    wirdgeoeffnet = true;
    // Page 43 is the gross slider: the panel lies over the left column in gross mode.
    if (s.Tablettseite == 43 && s.bruttomodus == 0)
        s.bruttomodus = 1;
    tablettleeren();
    // 2.
    breiteregel();
    // 3. and 4.
    platzieren();
    // 5.
    verteilen();
    gezeigteSeite = s.Tablettseite;
    // 6. The menu put up the hourglass; the page takes it down.
    sichtbar = true;
    sanduhr = false;
    wirdgeoeffnet = false;
}

void Tablett::breiteregel() {
    const int seite = s.Tablettseite;
    const auto mindestens = [this](int mindestbreite) {
        const int breite =
            form.panel3d2breite > mindestbreite ? form.panel3d2breite : mindestbreite;
        Tablettbreite = static_cast<std::int16_t>(breite);
    };
    if (seite == 2 || seite == 8 || seite == 22 || seite == 29 || seite == 35)
        mindestens(3200);
    else if (seite == 7)
        mindestens(4550);
    else if (Tablettbreite == 0)
        mindestens(3200); // a first page outside the rule covers the result column too
}

void Tablett::platzieren() {
    if (s.bruttomodus == 0) {
        // The panel takes the place of the hidden result column at the right edge.
        form.panel3d2sichtbar = false;
        lage.links = form.links + form.breite - Tablettbreite;
        lage.breite = Tablettbreite;
        lage.oben = form.oben + 640;
        lage.hoehe = form.panel3d2hoehe;
    } else {
        // The gross slider lies over the rows of the left column; the results stay in view.
        lage.links = form.links;
        lage.breite = form.panel3d1breite;
        lage.oben = form.zeile5oben + form.oben + 640;
        lage.hoehe = form.zeile19oben - form.zeile4oben;
    }
}

void Tablett::verteilen() {
    const auto bauer = bauer_.find(s.Tablettseite);
    if (bauer != bauer_.end())
        bauer->second(*this);
}

void Tablett::auffrischen() {
    switch (s.Tablettseite) {
    case 6:
        lohnsteuerzeilen(*this);
        lohnsteuerbetraege(*this);
        break;
    case 8:
        zvkzeilen(*this);
        zvkbetraege(*this);
        break;
    case 35:
        teilzeitseite(*this);
        break;
    case 43:
        bruttobetraege(*this);
        break;
    case 7:
        // The social-insurance builders stand here under a number no menu sets: the open
        // page 29 is not refreshed by a run.
        sozialzeilen(*this);
        sozialbetraege(*this);
        break;
    default:
        break;
    }
}

void Tablett::tablettleeren() {
    sichtbar = false;
    if (Schirmsperre == -1)
        return;
    for (Tablettknopf* k : {&Command1, &Command2, &Command3, &Command4})
        k->sichtbar = false;
    Command1.schriftgroesse = 8.25;
    for (int i = 0; i <= 17; ++i) {
        Text[i].sichtbar = false;
        Text[i].vordergrund = 0;
        Text[i].hintergrund = 15;
        Combo[i].sichtbar = false;
        Combo[i].vordergrund = 0;
        // Only the cost-centre list is white on red and larger: the others stay as they were.
        Combo[i].hintergrund = 15;
        Combo[i].schriftgroesse = 8.25;
    }
    for (int i = 0; i <= 28; ++i) {
        Tablettzeile& z = zeile[i];
        z.sichtbar = false;
        z.fett = false;
        z.vordergrund = 0;
        z.hintergrund = 7;
        z.rahmen = false;
        z.schrift = "arial";
        Tablettkasten& k = kasten[i];
        k.hintergrund = 7;
        k.text.clear();
        k.autogroesse = true;
        k.schriftgroesse = 8.25;
        k.fase = 0;
        k.lage.breite = 1100;
        k.sichtbar = false;
    }
    for (Tablettrollbalken* r : {&HScroll1, &HScroll2, &HScroll3})
        r->sichtbar = false;
    hintergrund = 7;
    Grid1.sichtbar = false;
    Grid2.sichtbar = false;
}

} // namespace lonvir
