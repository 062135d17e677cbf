// Run-time errors that end the program: overflow (6), index out of range (9), bad record number
// (63).
#pragma once

#include <stdexcept>
#include <string>

namespace lonvir {

// Where a run-time error arose, gathered on its way up: the calculation names its step, the
// driver the person, month, year and layer. Empty parts say nothing.
struct Fehlerort {
    int person = 0;      // 0: no person
    int monat = -1;      // month index 0 to 11, 12 the year view; -1: none
    int jahr = 0;        // 0: none
    std::string schicht; // "INFO", "PLAN" or "REAL"
    std::string schritt; // e.g. "Schritt 10 (Überstunden und Teilzeit)"
};

class Laufzeitfehler : public std::runtime_error {
public:
    Laufzeitfehler(int nummer, const std::string& text);

    [[nodiscard]] int nummer() const { return nummer_; }
    [[nodiscard]] const std::string& text() const { return text_; }
    [[nodiscard]] const Fehlerort& ort() const { return ort_; }

    // The step of the calculation; the innermost step that names itself stays.
    void schrittsetzen(const std::string& schritt);
    // Person, month index, year and layer; the first caller that knows them stays.
    void ortsetzen(int person, int monat, int jahr, const std::string& schicht);

    // "Laufzeitfehler 6: Überlauf", and on a second line the place where it is known.
    [[nodiscard]] const char* what() const noexcept override { return meldung_.c_str(); }

    [[nodiscard]] static Laufzeitfehler ueberlauf();
    [[nodiscard]] static Laufzeitfehler indexfehler();
    [[nodiscard]] static Laufzeitfehler satznummerfehler();

private:
    void meldungbilden();

    int nummer_;
    std::string text_;
    Fehlerort ort_;
    std::string meldung_;
};

// A file of the set that cannot be opened, read or written; the message names the file.
class Dateifehler : public std::runtime_error {
public:
    Dateifehler(const std::string& datei, const std::string& grund);
    [[nodiscard]] const std::string& datei() const { return datei_; }

private:
    std::string datei_;
};

} // namespace lonvir
