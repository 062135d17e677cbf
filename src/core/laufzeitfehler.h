// Run-time errors that end the program: overflow (6), index out of range (9), bad record number
// (63).
#pragma once

#include <stdexcept>
#include <string>

namespace lonvir {

class Laufzeitfehler : public std::runtime_error {
public:
    Laufzeitfehler(int nummer, const std::string& text);

    [[nodiscard]] int nummer() const { return nummer_; }
    [[nodiscard]] const std::string& text() const { return text_; }

    [[nodiscard]] static Laufzeitfehler ueberlauf();
    [[nodiscard]] static Laufzeitfehler indexfehler();
    [[nodiscard]] static Laufzeitfehler satznummerfehler();

private:
    int nummer_;
    std::string text_;
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
