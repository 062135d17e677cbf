// The print entries of the window under the offscreen platform: the statement of the sample
// BAT employee opens in the preview with one page bearing her name, the annex in landscape,
// the picture of the window with its advice afterwards; Qt's own dialogs speak German.
#include "core/textdrucker.h"
#include "druck/druckfenster.h"
#include "gui/form1fenster.h"
#include "gui/hilfefenster.h"
#include "gui/tablettanbindung.h"
#include "musterfenster.h"
#include "reports/abzuegedrucken.h"
#include "start/start.h"
#include "testhilfe.h"

#include <QApplication>
#include <QComboBox>
#include <QMenuBar>
#include <QMessageBox>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Person 2 of the sample staff, Schneider, Petra, January 1997, in the window.
struct Druckfenster : test::Musterfenster {
    // What the preview showed when the entry opened it; the preview is closed again.
    struct Gesehen {
        bool vorschau = false;
        int seiten = 0;
        std::vector<Druckdokument> dokumente;
        QPageLayout::Orientation ausrichtung = QPageLayout::Portrait;
    };
    Gesehen drucken(const char* name) {
        Gesehen g;
        QTimer::singleShot(0, [&g] {
            auto* v = qobject_cast<druck::Druckvorschau*>(QApplication::activeModalWidget());
            if (v == nullptr)
                return;
            g.vorschau = true;
            auto* bild = v->findChild<QPrintPreviewWidget*>();
            bild->updatePreview();
            g.seiten = bild->pageCount();
            g.dokumente = v->dokumente();
            g.ausrichtung = v->printer()->pageLayout().orientation();
            v->reject();
        });
        QAction* aktion = f->menuBar()->findChild<QAction*>(QString::fromUtf8(name));
        EXPECT_NE(aktion, nullptr) << name;
        if (aktion)
            aktion->trigger();
        return g;
    }
};

bool enthaelt(const std::vector<Druckdokument>& dokumente, const std::string& text) {
    for (const Druckdokument& d : dokumente)
        for (const Druckzeile& z : d.zeilen)
            if (textzeile(z).find(text) != std::string::npos)
                return true;
    return false;
}

} // namespace

TEST(Druckvorschau, DasStatementEineSeiteMitDemNamen) {
    Druckfenster w;
    const auto g = w.drucken("Mlinksnetto");
    ASSERT_TRUE(g.vorschau);
    EXPECT_EQ(g.seiten, 1);
    EXPECT_TRUE(enthaelt(g.dokumente, "JANUAR 1997 für Schneider, Petra"));
    EXPECT_TRUE(enthaelt(g.dokumente, "A U S Z A H L U N G  "));
    EXPECT_EQ(g.ausrichtung, QPageLayout::Portrait);
    EXPECT_TRUE(w.dialoge.gezeigt().empty());
}

TEST(Druckvorschau, DieAnlageImQuerformat) {
    Druckfenster w;
    const auto g = w.drucken("MLst");
    ASSERT_TRUE(g.vorschau);
    // 56 lines at 8.25 points below the title are more than A4 landscape holds: the last
    // rows go to a second page.
    EXPECT_EQ(g.seiten, 2);
    EXPECT_TRUE(enthaelt(g.dokumente, "A N L A G E  zu :  JANUAR 1997 für Schneider, Petra"));
    EXPECT_EQ(g.ausrichtung, QPageLayout::Landscape);
    EXPECT_EQ(druckmodus(), 0);
}

TEST(Druckvorschau, DieNachweiseDesMonatsImQuerformat) {
    Druckfenster w;
    const auto b = w.drucken("MBeitrag");
    ASSERT_TRUE(b.vorschau);
    EXPECT_TRUE(
        enthaelt(b.dokumente, "B E I T R A G S N A C H W E I S  für den Monat   J A N U A R"));
    EXPECT_TRUE(enthaelt(b.dokumente, "Schneider, Petr"));
    EXPECT_EQ(b.ausrichtung, QPageLayout::Landscape);
    const auto l = w.drucken("MLstNachweis");
    ASSERT_TRUE(l.vorschau);
    EXPECT_TRUE(enthaelt(l.dokumente, "L O H N S T E U E R   -   N A C H W E I S"));
}

TEST(Druckvorschau, DasBildDesFenstersUndDanachDerHinweis) {
    Druckfenster w;
    const auto g = w.drucken("MGraphik");
    ASSERT_TRUE(g.vorschau);
    EXPECT_EQ(g.seiten, 1);
    ASSERT_EQ(g.dokumente.size(), 1u);
    EXPECT_TRUE(g.dokumente[0].formbild);
    ASSERT_EQ(w.dialoge.gezeigt().size(), 1u);
    EXPECT_TRUE(w.dialoge.gezeigt()[0].text.starts_with("Nicht alle Druckertreiber"));
}

TEST(Druckvorschau, QtsEigeneDialogeSprechenDeutsch) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("Frage"), QStringLiteral("Weiter?"),
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(box.button(QMessageBox::Yes)->text().remove(QLatin1Char('&')), QStringLiteral("Ja"));
    EXPECT_EQ(box.button(QMessageBox::No)->text().remove(QLatin1Char('&')), QStringLiteral("Nein"));
    EXPECT_EQ(box.button(QMessageBox::Cancel)->text().remove(QLatin1Char('&')),
              QStringLiteral("Abbrechen"));
}

} // namespace lonvir
