// The settings pages, the preset mode and the row colours in the window, under the offscreen
// platform: the sample BAT employee (person 2) in January 1997, driven through the widgets.
#include "gui/farbenfenster.h"
#include "gui/form1fenster.h"
#include "gui/hilfefenster.h"
#include "gui/passwortfenster.h"
#include "gui/tablettanbindung.h"
#include "musterfenster.h"
#include "start/satzzugriff.h"
#include "start/start.h"
#include "testhilfe.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include <cstdlib>
#include <gtest/gtest.h>

namespace lonvir {

namespace {

struct Einstellungsfenster : test::Musterfenster {
    explicit Einstellungsfenster(std::int16_t jahr = 1997) : test::Musterfenster(jahr) {}
    QPushButton* uebertragknopf(int knopf) const {
        return f->centralWidget()->findChild<QPushButton*>(QStringLiteral("Command%1").arg(knopf));
    }
};

} // namespace

TEST(Einstellungsfenster, RvSatzAufSeite63ZeigtSichSofort) {
    Einstellungsfenster w;
    // 3,888.56 DM x 20.3 % / 2 = 394.69 DM.
    EXPECT_EQ(w.f->t(39)->text().toStdString(), "394,69-");
    w.menue("MSozVersDaten");
    ASSERT_TRUE(w.a->ansicht()->isVisible());
    QComboBox* rv = w.a->ansicht()->liste(2);
    ASSERT_TRUE(rv->isVisible());
    EXPECT_EQ(rv->currentText().toStdString(), "20,3 % / 2");
    emit rv->activated(9); // 20,4 % / 2
    QTest::mouseClick(w.a->ansicht()->knopf(1), Qt::LeftButton);
    EXPECT_FALSE(w.a->ansicht()->isVisible());
    // 3,888.56 DM x 10.2 % = 396.63 DM, in the row and in the stored January.
    EXPECT_EQ(w.f->t(39)->text().toStdString(), "396,63-");
    EXPECT_EQ(personalsatzlesen(w.s, 1, 2).wert[39], -39663);
}

// Page 44 of 1998 carries the switch of the tax law; once stored, the caption names the law.
TEST(Einstellungsfenster, Seite44Von1998SchaltetDasSteuerrecht1998) {
    Einstellungsfenster w(1998);
    EXPECT_FALSE(w.f->windowTitle().contains(QStringLiteral("Steuerrecht")));
    w.menue("Mhochrechnung98");
    ASSERT_TRUE(w.a->ansicht()->isVisible());
    QComboBox* recht = w.a->ansicht()->liste(9);
    ASSERT_TRUE(recht->isVisible());
    EXPECT_EQ(recht->currentText().toStdString(), "Lohnsteuer nach dem Steuerrecht 1997");
    emit recht->activated(1);
    if (const char* ordner = std::getenv("LONVIR_BILDER"))
        w.f->grab().save(QString::fromUtf8(ordner) + "/seite44-1998.png");
    QTest::mouseClick(w.a->ansicht()->knopf(1), Qt::LeftButton);
    EXPECT_FALSE(w.a->ansicht()->isVisible());
    EXPECT_EQ(w.s.voreinstellung[34], Currency::ganz(1));
    EXPECT_TRUE(w.f->windowTitle().endsWith(QStringLiteral("Lohnsteuer nach dem Steuerrecht 1998")))
        << w.f->windowTitle().toStdString();
}

TEST(Einstellungsfenster, Seite44Von1997HatKeinenSchalter) {
    Einstellungsfenster w;
    w.menue("MHochrechnung97");
    ASSERT_TRUE(w.a->ansicht()->isVisible());
    EXPECT_FALSE(w.a->ansicht()->liste(9)->isVisible());
}

TEST(Einstellungsfenster, QuoteGetipptMitKomma) {
    Einstellungsfenster w;
    w.menue("MWeihnachten");
    QLineEdit* feld = w.a->ansicht()->text(0);
    ASSERT_TRUE(feld->isVisible());
    feld->setFocus();
    feld->clear();
    QTest::keyClicks(feld, "87x,5");
    EXPECT_EQ(feld->text().toStdString(), "87.5");
    QTest::keyClick(feld, Qt::Key_Return);
    QTest::mouseClick(w.a->ansicht()->knopf(1), Qt::LeftButton);
    EXPECT_EQ(w.s.voreinstellung[30], Currency::roh(875000));
}

TEST(Einstellungsfenster, VoreinstellungsmodusUeberDieUebertragknoepfe) {
    Einstellungsfenster w;
    w.menue("MVoreinstellungen");
    QLineEdit* erste = w.a->ansicht()->text(1);
    QLineEdit* letzte = w.a->ansicht()->text(2);
    erste->setFocus();
    QTest::keyClicks(erste, "3");
    QTest::keyClick(erste, Qt::Key_Return);
    QTest::keyClicks(letzte, "4");
    QTest::keyClick(letzte, Qt::Key_Return);
    QTest::mouseClick(w.a->ansicht()->knopf(1), Qt::LeftButton);
    ASSERT_TRUE(w.f->modell().voreinstellung.aktiv);
    EXPECT_EQ(w.uebertragknopf(2)->text().toStdString(), "    Ü B E R T R A G E N");
    EXPECT_EQ(w.uebertragknopf(3)->text().toStdString(), "  A B B R E C H E N");
    EXPECT_FALSE(w.uebertragknopf(4)->isVisible());
    EXPECT_EQ(w.f->modell().bild.zeilen[0].farbe, 15);
    EXPECT_EQ(w.f->modell().bild.zeilen[36].farbe, 14);
    const std::int16_t kirche = w.s.merkmal[36];
    QTest::mouseClick(w.uebertragknopf(2), Qt::LeftButton);
    EXPECT_FALSE(w.f->modell().voreinstellung.aktiv);
    EXPECT_EQ(personalsatzlesen(w.s, 6, 3).merkmal[36], kirche);
    EXPECT_EQ(personalsatzlesen(w.s, 6, 4).merkmal[25], w.s.merkmal[25]);
    EXPECT_EQ(w.uebertragknopf(2)->text().toStdString(), "Info  > Plan");
    EXPECT_TRUE(w.uebertragknopf(5)->isVisible());
}

TEST(Einstellungsfenster, Form14FaerbtDieZeile) {
    Einstellungsfenster w;
    gui::FarbenFenster farben(*w.f);
    farben.laden();
    EXPECT_EQ(farben.colo(4)->text().toStdString(), "12");
    QTest::mouseClick(farben.colo(4), Qt::LeftButton);
    EXPECT_EQ(farben.colo(4)->text().toStdString(), "13");
    EXPECT_EQ(w.f->modell().bild.zeilen[4].farbe, 13);
    QTest::mouseClick(farben.knopf("Command1"), Qt::LeftButton);
    EXPECT_EQ(w.f->modell().bild.zeilen[4].farbe, 12);
}

TEST(Einstellungsfenster, PasswortformOeffnetMitDemGespeichertenWort) {
    test::Umgebung u;
    u.s.Tablettseite = 70;
    u.dialoge.antworten(Knopf::ja);
    {
        gui::PasswortFenster neu(u.s);
        neu.show();
        QTest::keyClick(neu.pawo(0), Qt::Key_X, Qt::ShiftModifier);
        QTest::keyClick(neu.pawo(1), Qt::Key_Return);
        EXPECT_EQ(neu.modell().stand, Password::Stand::gespeichert);
        EXPECT_EQ(neu.result(), QDialog::Accepted);
    }
    u.s.Tablettseite = 2;
    gui::PasswortFenster pruefung(u.s);
    pruefung.show();
    QTest::keyClick(pruefung.pawo(0), Qt::Key_Shift); // no key: stays at the first box
    EXPECT_EQ(pruefung.modell().fokus, 0);
    QTest::keyClick(pruefung.pawo(0), Qt::Key_X);
    EXPECT_EQ(pruefung.pawo(0)->text().toStdString(), "*");
    QTest::keyClick(pruefung.pawo(1), Qt::Key_Return);
    EXPECT_EQ(pruefung.modell().stand, Password::Stand::richtig);
    EXPECT_EQ(pruefung.result(), QDialog::Accepted);
}

TEST(Einstellungsfenster, PasswortTastenAlsCodes) {
    QKeyEvent a(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    QKeyEvent gross(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier, QStringLiteral("A"));
    QKeyEvent block(QEvent::KeyPress, Qt::Key_1, Qt::KeypadModifier, QStringLiteral("1"));
    QKeyEvent eins(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, QStringLiteral("1"));
    EXPECT_EQ(gui::passworttastencode(&a), 65);
    EXPECT_EQ(gui::passworttastencode(&gross), 65);
    EXPECT_EQ(gui::passworttastencode(&block), 97);
    EXPECT_EQ(gui::passworttastencode(&eins), 49);
}

} // namespace lonvir
