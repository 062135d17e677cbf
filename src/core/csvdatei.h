// Lists for a spreadsheet: semicolon between fields, decimal comma, UTF-8 with a byte-order
// mark, one header row, lines ended by CR LF.
//
//     Csvtabelle t({"Person", "Name", "Brutto"});
//     t.zeile({Csvfeld::zahl(1), Csvfeld::text("Petra Schneider"), Csvfeld::pfennig(388856)});
//     dateiersetzen(pfad, t.inhalt()); // "\xEF\xBB\xBFPerson;Name;Brutto\r\n1;Petra
//     Schneider;3888,56\r\n"
//
// Amounts carry no thousands separator, so that a spreadsheet reads them as numbers; a text
// with a semicolon, a quotation mark or a line break is quoted.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lonvir {

class Csvfeld {
public:
    // A text in UTF-8, blanks on the right removed (fixed strings of the records are padded).
    [[nodiscard]] static Csvfeld text(std::string_view utf8);
    [[nodiscard]] static Csvfeld zahl(std::int64_t wert);
    // Pfennig as DM with two decimals: -12345 gives "-123,45".
    [[nodiscard]] static Csvfeld pfennig(std::int64_t pfennig);
    // A decimal number with the given decimals, rounded to nearest, ties to even.
    [[nodiscard]] static Csvfeld dezimal(double wert, int nachkommastellen);
    // An empty field.
    [[nodiscard]] static Csvfeld leer() { return Csvfeld(std::string(), false); }

    [[nodiscard]] const std::string& inhalt() const { return inhalt_; }

private:
    Csvfeld(std::string inhalt, bool text) : inhalt_(std::move(inhalt)), text_(text) {}
    friend class Csvtabelle;
    std::string inhalt_;
    bool text_;
};

class Csvtabelle {
public:
    explicit Csvtabelle(const std::vector<std::string>& kopf);

    // One row; it may have fewer or more fields than the header.
    void zeile(const std::vector<Csvfeld>& felder);
    [[nodiscard]] std::size_t zeilen() const { return zeilen_; }
    // The whole file: the byte-order mark, the header, the rows.
    [[nodiscard]] const std::string& inhalt() const { return inhalt_; }

private:
    void feldschreiben(const std::string& feld, bool text);
    std::string inhalt_;
    std::size_t zeilen_ = 0;
};

} // namespace lonvir
