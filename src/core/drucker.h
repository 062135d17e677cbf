// The printer as a platform interface: orientation, font, lines of items at tab columns, end.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lonvir {

// `Tab(n)`: column n of the line in the font in force (1 is the first column).
struct Tab {
    int spalte = 1;
};
// A whole number printed as the printer prints numbers: a blank or "-" before it, a blank after.
struct Druckzahl {
    std::int64_t wert = 0;
};
// One item of a `Print`: a tab, a text (UTF-8) or a number.
using Druckteil = std::variant<Tab, std::string, Druckzahl>;

// How a `Print` ends: with the line, or (a trailing semicolon) with the position kept.
enum class Zeilenende { neu, bleiben };

enum Ausrichtung : int { hochformat = 1, querformat = 2 };

class Drucker {
public:
    virtual ~Drucker() = default;

    virtual void Orientation(int ausrichtung) = 0;
    virtual void FontName(std::string_view name) = 0;
    virtual void FontSize(float punkte) = 0;
    virtual void FontBold(bool fett) = 0;
    // The items in order; `Print({})` prints an empty line.
    virtual void drucken(std::span<const Druckteil> teile, Zeilenende ende) = 0;
    // Sends the document; called once at the end of every report.
    virtual void EndDoc() = 0;

    void Print(std::initializer_list<Druckteil> teile, Zeilenende ende = Zeilenende::neu) {
        drucken(std::span<const Druckteil>(teile.begin(), teile.size()), ende);
    }
    void Print(const std::vector<Druckteil>& teile, Zeilenende ende = Zeilenende::neu) {
        drucken(teile, ende);
    }
};

// What a printed page holds: pieces of text placed on lines, each with the font it was
// printed in. `x` is the horizontal position in points from the left edge of the printable
// area; `spalte` the character column in the piece's own font (1 the first).
struct Druckstueck {
    double x = 0;
    int spalte = 1;
    std::string text;
    std::string schrift;
    float groesse = 12;
    bool fett = false;
};

struct Druckzeile {
    std::vector<Druckstueck> stuecke;
    float hoehe = 12; // the font size in force when the line ended, points
};

struct Druckdokument {
    int ausrichtung = hochformat;
    std::vector<Druckzeile> zeilen;
};

// The printer's column arithmetic, shared by every face: a fixed-pitch font advances 0.6 of
// its size per character; `Tab(n)` goes to (n - 1) such widths, and a position already past
// it goes to column n of the next line. A face receives each finished document.
class Spaltendrucker : public Drucker {
public:
    static constexpr double zeichenbreite = 0.6; // advance of a character per point of size

    void Orientation(int ausrichtung) override;
    void FontName(std::string_view name) override;
    void FontSize(float punkte) override;
    void FontBold(bool fett) override;
    void drucken(std::span<const Druckteil> teile, Zeilenende ende) override;
    void EndDoc() override;

    [[nodiscard]] const std::string& schrift() const { return schrift_; }
    [[nodiscard]] float groesse() const { return groesse_; }
    [[nodiscard]] bool fett() const { return fett_; }

protected:
    virtual void dokumentfertig(Druckdokument&& dokument) = 0;

private:
    void tab(int spalte);
    void text(std::string_view text);
    void zeileschliessen();
    [[nodiscard]] double breite() const { return zeichenbreite * groesse_; }

    Druckdokument dokument_;
    Druckzeile zeile_;
    bool zeileBegonnen_ = false;
    double x_ = 0;
    std::string schrift_ = "courier new";
    float groesse_ = 12;
    bool fett_ = false;
};

// Keeps every document it was given; tests read lines, columns and font state from it.
class Merkdrucker : public Spaltendrucker {
public:
    std::vector<Druckdokument> dokumente;

    // The text of line `zeile` of document `dokument` as the plain-text face lays it out.
    [[nodiscard]] std::string zeile(std::size_t dokument, std::size_t zeile) const;

protected:
    void dokumentfertig(Druckdokument&& dokument) override {
        dokumente.push_back(std::move(dokument));
    }
};

} // namespace lonvir
