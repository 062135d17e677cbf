// The main window on a folder seeded with the installation data and its sample staff: person 2,
// Schneider, Petra, BAT VKA Vc West, January of the year asked for, shown at 1280 by 800 with
// the panel beside it and the help window. The window tests build on it.
#pragma once

#include "core/dialoge.h"
#include "gui/form1fenster.h"
#include "gui/hilfefenster.h"
#include "gui/tablettanbindung.h"
#include "start/start.h"
#include "testhilfe.h"

#include <QAction>
#include <QComboBox>
#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

namespace lonvir::test {

struct Musterfenster {
    explicit Musterfenster(std::int16_t jahr = 1997) {
        s.jahr = jahr;
        s.ordner = Arbeitsordner(ordner.pfad());
        s.dialoge = &dialoge;
        s.installation = LONVIR_INSTALLATION;
        starten(s);
        f = std::make_unique<gui::Form1Fenster>(s, dialoge, &hilfe);
        a = std::make_unique<gui::Tablettanbindung>(*f, s, &hilfe);
        f->geometrieFesthalten();
        f->laden();
        a->menueaufbauen();
        f->setWindowState(Qt::WindowNoState);
        f->resize(1280, 800);
        f->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(f.get()));
        emit f->z(0)->activated(1);
        emit f->z(20)->activated(0);
    }
    virtual ~Musterfenster() {
        a.reset();
        f.reset();
    }
    Musterfenster(const Musterfenster&) = delete;
    Musterfenster& operator=(const Musterfenster&) = delete;

    // Triggers the menu entry of that name, in a menu or on the bar itself.
    void menue(const char* name) {
        QAction* aktion = f->menuBar()->findChild<QAction*>(QString::fromUtf8(name));
        if (aktion == nullptr)
            for (QAction* x : f->menuBar()->actions())
                if (x->objectName() == QString::fromUtf8(name))
                    aktion = x;
        ASSERT_NE(aktion, nullptr) << name;
        aktion->trigger();
    }

    Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
    gui::HilfeFenster hilfe{QString::fromStdString(ordner.pfad().string())};
    std::unique_ptr<gui::Form1Fenster> f;
    std::unique_ptr<gui::Tablettanbindung> a;
};

} // namespace lonvir::test
