// The checks of the store at open, file by file, record by record.
#include "start/bestandspruefung.h"

#include "records/bytes.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace lonvir {

namespace {

constexpr std::int64_t monatssatz = 541;
constexpr std::int64_t jahressatz = 1280;
constexpr std::int64_t textsatz = 35;
constexpr std::size_t monatsfeld = 38; // merkmal(20) in the record

const char* const monatsnamen[12] = {"Januar",    "Februar", "März",     "April",
                                     "Mai",       "Juni",    "Juli",     "August",
                                     "September", "Oktober", "November", "Dezember"};

std::string personendatei(int jahr, char schicht, int nummer) {
    return "L" + std::to_string(jahr) + schicht + "." + std::to_string(nummer);
}

// A file's bytes mapped for reading, without a copy, and the identity they were mapped with.
// An absent, empty or unreadable file has no bytes.
class Abbild {
public:
    explicit Abbild(const std::filesystem::path& pfad) {
        const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC);
        if (fd < 0)
            return;
        kennung_ = dateikennung(fd);
        if (kennung_ && kennung_->laenge > 0) {
            const auto laenge = static_cast<std::size_t>(kennung_->laenge);
            void* p = ::mmap(nullptr, laenge, PROT_READ, MAP_PRIVATE, fd, 0);
            if (p != MAP_FAILED) {
                daten_ = static_cast<const std::uint8_t*>(p);
                laenge_ = laenge;
            }
        }
        ::close(fd);
    }
    ~Abbild() {
        if (daten_ != nullptr)
            ::munmap(const_cast<std::uint8_t*>(daten_), laenge_);
    }
    Abbild(const Abbild&) = delete;
    Abbild& operator=(const Abbild&) = delete;
    [[nodiscard]] std::span<const std::uint8_t> bytes() const { return {daten_, laenge_}; }
    [[nodiscard]] const std::optional<Dateikennung>& kennung() const { return kennung_; }

private:
    const std::uint8_t* daten_ = nullptr;
    std::size_t laenge_ = 0;
    std::optional<Dateikennung> kennung_;
};

// A file of the folder as the check finds it: where it lies and its identity (none: absent).
struct Fund {
    std::filesystem::path pfad;
    std::optional<Dateikennung> kennung;
    [[nodiscard]] std::string name() const { return pfad.filename().string(); }
    [[nodiscard]] std::int64_t laenge() const { return kennung ? kennung->laenge : 0; }
};

Fund finden(const Arbeitsordner& ordner, const std::string& name) {
    Fund f{ordner.ordner() / name, dateikennung(ordner.ordner() / name)};
    if (!f.kennung) {
        // Matched without regard to case, as the file set opens it.
        f.pfad = ordner.pfad(name);
        f.kennung = dateikennung(f.pfad);
    }
    return f;
}

// A file found sound is noted, unless its entry changed so lately that a second change within
// the same tick of the file system's clock could go unseen.
constexpr double unruhespanne = 0.1; // seconds

void vermerken(Pruefvermerk* vermerk, const std::string& name,
               const std::optional<Dateikennung>& k) {
    if (vermerk != nullptr && k && !juengstGeaendert(*k, unruhespanne))
        vermerk->eintragen(name, *k);
}

bool vermerkt(const Pruefvermerk* vermerk, const Fund& f) {
    return vermerk != nullptr && f.kennung && vermerk->gilt(f.name(), *f.kennung);
}

std::string saetze(std::int64_t n) {
    return n == 1 ? "1 Satz" : std::to_string(n) + " Sätze";
}

// The most frequent value; of equally frequent ones the greatest.
std::int64_t haeufigste(std::span<const std::int64_t> werte) {
    std::int64_t beste = 0;
    long anzahl = 0;
    for (std::int64_t w : werte) {
        const long n = std::count(werte.begin(), werte.end(), w);
        if (n > anzahl || (n == anzahl && w > beste)) {
            beste = w;
            anzahl = n;
        }
    }
    return beste;
}

using Schichtdateien = std::array<Fund, 13>; // the months, then the year file

Schichtdateien schichtfinden(const Arbeitsordner& ordner, int jahr, char schicht) {
    Schichtdateien d;
    for (int m = 1; m <= 13; ++m)
        d[static_cast<std::size_t>(m - 1)] = finden(ordner, personendatei(jahr, schicht, m));
    return d;
}

std::optional<Schaden> laengenpruefen(const Schichtdateien& d, int jahr, char schicht) {
    std::array<std::int64_t, 13> laenge{};
    for (std::size_t i = 0; i < laenge.size(); ++i)
        laenge[i] = d[i].laenge();
    const auto monate = std::span(laenge).first(12);
    const std::int64_t groesste = *std::max_element(monate.begin(), monate.end());
    if (groesste == 0 && laenge[12] == 0)
        return std::nullopt; // a layer not yet filled
    for (int m = 1; m <= 12; ++m) {
        const std::int64_t l = laenge[static_cast<std::size_t>(m - 1)];
        if (l % monatssatz != 0)
            return Schaden{personendatei(jahr, schicht, m),
                           "die Länge von " + std::to_string(l) +
                               " Bytes ist kein Vielfaches von 541; der letzte Satz ist "
                               "unvollständig"};
    }
    // The length most month files share; the file that differs from it is the damaged one.
    const std::int64_t ueblich = haeufigste(monate);
    const std::int64_t januar = laenge[0];
    if (januar < ueblich)
        return Schaden{personendatei(jahr, schicht, 1),
                       (januar == 0 ? std::string("die Datei ist leer oder fehlt")
                                    : "die Datei hält nur " + saetze(januar / monatssatz)) +
                           ", die übrigen Monatsdateien halten " + saetze(ueblich / monatssatz)};
    for (int m = 1; m <= 12; ++m) {
        const std::int64_t l = laenge[static_cast<std::size_t>(m - 1)];
        if (l != ueblich)
            return Schaden{personendatei(jahr, schicht, m),
                           "die Datei hält " + saetze(l / monatssatz) +
                               ", die übrigen Monatsdateien halten " +
                               saetze(ueblich / monatssatz)};
    }
    if (laenge[12] != januar / monatssatz * jahressatz)
        return Schaden{personendatei(jahr, schicht, 13),
                       "die Länge von " + std::to_string(laenge[12]) +
                           " Bytes passt nicht zu den " + saetze(januar / monatssatz) +
                           " der Monatsdateien"};
    return std::nullopt;
}

// A record of the month file of month `m` that a run could have written: it carries the month
// (and so is neither all FF nor all zeros), or it is all zeros (a record past the end reads so).
bool monatssatzgesund(std::span<const std::uint8_t> satz, int m) {
    return bytes::i16(satz, monatsfeld) == m - 1 ||
           std::all_of(satz.begin(), satz.end(), [](std::uint8_t c) { return c == 0; });
}

std::optional<Schaden> monatssaetzepruefen(const std::string& name, int m,
                                           std::span<const std::uint8_t> b) {
    for (std::size_t ab = 0; ab + monatssatz <= b.size(); ab += monatssatz) {
        const auto satz = b.subspan(ab, monatssatz);
        if (monatssatzgesund(satz, m))
            continue;
        const std::string nummer = std::to_string(ab / monatssatz + 1);
        if (std::all_of(satz.begin(), satz.end(), [](std::uint8_t c) { return c == 0xFF; }))
            return Schaden{name, "Satz " + nummer + " besteht nur aus FF-Bytes"};
        return Schaden{name, "Satz " + nummer + " trägt den Monat " +
                                 std::to_string(bytes::i16(satz, monatsfeld)) + " statt " +
                                 std::to_string(m - 1) + " (" + monatsnamen[m - 1] + ")"};
    }
    return std::nullopt;
}

std::optional<Schaden> saetzepruefen(const Schichtdateien& d, Pruefvermerk* vermerk) {
    for (int m = 1; m <= 12; ++m) {
        const Fund& f = d[static_cast<std::size_t>(m - 1)];
        if (vermerkt(vermerk, f))
            continue;
        const Abbild abbild(f.pfad);
        if (auto s = monatssaetzepruefen(f.name(), m, abbild.bytes()))
            return s;
        vermerken(vermerk, f.name(), abbild.kennung());
    }
    return std::nullopt;
}

// The control characters of the name records 5001 to 6000 among `b`, which lie from `ab` on:
// the byte offset of the first, if any.
std::optional<std::int64_t> steuerzeichenInNamen(std::span<const std::uint8_t> b, std::int64_t ab) {
    const std::int64_t von = std::max<std::int64_t>(ab, 5000 * textsatz);
    const std::int64_t bis =
        std::min<std::int64_t>(ab + static_cast<std::int64_t>(b.size()), 6000 * textsatz);
    for (std::int64_t i = von; i < bis; ++i)
        if (steuerzeichen(b[static_cast<std::size_t>(i - ab)]))
            return i;
    return std::nullopt;
}

// The month a file of the person set stands for, 13 for the year file, 0 for any other file
// ("L1997I.3", matched without regard to case as the set opens it).
int personendateinummer(const std::string& name) {
    if (name.size() < 8 || name.size() > 9 || std::toupper(name[0]) != 'L' ||
        name.compare(1, 3, "199") != 0 || (name[4] != '7' && name[4] != '8') || name[6] != '.')
        return 0;
    const char schicht = static_cast<char>(std::toupper(static_cast<unsigned char>(name[5])));
    if (schicht != 'I' && schicht != 'P' && schicht != 'R')
        return 0;
    int nummer = 0;
    for (std::size_t i = 7; i < name.size(); ++i) {
        if (name[i] < '0' || name[i] > '9')
            return 0;
        nummer = nummer * 10 + (name[i] - '0');
    }
    return name[7] != '0' && nummer >= 1 && nummer <= 13 ? nummer : 0;
}

bool ganzImBereich(Currency c, std::int64_t von, std::int64_t bis) {
    return c.roh() % 10000 == 0 && c >= Currency::ganz(von) && c <= Currency::ganz(bis);
}

bool imBereich(Currency c, std::int64_t von, std::int64_t bis) {
    return c >= Currency::ganz(von) && c <= Currency::ganz(bis);
}

bool ohneSteuerzeichen(const std::string& s) {
    return std::none_of(s.begin(), s.end(),
                        [](char c) { return steuerzeichen(static_cast<unsigned char>(c)); });
}

} // namespace

std::string Schaden::meldung() const {
    return "Die Datei " + datei + " ist beschädigt: " + grund +
           ". Das Programm schreibt nichts in diesen Arbeitsordner.";
}

Bestandsschaden::Bestandsschaden(Schaden s)
    : Dateifehler(s.datei, s.grund), schaden_(std::move(s)), meldung_(schaden_.meldung()) {}

bool steuerzeichen(unsigned char c) {
    return (c >= 1 && c < 0x20) || c == 0x7F;
}

std::optional<Schaden> personendateienpruefen(const Arbeitsordner& ordner, int jahr,
                                              Pruefvermerk* vermerk) {
    std::array<Schichtdateien, 3> schichten;
    const char buchstaben[3] = {'I', 'P', 'R'};
    for (std::size_t i = 0; i < 3; ++i) {
        schichten[i] = schichtfinden(ordner, jahr, buchstaben[i]);
        if (auto s = laengenpruefen(schichten[i], jahr, buchstaben[i]))
            return s;
    }
    for (const Schichtdateien& d : schichten)
        if (auto s = saetzepruefen(d, vermerk))
            return s;
    return std::nullopt;
}

std::optional<Schaden> textepruefen(const Arbeitsordner& ordner, Pruefvermerk* vermerk) {
    const Fund f = finden(ordner, "Texte.txt");
    if (vermerkt(vermerk, f))
        return std::nullopt;
    const Abbild abbild(f.pfad);
    // A record cut short at the end reads as zeros behind its bytes, and zeros are no control
    // characters.
    if (const auto stelle = steuerzeichenInNamen(abbild.bytes(), 0)) {
        const std::int64_t nummer = *stelle / textsatz + 1;
        return Schaden{"Texte.txt", "der Name in Satz " + std::to_string(nummer) + " (Person " +
                                        std::to_string(nummer - 5000) + ") enthält Steuerzeichen"};
    }
    vermerken(vermerk, f.name(), abbild.kennung());
    return std::nullopt;
}

std::optional<Schaden> bestandpruefen(const Arbeitsordner& ordner, int jahr,
                                      Pruefvermerk* vermerk) {
    if (auto s = textepruefen(ordner, vermerk))
        return s;
    return personendateienpruefen(ordner, jahr == 1998 ? 1998 : 1997, vermerk);
}

bool gesundgeschrieben(const std::string& name, std::int64_t versatz,
                       std::span<const std::uint8_t> b) {
    const int nummer = personendateinummer(name);
    if (nummer >= 1 && nummer <= 12)
        return versatz % monatssatz == 0 && static_cast<std::int64_t>(b.size()) % monatssatz == 0 &&
               !monatssaetzepruefen(name, nummer, b);
    if (nummer == 13)
        return true; // the check looks at the year file's length only
    if (name.size() == 9 && std::equal(name.begin(), name.end(), "texte.txt", [](char a, char c) {
            return std::tolower(static_cast<unsigned char>(a)) == c;
        }))
        return !steuerzeichenInNamen(b, versatz);
    return true;
}

std::optional<std::string> dimpruefen(const Dimsatz& d) {
    for (int z = 0; z <= 45; ++z)
        if (d.zeilenfarbe[z] < 0 || d.zeilenfarbe[z] > 15)
            return "die Farbe der Zeile " + std::to_string(z) + " ist " +
                   std::to_string(d.zeilenfarbe[z]) + ", erlaubt sind 0 bis 15";
    const Currency lage[] = {d.form1top, d.form1left, d.form1height, d.form1width,
                             d.form2top, d.form2left, d.form2height, d.form2width,
                             d.form3top, d.form3left, d.lstrtabtop,  d.lstrtableft};
    for (const Currency& c : lage)
        if (!imBereich(c, -1'000'000, 1'000'000))
            return "eine Fensterlage liegt mit " + c.text() + " Twips außerhalb jedes Bildschirms";
    if (d.anzahlpersonen < 0 || d.anzahlpersonen > 1000)
        return "die Personenzahl ist " + std::to_string(d.anzahlpersonen);
    return std::nullopt;
}

std::optional<std::string> voepruefen(const Voeinsatz& v) {
    for (const std::string* t : {&v.dienststelle1, &v.dienststelle2, &v.dienststellenort,
                                 &v.berichtszeile, &v.reserve0, &v.reserve20, &v.reserve40})
        if (!ohneSteuerzeichen(*t))
            return std::string("ein Text der Dienststelle enthält Steuerzeichen");
    for (int i = 0; i <= 40; ++i) {
        const Currency c = v.voreinstellung[i];
        const bool listenwert = i <= 28 && i != 17;
        if (listenwert ? !ganzImBereich(c, -1000, 1000) : !imBereich(c, -1'000'000, 1'000'000))
            return "die Voreinstellung " + std::to_string(i) + " ist " + c.text() +
                   " und liegt außerhalb jeder Liste";
    }
    for (int j = 2; j <= 11; ++j)
        if (v.vorgabewert[j] < 0 || v.vorgabewert[j] > 10'000'000)
            return "der Vorgabewert " + std::to_string(j) + " ist " +
                   std::to_string(v.vorgabewert[j]);
    return std::nullopt;
}

} // namespace lonvir
