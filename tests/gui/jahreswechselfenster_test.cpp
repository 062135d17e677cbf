// The year change in the window, under the offscreen platform: asked through the menu, the
// copy runs while the window serves its events, page 47 shows what was copied and the 1998
// entries of the menu are enabled.
#include "gui/form1fenster.h"
#include "gui/hilfefenster.h"
#include "gui/tablettanbindung.h"
#include "start/start.h"
#include "testhilfe.h"

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace lonvir {

namespace {

QAction* eintrag(gui::Form1Fenster& f, const char* name) {
    return f.menuBar()->findChild<QAction*>(QString::fromUtf8(name));
}

} // namespace

TEST(JahreswechselFenster, DieKopieLaeuftOhneDasFensterAnzuhalten) {
    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
    s.ordner = Arbeitsordner(ordner.pfad());
    s.dialoge = &dialoge;
    s.installation = LONVIR_INSTALLATION;
    starten(s);
    gui::HilfeFenster hilfe{QString::fromStdString(ordner.pfad().string())};
    auto f = std::make_unique<gui::Form1Fenster>(s, dialoge, &hilfe);
    auto a = std::make_unique<gui::Tablettanbindung>(*f, s, &hilfe);
    f->geometrieFesthalten();
    f->laden();
    a->menueaufbauen();
    f->resize(1280, 800);
    f->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(f.get()));
    ASSERT_NE(eintrag(*f, "M1998"), nullptr);
    EXPECT_FALSE(eintrag(*f, "M1998")->isEnabled());

    // A timer due at once fires only if the event loop is served while the copy runs.
    bool bedient = false;
    QTimer::singleShot(0, [&] { bedient = true; });
    dialoge.antworten(Knopf::ja);
    QAction* wechsel = eintrag(*f, "MJahreswechsel");
    ASSERT_NE(wechsel, nullptr);
    EXPECT_EQ(wechsel->text().toStdString(), "Dez 97  >  Jan 98...");
    wechsel->trigger();
    EXPECT_TRUE(bedient);
    EXPECT_TRUE(a->ansicht()->isVisible());
    EXPECT_EQ(a->ansicht()->zeile(13)->text().toStdString(), "Es wurden übertragen:");
    EXPECT_EQ(a->ansicht()->zeile(19)->text().toStdString(), "Unter dem Menüpunkt 98 stehen jetzt");
    // The bar is built again after the click; the old entries go.
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_NE(eintrag(*f, "M1998"), nullptr);
    EXPECT_TRUE(eintrag(*f, "M1998")->isEnabled());
    a.reset();
    f.reset();
}

} // namespace lonvir
