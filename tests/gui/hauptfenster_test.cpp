// The main window as a clerk meets it, under the offscreen platform: renaming in the name list,
// F1 and the help window, the ZVK page after a help round trip, the remark card and the
// picture in the head, the focus mark, a box of eight characters, the transfer's word and a
// pay table that reads as a table.
#include "gui/form1fenster.h"
#include "gui/hilfefenster.h"
#include "gui/tablettanbindung.h"
#include "musterfenster.h"
#include "screen/hauptmenue.h"
#include "start/start.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTest>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// A folder seeded with the installation data; person 2, Schneider, Petra, BAT VKA Vc West,
// January 1997, in the window with the panel and the help window.
struct Arbeitsplatz : test::Musterfenster {
    Arbeitsplatz() { QApplication::setActiveWindow(f.get()); }
    void menue(const char* name) { a->menueklick(name); }
    QWidget* panel3d2() const {
        return f->centralWidget()->findChild<QWidget*>(QStringLiteral("Panel3D2"));
    }
    QPushButton* bemerkung() const {
        for (QPushButton* k : f->findChildren<QPushButton*>(QStringLiteral("Command1")))
            if (k->parent() == f->kopf())
                return k;
        return nullptr;
    }
};

// The texts of the rows that do not fit their boxes, as "row: text".
QStringList abgeschnitten(gui::Form1Fenster& f) {
    QStringList zuBreit;
    for (int zeile = 0; zeile <= 45; ++zeile) {
        if (QComboBox* z = f.z(zeile); z && z->isVisible()) {
            QStyleOptionComboBox o;
            o.initFrom(z);
            o.editable = z->isEditable();
            const int platz =
                z->style()
                    ->subControlRect(QStyle::CC_ComboBox, &o, QStyle::SC_ComboBoxEditField, z)
                    .width();
            if (z->fontMetrics().horizontalAdvance(z->currentText()) > platz)
                zuBreit << QStringLiteral("z%1: %2").arg(zeile).arg(z->currentText());
        }
        if (QLineEdit* t = f.t(zeile); t && t->isVisible())
            if (t->fontMetrics().horizontalAdvance(t->text()) > t->width() - 6)
                zuBreit << QStringLiteral("t%1: %2").arg(zeile).arg(t->text());
    }
    QLineEdit* bda = f.bdaBeginn();
    if (bda->isVisible() && bda->fontMetrics().horizontalAdvance(bda->text()) > bda->width() - 6)
        zuBreit << QStringLiteral("BDABeginn: %1").arg(bda->text());
    return zuBreit;
}

} // namespace

TEST(Hauptfenster, KeinTextDerMusterpersonenIstAbgeschnitten) {
    Arbeitsplatz w;
    for (const QSize groesse : {QSize(1600, 1000), QSize(1024, 768)}) {
        w.f->resize(groesse);
        QApplication::processEvents();
        QComboBox* z0 = w.f->z(0);
        for (int person = 0; person < z0->count(); ++person) {
            emit z0->activated(person);
            QApplication::processEvents();
            for (int monat : {0, 6}) {
                emit w.f->z(20)->activated(monat);
                QApplication::processEvents();
                const QStringList zuBreit = abgeschnitten(*w.f);
                EXPECT_TRUE(zuBreit.isEmpty())
                    << groesse.width() << "x" << groesse.height() << ", Person " << person + 1
                    << ", Monat " << monat + 1 << ": "
                    << zuBreit.join(QStringLiteral("; ")).toStdString();
            }
        }
    }
}

TEST(Hauptfenster, EinNameMitEnterBenenntDiePersonUmInListeUndTexte) {
    Arbeitsplatz w;
    ASSERT_EQ(w.s.aktuelleperson, 2);
    QComboBox* z0 = w.f->z(0);
    z0->setFocus();
    z0->lineEdit()->selectAll();
    QTest::keyClicks(z0, QStringLiteral("Schneider-Weiß, Petra"));
    QTest::keyClick(z0, Qt::Key_Return);
    EXPECT_EQ(z0->itemText(1), QStringLiteral("Schneider-Weiß, Petra"));
    EXPECT_EQ(z0->currentIndex(), 1);
    EXPECT_EQ(textgetrimmt(w.s, 5002), "Schneider-Weiß, Petra");
    // Record 5002 of Texte.txt, in code page 1252: "ß" is the byte 0xDF.
    const std::string texte = test::dateiinhalt(w.ordner.pfad(), "Texte.txt");
    EXPECT_NE(texte.find("Schneider-Wei\xDF, Petra"), std::string::npos);
    // The other persons keep their names.
    EXPECT_EQ(z0->itemText(0).toStdString(), textgetrimmt(w.s, 5001));
}

TEST(Hauptfenster, F1AufZeileOeffnetIhreHilfeUndEscapeSchliesstDasFenster) {
    Arbeitsplatz w;
    emit w.f->z(0)->activated(0); // Lehmann, Frank, Besoldungsordnung A: rows have topics
    ASSERT_EQ(w.s.personalart(), 0);
    const std::optional<int> kontext = zeilenhilfe(w.s.personalart(), 12);
    ASSERT_TRUE(kontext);
    QLineEdit* t12 = w.f->t(12);
    t12->setFocus();
    QTest::keyClick(t12, Qt::Key_F1);
    EXPECT_EQ(w.s.aktuellezeile, 12);
    EXPECT_EQ(w.hilfe.letzterKontext(), *kontext);
    ASSERT_TRUE(w.hilfe.isVisible());
    QTest::keyClick(w.hilfe.browser(), Qt::Key_Escape);
    EXPECT_FALSE(w.hilfe.isVisible());

    // On the list of row 8 as well; the button "Schließen" closes the window too.
    const std::optional<int> kontext8 = zeilenhilfe(w.s.personalart(), 8);
    ASSERT_TRUE(kontext8);
    QComboBox* z8 = w.f->z(8);
    z8->setFocus();
    QTest::keyClick(z8, Qt::Key_F1);
    EXPECT_EQ(w.hilfe.letzterKontext(), *kontext8);
    ASSERT_TRUE(w.hilfe.isVisible());
    QTest::mouseClick(w.hilfe.schliessenknopf(), Qt::LeftButton);
    EXPECT_FALSE(w.hilfe.isVisible());
}

TEST(Hauptfenster, EinZweiterKlickInDieOffeneListeIstDerDoppelklick) {
    Arbeitsplatz w;
    emit w.f->z(0)->activated(0);
    ASSERT_EQ(w.s.personalart(), 0);
    QComboBox* z8 = w.f->z(8);
    const int position = z8->currentIndex();
    QTest::mouseClick(z8, Qt::LeftButton);
    QWidget* liste = z8->view()->viewport();
    ASSERT_TRUE(liste->isVisible());
    QTest::mouseClick(liste, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(w.hilfe.letzterKontext(), *zeilenhilfe(w.s.personalart(), 8));
    EXPECT_FALSE(liste->isVisible());
    EXPECT_EQ(z8->currentIndex(), position); // the click chose nothing
}

TEST(Hauptfenster, DieZvkSeiteSchliesstSichAuchNachDerHilfe) {
    Arbeitsplatz w;
    w.menue("MZusatzversicherung");
    ASSERT_EQ(w.s.Tablettseite, 8);
    ASSERT_TRUE(w.a->ansicht()->isVisible());
    // "?" sets the page number back to 0 and shows the row's help, then a topic of it.
    w.menue("MHilfe");
    w.menue("MBedienanleitung");
    EXPECT_EQ(w.s.Tablettseite, 0);
    EXPECT_EQ(w.hilfe.letzterKontext(), 20000);
    ASSERT_TRUE(w.a->ansicht()->isVisible());
    QTest::mouseClick(w.a->ansicht()->kasten(4), Qt::LeftButton);
    EXPECT_FALSE(w.a->ansicht()->isVisible());
    EXPECT_TRUE(w.panel3d2()->isVisible());
    EXPECT_TRUE(w.f->t(45)->isVisible());
}

TEST(Hauptfenster, BemerkungOeffnetSeite23UndLonvir97DieHilfe) {
    Arbeitsplatz w;
    QPushButton* knopf = w.bemerkung();
    ASSERT_NE(knopf, nullptr);
    // What lies under the middle of the button in the head is the button itself.
    const QPoint mitte = knopf->geometry().center();
    QWidget* darunter = w.f->kopf()->childAt(mitte);
    ASSERT_EQ(darunter, knopf);
    QTest::mouseClick(darunter, Qt::LeftButton, {}, darunter->mapFrom(w.f->kopf(), mitte));
    EXPECT_EQ(w.s.Tablettseite, 23);
    EXPECT_TRUE(w.a->ansicht()->isVisible());

    QLabel* bild = w.f->picture1();
    ASSERT_EQ(w.f->kopf()->childAt(bild->geometry().center()), bild);
    QTest::mouseClick(bild, Qt::LeftButton);
    EXPECT_EQ(w.hilfe.letzterKontext(), 20940);
    EXPECT_TRUE(w.hilfe.isVisible());
}

TEST(Hauptfenster, TabZeigtWoDerFokusSteht) {
    Arbeitsplatz w;
    QLineEdit* t12 = w.f->t(12);
    t12->setFocus();
    ASSERT_TRUE(t12->hasFocus());
    // The next control after the box of row 12, as it looks without the focus.
    QTest::keyClick(t12, Qt::Key_Tab);
    QWidget* neu = QApplication::focusWidget();
    ASSERT_NE(neu, nullptr);
    ASSERT_NE(neu, t12);
    EXPECT_TRUE(neu->isVisible());
    const QImage mitFokus = neu->grab().toImage();
    t12->setFocus();
    ASSERT_FALSE(neu->hasFocus());
    const QImage ohneFokus = neu->grab().toImage();
    EXPECT_NE(mitFokus, ohneFokus);
    // And the box of row 12 itself.
    const QImage t12mit = t12->grab().toImage();
    neu->setFocus();
    EXPECT_NE(t12->grab().toImage(), t12mit);
}

TEST(Hauptfenster, AchtZeichenWerdenZurueckgesetztUndDieStatuszeileSagtWarum) {
    Arbeitsplatz w;
    QLineEdit* t12 = w.f->t(12);
    QTest::mouseClick(t12, Qt::LeftButton);
    t12->selectAll();
    QTest::keyClicks(t12, QStringLiteral("12345,67"));
    QTest::keyClick(t12, Qt::Key_Return);
    EXPECT_EQ(w.s.eingabe[12], 0);
    EXPECT_EQ(t12->text(), QStringLiteral("0,00±"));
    EXPECT_EQ(w.f->hinweis()->text().trimmed(),
              QStringLiteral("Höchstens sieben Zeichen: 12345,67 wurde verworfen, Zeile 12 "
                             "steht wieder auf 0,00."));
}

TEST(Hauptfenster, DieUebertragungSagtWasSieGetanHat) {
    Arbeitsplatz w;
    QPushButton* knopf = nullptr;
    for (QPushButton* k : w.f->findChildren<QPushButton*>(QStringLiteral("Command2")))
        if (k->parent() == w.f->kopf())
            knopf = k;
    ASSERT_NE(knopf, nullptr);
    QTest::mouseClick(knopf, Qt::LeftButton);
    EXPECT_EQ(w.f->hinweis()->text().trimmed(),
              QStringLiteral("Person 2 von INFO nach PLAN übertragen, 12 Monate und Bemerkungen"));
}

TEST(Hauptfenster, EinMonatOhneTarifbetragSagtEs) {
    Arbeitsplatz w;
    // Layer PLAN of the seeded folder is untouched; person 2 there made a nurse (BAT KR, staff
    // class 7), for whom no public table of 1997 is installed.
    w.f->modell().SSPanel_Click(PLAN);
    w.f->darstellen();
    emit w.f->z(4)->activated(7);
    ASSERT_EQ(w.s.personalart(), 7);
    ASSERT_EQ(w.s.wert[22], 0);
    EXPECT_TRUE(w.f->hinweis()->text().contains(
        QStringLiteral("Für diese Gruppe ist kein Tarifbetrag installiert (Lonvir97.1tr")));
}

TEST(Hauptfenster, EineTarifTabelleLiestSichAlsTabelle) {
    Arbeitsplatz w;
    w.menue("MBeamteWest1_97");
    ASSERT_EQ(w.hilfe.letzterKontext(), 33010);
    ASSERT_TRUE(w.hilfe.isVisible());
    QTextBrowser* b = w.hilfe.browser();
    // The window takes the table's width as far as the screen allows ...
    EXPECT_GT(w.hilfe.width(), 640);
    // ... and a narrower window scrolls sideways instead of wrapping the amounts.
    w.hilfe.resize(640, 560);
    QApplication::processEvents();
    EXPECT_GT(b->horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(b->document()->idealWidth(), b->viewport()->width());
}

} // namespace lonvir
