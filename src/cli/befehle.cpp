// Dispatch of the commands, the common options and the exit status.
#include "cli/befehle.h"

#include "core/laufzeitfehler.h"
#include "start/start.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace lonvir::cli {

namespace {

const char* const aufruf =
    "Aufruf: lonvir97-cli BEFEHL [--ordner DIR] [--jahr 1997|1998] [--schicht INFO|PLAN|REAL]\n"
    "                    [--json] [--ja|--nein] ...\n"
    "Befehle: anlegen, zeigen, setzen, satz, lohnsteuer, tabelle, uebertragen, einstellungen,\n"
    "         drucken, tarif, text, suchen, installieren\n";

std::filesystem::path standardordner() {
    if (const char* x = std::getenv("XDG_DATA_HOME"); x && *x)
        return std::filesystem::path(x) / "lonvir97";
    if (const char* h = std::getenv("HOME"); h && *h)
        return std::filesystem::path(h) / ".local" / "share" / "lonvir97";
    return "lonvir97";
}

std::int16_t schichtAus(const Optionen& o) {
    const std::string w = o.wert("schicht").value_or("INFO");
    if (w == "INFO")
        return INFO;
    if (w == "PLAN")
        return PLAN;
    if (w == "REAL")
        return REAL;
    throw Aufruffehler("--schicht muss INFO, PLAN oder REAL sein, nicht \"" + w + "\".");
}

struct Befehl {
    const char* name;
    int (*ausfuehren)(Kontext&, std::ostream&);
    bool mitOrdner; // the command works on the stored data of the folder
};

// The wage-tax run and the table band compute from their options alone.
constexpr Befehl befehle[] = {
    {"anlegen", anlegen, true},
    {"zeigen", zeigen, true},
    {"setzen", setzen, true},
    {"satz", satz, true},
    {"uebertragen", uebertragen, true},
    {"lohnsteuer", lohnsteuer, false},
    {"tabelle", tabelle, false},
    {"einstellungen", einstellungen, true},
    // drucken opens the folder itself, once its report and options are known to be good.
    {"drucken", drucken, false},
    {"tarif", tarif, true},
    {"text", text, true},
    {"suchen", suchen, true},
};

const Befehl* befehlVon(const std::string& name) {
    for (const Befehl& b : befehle)
        if (name == b.name)
            return &b;
    return nullptr;
}

} // namespace

Knopf CliDialoge::zeigen(const Meldung& meldung) {
    std::cerr << meldung.titel << ": " << meldung.text << "\n";
    return skript_.zeigen(meldung);
}

Kontext::Kontext(const Optionen& o, bool mitOrdner)
    : optionen(o), dialoge(o.schalter("ja")), json(o.schalter("json")) {
    if (o.schalter("ja") && o.schalter("nein"))
        throw Aufruffehler("--ja und --nein schließen einander aus.");
    s.ordner = Arbeitsordner(o.wert("ordner") ? std::filesystem::path(*o.wert("ordner"))
                                              : standardordner());
    // --leer creates a working folder without the installation data.
    if (!o.schalter("leer"))
        s.installation = mitgelieferteinstallation();
    s.dialoge = &dialoge;
    s.jahr = static_cast<std::int16_t>(o.zahl("jahr", 1997, 1998, 1997));
    s.schicht = schichtAus(o);
    if (mitOrdner)
        starten(s);
}

void Kontext::meldungenAnhaengen(Json& j) const {
    j.feldAnfang("meldungen");
    for (const Meldung& m : dialoge.gezeigt())
        j.objektAnfang().text("titel", m.titel).text("text", m.text).objektEnde();
    j.feldEnde();
}

int ausfuehren(int argc, char** argv) {
    if (argc == 2 && (std::string(argv[1]) == "--help" || std::string(argv[1]) == "hilfe")) {
        std::cout << aufruf;
        return 0;
    }
    try {
        Optionen o(argc, argv);
        if (o.befehl() == "installieren")
            return installieren(o, std::cout);
        const Befehl* befehl = befehlVon(o.befehl());
        if (!befehl)
            throw Aufruffehler("Unbekannter Befehl: " + o.befehl());
        Kontext k(o, befehl->mitOrdner);
        return befehl->ausfuehren(k, std::cout);
    } catch (const Aufruffehler& f) {
        std::cerr << f.what() << "\n" << aufruf;
        return 2;
    } catch (const Laufzeitfehler& f) {
        std::cerr << f.what() << "\n";
        return 3;
    } catch (const Dateifehler& f) {
        std::cerr << f.what() << "\n";
        return 4;
    }
}

} // namespace lonvir::cli
