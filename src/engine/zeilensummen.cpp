// Row sums: a sum over Currency rows is carried in 32 bits and rounded after every addition.
#include "engine/zeilensummen.h"

#include "core/pfennig.h"

namespace lonvir {

namespace {

std::int32_t addiert(std::int32_t summe, Currency zeile) {
    return (Currency::ganz(summe) + zeile).gerundetInt32();
}

template <typename Bedingung>
std::int32_t summe(const Feld<Currency, 7, 19>& zeilen, int von, int bis, Bedingung gilt) {
    std::int32_t s = 0;
    for (int i = von; i <= bis; ++i)
        if (gilt(i))
            s = addiert(s, zeilen[i]);
    return s;
}

bool alle(int) {
    return true;
}

// Row 21 or 22: the row before it where the factor is exactly 1, nothing where it is 0 or
// less, else the sum of the factored rows.
std::int32_t gefaktort(std::int32_t vorher, float faktor, const Feld<Currency, 7, 19>& zeilen) {
    if (faktor == 1.0f)
        return vorher;
    if (faktor <= 0.0f)
        return 0;
    return summe(zeilen, 7, 19, alle);
}

} // namespace

void teilzeitsumme(Sitzung& s) {
    if (s.bruttomodus == 1) {
        // The gross was set directly: row 21 is the given amount.
        s.wert[20] = s.wert[21];
        s.wert[21] =
            pf::gerundet(static_cast<double>(s.wert[20]) * static_cast<double>(s.teilzeitfaktor));
        return;
    }
    std::int32_t voll = 0;
    for (int i = 7; i <= 19; ++i)
        voll = pf::plus(voll, s.wert[i]);
    s.wert[20] = voll;
    s.wert[21] = gefaktort(s.wert[20], s.teilzeitfaktor, s.teilwert);
}

void zahlwertebestimmen(Sitzung& s) {
    if (s.personalart() == 18)
        s.zahlwert[8] = Currency::ganz(0);
    for (int i = 7; i <= 19; ++i) {
        s.zahlwert[i] =
            s.bru[i] == 1
                ? Currency::gerundet(s.teilwert[i].alsDouble() * static_cast<double>(s.tagefaktor))
                : s.teilwert[i];
    }
    if (s.bruttomodus == 1)
        s.wert[22] =
            pf::gerundet(static_cast<double>(s.wert[21]) * static_cast<double>(s.tagefaktor));
    else
        s.wert[22] = gefaktort(s.wert[21], s.tagefaktor, s.zahlwert);
}

void viersummen(Sitzung& s) {
    if (s.bruttomodus == 1) {
        s.steuerbrutto = s.wert[22];
        s.lstwert[2] = 0;
        s.svbrutto = s.wert[22];
        s.zvkbrutto = s.wert[22];
        return;
    }
    s.steuerbrutto = summe(s.zahlwert, 7, 19, [&s](int i) { return s.lst[i] == 1; });
    s.lstwert[2] = pf::negiert(summe(s.zahlwert, 7, 19, [&s](int i) { return s.lst[i] != 1; }));
    s.svbrutto = summe(s.zahlwert, 7, 19, [&s](int i) { return s.soz[i] == 1; });
    s.zvkbrutto = summe(s.zahlwert, 7, 19, [&s](int i) { return s.zvk[i] == 1; });
}

std::int32_t steuerpflichtigesumme(const Sitzung& s, int von, int bis) {
    return summe(s.zahlwert, von, bis, [&s](int i) { return s.lst[i] == 1; });
}

} // namespace lonvir
