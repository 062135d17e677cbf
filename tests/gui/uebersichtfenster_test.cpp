// The annual overview and the totals under the offscreen platform: Form3 from the menu entry
// Jahr and the word JAHR, its views, chart, scroll bar, export and the jump to a month of the
// main screen; Form2 from page 66 and a person's row leading to Form3.
#include "gui/form1fenster.h"
#include "gui/tablettanbindung.h"
#include "gui/tablettfenster.h"
#include "gui/uebersichtanbindung.h"
#include "start/start.h"
#include "testhilfe.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <fstream>
#include <gtest/gtest.h>

namespace lonvir {

namespace {

struct Uebersichten {
    Uebersichten() {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.dialoge = &dialoge;
        s.installation = LONVIR_INSTALLATION;
        starten(s);
        f = std::make_unique<gui::Form1Fenster>(s, dialoge, nullptr);
        a = std::make_unique<gui::Tablettanbindung>(*f, s, nullptr);
        u = std::make_unique<gui::Uebersichtanbindung>(*f, *a, s, gui::Druckauftrag{});
        f->geometrieFesthalten();
        f->laden();
        a->menueaufbauen();
        f->resize(1280, 800);
        f->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(f.get()));
        emit f->z(0)->activated(1); // Schneider, Petra
        emit f->z(20)->activated(0);
    }
    ~Uebersichten() {
        u.reset();
        a.reset();
        f.reset();
    }
    void menue(const char* name) {
        for (QAction* x : f->menuBar()->actions())
            if (x->objectName() == QString::fromUtf8(name)) {
                x->trigger();
                return;
            }
        FAIL() << name;
    }

    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
    std::unique_ptr<gui::Form1Fenster> f;
    std::unique_ptr<gui::Tablettanbindung> a;
    std::unique_ptr<gui::Uebersichtanbindung> u;
};

TEST(Uebersichtfenster, TheMenuEntryJahrOpensTheYearOfTheCurrentPersonInTheEmployerView) {
    Uebersichten w;
    w.menue("MJahr");
    gui::Form3Fenster* f3 = w.u->form3();
    ASSERT_NE(f3, nullptr);
    EXPECT_TRUE(f3->isVisible());
    EXPECT_EQ(w.s.Tablettseite, 39);
    EXPECT_EQ(f3->modell().jahresperson, 2);
    EXPECT_EQ(f3->windowTitle().toStdString(),
              "Schneider, Petra    - Monatsgehälter 1997 und Arbeitgeberaufwand");
    EXPECT_EQ(f3->gitter(1)->item(4, 4)->text().toStdString(), "3.888,56");
    EXPECT_EQ(f3->diagramm()->diagramm().reihen[2].name, "Gesamtaufwand");
    f3->knopf(2)->click();
    EXPECT_EQ(f3->modell().ansichtabzuege, 1);
    EXPECT_EQ(f3->gitter(3)->item(1, 4)->text().toStdString(), "2.285,41");
    EXPECT_EQ(f3->diagramm()->diagramm().reihen[2].name, "Netto");
    EXPECT_EQ(f3->diagramm()->diagramm().reihen[2].pfennig[0], 228541);
}

TEST(Uebersichtfenster, TheWordJahrOpensItToo) {
    Uebersichten w;
    auto* jahr = w.f->findChild<QLabel*>(QStringLiteral("Jahrwort"));
    ASSERT_NE(jahr, nullptr);
    EXPECT_EQ(jahr->text().toStdString(), "JAHR");
    QTest::mouseClick(jahr, Qt::LeftButton);
    ASSERT_NE(w.u->form3(), nullptr);
    EXPECT_TRUE(w.u->form3()->isVisible());
}

TEST(Uebersichtfenster, AClickOnMarchShowsMarchOfThatPersonOnTheMainScreen) {
    Uebersichten w;
    w.menue("MJahr");
    gui::Form3Fenster* f3 = w.u->form3();
    f3->rollbalken()->setValue(1); // Lehmann, Frank
    EXPECT_EQ(f3->modell().jahresperson, 1);
    emit f3->gitter(1)->cellClicked(2, 6);
    EXPECT_FALSE(f3->isVisible());
    EXPECT_EQ(w.s.aktuelleperson, 1);
    EXPECT_EQ(w.s.merkmal[20], 2);
    EXPECT_EQ(w.f->z(20)->currentIndex(), 2);
    EXPECT_EQ(w.f->z(0)->currentIndex(), 0);
}

TEST(Uebersichtfenster, TheExportWritesTheCsvOfTheViewShown) {
    Uebersichten w;
    w.menue("MJahr");
    const auto datei = w.ordner.pfad() / "jahr.csv";
    ASSERT_TRUE(w.u->form3()->exportieren(QString::fromStdString(datei.string())));
    std::ifstream ein(datei, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(ein), {}};
    EXPECT_EQ(text.rfind("\xEF\xBB\xBFPosition;Jan;Feb;", 0), 0u);
    EXPECT_NE(text.find("\r\nBRUTTO- GEHALT;3888,56;"), std::string::npos);
}

TEST(Uebersichtfenster, PageVkeLeadsToTheTotalsAndAPersonsRowToTheYear) {
    Uebersichten w;
    w.menue("MVKE");
    EXPECT_TRUE(w.a->modell().sichtbar);
    w.a->ansicht()->knopf(4)->click();
    QApplication::processEvents();
    gui::Form2Fenster* f2 = w.u->form2();
    ASSERT_NE(f2, nullptr);
    EXPECT_TRUE(f2->isVisible());
    EXPECT_EQ(f2->gitter()->item(0, 10)->text().toStdString(), "Gesamtaufwand");
    EXPECT_EQ(f2->gitter()->item(2, 1)->text().toStdString(), "Schneider, Petra");
    emit f2->gitter()->cellClicked(2, 3);
    ASSERT_NE(w.u->form3(), nullptr);
    EXPECT_EQ(w.u->form3()->modell().jahresperson, 2);
    EXPECT_TRUE(w.u->form3()->isVisible());
}

} // namespace

} // namespace lonvir
