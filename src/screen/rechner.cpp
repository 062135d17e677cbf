// The pocket calculator of the main screen: digits, point, operators, the two clear buttons
// and the carry into the row clicked last.
#include "screen/rechner.h"

#include "core/pfennig.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace lonvir {

namespace {

constexpr const char* titel = "Rechner";
constexpr const char* sechsstellen = "Mehr als 6 Stellen vor dem Komma sind nicht zugelassen.";
constexpr const char* hinweisanfang = "Das Ergebnis lautet mit 3 Dezimalstellen: ";
// The two notes differ by the blank behind "abgerundet."; both are the program's words.
constexpr const char* hinweismitleerzeichen =
    " . Es wurde auf 2 Dezimalstellen abgerundet. Wenn Aufrundung vorgeschrieben ist, dann "
    "addieren Sie bitte den Wert 0,01.";
constexpr const char* hinweisohneleerzeichen =
    " . Es wurde auf 2 Dezimalstellen abgerundet.Wenn Aufrundung vorgeschrieben ist, dann "
    "addieren Sie bitte den Wert 0,01.";

// Digits behind the point of a value's text.
std::size_t nachkommastellen(const std::string& text) {
    const std::size_t punkt = text.find('.');
    return punkt == std::string::npos ? 0 : text.size() - punkt - 1;
}

// Digits before the point, the sign not counted.
std::size_t vorkommastellen(const std::string& text) {
    std::size_t n = 0;
    for (char c : text) {
        if (c == '.')
            break;
        if (c >= '0' && c <= '9')
            ++n;
    }
    return n;
}

// The display always holds a point, as it does while a number is typed.
std::string anzeige(float wert) {
    std::string text = rechnertext(wert);
    if (text.find('.') == std::string::npos)
        text += '.';
    return text;
}

std::string mitkomma(std::string text) {
    for (char& c : text)
        if (c == '.')
            c = ',';
    return text;
}

} // namespace

std::string rechnertext(float wert) {
    const double d = wert;
    if (d == 0)
        return "0";
    // Seven significant digits, written out in full.
    const int exponent = static_cast<int>(std::floor(std::log10(std::fabs(d))));
    const int stellen = exponent >= 6 ? 0 : 6 - exponent;
    char puffer[64];
    std::snprintf(puffer, sizeof puffer, "%.*f", stellen, d);
    std::string text = puffer;
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

double rechnerwert(const std::string& text) {
    std::size_t ende = 0;
    if (ende < text.size() && text[ende] == '-')
        ++ende;
    bool punkt = false;
    bool ziffer = false;
    for (; ende < text.size(); ++ende) {
        const char c = text[ende];
        if (c == '.' && !punkt) {
            punkt = true;
        } else if (c >= '0' && c <= '9') {
            ziffer = true;
        } else {
            break;
        }
    }
    if (!ziffer)
        return 0;
    std::string zahl = text.substr(0, ende);
    if (zahl.back() == '.')
        zahl.pop_back();
    double wert = 0;
    std::from_chars(zahl.data(), zahl.data() + zahl.size(), wert);
    return wert;
}

bool viertestelleneun(const std::string& text) {
    const std::size_t punkt = text.find('.');
    return punkt != std::string::npos && text.size() > punkt + 4 && text[punkt + 4] == '9';
}

Rechner::Rechner(Form1& form) : f_(form) {
    f_.rechner = this;
}

Rechner::~Rechner() {
    if (f_.rechner == this)
        f_.rechner = nullptr;
}

void Rechner::meldung(const std::string& text) {
    if (f_.s.dialoge)
        f_.s.dialoge->zeigen({titel, text, Symbol::ausruf, Knoepfe::ok});
}

void Rechner::cancel_Click() {
    readout = "0.";
    operand1 = 0;
    operand2 = 0;
    operatoren = 0;
    dezimalpunkt = false;
    letzteeingabe = "NONE";
    operator_ = " ";
}

void Rechner::cancelentry_Click() {
    readout = "0.";
    dezimalpunkt = false;
    letzteeingabe = "CE";
}

void Rechner::number_Click(int index) {
    if (index < 0 || index > 19)
        return; // the array has no such button
    const char ziffer = static_cast<char>('0' + (index < 10 ? index : 19 - index));
    // 1.
    if (letzteeingabe != "NUMS") {
        readout = ".";
        dezimalpunkt = false;
    }
    // 2.
    if (dezimalpunkt)
        readout += ziffer;
    else
        readout.insert(readout.find('.'), 1, ziffer);
    // 3.
    if (letzteeingabe == "NEG")
        readout = "-" + readout;
    // 4.
    letzteeingabe = "NUMS";
    // 5. Six digits before the point at most: the seventh is refused.
    if (!dezimalpunkt && vorkommastellen(readout) > 6) {
        meldung(sechsstellen);
        cancel_Click();
        return;
    }
    // 6.
    if (readout.rfind("00.", 0) == 0 || readout.rfind("-00.", 0) == 0) {
        meldung("Zwei Nullen vor dem Dezimalpunkt sind nicht zugelassen.");
        cancel_Click();
    }
}

void Rechner::decimalp_Click() {
    if (letzteeingabe != "NUMS") {
        if (letzteeingabe == "NONE" || letzteeingabe == "OPS")
            readout = "0.";
        else if (letzteeingabe == "NEG")
            readout = "-0.";
    }
    dezimalpunkt = true;
    letzteeingabe = "NUMS";
}

void Rechner::operator_Click(int index) {
    static const char* const zeichen[] = {"+", "-", "X", "/", "="};
    if (index > 4)
        index -= 5;
    if (index < 0 || index > 4)
        return;
    const std::string op = zeichen[index];
    // 1.
    if (letzteeingabe == "NUMS")
        ++operatoren;
    // 2. to 4.
    if (operatoren == 0) {
        if (op == "-" && letzteeingabe != "NEG") {
            readout = "-";
            letzteeingabe = "NEG";
        }
    } else if (operatoren == 1) {
        operand1 = static_cast<float>(rechnerwert(readout));
    } else {
        operand2 = static_cast<float>(rechnerwert(readout));
        if (operator_ == "/" && operand2 == 0) {
            meldung("Division durch Null ist nicht zugelassen.");
            cancel_Click();
            return;
        }
        rechnen(operator_);
        // 5. to 8.
        ergebniszeigen();
        if (letzteeingabe == "NONE")
            return; // refused and reset
        // The result is the first operand of what follows.
        operatoren = 1;
    }
    // 9. The new operator; a "-" that began a negative number gives way to it as well.
    letzteeingabe = "OPS";
    operator_ = op;
}

void Rechner::rechnen(const std::string& op) {
    // "=" as the pending operator leaves the operands as they are.
    if (op == "+")
        operand1 = operand1 + operand2;
    else if (op == "-")
        operand1 = operand1 - operand2;
    else if (op == "X")
        operand1 = operand1 * operand2;
    else if (op == "/")
        operand1 = operand1 / operand2;
}

void Rechner::ergebniszeigen() {
    // Row 31 takes the result as it is: no three decimals and no note.
    const bool zeile31 = f_.s.aktuellezeile == 31;
    // 5. Three decimals, cut; a float's tail that shows as a 9 in the fourth place is lifted.
    if (!zeile31) {
        operand1 = std::trunc(operand1 * 1000.0f) / 1000.0f;
        if (viertestelleneun(rechnertext(operand1))) {
            if (operand1 > 0)
                operand1 += 0.001f;
            else if (operand1 < 0)
                operand1 -= 0.001f;
        }
    }
    // 6.
    readout = anzeige(operand1);
    // 7. The display cut to two decimals, with the note of the third; values from 1 to below
    // 100000 are told a second time, in the words without the blank.
    const std::string text = rechnertext(operand1);
    if (!zeile31 && nachkommastellen(text) > 2) {
        readout = text.substr(0, text.find('.') + 3);
        meldung(hinweisanfang + mitkomma(text) + hinweismitleerzeichen);
        if (operand1 >= 1 && operand1 < 100000)
            meldung(hinweisanfang + mitkomma(text) + hinweisohneleerzeichen);
    }
    // 8.
    if (vorkommastellen(text) > 6) {
        meldung(sechsstellen);
        cancel_Click();
    }
}

void Rechner::Eintrag_Click() {
    if (f_.s.merkmal[20] == 12) {
        if (f_.s.dialoge)
            f_.s.dialoge->zeigen(
                {"Keine Änderung möglich",
                 "Während das JAHRESGEHALT eingestellt ist, können keine Änderungen vorgenommen "
                 "werden. Bitte stellen Sie ein Monatsgehalt ein.",
                 Symbol::ausruf, Knoepfe::ok});
        return;
    }
    const std::int32_t betrag = pf::gerundet(rechnerwert(readout) * 100.0);
    if (!f_.betraguebernehmen(f_.s.aktuellezeile, betrag))
        return; // the display stays for another row
    f_.wiedereintritt = true;
    cancel_Click();
}

} // namespace lonvir
