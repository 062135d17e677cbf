// The printer's column arithmetic: tabs, the position kept by a semicolon, numbers, lines.
#include "core/drucker.h"

#include "core/druckformat.h"
#include "core/textdrucker.h"

#include <algorithm>

namespace lonvir {

namespace {

// Numbers print with a blank for the sign of a positive value and a blank behind.
std::string zahltext(std::int64_t wert) {
    return (wert < 0 ? std::string() : std::string(" ")) + std::to_string(wert) + " ";
}

// A small tolerance: positions are sums of products of the font size.
constexpr double toleranz = 1e-6;

} // namespace

void Spaltendrucker::Orientation(int ausrichtung) {
    dokument_.ausrichtung = ausrichtung;
}
void Spaltendrucker::FontName(std::string_view name) {
    schrift_ = std::string(name);
}
void Spaltendrucker::FontSize(float punkte) {
    groesse_ = punkte;
}
void Spaltendrucker::FontBold(bool fett) {
    fett_ = fett;
}

void Spaltendrucker::drucken(std::span<const Druckteil> teile, Zeilenende ende) {
    zeileBegonnen_ = true;
    for (const Druckteil& teil : teile) {
        if (const auto* t = std::get_if<Tab>(&teil)) {
            tab(t->spalte);
        } else if (const auto* s = std::get_if<std::string>(&teil)) {
            text(*s);
        } else {
            text(zahltext(std::get<Druckzahl>(teil).wert));
        }
    }
    if (ende == Zeilenende::neu) {
        zeileschliessen();
    }
}

void Spaltendrucker::EndDoc() {
    if (zeileBegonnen_ && !zeile_.stuecke.empty()) {
        zeileschliessen();
    }
    Druckdokument fertig = std::move(dokument_);
    dokument_ = Druckdokument{fertig.ausrichtung, {}};
    zeile_ = Druckzeile{};
    zeileBegonnen_ = false;
    x_ = 0;
    dokumentfertig(std::move(fertig));
}

// Tab(n) with n below 1 goes to the first column.
void Spaltendrucker::tab(int spalte) {
    const double ziel = (std::max(spalte, 1) - 1) * breite();
    if (x_ > ziel + toleranz) {
        zeileschliessen();
        zeileBegonnen_ = true;
    }
    x_ = ziel;
}

void Spaltendrucker::text(std::string_view text) {
    if (text.empty()) {
        return;
    }
    Druckstueck stueck;
    stueck.x = x_;
    stueck.spalte = static_cast<int>(x_ / breite() + 0.5) + 1;
    stueck.text = std::string(text);
    stueck.schrift = schrift_;
    stueck.groesse = groesse_;
    stueck.fett = fett_;
    zeile_.stuecke.push_back(std::move(stueck));
    x_ += static_cast<double>(zeichenzahl(text)) * breite();
}

void Spaltendrucker::zeileschliessen() {
    zeile_.hoehe = groesse_;
    dokument_.zeilen.push_back(std::move(zeile_));
    zeile_ = Druckzeile{};
    zeileBegonnen_ = false;
    x_ = 0;
}

std::string Merkdrucker::zeile(std::size_t dokument, std::size_t zeile) const {
    return textzeile(dokumente.at(dokument).zeilen.at(zeile));
}

} // namespace lonvir
