// The forms that keep the tables, under the offscreen platform: a name renamed in Textedit
// stands in the main screen's list at once, a rate keyed in KV reaches the month on the
// screen, a tariff cell keyed in Tarife changes the person's basic pay, the name search finds
// its person, and the name list jumps to the first name that begins with the typed letters.
#include "engine/tarifdatei.h"
#include "gui/form1fenster.h"
#include "gui/hilfefenster.h"
#include "gui/kvfenster.h"
#include "gui/lstrtabfenster.h"
#include "gui/tablettanbindung.h"
#include "gui/tablettfenster.h"
#include "gui/tarifefenster.h"
#include "gui/texteditfenster.h"
#include "musterfenster.h"
#include "start/satzzugriff.h"
#include "start/start.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <cstdlib>
#include <gtest/gtest.h>

namespace lonvir {

namespace {

// The sample staff; person 2, Schneider, Petra, BAT VKA Vc West, January 1997.
struct Pflegefenster : test::Musterfenster {
    Pflegefenster() {
        QObject::connect(a.get(), &gui::Tablettanbindung::formGezeigt,
                         [this](QDialog* d) { form = d; });
    }
    ~Pflegefenster() override { delete form; }
    static void enter(QWidget* w) { QTest::keyClick(w, Qt::Key_Return); }
    QPointer<QDialog> form;
};

} // namespace

TEST(TabellenFenster, EinUmbenannterNameStehtSofortInDerNamensliste) {
    Pflegefenster w;
    ASSERT_EQ(w.f->z(0)->itemText(1), QStringLiteral("Schneider, Petra"));
    w.menue("MNamen");
    auto* t = qobject_cast<gui::TexteditFenster*>(w.form.data());
    ASSERT_NE(t, nullptr);
    EXPECT_EQ(t->windowTitle(), QStringLiteral("Texte editieren"));
    EXPECT_EQ(t->hscroll1()->minimum(), 5001);
    t->hscroll1()->setValue(5002);
    EXPECT_EQ(t->text1()->text(), QStringLiteral("Schneider, Petra"));
    t->text1()->selectAll();
    QTest::keyClicks(t->text1(), QStringLiteral("Schneider-Roth, Petra"));
    Pflegefenster::enter(t->text1());
    EXPECT_EQ(textgetrimmt(w.s, 5002), "Schneider-Roth, Petra");
    EXPECT_EQ(t->hscroll1()->value(), 5003);
    EXPECT_EQ(w.f->z(0)->itemText(1), QStringLiteral("Schneider-Roth, Petra"));
    EXPECT_EQ(w.f->z(0)->currentText(), QStringLiteral("Schneider-Roth, Petra"));
    t->close();
    EXPECT_EQ(w.f->z(0)->count(), 20);
}

// A double click on class I of the table viewer runs that class alone and shows its steps in
// the tax panel; the person's stored month stays as it was.
TEST(TabellenFenster, DoppelklickAufEineKlasseZeigtIhreSchritteImSteuerblatt) {
    Pflegefenster w;
    const Personalsatz vorher = personalsatzlesen(w.s, 1, 2);
    w.menue("MLstrTab");
    auto* t = dynamic_cast<gui::LStrTabFenster*>(w.form.data());
    ASSERT_NE(t, nullptr);
    t->combo(1)->setCurrentIndex(1);
    t->hscroll1()->setValue(888);
    t->grid1_DblClick(1);
    ASSERT_TRUE(w.a->ansicht()->isVisible());
    EXPECT_EQ(w.s.Tablettseite, 6);
    EXPECT_EQ(w.a->ansicht()->kasten(1)->text().trimmed(), QStringLiteral("3.996,16+"));
    EXPECT_EQ(w.a->ansicht()->kasten(8)->text().trimmed(), QStringLiteral("3.996,16+"));
    EXPECT_EQ(w.a->ansicht()->kasten(10)->text().trimmed(), QStringLiteral("710,25+"));
    EXPECT_EQ(w.a->ansicht()->kasten(11)->text().trimmed(), QStringLiteral("53,26+"));
    EXPECT_EQ(personalsatzlesen(w.s, 1, 2).wert, vorher.wert);
    if (const char* ordner = std::getenv("LONVIR_BILDER"))
        w.f->grab().save(QString::fromUtf8(ordner) + "/lstrtab-klasse1-seite6.png");
    t->close();
}

TEST(TabellenFenster, EinKvSatzErreichtDenMonatAufDemSchirm) {
    Pflegefenster w;
    const int kasse = w.s.merkmal[37];
    ASSERT_LT(kasse, 28);
    const std::int32_t vorher = w.s.wert[37];
    w.menue("M_KV");
    auto* k = qobject_cast<gui::KvFenster*>(w.form.data());
    ASSERT_NE(k, nullptr);
    emit k->combo1()->activated(kasse);
    k->kvzahl(0)->setFocus();
    QApplication::processEvents();
    QTest::keyClicks(k->kvzahl(0), QStringLiteral("15,0"));
    Pflegefenster::enter(k->kvzahl(0));
    EXPECT_EQ(k->kvzahl(11)->text(), QStringLiteral("15.0"));
    // 7.5 % of the contribution base instead of the sample fund's rate.
    EXPECT_NE(w.s.wert[37], vorher);
    EXPECT_EQ(w.s.wert[37],
              -static_cast<std::int32_t>(std::lround(w.s.svwert[14] * 1500 / 20000.0)));
    EXPECT_EQ(w.f->t(37)->text().toStdString().find('-') != std::string::npos, true);
}

TEST(TabellenFenster, EineTarifzelleAendertDasGrundgehaltDerPerson) {
    Pflegefenster w;
    const int nummer = tarifsatznummer(w.s);
    const int tabelle = tarifdatei(w.s) - datei::tarif1 + 1;
    const int stufe = w.s.merkmal[7];
    w.menue(("MTarife7" + std::to_string(tabelle)).c_str());
    auto* t = qobject_cast<gui::TarifeFenster*>(w.form.data());
    ASSERT_NE(t, nullptr);
    t->schalter(6)->click();
    t->modell().hscroll1_change(nummer);
    t->darstellen();
    QLineEdit* feld = t->feld(stufe);
    feld->setFocus();
    feld->selectAll();
    QTest::keyClicks(feld, QStringLiteral("300000"));
    Pflegefenster::enter(feld);
    EXPECT_EQ(w.s.wert[7], 300000);
    EXPECT_EQ(w.f->t(7)->text(), QStringLiteral("3.000,00+"));
    EXPECT_EQ(tarifsatz(w.s, nummer, datei::tarif1 + tabelle - 1).wert[stufe], 300000);
}

TEST(TabellenFenster, DieNamenssucheMachtDenEinzigenTrefferAktuell) {
    Pflegefenster w;
    w.f->findChild<QPushButton*>(QStringLiteral("Command6"))->click();
    EXPECT_EQ(w.s.Tablettseite, 22);
    QLineEdit* suche = w.a->ansicht()->text(1);
    ASSERT_TRUE(suche->isVisible());
    suche->setFocus();
    QTest::keyClicks(suche, QStringLiteral("hoff"));
    Pflegefenster::enter(suche);
    EXPECT_EQ(w.s.aktuelleperson, 6);
    EXPECT_EQ(w.f->z(0)->currentText(), QStringLiteral("Hoffmann, Claudia"));
}

TEST(TabellenFenster, GetippteBuchstabenSpringenZumErstenPassendenNamen) {
    Pflegefenster w;
    QComboBox* namen = w.f->z(0);
    namen->lineEdit()->setFocus();
    namen->lineEdit()->selectAll();
    QTest::keyClicks(namen->lineEdit(), QStringLiteral("kr"));
    QApplication::processEvents();
    QAbstractItemView* auswahl = namen->completer()->popup();
    ASSERT_TRUE(auswahl->isVisible());
    QTest::keyClick(auswahl, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(w.s.aktuelleperson, 3);
    EXPECT_EQ(namen->currentText(), QStringLiteral("Krause, Uwe"));
    EXPECT_EQ(textgetrimmt(w.s, 5002), "Schneider, Petra");
}

TEST(TabellenFenster, ReformknopfBleibtVorJuli1997FuerBeamteZu) {
    Pflegefenster w;
    emit w.f->z(0)->activated(0); // Lehmann, Frank, Besoldungsordnung A, January
    QPushButton* knopf = w.f->findChild<QPushButton*>(QStringLiteral("Command7"));
    knopf->click();
    EXPECT_EQ(knopf->text(), QStringLiteral("Reformgesetz ab 1.7.1997"));
    EXPECT_NE(w.s.Tablettseite, 68);
    emit w.f->z(20)->activated(7);
    knopf->click();
    EXPECT_EQ(w.s.Tablettseite, 68);
    EXPECT_EQ(w.a->ansicht()->zeile(0)->text(), QStringLiteral("Reformgesetz ab 1.7.1997"));
}

} // namespace lonvir
