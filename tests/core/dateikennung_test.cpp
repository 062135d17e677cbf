// File identities: a write changes them, reading does not, and a fresh change is recognised as
// one that a coarse clock could still hide.
#include "core/dateikennung.h"
#include "testhilfe.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace lonvir {

TEST(Dateikennung, EinSchreibenAendertDieKennungEinLesenNicht) {
    test::Tempordner t;
    test::dateisetzen(t.pfad(), "a", std::string(541, 'x'));
    const auto vorher = dateikennung(t.pfad() / "a");
    ASSERT_TRUE(vorher);
    EXPECT_EQ(vorher->laenge, 541);
    EXPECT_EQ(test::dateiinhalt(t.pfad(), "a").size(), 541U);
    EXPECT_EQ(dateikennung(t.pfad() / "a"), vorher);

    // The same length, one byte different: the entry's change time moves on.
    const int fd = ::open((t.pfad() / "a").c_str(), O_RDWR);
    ASSERT_GE(fd, 0);
    EXPECT_EQ(dateikennung(fd), vorher);
    ASSERT_EQ(::pwrite(fd, "y", 1, 17), 1);
    const auto nachher = dateikennung(fd);
    ::close(fd);
    ASSERT_TRUE(nachher);
    EXPECT_NE(nachher, vorher);
    EXPECT_EQ(nachher->laenge, 541);
}

TEST(Dateikennung, KeineKennungOhneDateiOderFuerEinenOrdner) {
    test::Tempordner t;
    EXPECT_FALSE(dateikennung(t.pfad() / "fehlt"));
    EXPECT_FALSE(dateikennung(t.pfad()));
    EXPECT_FALSE(dateikennung(-1));
}

TEST(Dateikennung, EineGeradeGeaenderteDateiGiltAlsJuengstGeaendert) {
    test::Tempordner t;
    test::dateisetzen(t.pfad(), "a", "x");
    Dateikennung k = *dateikennung(t.pfad() / "a");
    EXPECT_TRUE(juengstGeaendert(k, 0.1));
    k.eintragSekunden -= 2;
    EXPECT_FALSE(juengstGeaendert(k, 0.1));
    EXPECT_TRUE(juengstGeaendert(k, 3.0));
    // A change time ahead of the clock is as good as fresh.
    k.eintragSekunden += 3600;
    EXPECT_TRUE(juengstGeaendert(k, 0.1));
}

} // namespace lonvir
