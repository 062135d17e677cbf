// One amount of a statement line, and the lines both statements build from amounts.
#include "reports/nachweisbetrag.h"

#include "core/druckformat.h"
#include "core/pfennig.h"

namespace lonvir {

void betraganfuegen(std::vector<Druckteil>& zeile, int endspalte, const Nachweisbetrag& b) {
    if (!b.gedruckt) {
        return;
    }
    rechtsbuendig(zeile, endspalte, formatzahl(b.dm, "##,##0.00"));
}

std::string betragzelle(const Nachweisbetrag& b) {
    return b.gedruckt ? csvbetrag(b.dm) : "";
}

void nachweiszeile(Drucker& d, std::vector<Druckteil> anfang,
                   std::span<const Nachweisbetrag> betraege, std::span<const int> endspalten) {
    for (std::size_t i = 0; i < betraege.size(); ++i) {
        betraganfuegen(anfang, endspalten[i], betraege[i]);
    }
    d.Print(anfang);
}

void summenzeile(Drucker& d, std::span<const std::int32_t> summen,
                 std::span<const int> endspalten) {
    std::vector<Druckteil> zeile{"Summe"};
    for (std::size_t i = 0; i < summen.size(); ++i) {
        betraganfuegen(zeile, endspalten[i], Nachweisbetrag::betrag(summen[i] / 100.0));
    }
    d.Print(zeile);
}

void zusammenstellungszeile(Drucker& d, const std::string& text, std::int32_t erste,
                            std::int32_t zweite) {
    std::vector<Druckteil> zeile{text};
    betraganfuegen(zeile, 45, Nachweisbetrag::betrag(erste / 100.0));
    betraganfuegen(zeile, 69, Nachweisbetrag::betrag(zweite / 100.0));
    betraganfuegen(zeile, 99, Nachweisbetrag::betrag(pf::plus(erste, zweite) / 100.0));
    d.Print(zeile);
}

Csvzeile csvzeile(Csvzeile anfang, std::span<const Nachweisbetrag> betraege) {
    for (const Nachweisbetrag& b : betraege) {
        anfang.push_back(betragzelle(b));
    }
    return anfang;
}

Csvzeile csvsummenzeile(Csvzeile anfang, std::span<const std::int32_t> summen) {
    for (std::int32_t betrag : summen) {
        anfang.push_back(csvbetrag(std::int64_t{betrag}));
    }
    return anfang;
}

} // namespace lonvir
