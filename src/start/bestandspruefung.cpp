// The checks of the store at open, file by file, record by record.
#include "start/bestandspruefung.h"

#include "records/bytes.h"

#include <algorithm>
#include <array>
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

// A file's bytes mapped for reading, without a copy: the check looks at every record of the
// store at each start. An absent, empty or unreadable file has no bytes.
class Abbild {
public:
    Abbild(const Arbeitsordner& ordner, const std::string& name) {
        const int fd = ::open(ordner.pfad(name).c_str(), O_RDONLY | O_CLOEXEC);
        if (fd < 0)
            return;
        struct stat st {};
        if (::fstat(fd, &st) == 0 && st.st_size > 0) {
            void* p = ::mmap(nullptr, static_cast<std::size_t>(st.st_size), PROT_READ, MAP_PRIVATE,
                             fd, 0);
            if (p != MAP_FAILED) {
                daten_ = static_cast<const std::uint8_t*>(p);
                laenge_ = static_cast<std::size_t>(st.st_size);
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

private:
    const std::uint8_t* daten_ = nullptr;
    std::size_t laenge_ = 0;
};

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

std::optional<Schaden> laengenpruefen(const Arbeitsordner& ordner, int jahr, char schicht) {
    std::array<std::int64_t, 13> laenge{};
    for (int m = 1; m <= 13; ++m)
        laenge[static_cast<std::size_t>(m - 1)] =
            static_cast<std::int64_t>(ordner.laenge(personendatei(jahr, schicht, m)));
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

std::optional<Schaden> saetzepruefen(const Arbeitsordner& ordner, int jahr, char schicht) {
    for (int m = 1; m <= 12; ++m) {
        const std::string name = personendatei(jahr, schicht, m);
        const Abbild abbild(ordner, name);
        const std::span<const std::uint8_t> b = abbild.bytes();
        for (std::size_t ab = 0; ab + monatssatz <= b.size(); ab += monatssatz) {
            const auto satz = b.subspan(ab, monatssatz);
            // The month the file stands for: neither all FF nor all zeros, a sound record.
            if (bytes::i16(satz, monatsfeld) == m - 1)
                continue;
            const std::string nummer = std::to_string(ab / monatssatz + 1);
            if (std::all_of(satz.begin(), satz.end(), [](std::uint8_t c) { return c == 0xFF; }))
                return Schaden{name, "Satz " + nummer + " besteht nur aus FF-Bytes"};
            if (std::all_of(satz.begin(), satz.end(), [](std::uint8_t c) { return c == 0; }))
                continue;
            const std::int16_t monat = bytes::i16(satz, monatsfeld);
            if (monat != m - 1)
                return Schaden{name, "Satz " + nummer + " trägt den Monat " +
                                         std::to_string(monat) + " statt " + std::to_string(m - 1) +
                                         " (" + monatsnamen[m - 1] + ")"};
        }
    }
    return std::nullopt;
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

std::optional<Schaden> personendateienpruefen(const Arbeitsordner& ordner, int jahr) {
    for (char schicht : {'I', 'P', 'R'})
        if (auto s = laengenpruefen(ordner, jahr, schicht))
            return s;
    for (char schicht : {'I', 'P', 'R'})
        if (auto s = saetzepruefen(ordner, jahr, schicht))
            return s;
    return std::nullopt;
}

std::optional<Schaden> textepruefen(const Arbeitsordner& ordner) {
    const std::string name = "Texte.txt";
    const Abbild abbild(ordner, name);
    const std::span<const std::uint8_t> b = abbild.bytes();
    for (std::int64_t nummer = 5001; nummer <= 6000; ++nummer) {
        const std::size_t ab = static_cast<std::size_t>((nummer - 1) * textsatz);
        if (ab >= b.size())
            break;
        // A record cut short at the end reads as zeros behind its bytes.
        const auto satz = b.subspan(ab, std::min<std::size_t>(textsatz, b.size() - ab));
        if (std::any_of(satz.begin(), satz.end(), steuerzeichen))
            return Schaden{name, "der Name in Satz " + std::to_string(nummer) + " (Person " +
                                     std::to_string(nummer - 5000) + ") enthält Steuerzeichen"};
    }
    return std::nullopt;
}

std::optional<Schaden> bestandpruefen(const Arbeitsordner& ordner, int jahr) {
    if (auto s = textepruefen(ordner))
        return s;
    return personendateienpruefen(ordner, jahr == 1998 ? 1998 : 1997);
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
