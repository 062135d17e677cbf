// The journal decoder under arbitrary bytes: whatever it accepts, encoded again, decodes to the
// same changes.
#include "core/journal.h"
#include "fuzzziel.h"

LONVIR_FUZZZIEL(journal) {
    using namespace lonvir;
    const auto schritte = journal::dekodieren(daten);
    if (!schritte)
        return;
    const auto wieder = journal::dekodieren(journal::kodieren(*schritte));
    if (!wieder || wieder->size() != schritte->size())
        lonvir::fuzz::befund("ein angenommenes Journal kodiert sich nicht wieder");
    for (std::size_t i = 0; i < wieder->size(); ++i) {
        const auto& a = (*schritte)[i];
        const auto& b = (*wieder)[i];
        if (a.art != b.art || a.pfad != b.pfad || a.versatz != b.versatz || a.bytes != b.bytes)
            lonvir::fuzz::befund("ein angenommenes Journal kodiert sich anders");
    }
}
