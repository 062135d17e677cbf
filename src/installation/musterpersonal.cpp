// Compiling and placing the sample staff.
#include "installation/musterpersonal.h"

#include "core/cp1252.h"
#include "engine/monatladen.h"
#include "installation/quelltext.h"
#include "records/bytes.h"
#include "start/einstellungen.h"

namespace lonvir::installation {

namespace {

struct Ziel {
    int element = 0;
    int monat = -1; // -1: all months
};

Ziel zielaus(const Quellzeile& z, const std::filesystem::path& quelle, int unten, int oben) {
    const std::string& text = z.felder[2];
    Ziel ziel;
    const auto at = text.find('@');
    ziel.element = ganzzahl(text.substr(0, at), quelle, z.zeile);
    if (at != std::string::npos) {
        ziel.monat = ganzzahl(text.substr(at + 1), quelle, z.zeile);
        if (ziel.monat < 0 || ziel.monat > 11)
            quellfehler(quelle, z.zeile, "Der Monat hinter @ muss 0 bis 11 sein.");
    }
    if (ziel.element < unten || ziel.element > oben)
        quellfehler(quelle, z.zeile,
                    "Element " + std::to_string(ziel.element) + " liegt nicht zwischen " +
                        std::to_string(unten) + " und " + std::to_string(oben) + ".");
    return ziel;
}

Schalter* schalterfeld(Personalsatz& p, const std::string& feld) {
    if (feld == "lst")
        return &p.lst;
    if (feld == "soz")
        return &p.soz;
    if (feld == "zvk")
        return &p.zvk;
    if (feld == "wei")
        return &p.wei;
    if (feld == "tei")
        return &p.tei;
    if (feld == "bru")
        return &p.bru;
    return nullptr;
}

// Sets one field of one month's record from a source line.
void setzen(Personalsatz& p, const Quellzeile& z, const std::filesystem::path& quelle) {
    const std::string& feld = z.felder[1];
    const std::string& wert = z.felder[3];
    if (feld == "bdabeginn")
        p.bdabeginn = bytes::fest(utf8NachCp1252(wert), 7);
    else if (feld == "merkmal")
        p.merkmal[zielaus(z, quelle, 1, 45).element] =
            static_cast<std::int16_t>(ganzzahl(wert, quelle, z.zeile));
    else if (feld == "wert")
        p.wert[zielaus(z, quelle, 0, 45).element] = pfennig(wert, quelle, z.zeile);
    else if (feld == "nebenwert")
        p.nebenwert[zielaus(z, quelle, 0, 25).element] = pfennig(wert, quelle, z.zeile);
    else if (Schalter* sch = schalterfeld(p, feld))
        (*sch)[zielaus(z, quelle, 7, 19).element] =
            static_cast<std::int16_t>(ganzzahl(wert, quelle, z.zeile));
    else
        quellfehler(quelle, z.zeile, "Unbekanntes Feld \"" + feld + "\".");
}

Musterperson neueperson() {
    Musterperson p;
    for (std::int16_t m = 0; m <= 11; ++m)
        p.monat.emplace(m, Personalsatz::neu(m));
    return p;
}

} // namespace

std::map<int, Musterperson> musterpersonallesen(const std::filesystem::path& quelle) {
    std::map<int, Musterperson> personal;
    for (const Quellzeile& z : tsvlesen(quelle)) {
        if (z.felder.size() < 4)
            quellfehler(quelle, z.zeile, "Person, Feld, Element und Wert werden gebraucht.");
        const std::int32_t nummer = ganzzahl(z.felder[0], quelle, z.zeile);
        if (nummer < 1 || nummer > 20)
            quellfehler(quelle, z.zeile, "Die Person muss 1 bis 20 sein.");
        auto [it, neu] = personal.try_emplace(nummer);
        if (neu)
            it->second = neueperson();
        Musterperson& person = it->second;
        if (z.felder[1] == "name") {
            person.name = z.felder[3];
            continue;
        }
        const bool einmonat = z.felder[2].find('@') != std::string::npos;
        for (auto& [m, satz] : person.monat)
            if (!einmonat || zielaus(z, quelle, 0, 45).monat == m)
                setzen(satz, z, quelle);
    }
    for (const auto& [nummer, person] : personal)
        if (person.name.empty())
            throw Dateifehler(quelle.string(),
                              "Person " + std::to_string(nummer) + " hat keinen Namen.");
    return personal;
}

void musterpersonaleinsetzen(Sitzung& s, const std::map<int, Musterperson>& personal) {
    for (const auto& [nummer, person] : personal)
        for (const auto& [m, satz] : person.monat)
            s.datei(m + 1).schreiben(nummer, satz.bytes());
    // Twice through the year: the Zuwendung of November counts the months whose stored record
    // has pay, November's own included, and December's equalisation sums the stored months, so
    // the first pass stores the pay and the second computes the year from complete months. After
    // it a refresh of any month changes nothing.
    for (int durchgang = 1; durchgang <= 2; ++durchgang)
        for (const auto& [nummer, person] : personal)
            for (std::int16_t m = 0; m <= 11; ++m)
                monatladen(s, static_cast<std::int16_t>(nummer), m);
    // The place of the user: the first person in January of layer INFO.
    monatladen(s, 1, 0);
}

} // namespace lonvir::installation
