// One action reads each record of its files once: what it read stays until the action ends or
// the session writes the file.
#include "start/dateisatz.h"
#include "start/satzzugriff.h"
#include "start/texte.h"
#include "start/vorgang.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <unistd.h>

namespace lonvir {

namespace {

// Row 12 of person 2 in January written into the file behind the session's back.
void vonAussenSchreiben(Sitzung& s, std::int32_t betrag) {
    const int fd = ::open(s.datei(1).pfad().c_str(), O_RDWR);
    std::array<std::uint8_t, Personalsatz::laenge> b{};
    ASSERT_EQ(::pread(fd, b.data(), b.size(), 541), 541);
    Personalsatz p = Personalsatz::lesen(b);
    p.wert[12] = betrag;
    b = p.bytes();
    ASSERT_EQ(::pwrite(fd, b.data(), b.size(), 541), 541);
    ::close(fd);
}

} // namespace

TEST(Lesezeitraum, EinSatzWirdImSelbenVorgangNurEinmalGelesen) {
    test::Umgebung u;
    Sitzung& s = u.s;
    vonAussenSchreiben(s, 100);
    {
        Lesezeitraum zeitraum(s);
        EXPECT_EQ(personalsatzlesen(s, 1, 2).wert[12], 100);
        vonAussenSchreiben(s, 200);
        EXPECT_EQ(personalsatzlesen(s, 1, 2).wert[12], 100);
    }
    // The next action reads the file afresh.
    EXPECT_EQ(personalsatzlesen(s, 1, 2).wert[12], 200);
}

TEST(Lesezeitraum, EinSchreibenDerSitzungVergisstDasGelesene) {
    test::Umgebung u;
    Sitzung& s = u.s;
    Lesezeitraum zeitraum(s);
    Personalsatz p = personalsatzlesen(s, 1, 2);
    p.wert[12] = 4711;
    personalsatzschreiben(s, 1, 2, p);
    EXPECT_EQ(personalsatzlesen(s, 1, 2).wert[12], 4711);
}

TEST(Lesezeitraum, ImVorgangSiehtDasLesenDasGeschriebeneUndNachDemSpeichernDieDatei) {
    test::Umgebung u;
    Sitzung& s = u.s;
    Lesezeitraum zeitraum(s);
    EXPECT_EQ(personalsatzlesen(s, 1, 2).wert[12], 0);
    {
        Vorgang v(s);
        Personalsatz p = personalsatzlesen(s, 1, 2);
        p.wert[12] = 815;
        personalsatzschreiben(s, 1, 2, p);
        EXPECT_EQ(personalsatzlesen(s, 1, 2).wert[12], 815);
        v.abschliessen();
    }
    vonAussenSchreiben(s, 816);
    EXPECT_EQ(personalsatzlesen(s, 1, 2).wert[12], 816);
}

TEST(Lesezeitraum, DieTexttabelleWirdAufEinmalGelesen) {
    test::Umgebung u;
    Sitzung& s = u.s;
    Lesezeitraum zeitraum(s);
    EXPECT_EQ(textgetrimmt(s, 5001), "1. Name");
    // Renamed behind the session's back: the table read at the first text stands.
    const int fd = ::open(s.datei(datei::texte).pfad().c_str(), O_WRONLY);
    const std::string neu = "Neuer Name";
    ASSERT_EQ(::pwrite(fd, neu.data(), neu.size(), 5001 * 35), static_cast<ssize_t>(neu.size()));
    ::close(fd);
    EXPECT_EQ(textgetrimmt(s, 5002), "2. Name");
    textschreiben(s, 5003, "Dritte");
    EXPECT_EQ(textgetrimmt(s, 5002), "Neuer Name");
}

TEST(Lesezeitraum, DieTexttabelleDientDerNaechstenHandlungSolangeSieUnveraendertIst) {
    test::Umgebung u;
    Sitzung& s = u.s;
    {
        Lesezeitraum zeitraum(s);
        EXPECT_EQ(textgetrimmt(s, 5001), "1. Name");
    }
    // Kept with the file's identity: unchanged, the next action takes it as read; renamed
    // behind the session's back (the same length), it is read again.
    {
        Lesezeitraum zeitraum(s);
        EXPECT_EQ(textgetrimmt(s, 5002), "2. Name");
    }
    const int fd = ::open(s.datei(datei::texte).pfad().c_str(), O_WRONLY);
    const std::string neu = "Neuer Name";
    ASSERT_EQ(::pwrite(fd, neu.data(), neu.size(), 5001 * 35), static_cast<ssize_t>(neu.size()));
    ::close(fd);
    {
        Lesezeitraum zeitraum(s);
        EXPECT_EQ(textgetrimmt(s, 5002), "Neuer Name");
    }
    // So is the table after the session's own store and after the set is opened anew.
    alsVorgang(s, [&] { textschreiben(s, 5003, "Dritte"); });
    {
        Lesezeitraum zeitraum(s);
        EXPECT_EQ(textgetrimmt(s, 5003), "Dritte");
    }
    dateienoeffnen(s);
    {
        Lesezeitraum zeitraum(s);
        EXPECT_EQ(textgetrimmt(s, 5003), "Dritte");
        EXPECT_EQ(textgetrimmt(s, 5002), "Neuer Name");
    }
}

} // namespace lonvir
