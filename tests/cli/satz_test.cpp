// The satz command: each record type of the set decoded as JSON by the command-line program.
#include "records/satzbild.h"
#include "testhilfe.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>

namespace lonvir {

namespace {

// Lays `bild` as record `nummer` of `name` in the folder.
void ablegen(const test::Tempordner& o, const std::string& name, int nummer, int laenge,
             const test::Satzbild& bild) {
    std::fstream f(o.pfad() / name, std::ios::binary | std::ios::in | std::ios::out);
    if (!f.is_open())
        f.open(o.pfad() / name, std::ios::binary | std::ios::out);
    f.seekp(static_cast<std::streamoff>(nummer - 1) * laenge);
    f.write(reinterpret_cast<const char*>(bild.bytes().data()),
            static_cast<std::streamsize>(bild.bytes().size()));
}

// The standard output of `satz` on the folder; the program starts on it as it always does.
std::string satz(const test::Tempordner& o, const std::string& datei, int nummer) {
    const std::string befehl = std::string(LONVIR_CLI) + " satz --ordner '" + o.pfad().string() +
                               "' --datei " + datei + " --nummer " + std::to_string(nummer);
    std::string aus;
    FILE* p = ::popen(befehl.c_str(), "r");
    if (p == nullptr)
        return aus;
    std::array<char, 4096> puffer{};
    while (std::size_t n = std::fread(puffer.data(), 1, puffer.size(), p))
        aus.append(puffer.data(), n);
    ::pclose(p);
    return aus;
}

std::string nullen(int anzahl) {
    std::string s;
    for (int i = 0; i < anzahl; ++i)
        s += ",0";
    return s;
}

} // namespace

TEST(SatzBefehl, Tarifsatz) {
    test::Tempordner o;
    test::Satzbild b(108);
    b.i32(0, 243198).i32(104, -2875);
    ablegen(o, "Lonvir97.1tr", 5, 108, b);
    // Element 0, 25 zeros, element 26.
    EXPECT_EQ(
        satz(o, "Lonvir97.1tr", 5),
        "{\"datei\":\"Lonvir97.1tr\",\"nummer\":5,\"satzart\":\"Tarifsatz\",\"wert\":[243198" +
            nullen(25) + ",-2875]}\n");
}

TEST(SatzBefehl, KvSaetzeDerDimDatei) {
    test::Tempordner o;
    test::Satzbild b(232);
    b.i16(0, 1350).i16(54, 1290);
    ablegen(o, "Lonvir97.dim", 15, 232, b); // January 1998
    ablegen(o, "Lonvir97.dim", 14, 232, b); // December 1997
    EXPECT_EQ(satz(o, "Lonvir97.dim", 15),
              "{\"datei\":\"Lonvir97.dim\",\"nummer\":15,\"satzart\":\"Kvsatz\",\"jahr\":1998,"
              "\"monat\":1,\"kvsatz\":[1350" +
                  nullen(26) + ",1290]}\n");
    EXPECT_EQ(satz(o, "Lonvir97.dim", 14),
              "{\"datei\":\"Lonvir97.dim\",\"nummer\":14,\"satzart\":\"Kvsatz\",\"jahr\":1997,"
              "\"monat\":12,\"kvsatz\":[1350" +
                  nullen(26) + ",1290]}\n");
    EXPECT_EQ(satz(o, "Lonvir97.dim", 27),
              "{\"datei\":\"Lonvir97.dim\",\"nummer\":27,\"satzart\":\"unbekannt\"}\n");
}

TEST(SatzBefehl, DimsatzBleibtSatzEins) {
    test::Tempordner o;
    // The start writes the defaults of the display settings with 20 persons.
    const std::string json = satz(o, "Lonvir97.dim", 1);
    EXPECT_EQ(json.rfind("{\"datei\":\"Lonvir97.dim\",\"nummer\":1,\"satzart\":\"Dimsatz\","
                         "\"zeilenfarbe\":[14,14,14,14,12,",
                         0),
              0u);
    EXPECT_NE(json.find("\"anzahlpersonen\":20,\"reserve230\":1}"), std::string::npos);
}

TEST(SatzBefehl, Jahressatz) {
    test::Tempordner o;
    test::Satzbild b(1280, ' ');
    b.text(0, "F\xFCr M\xFCller")
        .text(1160, "Jahres\xFC"
                    "bersicht");
    // Record 21 lies behind the 20 persons the start creates, so it stays as laid.
    ablegen(o, "L1997I.13", 21, 1280, b);
    std::string erwartet =
        "{\"datei\":\"L1997I.13\",\"nummer\":21,\"satzart\":\"Jahressatz\",\"bemerkung\":[";
    erwartet += "\"Für Müller" + std::string(30, ' ') + "\"";
    for (int i = 1; i < 8; ++i)
        erwartet += ",\"" + std::string(40, ' ') + "\"";
    for (int i = 8; i < 15; ++i)
        erwartet += ",\"" + std::string(120, ' ') + "\"";
    // "Jahresübersicht" is 15 characters, so 105 blanks fill the field of 120.
    erwartet += ",\"Jahresübersicht" + std::string(105, ' ') + "\"]}\n";
    EXPECT_EQ(satz(o, "L1997I.13", 21), erwartet);
}

} // namespace lonvir
