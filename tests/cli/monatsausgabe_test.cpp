// The month as JSON: the working steps of insurance and supplementary pension are printed in
// full and agree with the rows they lead to.
#include "testhilfe.h"

#include "cli/clilauf.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

namespace lonvir {

namespace {

std::string cli(const std::string& argumente) {
    return test::clilauf(argumente).aus;
}

// The numbers of the array "name":[...] of a flat JSON object.
std::vector<long> zahlen(const std::string& json, const std::string& name) {
    const std::string kopf = "\"" + name + "\":[";
    const std::size_t ab = json.find(kopf);
    if (ab == std::string::npos)
        return {};
    const std::size_t von = ab + kopf.size();
    std::stringstream inhalt(json.substr(von, json.find(']', von) - von));
    std::vector<long> werte;
    std::string teil;
    while (std::getline(inhalt, teil, ','))
        werte.push_back(std::stol(teil));
    return werte;
}

} // namespace

TEST(Monatsausgabe, JsonZeigtSvwertUndZvkwertPassendZuDenZeilen) {
    test::Tempordner t;
    const std::string ordner = "--ordner " + t.pfad().string();
    cli("anlegen " + ordner);
    // Person 2 becomes an employee (staff class 5) with 4000.00 DM in row 12 in May.
    cli("setzen " + ordner + " --person 2 --monat 5 --zeile 4 --auswahl 5");
    const std::string aus =
        cli("setzen " + ordner + " --person 2 --monat 5 --zeile 12 --betrag 400000 --json");
    const std::vector<long> wert = zahlen(aus, "wert");
    const std::vector<long> svwert = zahlen(aus, "svwert");
    const std::vector<long> zvkwert = zahlen(aus, "zvkwert");
    ASSERT_EQ(wert.size(), 46u) << aus;
    ASSERT_EQ(svwert.size(), 28u) << aus;
    ASSERT_EQ(zvkwert.size(), 28u) << aus;
    EXPECT_GE(wert[12], 400000);
    // Both start from Bruttogehalt; the wage subject to insurance is the sum of 1 to 5.
    EXPECT_EQ(svwert[1], wert[22]);
    EXPECT_EQ(zvkwert[1], wert[22]);
    EXPECT_EQ(svwert[6], svwert[1] + svwert[2] + svwert[3] + svwert[4] + svwert[5]);
    EXPECT_EQ(svwert[4], zvkwert[18]);
    // Row 29 is the health base, row 28 the pension base, row 31 the fund's contribution.
    EXPECT_GT(svwert[14], 0);
    EXPECT_EQ(wert[29], svwert[14]);
    EXPECT_EQ(wert[28], svwert[17]);
    EXPECT_EQ(wert[31], zvkwert[12]);
    // The employee's pension insurance is taken from the pension base.
    EXPECT_LT(wert[39], 0);
}

} // namespace lonvir
