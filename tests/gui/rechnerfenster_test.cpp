// The clerk's tools in the window, under the offscreen platform: the calculator strip at the
// foot of Form1 carrying a result into a row, page 42 typed key by key, page 43 moved by its
// scroll bars and left by a click beside it. With LONVIR_FOTOS=DIR each test also leaves its
// picture there (rechner.png, tablett-42.png, tablett-43.png; scripts/rechnerfotos.sh).
#include "core/textdrucker.h"
#include "druck/druckfenster.h"
#include "gui/form1fenster.h"
#include "gui/hilfefenster.h"
#include "gui/rechneransicht.h"
#include "gui/tablettanbindung.h"
#include "start/satzzugriff.h"
#include "start/start.h"
#include "testhilfe.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <cstdlib>
#include <gtest/gtest.h>

namespace lonvir {

namespace {

struct Fenster {
    explicit Fenster(int person) {
        s.ordner = Arbeitsordner(ordner.pfad());
        s.dialoge = &dialoge;
        s.installation = LONVIR_INSTALLATION;
        starten(s);
        f = std::make_unique<gui::Form1Fenster>(s, dialoge, &hilfe);
        a = std::make_unique<gui::Tablettanbindung>(*f, s, &hilfe);
        f->geometrieFesthalten();
        f->laden();
        a->menueaufbauen();
        f->resize(1600, 1000);
        f->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(f.get()));
        emit f->z(0)->activated(person - 1);
        emit f->z(20)->activated(0);
        dialoge.vergessen();
    }
    ~Fenster() {
        a.reset();
        f.reset();
    }
    void menue(const char* name) {
        for (QAction* x : f->menuBar()->actions())
            if (x->objectName() == QString::fromUtf8(name))
                x->trigger();
    }
    void foto(const char* name) {
        QApplication::processEvents();
        if (const char* ordner = std::getenv("LONVIR_FOTOS"))
            f->grab().save(QString::fromUtf8(ordner) + QLatin1Char('/') + QString::fromUtf8(name));
    }
    gui::RechnerAnsicht& rechner() { return *f->rechneransicht(); }

    test::Tempordner ordner;
    SkriptDialoge dialoge;
    Sitzung s;
    gui::HilfeFenster hilfe{QString::fromStdString(ordner.pfad().string())};
    std::unique_ptr<gui::Form1Fenster> f;
    std::unique_ptr<gui::Tablettanbindung> a;
};

} // namespace

TEST(RechnerFenster, DieKnoepfeRechnenUndUebertragenInDieZeile) {
    Fenster w(2);
    gui::RechnerAnsicht& r = w.rechner();
    ASSERT_TRUE(r.isVisible());
    EXPECT_EQ(r.readout()->text().trimmed(), QStringLiteral("0."));
    // The row last clicked: row 12, a free allowance.
    QTest::mouseClick(w.f->t(12), Qt::LeftButton);
    // 1234,5 X 2 = 2469, then 1 / 3 shown with its note.
    for (QPushButton* k : {r.number(1), r.number(2), r.number(3), r.number(4)})
        QTest::mouseClick(k, Qt::LeftButton);
    QTest::mouseClick(r.findChild<QPushButton*>(QStringLiteral("decimalp")), Qt::LeftButton);
    QTest::mouseClick(r.number(5), Qt::LeftButton);
    QTest::mouseClick(r.operatorknopf(2), Qt::LeftButton);
    QTest::mouseClick(r.number(2), Qt::LeftButton);
    QTest::mouseClick(r.operatorknopf(4), Qt::LeftButton);
    EXPECT_EQ(r.readout()->text().trimmed(), QStringLiteral("2469."));
    w.foto("rechner.png");
    QTest::mouseClick(r.eintrag(), Qt::LeftButton);
    EXPECT_EQ(w.s.eingabe[12], 246900);
    EXPECT_EQ(personalsatzlesen(w.s, 1, 2).wert[12], 246900);
    EXPECT_EQ(w.f->t(12)->text().trimmed().left(8), QStringLiteral("2.469,00"));
    EXPECT_EQ(r.readout()->text().trimmed(), QStringLiteral("0."));
    EXPECT_TRUE(w.dialoge.gezeigt().empty());
}

TEST(RechnerFenster, TastenOhneZeilenfokusGehenAnDenRechner) {
    Fenster w(2);
    w.f->setFocus();
    QApplication::focusWidget()->clearFocus();
    QTest::keyClicks(w.f.get(), QStringLiteral("1/3="));
    EXPECT_EQ(w.rechner().readout()->text().trimmed(), QStringLiteral("0.33"));
    ASSERT_EQ(w.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(w.dialoge.gezeigt()[0].titel, "Rechner");
}

TEST(RechnerFenster, Seite42GetipptUndGedrucktWirdNurFuerBeamte) {
    Fenster w(1);
    w.a->seiteoeffnen(42);
    gui::TablettFenster* t = w.a->ansicht();
    ASSERT_TRUE(t->isVisible());
    QLineEdit* geburt = t->text(0);
    ASSERT_TRUE(geburt->isVisible());
    QTest::mouseClick(geburt, Qt::LeftButton);
    QTest::keyClicks(geburt, QStringLiteral("12.04.1963"));
    QTest::keyClick(geburt, Qt::Key_Return);
    EXPECT_EQ(t->kasten(1)->text().trimmed(), QStringLiteral("01.04.1984"));
    QTest::keyClicks(t->text(1), QStringLiteral("30"));
    QTest::keyClick(t->text(1), Qt::Key_Return);
    QTest::keyClicks(t->text(2), QStringLiteral("9"));
    QTest::keyClick(t->text(2), Qt::Key_Return);
    EXPECT_EQ(t->kasten(8)->text().trimmed(), QStringLiteral("01.03.1985"));
    EXPECT_EQ(t->kasten(9)->text().trimmed(), QStringLiteral("6"));
    EXPECT_EQ(t->kasten(10)->text().trimmed(), QStringLiteral("01.03.1997"));
    w.foto("tablett-42.png");
    EXPECT_TRUE(w.dialoge.gezeigt().empty());
    // "Drucken": the sheet in the preview, once the click is over.
    bool gesehen = false;
    std::vector<Druckdokument> dokumente;
    QTimer wache;
    wache.setInterval(10);
    QObject::connect(&wache, &QTimer::timeout, [&] {
        auto* v = qobject_cast<druck::Druckvorschau*>(QApplication::activeModalWidget());
        if (v == nullptr)
            return;
        wache.stop();
        gesehen = true;
        dokumente = v->dokumente();
        v->reject();
    });
    wache.start();
    QTest::mouseClick(t->knopf(2), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(gesehen, 3000);
    ASSERT_EQ(dokumente.size(), 1u);
    bool beginn = false;
    for (const Druckzeile& z : dokumente[0].zeilen)
        beginn = beginn || textzeile(z).find("Das Besoldungsdienstalter beginnt also am") !=
                               std::string::npos;
    EXPECT_TRUE(beginn);
}

TEST(RechnerFenster, Seite43FolgtDenBalkenUndSpeichertNichts) {
    Fenster w(2);
    const auto normal = test::ordnerinhalt(w.ordner.pfad());
    w.menue("MNetto");
    EXPECT_EQ(w.s.bruttomodus, 1);
    gui::TablettFenster* t = w.a->ansicht();
    ASSERT_TRUE(t->isVisible());
    auto* grob = t->findChild<QScrollBar*>(QStringLiteral("HScroll1"));
    auto* pfg = t->findChild<QScrollBar*>(QStringLiteral("HScroll3"));
    ASSERT_TRUE(grob->isVisible());
    EXPECT_EQ(grob->value(), 38);
    EXPECT_EQ(pfg->value(), 56);
    grob->setValue(45);
    // 45 hundreds of DM, 88 DM, 56 Pfennig: the gross and the main screen follow.
    EXPECT_EQ(w.s.wert[22], 458856);
    EXPECT_EQ(w.f->t(22)->text().trimmed().left(8), QStringLiteral("4.588,56"));
    pfg->setValue(57);
    EXPECT_EQ(w.s.wert[22], 458857);
    w.foto("tablett-43.png");
    EXPECT_EQ(test::ordnerinhalt(w.ordner.pfad()), normal);
    // A click beside the panel leaves the page: the month as it was stored.
    QTest::mouseClick(w.f->hinweis(), Qt::LeftButton);
    EXPECT_EQ(w.s.bruttomodus, 0);
    EXPECT_FALSE(t->isVisible());
    EXPECT_EQ(w.s.wert[22], 388856);
    EXPECT_EQ(test::ordnerinhalt(w.ordner.pfad()), normal);
}

} // namespace lonvir
