// The wage-tax table viewer without a display: the lists and the scroll bar drive the model,
// the grid shows its cells, a double click shows the allowances of the class.
#include "gui/lstrtabfenster.h"

#include "core/dialoge.h"
#include "start/start.h"
#include "testhilfe.h"

#include <QComboBox>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>

#include <cstdlib>
#include <gtest/gtest.h>

namespace lonvir {

namespace {
// With LONVIR_BILDER set to a folder the window is saved there as a picture, for the eye.
void bild(QWidget& w, const char* name) {
    if (const char* ordner = std::getenv("LONVIR_BILDER"))
        w.grab().save(QString::fromUtf8(ordner) + "/" + name);
}
} // namespace

TEST(LStrTabFenster, MonatstabelleZeigtBandUndKlassen) {
    gui::LStrTabFenster f;
    f.show();
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Lohnsteuer-Tabelle 1997"));
    EXPECT_EQ(f.combo(2)->count(), 15);
    f.combo(1)->setCurrentIndex(1);
    f.hscroll1()->setValue(888);
    EXPECT_EQ(f.label1()->text(), QStringLiteral("3.996,16"));
    EXPECT_EQ(f.label2()->text(), QStringLiteral("4.000,65"));
    EXPECT_EQ(f.grid1()->item(0, 0)->text(), QStringLiteral("710,25"));
    EXPECT_EQ(f.grid1()->item(0, 1)->text(), QStringLiteral("53,26"));
    EXPECT_EQ(f.grid1()->item(0, 2)->text(), QStringLiteral("56,82"));
    EXPECT_EQ(f.grid1()->item(2, 0)->text(), QStringLiteral("266,33"));
    bild(f, "lstrtab.png");
}

TEST(LStrTabFenster, EinSchrittAufDerMonatstabelleSindVierMarkFuenfzig) {
    gui::LStrTabFenster f;
    f.combo(1)->setCurrentIndex(1);
    f.hscroll1()->setValue(888);
    f.hscroll1()->setValue(889);
    EXPECT_EQ(f.label1()->text(), QStringLiteral("4.000,66"));
    EXPECT_EQ(f.label2()->text(), QStringLiteral("4.005,15"));
}

TEST(LStrTabFenster, SiebenKinderfreibetraegeGehenAlsSiebenWeiter) {
    gui::LStrTabFenster f;
    f.combo(2)->setCurrentIndex(14);
    EXPECT_EQ(f.combo(2)->currentText(), QStringLiteral("7,0 Kinderfreibeträge"));
    EXPECT_EQ(f.modell().auswahl.kinderfreibetraege, Currency::ganz(7));
}

TEST(LStrTabFenster, DoppelklickZeigtDieFreibetraegeDerKlasse) {
    gui::LStrTabFenster f;
    f.hscroll1()->setValue(1000);
    f.grid1_DblClick(2);
    ASSERT_NE(f.freibetr(), nullptr);
    EXPECT_EQ(f.freibetr()->grid1()->item(4, 0)->text(), QStringLiteral("- Haushaltsfreibetrag"));
    EXPECT_EQ(f.freibetr()->grid1()->item(4, 1)->text(), QStringLiteral("5.616,00"));
    EXPECT_EQ(f.freibetr()->grid1()->item(0, 1)->text(), QStringLiteral("54.000,00"));
    bild(*f.freibetr(), "freibetr.png");
}

// The viewer opens where the display settings place it and, hidden, leaves its place there:
// 15 twips a pixel at 96 dpi.
TEST(LStrTabFenster, StehtWoEsGeschlossenWurde) {
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
    s.ordner = Arbeitsordner(ordner.pfad());
    s.dialoge = &dialoge;
    s.installation = LONVIR_INSTALLATION;
    starten(s);
    s.dim.lstrtabtop = Currency::ganz(1500);
    s.dim.lstrtableft = Currency::ganz(3000);
    gui::LStrTabFenster f;
    f.ortbinden(s);
    const double tpp = 1440.0 / f.logicalDpiX();
    EXPECT_EQ(f.pos(), QPoint(static_cast<int>(3000 / tpp), static_cast<int>(1500 / tpp)));
    f.show();
    f.move(40, 60);
    f.close();
    EXPECT_EQ(s.dim.lstrtabtop, Currency::ganz(static_cast<int>(60 * tpp)));
    EXPECT_EQ(s.dim.lstrtableft, Currency::ganz(static_cast<int>(40 * tpp)));
    Sitzung neu;
    neu.ordner = s.ordner;
    neu.dialoge = &dialoge;
    starten(neu);
    EXPECT_EQ(neu.dim.lstrtabtop, s.dim.lstrtabtop);
}

// In 1998 with the law of 1998 switched on, the caption and every cell follow that law.
TEST(LStrTabFenster, DasSteuerrecht1998StehtImTitelUndInDenZellen) {
    gui::LStrTabFenster f;
    f.combo(1)->setCurrentIndex(1);
    f.hscroll1()->setValue(888);
    const QString lohnsteuer1997 = f.grid1()->item(0, 0)->text();
    f.rechtsetzen(Steuerrecht::recht1998);
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Lohnsteuer-Tabelle 1998"));
    EXPECT_EQ(f.modell().auswahl.recht, Steuerrecht::recht1998);
    EXPECT_NE(f.grid1()->item(0, 0)->text(), lohnsteuer1997);
    f.rechtsetzen(Steuerrecht::recht1997);
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Lohnsteuer-Tabelle 1997"));
    EXPECT_EQ(f.grid1()->item(0, 0)->text(), lohnsteuer1997);
}

} // namespace lonvir
