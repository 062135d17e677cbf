// The text editor: the range, the caption of the block, Enter with its cut, the red warning,
// the search and its end at record 6000.
#include "panels/textedit.h"
#include "panels/textgruppen.h"
#include "screen/listenbereiche.h"
#include "start/texte.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <set>

namespace lonvir {

TEST(Textedit, ZeigtDenErstenSatzDesBereichsMitSeinerGruppe) {
    test::Umgebung u;
    textschreiben(u.s, 3001, "A 1");
    textschreiben(u.s, 5, "Amtsgehilfe");
    Textedit t(u.s, 1, 530, {});
    EXPECT_EQ(t.HScroll1.minimum, 1);
    EXPECT_EQ(t.HScroll1.maximum, 530);
    t.hscroll1_change(5);
    EXPECT_EQ(t.Text1, "Amtsgehilfe");
    EXPECT_EQ(t.Label3, "A 1");
    EXPECT_EQ(t.kopf, "A 1  (Satz 5)");
    t.hscroll1_change(531); // past the range: the scroll bar does not go there
    EXPECT_EQ(t.HScroll1.wert, 5);
}

TEST(Textedit, GruppenkettederTexttabelle) {
    EXPECT_EQ(textgruppe(1), 3001);
    EXPECT_EQ(textgruppe(10), 3001);
    EXPECT_EQ(textgruppe(11), 3002);
    EXPECT_EQ(textgruppe(191), 3010);
    EXPECT_EQ(textgruppe(220), 3010);
    EXPECT_EQ(textgruppe(3623), 4754);
    EXPECT_EQ(textgruppe(3628), 4755);
    EXPECT_EQ(textgruppe(3742), 4759);
    EXPECT_EQ(textgruppe(3963), 4797);
    EXPECT_EQ(textgruppe(4800), 4800);
    EXPECT_EQ(textgruppe(4801), 4798);
    EXPECT_EQ(textgruppe(5001), 4799);
    EXPECT_EQ(textgruppe(6000), 4799);
    EXPECT_EQ(textgruppe(6001), 0);
    // Ascending and without overlap.
    int bis = 0;
    for (const Textgruppe* g = textgruppenanfang(); g != textgruppenende(); ++g) {
        EXPECT_GT(g->von, bis) << g->von;
        EXPECT_GE(g->bis, g->von);
        bis = g->bis;
    }
    // The titles of every pay group carry that group's name, as the list of row 6 shows them;
    // classes that share a table of titles (BAT VKA, the drivers) leave the naming to the first.
    std::set<int> gesehen;
    for (int art = 0; art <= 17; ++art) {
        const std::vector<Textbereich> bloecke = amtsbloecke(art);
        for (std::size_t g = 0; g < bloecke.size(); ++g) {
            if (bloecke[g].eintraege() == 0 || !gesehen.insert(bloecke[g].anfang).second)
                continue;
            if (art == 3 && bloecke[g].anfang == 1081)
                continue; // the last block of R lies over the Anwärter's titles
            EXPECT_EQ(textgruppe(bloecke[g].ende),
                      gruppenbereich(art, 1997).anfang + static_cast<int>(g))
                << art << " " << g;
        }
    }
}

TEST(Textedit, ErklaerungNachBereich) {
    test::Umgebung u;
    textschreiben(u.s, 3861, "alle");
    textschreiben(u.s, 3870, "namen");
    textschreiben(u.s, 3886, "andere");
    EXPECT_EQ(Textedit(u.s, 1, 6000, {}).Label1.front(), "alle");
    EXPECT_EQ(Textedit(u.s, 5001, 6000, {}).Label1.front(), "namen");
    EXPECT_EQ(Textedit(u.s, 3390, 3449, {}).Label1.front(), "andere");
}

TEST(Textedit, EnterSpeichertUndGehtZumNaechstenSatzNichtUeberMax) {
    test::Umgebung u;
    int auffrischungen = 0;
    Textedit t(u.s, 3390, 3449, {{}, [&] { ++auffrischungen; }, {}});
    t.hscroll1_change(3448);
    t.Text1 = "  Erschwerniszulage  ";
    t.text1_KeyDown(13);
    EXPECT_EQ(textlesen(u.s, 3448), "Erschwerniszulage" + std::string(18, ' '));
    EXPECT_EQ(t.HScroll1.wert, 3449);
    EXPECT_EQ(auffrischungen, 1);
    t.Text1 = "Zulage X";
    t.text1_KeyDown(13);
    EXPECT_EQ(t.HScroll1.wert, 3449);
    EXPECT_EQ(textgetrimmt(u.s, 3449), "Zulage X");
}

TEST(Textedit, FuenfunddreissigZeichenBleibenSchwarzLaengereWerdenRotUndVonRechtsGekuerzt) {
    test::Umgebung u;
    Textedit t(u.s, 3390, 3449, {});
    t.Text1 = std::string(34, 'a') + "ü";
    t.text1_KeyUp();
    EXPECT_EQ(t.Text1farbe, 0);
    t.Text1 += "Z";
    t.text1_KeyUp();
    EXPECT_EQ(t.Text1farbe, 12);
    t.text1_KeyDown(13);
    EXPECT_EQ(textlesen(u.s, 3390), std::string(33, 'a') + "üZ");
}

TEST(Textedit, ZeichenAusserhalbDerCodeseiteWirdAbgewiesen) {
    test::Umgebung u;
    textschreiben(u.s, 3390, "keine Zulage");
    Textedit t(u.s, 3390, 3449, {});
    t.Text1 = "Zulage ≥ 5";
    t.text1_KeyDown(13);
    EXPECT_FALSE(t.gespeichert);
    EXPECT_EQ(t.HScroll1.wert, 3390);
    EXPECT_EQ(textgetrimmt(u.s, 3390), "keine Zulage");
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_NE(u.dialoge.gezeigt()[0].text.find("≥"), std::string::npos);
    t.Text1 = "Zulage € 5";
    t.text1_KeyDown(13);
    EXPECT_TRUE(t.gespeichert);
    EXPECT_EQ(textgetrimmt(u.s, 3390), "Zulage € 5");
}

TEST(Textedit, SucheOhneGrossKleinUndWeiter) {
    test::Umgebung u;
    textschreiben(u.s, 3400, "Polizeizulage");
    textschreiben(u.s, 3420, "Zulage für POLIZEI im Ausland");
    Textedit t(u.s, 3390, 3449, {});
    t.Text2 = " polizei ";
    t.Text2_KeyPress(13);
    EXPECT_EQ(t.HScroll1.wert, 3400);
    t.Command1_Click();
    EXPECT_EQ(t.HScroll1.wert, 3420);
    t.Command1_Click();
    EXPECT_EQ(t.HScroll1.wert, 3420);
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
    EXPECT_EQ(u.dialoge.gezeigt()[0].text, "Leider nicht gefunden");
    EXPECT_TRUE(textenthaelt("Müller", "MÜLL"));
}

TEST(Textedit, SucheEndetSpaetestensBeiSatz6000) {
    test::Umgebung u;
    textschreiben(u.s, 6000, "Zacharias, Zoe");
    textschreiben(u.s, 6001, "Zacharias, Zeno"); // scratch of a delete, never searched
    Textedit t(u.s, 1, 6000, {});
    t.hscroll1_change(5990);
    t.Text2 = "zachar";
    t.Command1_Click();
    EXPECT_EQ(t.HScroll1.wert, 6000);
    EXPECT_EQ(t.suchposition, 6000);
    t.Command1_Click(); // past 5999 "Weiter" does nothing
    EXPECT_TRUE(u.dialoge.gezeigt().empty());
    t.hscroll1_change(5999);
    t.Text2 = "Zeno";
    t.Command1_Click();
    EXPECT_EQ(t.suchposition, 6000);
    EXPECT_EQ(t.HScroll1.wert, 5999);
    ASSERT_EQ(u.dialoge.gezeigt().size(), 1u);
}

TEST(Textedit, EinNeuerNameLegtDiePersonAn) {
    test::Umgebung u;
    ASSERT_EQ(u.s.anzahlnamen, 20);
    Textedit t(u.s, 5001, 6000, {});
    t.hscroll1_change(5023);
    t.Text1 = "Neumann, Erika";
    t.text1_KeyDown(13);
    EXPECT_EQ(u.s.anzahlnamen, 23);
    EXPECT_EQ(textgetrimmt(u.s, 5021), "21. Name");
    EXPECT_EQ(textgetrimmt(u.s, 5022), "22. Name");
    // Twelve months of 541 bytes for each of the 23 persons, in every layer.
    EXPECT_EQ(u.s.datei(12).laenge(), 23 * 541);
    EXPECT_EQ(test::dateiinhalt(u.ordner.pfad(), "L1997R.5").size(), 23u * 541u);
}

TEST(Textedit, MenueeintraegeMitIhrenBereichen) {
    const std::vector<Textmenue>& m = textmenues();
    ASSERT_EQ(m.size(), 21u);
    EXPECT_EQ(std::string(m.front().text), "Namen eingeben");
    EXPECT_EQ(m.front().textvon, 5001);
    EXPECT_EQ(std::string(m[6].name), "MTAnwärter");
    EXPECT_EQ(m[6].textvon, 1091);
    EXPECT_EQ(std::string(m.back().text), "Alles");
    EXPECT_EQ(m.back().textbis, 6000);
}

} // namespace lonvir
