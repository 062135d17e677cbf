// The main form's life: load, activation, the window state, the keys of the calculator, the end.
#include "screen/form1.h"

#include "screen/navigation.h"
#include "start/einstellungen.h"

namespace lonvir {

namespace {
// Rows without a list, and rows whose list has no box beside it.
bool ohneListe(int zeile) {
    return zeile == 27;
}
bool ohneWertfeld(int zeile) {
    return zeile == 6 || zeile == 27 || zeile == 28 || zeile == 29 || zeile == 32;
}
} // namespace

Form1::Form1(Sitzung& sitzung, Hilfe* h, Rechnertasten* r)
    : s(sitzung), hilfe(h), rechner(r), vorherigeAnzeige_(sitzung.anzeige) {
    for (int zeile = 0; zeile <= 45; ++zeile) {
        Bildzeile& z = bild.zeilen[static_cast<std::size_t>(zeile)];
        z.hatListe = !ohneListe(zeile);
        z.hatWertfeld = !ohneWertfeld(zeile);
        z.position = z.hatListe ? 0 : -1;
    }
    s.anzeige = this;
}

Form1::~Form1() {
    if (s.anzeige == this)
        s.anzeige = vorherigeAnzeige_;
}

void Form1::Form_Load() {
    hauptformladen(s, *this);
}

void Form1::laden() {
    Form_Load();
}

void Form1::zeilenlistenfuellen() {
    listenfuellen();
    namensliste();
}

void Form1::jahresmenue() {
    // The 1998 entries of the menu wait until a 1998 set has been filled.
    bild.jahr1998 = !s.ist1997() || s.ordner.laenge("L1998I.1") >= 1;
}

void Form1::jahresanzeige() {
    bild.titel = fenstertitel(s);
}

void Form1::Form_Activate() {
    if (wiedereintritt) {
        wiedereintritt = false;
        const int zeile = s.aktuellezeile <= 1 ? 17 : s.aktuellezeile;
        z_Click(zeile);
    }
    if (seiteverlangtauffrischen) {
        seiteverlangtauffrischen = false;
        bildauffrischen();
    }
}

void Form1::SSPanel_Click(int schicht) {
    schichtklick(s, *this, static_cast<std::int16_t>(schicht));
}

void Form1::Form_Unload() {
    dimschreiben(s);
}

void Form1::MBeenden() {
    // Every calculation has stored its month and the settings already: nothing is written.
    beendet = true;
}

Fensteraktion Form1::bildanpassen(Fensterzustand zustand) {
    Fensteraktion a;
    if (zustand == Fensterzustand::normal) {
        a.ausrechnen = true;
    } else if (zustand == Fensterzustand::minimiert) {
        // Three tests one after the other: every state ends at 0 with the panel closed.
        if (fensterstufe == 1) {
            a.neuerzustand = Fensterzustand::maximiert;
            fensterstufe = 2;
        }
        if (fensterstufe == 2) {
            a.neuerzustand = Fensterzustand::normal;
            fensterstufe = 0;
        }
        if (fensterstufe == 0)
            a.tablettschliessen = true;
    } else {
        if (fensterstufe == 1) {
            a.neuerzustand = Fensterzustand::normal;
            fensterstufe = 0;
        }
        if (fensterstufe == 2) {
            a.neuerzustand = Fensterzustand::minimiert;
            fensterstufe = 1;
        }
        a.ausrechnen = true;
    }
    return a;
}

int Form1::Form_KeyPress(int key, bool zeilehatfokus) {
    if (zeilehatfokus || rechner == nullptr)
        return key;
    if (key >= '0' && key <= '9') {
        rechner->number_Click(key - '0');
    } else if (key == '+') {
        rechner->operator_Click(0);
    } else if (key == '-') {
        rechner->Eintrag_Click();
    } else if (key == '*') {
        rechner->operator_Click(2);
    } else if (key == '/') {
        rechner->operator_Click(3);
    } else if (key == '=') {
        rechner->operator_Click(4);
    } else if (key == ',') {
        rechner->decimalp_Click();
    } else {
        return key;
    }
    return 0;
}

} // namespace lonvir
