// The annual overview, the salary list and the monthly overview of the sample staff as text,
// byte for byte against the files under tests/reports/golden. LONVIR_GOLDEN_NEU=1 writes them
// anew (look at the difference before committing it).
#include "reports/form2.h"
#include "reports/form3.h"

#include "core/textdrucker.h"
#include "jahreshilfe.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace lonvir {
namespace {

namespace fs = std::filesystem;

const fs::path golden = fs::path(LONVIR_QUELLEN) / "tests" / "reports" / "golden";

void vergleichen(const std::string& name, const std::string& text) {
    const fs::path datei = golden / name;
    if (std::getenv("LONVIR_GOLDEN_NEU") != nullptr)
        std::ofstream(datei, std::ios::binary) << text;
    std::ifstream ein(datei, std::ios::binary);
    ASSERT_TRUE(ein) << datei;
    const std::string erwartet{std::istreambuf_iterator<char>(ein), {}};
    EXPECT_EQ(text, erwartet) << name << ": LONVIR_GOLDEN_NEU=1 writes it anew";
}

std::string jahresuebersicht(Sitzung& s, std::int16_t person, bool abzuege) {
    Form3 f(s);
    f.jahresperson = person;
    f.Form_Load();
    f.Form_Activate();
    if (abzuege)
        f.Command2_Click();
    Textdrucker d;
    f.Command3_Click(d);
    return d.inhalt;
}

TEST(Uebersichtgolden, AnnualOverviewOfAnEmployeeWithDeductionsAndNet) {
    test::Musterbestand m;
    vergleichen("jahresuebersicht-2.txt", jahresuebersicht(m.s, 2, true));
}

TEST(Uebersichtgolden, AnnualOverviewOfACivilServantWithTheEmployersCost) {
    test::Musterbestand m;
    vergleichen("jahresuebersicht-1.txt", jahresuebersicht(m.s, 1, false));
}

TEST(Uebersichtgolden, SalaryListAndMonthlyOverviewOfTheWholeStaff) {
    test::Musterbestand m;
    Form2 f(m.s, {0, ""});
    f.Form_Load();
    Textdrucker liste;
    f.Command1_Click(liste);
    vergleichen("gehaelterliste.txt", liste.inhalt);
    Textdrucker monate;
    f.Command2_Click(monate);
    vergleichen("monatsuebersicht.txt", monate.inhalt);
}

} // namespace
} // namespace lonvir
