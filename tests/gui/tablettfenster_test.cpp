// The panel beside the live main screen, under the offscreen platform: the sample BAT
// employee's wage tax, supplementary pension, social insurance and part-time pages opened
// from the menu bar, their rows against the engine's working steps, the ways back, the
// transfer buttons and the help window.
#include "core/betragstext.h"
#include "gui/form1fenster.h"
#include "gui/hilfefenster.h"
#include "gui/tablettanbindung.h"
#include "musterfenster.h"
#include "start/dateisatz.h"
#include "start/satzzugriff.h"
#include "start/start.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// A folder seeded with the installation data and its sample staff; person 2, Schneider,
// Petra, BAT VKA Vc West, January 1997, shown in the window with the panel beside it.
struct Musterfenster : test::Musterfenster {
    QWidget* panel3d2() const {
        return f->centralWidget()->findChild<QWidget*>(QStringLiteral("Panel3D2"));
    }
    std::string zeile(int i) const { return a->ansicht()->zeile(i)->text().toStdString(); }
    std::string kasten(int i) const {
        return a->ansicht()->kasten(i)->text().trimmed().toStdString();
    }
};

} // namespace

TEST(TablettFenster, DieVierErklaerseitenDerMusterangestellten) {
    Musterfenster w;
    Sitzung& s = w.s;
    ASSERT_EQ(s.aktuelleperson, 2);
    ASSERT_EQ(s.personalart(), 6);
    ASSERT_GT(s.wert[22], 0);

    w.menue("MLohnsteuer");
    EXPECT_EQ(s.Tablettseite, 6);
    EXPECT_TRUE(w.a->ansicht()->isVisible());
    EXPECT_FALSE(w.panel3d2()->isVisible());
    for (int i = 1; i <= 27; ++i) {
        EXPECT_EQ(w.zeile(i), textlesen(s, 3743 + i)) << i;
        if (i != 13) {
            EXPECT_EQ(w.kasten(i), betragstext(s.lstwert[i])) << i;
        }
    }
    EXPECT_EQ(w.kasten(1), betragstext(s.wert[22]));

    w.menue("MZusatzversicherung");
    EXPECT_EQ(s.Tablettseite, 8);
    EXPECT_EQ(w.zeile(0), "Z U S A T Z V E R S O R G U N G");
    for (int i = 1; i <= 25; ++i)
        EXPECT_EQ(w.kasten(i), betragstext(s.zvkwert[i])) << i;
    EXPECT_EQ(w.zeile(8), textlesen(s, 3811));

    w.menue("MSozialversicherung");
    EXPECT_EQ(s.Tablettseite, 29);
    EXPECT_EQ(w.zeile(0), "S O Z I A L V E R S I C H E R U N G");
    for (int i = 1; i <= 27; ++i) {
        EXPECT_EQ(w.zeile(i), textlesen(s, 3773 + i)) << i;
        EXPECT_EQ(w.kasten(i), betragstext(s.svwert[i])) << i;
    }

    w.menue("MTeilzeit");
    EXPECT_EQ(s.Tablettseite, 35);
    EXPECT_EQ(w.zeile(0), "T E I L Z E I T G E H A L T");
    // The Ortszuschlag in the first row with the text of row 8's list, the total at the foot.
    EXPECT_EQ(w.zeile(1).rfind(w.f->z(8)->currentText().toStdString(), 0), 0u);
    EXPECT_EQ(w.zeile(15), "TEILZEITGEHALT BRUTTO");
    EXPECT_EQ(w.kasten(15), betragstext(s.wert[21]));
}

TEST(TablettFenster, EinKlickAufDieSeiteGibtDenPlatzDerErgebnisspalteZurueck) {
    Musterfenster w;
    w.menue("MSozialversicherung");
    ASSERT_TRUE(w.a->ansicht()->isVisible());
    QTest::mouseClick(w.a->ansicht()->kasten(4), Qt::LeftButton);
    EXPECT_FALSE(w.a->ansicht()->isVisible());
    EXPECT_TRUE(w.panel3d2()->isVisible());
    EXPECT_EQ(w.s.Tablettseite, 29);
}

TEST(TablettFenster, EineEingabeFrischtDieOffeneLohnsteuerseiteAuf) {
    Musterfenster w;
    w.menue("MLohnsteuer");
    const std::string vorher = w.kasten(1);
    QLineEdit* t = w.f->t(12);
    QTest::mouseClick(t, Qt::LeftButton);
    t->selectAll();
    QTest::keyClicks(t, QStringLiteral("100"));
    QTest::keyClick(t, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_NE(w.kasten(1), vorher);
    EXPECT_EQ(w.kasten(1), betragstext(w.s.wert[22]));
}

TEST(TablettFenster, UebertragknopfKopiertOhneDasBildZuAendern) {
    Musterfenster w;
    const std::string vorher = w.f->t(22)->text().toStdString();
    QPushButton* knopf = nullptr;
    for (QPushButton* k : w.f->findChildren<QPushButton*>(QStringLiteral("Command2")))
        if (k->parent() != w.a->ansicht())
            knopf = k;
    ASSERT_NE(knopf, nullptr);
    ASSERT_EQ(knopf->text(), QStringLiteral("Info  > Plan"));
    QTest::mouseClick(knopf, Qt::LeftButton);
    EXPECT_EQ(w.s.schicht, INFO);
    EXPECT_EQ(w.f->t(22)->text().toStdString(), vorher);
    w.s.schicht = PLAN;
    dateienoeffnen(w.s);
    EXPECT_EQ(personalsatzlesen(w.s, 1, 2).wert[22], w.s.wert[22]);
    w.s.schicht = INFO;
    dateienoeffnen(w.s);
}

TEST(TablettFenster, BemerkungskarteUndHilfefenster) {
    Musterfenster w;
    QPushButton* bemerkung = nullptr;
    for (QPushButton* k : w.f->findChildren<QPushButton*>(QStringLiteral("Command1")))
        if (k->parent() != w.a->ansicht())
            bemerkung = k;
    ASSERT_NE(bemerkung, nullptr);
    QTest::mouseClick(bemerkung, Qt::LeftButton);
    EXPECT_EQ(w.s.Tablettseite, 23);
    EXPECT_EQ(w.zeile(0).substr(0, 12), "Geburtsdatum");
    EXPECT_TRUE(w.a->ansicht()->text(15)->isVisible());
    QTest::mouseClick(w.a->ansicht()->knopf(3), Qt::LeftButton);
    EXPECT_EQ(w.hilfe.letzterKontext(), 90000);
    EXPECT_TRUE(w.hilfe.isVisible());
    EXPECT_FALSE(w.hilfe.seite(90000).isEmpty());
    EXPECT_FALSE(w.hilfe.toPlainText().isEmpty());

    w.menue("Mneu");
    EXPECT_EQ(w.hilfe.letzterKontext(), 96857);
}

TEST(TablettFenster, MenueleisteInIhrerReihenfolge) {
    Musterfenster w;
    QStringList texte;
    for (QAction* a : w.f->menuBar()->actions())
        texte << a->text();
    EXPECT_EQ(texte, (QStringList{"Wie", "97", "98", "Txt", "Tz", "LSt", "Soz", "ZVK", "LTab",
                                  "GTab", "Netto", "Druck", "Jahr", "Amt", "VKE", "Info", "?"}));
    QAction* m1997 = w.f->menuBar()->findChild<QAction*>(QStringLiteral("M1997"));
    ASSERT_NE(m1997, nullptr);
    EXPECT_TRUE(m1997->isChecked());
}

} // namespace lonvir
