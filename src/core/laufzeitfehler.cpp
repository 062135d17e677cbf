// Run-time errors with the system's German texts.
#include "core/laufzeitfehler.h"

namespace lonvir {

Laufzeitfehler::Laufzeitfehler(int nummer, const std::string& text)
    : std::runtime_error("Laufzeitfehler " + std::to_string(nummer) + ": " + text), nummer_(nummer),
      text_(text) {}

Laufzeitfehler Laufzeitfehler::ueberlauf() {
    return {6, "Überlauf"};
}

Laufzeitfehler Laufzeitfehler::indexfehler() {
    return {9, "Index außerhalb des gültigen Bereichs"};
}

Laufzeitfehler Laufzeitfehler::satznummerfehler() {
    return {63, "Falsche Datensatznummer"};
}

Dateifehler::Dateifehler(const std::string& datei, const std::string& grund)
    : std::runtime_error("Datei " + datei + ": " + grund), datei_(datei) {}

} // namespace lonvir
