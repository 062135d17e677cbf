// The registry of printed reports and their output as text, PDF or CSV.
#include "cli/druckberichte.h"

#include "cli/pdfausgabe.h"
#include "core/ausgabedatei.h"
#include "core/druckseiten.h"
#include "core/textdrucker.h"

#include <cstdlib>
#include <iostream>
#include <map>
#include <ostream>

namespace lonvir::cli {

namespace {

std::map<std::string, Druckbericht>& verzeichnis() {
    static std::map<std::string, Druckbericht> berichte;
    return berichte;
}

enum class Format { text, pdf, csv };

Format formatAus(const Optionen& o) {
    const std::string w = o.wert("format").value_or("text");
    if (w == "text")
        return Format::text;
    if (w == "pdf")
        return Format::pdf;
    if (w == "csv")
        return Format::csv;
    throw Aufruffehler("--format muss text, pdf oder csv sein, nicht \"" + w + "\".");
}

const char* formatname(Format f) {
    switch (f) {
    case Format::text:
        return "text";
    case Format::pdf:
        return "pdf";
    case Format::csv:
        return "csv";
    }
    return "";
}

std::string textinhalt(const std::vector<Druckdokument>& dokumente) {
    std::string inhalt;
    for (const Druckdokument& d : dokumente)
        inhalt += textdokument(d);
    return inhalt;
}

} // namespace

Druckberichtanmeldung::Druckberichtanmeldung(Druckbericht bericht) {
    const std::string name = bericht.name;
    if (!verzeichnis().emplace(name, std::move(bericht)).second) {
        std::cerr << "Der Bericht " << name << " ist zweimal angemeldet.\n";
        std::abort();
    }
}

const Druckbericht* druckbericht(const std::string& name) {
    const auto it = verzeichnis().find(name);
    return it == verzeichnis().end() ? nullptr : &it->second;
}

std::vector<std::string> druckberichtnamen() {
    std::vector<std::string> namen;
    for (const auto& [name, bericht] : verzeichnis())
        namen.push_back(name);
    return namen;
}

int druckausgabe(Kontext& k, const Druckauftrag& auftrag, std::ostream& aus) {
    const Format format = formatAus(k.optionen);
    if (format == Format::csv && !auftrag.csv)
        throw Aufruffehler("Den Bericht " + auftrag.bericht +
                           " gibt es nicht als CSV; --format text oder pdf.");
    const std::optional<std::string> datei = k.optionen.wert("aus");
    if (datei && datei->empty())
        throw Aufruffehler("--aus braucht einen Dateinamen.");

    // The whole report is made before anything is written.
    Merkdrucker drucker;
    std::string inhalt;
    int seiten = 0;
    if (format == Format::csv) {
        inhalt = auftrag.csv().text();
    } else {
        auftrag.drucken(drucker);
        if (format == Format::text) {
            inhalt = textinhalt(drucker.dokumente);
        } else {
            inhalt = pdfausgabe(drucker.dokumente, auftrag.titel);
        }
    }
    if (format == Format::pdf)
        seiten = static_cast<int>(seitenumbruch(drucker.dokumente, a4bereich(hochformat).hoehe,
                                                a4bereich(querformat).hoehe)
                                      .size());

    if (datei)
        dateiersetzen(*datei, inhalt);
    else if (!k.json)
        aus << inhalt << std::flush;

    if (k.json) {
        Json j;
        j.objektAnfang()
            .text("bericht", auftrag.bericht)
            .text("format", formatname(format))
            .text("datei", datei.value_or(""))
            .zahl("dokumente", static_cast<long>(drucker.dokumente.size()));
        if (format == Format::pdf)
            j.zahl("seiten", seiten);
        k.meldungenAnhaengen(j);
        aus << j.objektEnde().ergebnis() << "\n";
    }
    return 0;
}

} // namespace lonvir::cli
