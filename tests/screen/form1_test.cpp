// The main form's load, activation, window state, calculator keys and end.
#include "bildhilfe.h"
#include "screen/navigation.h"
#include "start/dateisatz.h"
#include "start/einstellungen.h"
#include "start/satzzugriff.h"
#include "start/start.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
struct Rechnerprotokoll : Rechnertasten {
    void number_Click(int index) override { tasten.push_back("number " + std::to_string(index)); }
    void operator_Click(int index) override {
        tasten.push_back("operator " + std::to_string(index));
    }
    void decimalp_Click() override { tasten.push_back("decimalp"); }
    void Eintrag_Click() override { tasten.push_back("Eintrag"); }
    std::vector<std::string> tasten;
};
} // namespace

TEST(Form1, LadenAufEinemNeuenBestand) {
    test::Umgebung u;
    Form1 f(u.s);
    f.Form_Load();
    EXPECT_EQ(f.bild.titel, "LONVIR 1997 im öffentlichen Dienst    (ohne Gewähr)");
    EXPECT_EQ(u.s.aktuelleperson, 1);
    EXPECT_EQ(u.s.merkmal[20], 0);
    EXPECT_EQ(f.bild.zeilen[0].position, 0);
    EXPECT_EQ(f.bild.aktiveSchicht, 0);
    EXPECT_EQ(f.bild.zeilen[0].liste.size(), 20u);
    EXPECT_EQ(f.bild.zeilen[4].farbe, 12);
    EXPECT_EQ(f.bild.zeilen[0].wert, "38,50");
    EXPECT_FALSE(f.bild.jahr1998);
    EXPECT_FALSE(f.bild.sanduhr);
    EXPECT_EQ(u.s.aenderungssperre, 0);
    EXPECT_EQ(u.s.startphase, 0);
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
}

TEST(Form1, LadenStelltPersonMonatUndSchichtWiederHer) {
    test::Tempordner ordner;
    {
        SkriptDialoge d;
        Sitzung s;
        s.ordner = Arbeitsordner(ordner.pfad());
        s.dialoge = &d;
        starten(s);
        s.schicht = PLAN;
        dateienoeffnen(s);
        Form1 f(s);
        f.listenfuellen();
        f.namensliste();
        s.aktuelleperson = 3;
        s.merkmal[0] = 2;
        s.merkmal[20] = 4;
        f.bildauffrischen();
        f.betragtippen(12, 500); // stores May of person 3 and the place: PLAN, 3, May
    }
    SkriptDialoge d;
    Sitzung s;
    s.ordner = Arbeitsordner(ordner.pfad());
    s.dialoge = &d;
    starten(s);
    Form1 f(s);
    f.Form_Load();
    EXPECT_EQ(s.schicht, PLAN);
    EXPECT_EQ(f.bild.aktiveSchicht, 1);
    EXPECT_EQ(s.aktuelleperson, 3);
    EXPECT_EQ(f.bild.zeilen[0].position, 2);
    EXPECT_EQ(s.merkmal[20], 4);
    EXPECT_EQ(f.bild.zeilen[20].position, 4);
    EXPECT_EQ(s.wert[12], 500);
}

TEST(Form1, TitelDesJahres1998) {
    test::Umgebung u(1998);
    Form1 f(u.s);
    f.Form_Load();
    EXPECT_EQ(f.bild.titel, "LONVIR 1998 im öffentlichen Dienst    (ohne Gewähr)");
    EXPECT_TRUE(f.bild.jahr1998);
}

TEST(Form1, SchliessenSchreibtDieFensterlageBeendenNicht) {
    test::Umgebung u;
    {
        Form1 f(u.s);
        f.Form_Load();
        u.s.dim.form1width = Currency::ganz(9000);
        f.Form_Unload();
        u.s.dim.form1width = Currency::ganz(7000);
        f.MBeenden();
        EXPECT_TRUE(f.beendet);
    }
    dimlesen(u.s);
    EXPECT_EQ(u.s.dim.form1width, Currency::ganz(9000));
}

TEST(Form1, BeendenVerliertDenNichtBestaetigtenWert) {
    test::Bild b;
    b.f.t_GotFocus(12);
    b.zeile(12).wert.clear();
    for (char c : std::string("250"))
        if (b.f.t_KeyPress(12, c) != 0)
            b.zeile(12).wert += c;
    EXPECT_EQ(b.zeile(12).wert, "250");
    b.f.MBeenden();
    EXPECT_TRUE(b.f.beendet);
    EXPECT_EQ(b.u.s.eingabe[12], 0);
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).wert[12], 0);
}

TEST(Form1, AktivierungTrittInDieLetzteZeileWiederEin) {
    test::Bild b;
    // What the calculator's transfer leaves: the value in row 12, the flag set.
    b.u.s.eingabe[12] = 4200;
    b.u.s.aktuellezeile = 12;
    b.f.wiedereintritt = true;
    b.f.Form_Activate();
    EXPECT_FALSE(b.f.wiedereintritt);
    EXPECT_EQ(personalsatzlesen(b.u.s, 1, 1).wert[12], 4200);
    // From row 0 or 1 the click goes to row 17.
    b.u.s.aktuellezeile = 1;
    b.f.wiedereintritt = true;
    b.f.Form_Activate();
    EXPECT_EQ(b.u.s.aktuellezeile, 17);
}

TEST(Form1, TastenOhneZeilenfokusGehenAnDenRechner) {
    test::Umgebung u;
    Rechnerprotokoll r;
    Form1 f(u.s, nullptr, &r);
    for (int key : {'7', '+', '-', '*', '/', '=', ','})
        EXPECT_EQ(f.Form_KeyPress(key, false), 0);
    EXPECT_EQ(r.tasten, (std::vector<std::string>{"number 7", "operator 0", "Eintrag", "operator 2",
                                                  "operator 3", "operator 4", "decimalp"}));
    EXPECT_EQ(f.Form_KeyPress('a', false), 'a');
    EXPECT_EQ(f.Form_KeyPress('7', true), '7');
    EXPECT_EQ(r.tasten.size(), 7u);
}

TEST(Form1, BildanpassenEndetImmerBeiNull) {
    test::Umgebung u;
    Form1 f(u.s);
    Fensteraktion a = f.bildanpassen(Fensterzustand::normal);
    EXPECT_TRUE(a.ausrechnen);
    EXPECT_FALSE(a.neuerzustand);
    // Minimised from 0: only the panel closes.
    a = f.bildanpassen(Fensterzustand::minimiert);
    EXPECT_TRUE(a.tablettschliessen);
    EXPECT_FALSE(a.neuerzustand);
    // Maximised with 2: minimised, and the variable becomes 1.
    f.fensterstufe = 2;
    a = f.bildanpassen(Fensterzustand::maximiert);
    EXPECT_EQ(a.neuerzustand, Fensterzustand::minimiert);
    EXPECT_EQ(f.fensterstufe, 1);
    EXPECT_TRUE(a.ausrechnen);
    // Minimised with 1: maximised (2), normal (0), the panel closed.
    a = f.bildanpassen(Fensterzustand::minimiert);
    EXPECT_EQ(a.neuerzustand, Fensterzustand::normal);
    EXPECT_EQ(f.fensterstufe, 0);
    EXPECT_TRUE(a.tablettschliessen);
    // Maximised with 1: normal.
    f.fensterstufe = 1;
    a = f.bildanpassen(Fensterzustand::maximiert);
    EXPECT_EQ(a.neuerzustand, Fensterzustand::normal);
    EXPECT_EQ(f.fensterstufe, 0);
}

TEST(Form1, SchichtUndJahrWechselnUeberDieNavigation) {
    test::Umgebung u;
    Form1 f(u.s);
    f.Form_Load();
    f.SSPanel_Click(PLAN);
    EXPECT_EQ(u.s.schicht, PLAN);
    EXPECT_EQ(f.bild.aktiveSchicht, 1);
    EXPECT_EQ(f.bild.zeilen[0].liste.size(), 20u);
    jahrklick(u.s, f, 1998);
    EXPECT_EQ(u.s.jahr, 1998);
    EXPECT_EQ(f.bild.titel, "LONVIR 1998 im öffentlichen Dienst    (ohne Gewähr)");
    EXPECT_FALSE(f.bild.sanduhr);
    EXPECT_EQ(u.s.Tablettseite, 0); // the mark of the year menu ends with the refresh
}

TEST(Form1, EingabenOhneFensterGehenDurchDieHandler) {
    test::Umgebung u;
    Form1 f(u.s);
    f.Form_Load();
    {
        // A second screen on the same session answers for the time of one input.
        Form1 ohneFenster(u.s);
        EXPECT_EQ(u.s.anzeige, &ohneFenster);
    }
    EXPECT_EQ(u.s.anzeige, &f);
}

} // namespace lonvir
