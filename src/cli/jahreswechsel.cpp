// jahreswechsel: the menu entry "Dez 97  >  Jan 98..." as the window runs it, page 47 with
// its labels printed; progress on stderr when that is a terminal.
#include "cli/befehle.h"
#include "panels/tablett.h"
#include "screen/hauptform.h"
#include "screen/hauptmenue.h"

#include <chrono>
#include <iostream>
#include <ostream>
#include <unistd.h>

namespace lonvir::cli {

namespace {

// The page's progress label, at most ten times a second, over itself on the terminal.
class Fortschrittszeile {
public:
    void zeigen(const std::string& text) {
        const auto jetzt = std::chrono::steady_clock::now();
        if (text.empty() || text == letzter_ || jetzt - zuletzt_ < std::chrono::milliseconds(100))
            return;
        zuletzt_ = jetzt;
        letzter_ = text;
        std::cerr << "\r\033[K" << text << std::flush;
        benutzt_ = true;
    }
    ~Fortschrittszeile() {
        if (benutzt_)
            std::cerr << "\r\033[K" << std::flush;
    }

private:
    std::chrono::steady_clock::time_point zuletzt_{};
    std::string letzter_;
    bool benutzt_ = false;
};

} // namespace

int jahreswechsel(Kontext& k, std::ostream& aus) {
    k.optionen.nurErlaubt({});
    Kernform form(k.s);
    Form1lage lage;
    Tablett tablett(k.s, lage);
    Menueziel ziel{k.s, form, tablett};
    Fortschrittszeile zeile;
    if (::isatty(STDERR_FILENO))
        tablett.zwischendurch = [&] { zeile.zeigen(tablett.zeile[5].text); };
    menueklick(ziel, "MJahreswechsel");
    tablett.zwischendurch = nullptr;
    const bool begonnen = k.s.Tablettseite == 47;
    const bool ausgefuehrt = begonnen && k.s.jahr1998freigegeben;
    if (k.json) {
        Json j;
        j.objektAnfang().text("ergebnis", ausgefuehrt ? "ausgeführt"
                                          : begonnen  ? "fehlgeschlagen"
                                                      : "nicht begonnen");
        j.feldAnfang("seite");
        if (begonnen)
            for (int i = 0; i <= 20; ++i)
                j.text(tablett.zeile[i].text);
        j.feldEnde();
        k.meldungenAnhaengen(j);
        aus << j.objektEnde().ergebnis() << "\n";
    } else if (!begonnen) {
        aus << "Jahreswechsel nicht ausgeführt: die Frage wurde nicht mit --ja beantwortet.\n";
    } else {
        for (int i = 0; i <= 20; ++i)
            if (!tablett.zeile[i].text.empty())
                aus << tablett.zeile[i].text << "\n";
    }
    return begonnen && !ausgefuehrt ? 4 : 0;
}

} // namespace lonvir::cli
