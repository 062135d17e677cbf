// The text table: reading, writing with the cut to 35, counting names and cost centres.
#include "start/texte.h"

#include "start/dateisatz.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

namespace lonvir {

namespace {
// An open set on an empty folder; the text table starts with length 0.
struct Textordner {
    Textordner() {
        s.ordner = Arbeitsordner(ordner.pfad());
        dateienoeffnen(s);
    }
    [[nodiscard]] std::string datei() const {
        return test::dateiinhalt(ordner.pfad(), "Texte.txt");
    }
    test::Tempordner ordner;
    Sitzung s;
};
} // namespace

TEST(Textschreiben, SchreibtDenSatzAnSeineStelle) {
    Textordner o;
    textschreiben(o.s, 3, "West");
    const std::string d = o.datei();
    ASSERT_EQ(d.size(), 3 * 35u); // records 1 and 2 are a hole of zero bytes
    EXPECT_EQ(d.substr(70), "West" + std::string(31, ' '));
    EXPECT_EQ(textlesen(o.s, 3), "West" + std::string(31, ' '));
    EXPECT_EQ(textgetrimmt(o.s, 3), "West");
}

TEST(Textschreiben, NameMitSechsunddreissigZeichenWirdAufFuenfunddreissigGekuerzt) {
    Textordner o;
    const std::string name36 = "Hildegard Mustermann-Schulze-Berger"
                               "X"; // 35 + 1
    ASSERT_EQ(name36.size(), 36u);
    textschreiben(o.s, 5001, name36);
    EXPECT_EQ(textlesen(o.s, 5001), name36.substr(0, 35));
    EXPECT_EQ(o.datei().size(), 5001 * 35u);
}

TEST(Textschreiben, UmlauteZaehlenAlsEinZeichen) {
    // "Müller" is 7 bytes in UTF-8 but 6 characters in code page 1252: 29 blanks follow.
    Textordner o;
    textschreiben(o.s, 5002, "Müller");
    EXPECT_EQ(o.datei().substr(5001 * 35, 35), "M\xFCller" + std::string(29, ' '));
    EXPECT_EQ(textlesen(o.s, 5002), "Müller" + std::string(29, ' '));
    // 35 umlauts fill the record exactly; a 36th is cut.
    std::string lang;
    for (int i = 0; i < 36; ++i)
        lang += "ä";
    textschreiben(o.s, 5003, lang);
    EXPECT_EQ(o.datei().substr(5002 * 35, 35), std::string(35, '\xE4'));
}

TEST(Textlesen, HinterDemDateiendeLeerzeichen) {
    Textordner o;
    textschreiben(o.s, 2, "Ost");
    EXPECT_EQ(textlesen(o.s, 3), std::string(35, ' '));
    EXPECT_EQ(textlesen(o.s, 6000), std::string(35, ' '));
    EXPECT_EQ(textgetrimmt(o.s, 4801), "");
}

TEST(Personenzaehlen, LeereTabelleHatKeinePerson) {
    Textordner o;
    EXPECT_EQ(personenzaehlen(o.s), 0);
}

TEST(Personenzaehlen, LeererNameInDerMitteZaehltMit) {
    Textordner o;
    textschreiben(o.s, 5001, "1. Name");
    textschreiben(o.s, 5002, "2. Name");
    textschreiben(o.s, 5004, "4. Name"); // 5003 stays blank: deleted in the middle
    textschreiben(o.s, 5005, "5. Name");
    textschreiben(o.s, 5006, "   "); // blanks only: not a name
    EXPECT_EQ(personenzaehlen(o.s), 5);
}

TEST(Personenzaehlen, SaetzeUeber6000ZaehlenNicht) {
    // Scratch records behind 6000 are never read; record 6000 itself is person 1000.
    Textordner o;
    textschreiben(o.s, 5001, "1. Name");
    textschreiben(o.s, 6001, "Notiz");
    EXPECT_EQ(personenzaehlen(o.s), 1);
    textschreiben(o.s, 6000, "Letzte Person");
    EXPECT_EQ(personenzaehlen(o.s), 1000);
}

TEST(Kostenstellenzaehlen, BisZurErstenLeeren) {
    Textordner o;
    EXPECT_EQ(kostenstellenzaehlen(o.s), 0);
    textschreiben(o.s, 4801, "Kostenstelle 1");
    textschreiben(o.s, 4802, "Kostenstelle 2");
    textschreiben(o.s, 4803, "Kostenstelle 3");
    textschreiben(o.s, 4805, "Kostenstelle 5"); // behind the gap: not counted
    EXPECT_EQ(kostenstellenzaehlen(o.s), 3);
}

} // namespace lonvir
