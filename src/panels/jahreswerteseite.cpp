// Page 23: the remark card of the person, sixteen captions and boxes, and its store.
#include "panels/seiten.h"
#include "start/jahressaetze.h"
#include "start/texte.h"

namespace lonvir {

namespace {
constexpr int abstand = 390;
constexpr int felder = 16;
} // namespace

void jahreswerteseite(Tablett& t) {
    const Jahressatz karte = jahressatzlesen(t.s, t.s.aktuelleperson);
    for (int i = 0; i < felder; ++i) {
        const int linie = seitenlage::anfang + i * abstand;
        Tablettzeile& z = t.zeile[i];
        z.text = textlesen(t.s, Jahressatz::ersterBeschriftungstext + i);
        z.lage = {seitenlage::links, linie + 30, t.Tablettbreite - 200, 140};
        z.sichtbar = true;
        Tablettfeld& f = t.Text[i];
        f.text = karte.text(i);
        f.schrift = "small fonts";
        f.lage = {seitenlage::links, linie + 170, t.Tablettbreite - 200, 210};
        f.sichtbar = true;
    }
    const int fuss = seitenlage::anfang + felder * abstand + 100;
    t.Command1.text = "Speichern";
    t.Command1.lage = {seitenlage::links, fuss, 1500, 400};
    t.Command1.sichtbar = true;
    t.Command3.text = "Hilfe";
    t.Command3.lage = {seitenlage::links + 1700, fuss, 1100, 400};
    t.Command3.sichtbar = true;
    t.fokus = {Tablettfokusart::text, 0};
}

void jahreswertespeichern(Tablett& t) {
    Jahressatz karte;
    for (int i = 0; i < felder; ++i)
        karte.setzen(i, t.Text[i].text);
    jahressatzschreiben(t.s, t.s.aktuelleperson, karte);
    t.gespeichert = true;
}

} // namespace lonvir
