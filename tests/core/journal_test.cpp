// The journal: a complete one is applied again at start, an incomplete one discarded, and a
// full disk before it is complete changes nothing.
#include "core/journal.h"
#include "core/laufzeitfehler.h"
#include "core/schreibstoerung.h"
#include "testhilfe.h"

#include <fstream>
#include <gtest/gtest.h>

namespace lonvir {

namespace {

namespace fs = std::filesystem;

void dateischreiben(const fs::path& pfad, const std::string& inhalt) {
    std::ofstream(pfad, std::ios::binary) << inhalt;
}

std::vector<std::uint8_t> bytes(const std::string& s) {
    return {s.begin(), s.end()};
}

Schreibvorgang zweiDateien(const fs::path& ordner) {
    Schreibvorgang v;
    v.beginnen();
    v.schreiben(ordner / "a", 2, bytes("XY"));
    v.schreiben(ordner / "b", 0, bytes("neu"));
    v.loeschen(ordner / "c");
    return v;
}

struct Stoerungsende {
    ~Stoerungsende() { schreibstoerung::einstellen(0); }
};

} // namespace

TEST(Journal, FestschreibenWendetAlleSchritteAnUndEntferntDasJournal) {
    test::Tempordner t;
    dateischreiben(t.pfad() / "a", "abcdef");
    dateischreiben(t.pfad() / "c", "weg");
    journal::festschreiben(t.pfad(), zweiDateien(t.pfad()));
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a"), "abXYef");
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "b"), "neu");
    EXPECT_FALSE(fs::exists(t.pfad() / "c"));
    EXPECT_FALSE(fs::exists(t.pfad() / journal::dateiname));
}

// Safe against a power cut: the journal and the folder's entry of it are flushed before any
// record is written, and the written records before the journal goes.
TEST(Journal, EinSpeichernFlushtJournalOrdnerUndDateienBevorDasJournalGeht) {
    test::Tempordner t;
    dateischreiben(t.pfad() / "a", "abcdef");
    dateischreiben(t.pfad() / "c", "weg");
    const journal::Flushzahl vorher = journal::flushzahl();
    journal::festschreiben(t.pfad(), zweiDateien(t.pfad()));
    const journal::Flushzahl nachher = journal::flushzahl();
    EXPECT_EQ(nachher.journal - vorher.journal, 1);
    EXPECT_EQ(nachher.ordner - vorher.ordner, 1);
    EXPECT_EQ(nachher.dateisystem - vorher.dateisystem, 1);
}

TEST(Journal, DasNachholenFlushtDieDateienBevorDasJournalGeht) {
    test::Tempordner t;
    dateischreiben(t.pfad() / "a", "abcdef");
    const auto b = journal::kodieren(zweiDateien(t.pfad()).schritte());
    dateischreiben(t.pfad() / journal::dateiname, std::string(b.begin(), b.end()));
    const long vorher = journal::flushzahl().dateisystem;
    EXPECT_EQ(journal::nachholen(t.pfad()), journal::Nachholen::angewendet);
    EXPECT_EQ(journal::flushzahl().dateisystem - vorher, 1);
}

TEST(Journal, KodierenUndDekodierenGebenDieSchritteZurueck) {
    test::Tempordner t;
    const auto schritte = zweiDateien(t.pfad()).schritte();
    const auto b = journal::kodieren(schritte);
    const auto zurueck = journal::dekodieren(b);
    ASSERT_TRUE(zurueck);
    ASSERT_EQ(zurueck->size(), 3U);
    EXPECT_EQ((*zurueck)[0].pfad, "a");
    EXPECT_EQ((*zurueck)[0].versatz, 2);
    EXPECT_EQ((*zurueck)[0].bytes, bytes("XY"));
    EXPECT_EQ((*zurueck)[2].art, Schreibvorgang::Schritt::Art::loeschen);
}

TEST(Journal, JedesAbgeschnitteneOderVeraenderteJournalIstUnvollstaendig) {
    test::Tempordner t;
    const auto b = journal::kodieren(zweiDateien(t.pfad()).schritte());
    for (std::size_t n = 0; n < b.size(); ++n)
        EXPECT_FALSE(journal::dekodieren(std::span(b).first(n))) << n;
    for (std::size_t i = 0; i < b.size(); ++i) {
        auto kaputt = b;
        kaputt[i] ^= 0x40;
        EXPECT_FALSE(journal::dekodieren(kaputt)) << i;
    }
}

TEST(Journal, EinVollstaendigesJournalWirdBeimStartAngewendet) {
    test::Tempordner t;
    dateischreiben(t.pfad() / "a", "abcdef");
    const auto b = journal::kodieren(zweiDateien(t.pfad()).schritte());
    dateischreiben(t.pfad() / journal::dateiname, std::string(b.begin(), b.end()));
    EXPECT_EQ(journal::nachholen(t.pfad()), journal::Nachholen::angewendet);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a"), "abXYef");
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "b"), "neu");
    EXPECT_FALSE(fs::exists(t.pfad() / journal::dateiname));
    // Applied twice, the same bytes.
    dateischreiben(t.pfad() / journal::dateiname, std::string(b.begin(), b.end()));
    EXPECT_EQ(journal::nachholen(t.pfad()), journal::Nachholen::angewendet);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a"), "abXYef");
}

TEST(Journal, EinUnvollstaendigesJournalWirdVerworfen) {
    test::Tempordner t;
    dateischreiben(t.pfad() / "a", "abcdef");
    const auto b = journal::kodieren(zweiDateien(t.pfad()).schritte());
    dateischreiben(t.pfad() / journal::dateiname, std::string(b.begin(), b.end() - 3));
    EXPECT_EQ(journal::nachholen(t.pfad()), journal::Nachholen::verworfen);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a"), "abcdef");
    EXPECT_FALSE(fs::exists(t.pfad() / "b"));
    EXPECT_FALSE(fs::exists(t.pfad() / journal::dateiname));
    EXPECT_EQ(journal::nachholen(t.pfad()), journal::Nachholen::keins);
}

TEST(Journal, EineVolleFestplatteVorDemVollstaendigenJournalAendertNichts) {
    test::Tempordner t;
    Stoerungsende ende;
    dateischreiben(t.pfad() / "a", "abcdef");
    dateischreiben(t.pfad() / "c", "weg");
    schreibstoerung::einstellen(1); // the journal's own write fails
    try {
        journal::festschreiben(t.pfad(), zweiDateien(t.pfad()));
        FAIL() << "kein Fehler";
    } catch (const Dateifehler& f) {
        EXPECT_NE(std::string(f.what()).find("Es wurde nichts gespeichert."), std::string::npos);
    }
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a"), "abcdef");
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "c"), "weg");
    EXPECT_FALSE(fs::exists(t.pfad() / journal::dateiname));
}

TEST(Journal, EineVolleFestplatteBeimAnwendenLaesstDasJournalFuerDenNaechstenStart) {
    test::Tempordner t;
    Stoerungsende ende;
    dateischreiben(t.pfad() / "a", "abcdef");
    schreibstoerung::einstellen(2); // the journal is written, its first write fails
    EXPECT_THROW(journal::festschreiben(t.pfad(), zweiDateien(t.pfad())), Dateifehler);
    schreibstoerung::einstellen(0);
    EXPECT_EQ(journal::nachholen(t.pfad()), journal::Nachholen::angewendet);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a"), "abXYef");
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "b"), "neu");
}

// A store that gives every record the bytes it already holds writes nothing at all: not even
// the journal (a full disk at the first write does not stop it).
TEST(Journal, EinSpeichernOhneAenderungSchreibtKeinJournal) {
    test::Tempordner t;
    dateischreiben(t.pfad() / "a", "abcdef");
    Schreibvorgang v;
    v.beginnen();
    v.schreiben(t.pfad() / "a", 2, bytes("cd"));
    Stoerungsende ende;
    schreibstoerung::einstellen(1);
    const journal::Flushzahl vorher = journal::flushzahl();
    EXPECT_NO_THROW(journal::festschreiben(t.pfad(), v));
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a"), "abcdef");
    // Nothing changed, nothing flushed.
    EXPECT_EQ(journal::flushzahl().journal, vorher.journal);
    EXPECT_EQ(journal::flushzahl().dateisystem, vorher.dateisystem);
}

// Of the writes only those that change bytes go into the journal; the others are left out.
TEST(Journal, NurGeaenderteSaetzeKommenInsJournal) {
    test::Tempordner t;
    dateischreiben(t.pfad() / "a", "abcdef");
    dateischreiben(t.pfad() / "b", "alt");
    Schreibvorgang v;
    v.beginnen();
    v.schreiben(t.pfad() / "a", 0, bytes("ab"));
    v.schreiben(t.pfad() / "b", 0, bytes("neu"));
    Stoerungsende ende;
    // The journal is the first write; applying it the second: b alone changes.
    schreibstoerung::einstellen(3);
    EXPECT_NO_THROW(journal::festschreiben(t.pfad(), v));
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "b"), "neu");
    schreibstoerung::einstellen(0);
}

// Zeros written past the end of a file lengthen it, though a read there gives zeros too.
TEST(Journal, NullenHinterDemEndeVerlaengernDieDatei) {
    test::Tempordner t;
    dateischreiben(t.pfad() / "a", "ab");
    Schreibvorgang v;
    v.beginnen();
    v.schreiben(t.pfad() / "a", 2, std::vector<std::uint8_t>(3, 0));
    journal::festschreiben(t.pfad(), v);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a"), std::string("ab\0\0\0", 5));
}

// Two writes of a file that overlap keep their order, even where one of them alone would
// change nothing: the later restores what the earlier overwrote.
TEST(Journal, UeberlappendeSchritteBleibenAlle) {
    test::Tempordner t;
    dateischreiben(t.pfad() / "a", "abcdef");
    Schreibvorgang v;
    v.beginnen();
    v.schreiben(t.pfad() / "a", 0, bytes("XXXX"));
    v.schreiben(t.pfad() / "a", 2, bytes("cd"));
    journal::festschreiben(t.pfad(), v);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a"), "XXcdef");
}

// A file deleted in the store gets every write after the deletion, unchanged or not.
TEST(Journal, NachDemLoeschenZaehltJederSchritt) {
    test::Tempordner t;
    dateischreiben(t.pfad() / "a", "abc");
    Schreibvorgang v;
    v.beginnen();
    v.loeschen(t.pfad() / "a");
    v.schreiben(t.pfad() / "a", 0, bytes("abc"));
    journal::festschreiben(t.pfad(), v);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a"), "abc");
}

} // namespace lonvir
