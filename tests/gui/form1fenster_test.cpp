// The window Form1 without a display: keys and clicks on its widgets reach the model, the
// store and the rows on the screen.
#include "core/betragstext.h"
#include "gui/form1fenster.h"
#include "start/satzzugriff.h"
#include "start/start.h"
#include "testhilfe.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace lonvir {

namespace {

// Keys with the text they type, also beyond ASCII.
void zeichen(QWidget* w, const QString& text) {
    for (const QChar c : text) {
        QKeyEvent druck(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
        QApplication::sendEvent(w, &druck);
        QKeyEvent los(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, QString(c));
        QApplication::sendEvent(w, &los);
    }
}

struct Fenster {
    Fenster() : f(u.s, u.dialoge, nullptr) {
        f.geometrieFesthalten();
        f.laden();
        f.resize(1280, 800);
        f.show();
        QApplication::setActiveWindow(&f);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&f));
    }
    // Clicks into a row box, selects what stands there and types `text`, then `schluss`.
    void tippen(int zeile, const char* text, Qt::Key schluss = Qt::Key_Return) {
        QLineEdit* t = f.t(zeile);
        QTest::mouseClick(t, Qt::LeftButton);
        t->selectAll();
        QTest::keyClicks(t, QString::fromUtf8(text));
        QTest::keyClick(t, schluss);
    }
    test::Umgebung u;
    gui::Form1Fenster f;
};

} // namespace

TEST(Form1Fenster, ListeUndBetragUeberDieWidgetsGebenDieNeueAuszahlungInZeile45) {
    Fenster w;
    Sitzung& s = w.u.s;
    const std::int32_t vorher = s.wert[45];
    EXPECT_EQ(w.f.t(45)->text().toStdString(), zeilentext(45, vorher));

    // The deduction type of row 41, three entries further down, picked with the keyboard.
    QComboBox* z41 = w.f.z(41);
    const int position = z41->currentIndex();
    ASSERT_EQ(position, s.merkmal[41]);
    z41->setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(z41, Qt::Key_Down);
    EXPECT_EQ(s.merkmal[41], position + 3);
    EXPECT_EQ(personalsatzlesen(s, 1, 1).merkmal[41], position + 3);

    // 75.50 DM deducted in row 41: typed and confirmed with "-".
    w.tippen(41, "75,50", Qt::Key_Minus);
    EXPECT_EQ(s.wert[41], -7550);
    EXPECT_EQ(w.f.t(41)->text(), QStringLiteral("75,50-"));
    // The payment is row 22 plus rows 33 to 44: 75.50 DM less than before.
    EXPECT_EQ(s.wert[45], vorher - 7550);
    EXPECT_EQ(w.f.t(45)->text().toStdString(), zeilentext(45, vorher - 7550));
    EXPECT_EQ(personalsatzlesen(s, 1, 1).wert[45], vorher - 7550);
    EXPECT_TRUE(w.u.dialoge.gezeigt().empty());
}

// The working folder as the program's first start leaves it: seeded with the installation
// data, the sample staff in layer INFO of 1997.
struct Musterbestand {
    Musterbestand() {
        s.ordner = Arbeitsordner(t.pfad());
        s.dialoge = &dialoge;
        s.installation = LONVIR_INSTALLATION;
        starten(s);
    }
    test::Tempordner t;
    SkriptDialoge dialoge;
    Sitzung s;
};

TEST(Form1Fenster, MusterpersonalListeUndBetragGebenDieNeueAuszahlung) {
    Musterbestand m;
    gui::Form1Fenster f(m.s, m.dialoge, nullptr);
    f.geometrieFesthalten();
    f.laden();
    f.resize(1280, 800);
    f.show();
    QApplication::setActiveWindow(&f);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
    // Person 2, "Schneider, Petra", picked in the name list with the keyboard.
    QComboBox* z0 = f.z(0);
    ASSERT_GE(z0->count(), 6);
    EXPECT_EQ(z0->itemText(1), QStringLiteral("Schneider, Petra"));
    z0->setFocus();
    while (z0->currentIndex() > 1)
        QTest::keyClick(z0, Qt::Key_Up);
    while (z0->currentIndex() < 1)
        QTest::keyClick(z0, Qt::Key_Down);
    ASSERT_EQ(m.s.aktuelleperson, 2);
    const std::int32_t vorher = m.s.wert[45];
    EXPECT_GT(vorher, 0); // a paid employee
    EXPECT_EQ(f.t(45)->text().toStdString(), zeilentext(45, vorher));

    // Another deduction type in row 41, then 75.50 DM deducted there.
    QComboBox* z41 = f.z(41);
    const int position = z41->currentIndex();
    z41->setFocus();
    QTest::keyClick(z41, Qt::Key_Down);
    EXPECT_EQ(m.s.merkmal[41], position + 1);
    QLineEdit* t41 = f.t(41);
    QTest::mouseClick(t41, Qt::LeftButton);
    t41->selectAll();
    QTest::keyClicks(t41, QStringLiteral("75,50"));
    QTest::keyClick(t41, Qt::Key_Minus);
    // Row 45 is row 22 plus rows 33 to 44: the deduction comes off the payment.
    EXPECT_EQ(m.s.wert[45], vorher - 7550);
    EXPECT_EQ(f.t(45)->text().toStdString(), zeilentext(45, vorher - 7550));
    const Personalsatz gespeichert = personalsatzlesen(m.s, m.s.merkmal[20] + 1, 2);
    EXPECT_EQ(gespeichert.wert[45], vorher - 7550);
    EXPECT_EQ(gespeichert.merkmal[41], position + 1);
}

TEST(Form1Fenster, GrenzeDerStundenMitMeldungImFenster) {
    Fenster w;
    w.tippen(0, "80,01");
    EXPECT_EQ(w.f.t(0)->text(), QStringLiteral("80"));
    ASSERT_EQ(w.u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(w.u.dialoge.gezeigt()[0].titel, "Korrektur");
    // Letters are dropped by the box.
    QTest::keyClicks(w.f.t(12), QStringLiteral("a1b"));
    EXPECT_EQ(w.f.t(12)->text().right(1), QStringLiteral("1"));
}

TEST(Form1Fenster, KlickZeigtDenHinweisUndDieSchalterRechnen) {
    Fenster w;
    QTest::mouseClick(w.f.t(2), Qt::LeftButton);
    EXPECT_EQ(w.f.hinweis()->text().trimmed(), QStringLiteral("Arbeitstage normal"));
    // An employee: the switch block appears, a switch is stored at once.
    QComboBox* z4 = w.f.z(4);
    z4->setFocus();
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(z4, Qt::Key_Down);
    ASSERT_EQ(w.u.s.merkmal[4], 5);
    QCheckBox* lst12 = w.f.schalter(L, 12);
    ASSERT_TRUE(lst12->isVisible());
    ASSERT_TRUE(lst12->isChecked());
    QTest::mouseClick(lst12, Qt::LeftButton);
    EXPECT_EQ(w.u.s.lst[12], 0);
    EXPECT_EQ(personalsatzlesen(w.u.s, 1, 1).lst[12], 0);
    EXPECT_FALSE(lst12->isChecked());
}

TEST(Form1Fenster, EnterImNamenBenenntDiePersonUm) {
    Fenster w;
    QComboBox* z0 = w.f.z(0);
    z0->lineEdit()->selectAll();
    zeichen(z0->lineEdit(), QStringLiteral("Müller, Jörg"));
    QTest::keyClick(z0->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(z0->itemText(0), QStringLiteral("Müller, Jörg"));
    EXPECT_EQ(w.f.modell().bild.zeilen[0].liste[0], "Müller, Jörg");
}

TEST(Form1Fenster, SchriftenFolgenDerFenstergroesse) {
    Fenster w;
    w.f.resize(1600, 1000);
    w.f.bildausrechnen(true);
    const int gross = w.f.t(45)->font().pixelSize();
    w.f.resize(1600, 500);
    w.f.bildausrechnen(true);
    const int klein = w.f.t(45)->font().pixelSize();
    EXPECT_LT(klein, gross);
    // Every row stays inside the window.
    EXPECT_LE(w.f.t(45)->mapTo(&w.f, QPoint(0, w.f.t(45)->height())).y(), w.f.height());
    EXPECT_LE(w.f.t(22)->mapTo(&w.f, QPoint(0, w.f.t(22)->height())).y(), w.f.height());
}

} // namespace lonvir

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
