// The preset of a range of persons from the rows of the current one.
#include "screen/voreinstellmodus.h"

#include "engine/monatladen.h"
#include "screen/form1.h"
#include "start/dateisatz.h"
#include "start/einstellungen.h"
#include "start/satzzugriff.h"

#include <array>
#include <filesystem>
#include <system_error>

namespace lonvir {

namespace {

constexpr int weiss = 15;
constexpr int gelb = 14;

namespace fs = std::filesystem;

fs::path beiseite(const fs::path& pfad) {
    return fs::path(pfad.string() + ".vor");
}

// The twelve month files, copied aside before the pass and put back if it fails.
class Monatssicherung {
public:
    explicit Monatssicherung(Sitzung& s) : s_(s) {
        for (int m = 1; m <= 12; ++m) {
            pfade_[static_cast<std::size_t>(m - 1)] = s.datei(m).pfad();
            const fs::path& p = pfade_[static_cast<std::size_t>(m - 1)];
            fs::copy_file(p, beiseite(p), fs::copy_options::overwrite_existing);
        }
    }
    ~Monatssicherung() {
        std::error_code fehler;
        if (!erfolg_) {
            try {
                dateienschliessen(s_);
                for (const fs::path& p : pfade_)
                    fs::copy_file(beiseite(p), p, fs::copy_options::overwrite_existing, fehler);
                dateienoeffnen(s_);
            } catch (...) {
                // The error that stopped the pass is the one the caller reports.
            }
        }
        for (const fs::path& p : pfade_)
            fs::remove(beiseite(p), fehler);
    }
    Monatssicherung(const Monatssicherung&) = delete;
    Monatssicherung& operator=(const Monatssicherung&) = delete;
    void bestaetigen() { erfolg_ = true; }

private:
    Sitzung& s_;
    std::array<fs::path, 12> pfade_;
    bool erfolg_ = false;
};

} // namespace

bool voreinstellbar(int zeile) {
    switch (zeile) {
    case 1:
    case 2:
    case 4:
    case 9:
    case 11:
    case 12:
    case 13:
    case 14:
    case 15:
    case 19:
    case 25:
    case 26:
    case 27:
    case 29:
    case 30:
    case 31:
    case 32:
    case 36:
    case 41:
    case 42:
    case 43:
    case 44:
        return true;
    default:
        return false;
    }
}

void voreinstellmodusbeginnen(Form1& f, int von, int bis) {
    f.voreinstellung = {true, von, bis};
    f.farbenanwenden();
}

void voreinstellmodusbeenden(Form1& f) {
    f.voreinstellung = {};
    f.farbenanwenden();
}

void voreinstellfarben(Hauptbild& bild) {
    for (int zeile = 0; zeile <= 45; ++zeile) {
        Bildzeile& z = bild.zeilen[static_cast<std::size_t>(zeile)];
        z.farbe = voreinstellbar(zeile) ? gelb : weiss;
        z.textfarbe = 0;
    }
}

std::string uebertragknopftext(const Form1& f, int knopf) {
    if (f.voreinstellung.aktiv) {
        if (knopf == 2)
            return "    Ü B E R T R A G E N";
        if (knopf == 3)
            return "  A B B R E C H E N";
        return {};
    }
    switch (knopf) {
    case 2:
        return "Info  > Plan";
    case 3:
        return "Plan >  Info";
    case 4:
        return "Plan > Real";
    case 5:
        return "Real > Plan";
    }
    return {};
}

bool uebertragknopfsichtbar(const Form1& f, int knopf) {
    return !f.voreinstellung.aktiv || knopf == 2 || knopf == 3;
}

bool voreinstellknopf(Form1& f, int knopf, const Fortschritt& fortschritt) {
    if (!f.voreinstellung.aktiv)
        return false;
    if (knopf == 2) {
        voreinstellungenuebertragen(f.s, f.voreinstellung.von, f.voreinstellung.bis, fortschritt);
        voreinstellmodusbeenden(f);
        f.bildauffrischen();
    } else if (knopf == 3) {
        voreinstellmodusbeenden(f);
    }
    return true;
}

int voreinstellungenuebertragen(Sitzung& s, int von, int bis, const Fortschritt& fortschritt) {
    const int erste = von < 1 ? 1 : von;
    const int letzte = bis > s.anzahlnamen ? s.anzahlnamen : bis;
    if (erste > letzte)
        return 0;
    const Feld<std::int16_t, 0, 45> vorlage = s.merkmal;
    const std::int16_t person = s.aktuelleperson;
    const std::int16_t monat = s.merkmal[20];
    const int gesamt = letzte - erste + 1;
    {
        Monatssicherung sicherung(s);
        for (int p = erste; p <= letzte; ++p) {
            for (int m = 1; m <= 12; ++m) {
                Personalsatz satz = personalsatzlesen(s, m, p);
                for (int zeile = 1; zeile <= 45; ++zeile)
                    if (voreinstellbar(zeile))
                        satz.merkmal[zeile] = vorlage[zeile];
                personalsatzschreiben(s, m, p, satz);
            }
            // Each month from its own record, so that its stored figures follow the selections.
            for (std::int16_t m = 0; m <= 11; ++m)
                monatladen(s, static_cast<std::int16_t>(p), m);
            if (fortschritt)
                fortschritt(p - erste + 1, gesamt);
        }
        sicherung.bestaetigen();
    }
    // Each run stored the place of its person; the place is the screen's person again.
    s.aktuelleperson = person;
    s.merkmal[0] = static_cast<std::int16_t>(person - 1);
    s.merkmal[20] = monat;
    voeschreiben(s);
    return gesamt;
}

} // namespace lonvir
