// The pocket calculator beside the rows of the main screen: decimal strings in its display,
// 32-bit float arithmetic, results held to three decimals and shown with two, and the carry
// of the display into the row that was clicked last ("Übertrag").
#pragma once

#include "screen/form1.h"

#include <cstdint>
#include <string>

namespace lonvir {

class Rechner : public Rechnertasten {
public:
    // Registers itself as the calculator of `form`, whose keys then reach it.
    explicit Rechner(Form1& form);
    ~Rechner() override;
    Rechner(const Rechner&) = delete;
    Rechner& operator=(const Rechner&) = delete;

    // --- the state of the calculator
    std::string readout = "0.";
    float operand1 = 0;
    float operand2 = 0;
    std::string operator_ = " ";        // "+", "-", "X", "/", "=" or a blank
    std::string letzteeingabe = "NONE"; // "NONE", "NUMS", "OPS", "NEG", "CE"
    std::int16_t operatoren = 0;
    bool dezimalpunkt = false;

    // --- the buttons; the form's keys arrive here through Form1::Form_KeyPress
    // Digit buttons 0..9; an index of 10 or more is the digit 19 minus the index.
    void number_Click(int index) override;
    // 0 "+", 1 "-", 2 "X", 3 "/", 4 "="; an index above 4 is reduced by 5 first.
    void operator_Click(int index) override;
    void decimalp_Click() override;
    void cancel_Click();
    void cancelentry_Click();
    // "Übertrag": the display into the row clicked last.
    void Eintrag_Click() override;

private:
    void meldung(const std::string& text);
    void rechnen(const std::string& op);
    void ergebniszeigen();
    Form1& f_;
};

// The text of a calculator value: seven significant digits, a point as the separator, no
// exponent, trailing zeros and a trailing point dropped ("0.333", "3", "-12.5").
[[nodiscard]] std::string rechnertext(float wert);
// The value of a display text: sign, digits and one point; anything else ends the number and
// an empty number is 0 ("-" and "." are 0).
[[nodiscard]] double rechnerwert(const std::string& text);
// The correction of a float's tail: a text whose fourth digit after the point is a 9.
[[nodiscard]] bool viertestelleneun(const std::string& text);

} // namespace lonvir
