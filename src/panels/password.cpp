// The start lock: the entry of eight key codes, its check against the display settings and
// the store of a new password.
#include "panels/password.h"

#include "start/einstellungen.h"

#include <array>

namespace lonvir {

namespace {

constexpr int enter = 13;
constexpr std::array<std::int16_t, 8> versatz = {4711, 1997, 3301, 2718, 1414, 5050, 909, 6174};
constexpr const char* zeichen = "*";

bool ignoriert(int taste) {
    return (taste >= 0 && taste <= 12) || (taste >= 14 && taste <= 47) ||
           (taste >= 58 && taste <= 64) || (taste >= 91 && taste <= 300);
}

} // namespace

std::int16_t passwortversatz(int position) {
    return versatz.at(static_cast<std::size_t>(position));
}

int passworttaste(char32_t zeichen, bool ziffernblock) {
    if (zeichen == '\r' || zeichen == '\n')
        return enter;
    if (zeichen >= '0' && zeichen <= '9')
        return static_cast<int>(zeichen - '0') + (ziffernblock ? 96 : 48);
    if (zeichen >= 'a' && zeichen <= 'z')
        return static_cast<int>(zeichen - 'a') + 65;
    if (zeichen >= 'A' && zeichen <= 'Z')
        return static_cast<int>(zeichen - 'A') + 65;
    return 0;
}

Password::Password(Sitzung& sitzung) : s(sitzung) {}

Password::Stand Password::pawo_keydown(int index, int taste) {
    // 1.
    if (ignoriert(taste) || index < 0 || index > 7)
        return stand;
    if (taste == enter) {
        // 3. Enter closes the entry: it is stored at this and every remaining position.
        for (int i = index; i <= 7; ++i) {
            tastencodes[i] = enter;
            pawo[i] = zeichen;
        }
        return abschliessen();
    }
    // 2.
    pawo[index] = zeichen;
    tastencodes[index] = static_cast<std::int16_t>(taste);
    if (index < 7) {
        fokus = index + 1;
        return stand;
    }
    // 4.
    return abschliessen();
}

Password::Stand Password::abschliessen() {
    if (s.Tablettseite == 2) {
        if (passwortpruefen()) {
            entladen = true;
            return stand = Stand::richtig;
        }
        const Knopf k =
            s.dialoge ? s.dialoge->zeigen({"Passwort",
                                           "Leider keine Übereinstimmung mit dem erforderlichen "
                                           "Passwort.",
                                           Symbol::ausruf, Knoepfe::wiederholenAbbrechen})
                      : Knopf::abbrechen;
        if (k != Knopf::wiederholen)
            return stand = Stand::beenden;
        leeren();
        return stand = Stand::falsch;
    }
    // Page 70: a new password.
    const Knopf k =
        s.dialoge ? s.dialoge->zeigen({"Passwort",
                                       "Haben Sie sich das eingegebene Passwort wirklich "
                                       "eingeprägt und soll das Programm künftig nur noch mit "
                                       "diesem Wort gestartet werden können?",
                                       Symbol::frage, Knoepfe::jaNein})
                  : Knopf::nein;
    entladen = true;
    if (k != Knopf::ja)
        return stand = Stand::verworfen;
    for (int i = 0; i <= 7; ++i)
        s.dim.passwort[i] =
            static_cast<std::int16_t>(tastencodes[i] + versatz[static_cast<std::size_t>(i)]);
    dimschreiben(s);
    return stand = Stand::gespeichert;
}

bool Password::passwortpruefen() {
    // The record as it stands in the file, not the working copy.
    std::array<std::uint8_t, Dimsatz::laenge> b{};
    s.datei(datei::dim).lesen(1, b);
    const Dimsatz gespeichert = Dimsatz::lesen(b);
    bool gleich = true;
    for (int i = 0; i <= 7; ++i)
        if (gespeichert.passwort[i] - versatz[static_cast<std::size_t>(i)] != tastencodes[i])
            gleich = false; // the loop still goes on to the end
    return gleich;
}

void Password::leeren() {
    for (int i = 0; i <= 7; ++i) {
        pawo[i].clear();
        tastencodes[i] = 0;
    }
    fokus = 0;
    stand = Stand::offen;
}

} // namespace lonvir
