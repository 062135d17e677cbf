// The form Password: eight one-key boxes for the start lock, at start (page 2) the check,
// after "Passwort ändern" (page 70) the new password.
#pragma once

#include "core/feld.h"
#include "start/sitzung.h"

#include <cstdint>
#include <string>

namespace lonvir {

// The fixed amount added to the key code of each position before it is stored, so that the
// record does not show the password to the eye.
[[nodiscard]] std::int16_t passwortversatz(int position);

// The key code of a key as the boxes receive it: Enter 13, a digit above the letters 48 to
// 57, a digit of the numeric block 96 to 105, a letter 65 to 90 whether upper or lower case;
// any other character 0.
[[nodiscard]] int passworttaste(char32_t zeichen, bool ziffernblock = false);

class Password {
public:
    explicit Password(Sitzung& s);

    // What the form has come to.
    enum class Stand {
        offen,       // keys are still wanted
        richtig,     // the lock opens: the start goes on to the main form
        falsch,      // wrong; the user chose Retry: the boxes are empty, the entry begins anew
        beenden,     // wrong; the user chose Cancel: the program ends
        gespeichert, // a new password stored
        verworfen,   // a new password not confirmed: nothing stored
    };

    Sitzung& s;
    Feld<std::string, 0, 7> pawo; // what each box shows: the password character or nothing
    Feld<std::int16_t, 0, 7> tastencodes;
    int fokus = 0;
    Stand stand = Stand::offen;
    // The form is unloaded (after a check that opened the lock or a change of the password).
    bool entladen = false;

    // "Password" and "Ihr Passwort bitte.".
    static constexpr const char* titel = "Password";
    static constexpr const char* aufforderung = "Ihr Passwort bitte.";

    // A key pressed in box `index`, by its key code (Enter 13, digits 48 to 57, letters 65
    // to 90 for upper and lower case alike).
    Stand pawo_keydown(int index, int taste);
    // Compares the entry with the stored record; true when they agree.
    [[nodiscard]] bool passwortpruefen();

private:
    Stand abschliessen();
    void leeren();
};

} // namespace lonvir
