// Summing the staff's stored months by cost column, person and month.
#include "reports/jahressummen.h"

#include "core/druckformat.h"
#include "core/laufzeitfehler.h"
#include "core/pfennig.h"
#include "start/satzzugriff.h"
#include "start/texte.h"

#include <map>

namespace lonvir {

namespace {

std::int32_t summe(std::initializer_list<std::int32_t> werte) {
    std::int32_t s = 0;
    for (std::int32_t w : werte)
        s = pf::plus(s, w);
    return s;
}

// 2.3 to 2.6: the cells of one person's month from its record.
void monatsetzen(Personenwerte& z, int m, const Personalsatz& p) {
    const int art = p.merkmal[4];
    const auto& n = p.nebenwert;
    const auto& w = p.wert;
    if (art >= 0 && art <= 4) {
        z[slot::beamtenbezuege][m] = w[22];
        z[slot::versorgungBeamte][m] = w[31];
        // A civil servant has no slot 9: the taxes the employer bears are not counted here.
    } else if ((art >= 5 && art <= 7) || (art >= 12 && art <= 17)) {
        z[slot::angestelltenverguetung][m] = w[22];
        z[slot::sozialAngestellte][m] = summe({n[0], n[1], n[2], n[3]});
        z[slot::zvkUmlage][m] = w[31];
        z[slot::agSteuern][m] = summe({w[6], w[32], n[4], n[5], n[6]});
    } else if (art >= 8 && art <= 11) {
        z[slot::arbeiterloehne][m] = w[22];
        z[slot::sozialArbeiter][m] = summe({n[0], n[1], n[2], n[3]});
        z[slot::zvkUmlage][m] = w[31];
        z[slot::agSteuern][m] = summe({w[6], w[32], n[4], n[5], n[6]});
    }
    // Staff class 18 counts in no column.
    std::int32_t gesamt = 0;
    for (int k = slot::beamtenbezuege; k <= slot::agSteuern; ++k)
        gesamt = pf::plus(gesamt, z[k][m]);
    z[slot::gesamt][m] = gesamt;
}

// The cost centre texts read once each; the store holds at most 200 of them.
class Kostenstellentexte {
public:
    explicit Kostenstellentexte(Sitzung& s) : s_(s) {}
    const std::string& text(int merkmal27) {
        auto it = texte_.find(merkmal27);
        if (it == texte_.end())
            it = texte_.emplace(merkmal27, textlesen(s_, textnummer::ersteKostenstelle + merkmal27))
                     .first;
        return it->second;
    }

private:
    Sitzung& s_;
    std::map<int, std::string> texte_;
};

} // namespace

std::int32_t Jahressummen::wert(int p, int k, int m) const {
    if (p < 1 || p > static_cast<int>(monatswerte.size()))
        throw Laufzeitfehler::indexfehler();
    return monatswerte[static_cast<std::size_t>(p - 1)][k][m];
}

std::int16_t letzterbediensteter(Sitzung& s) {
    for (int p = s.anzahlnamen; p >= 1; --p)
        if (personalsatzlesen(s, 12, p).wert[22] > 0)
            return static_cast<std::int16_t>(p);
    return 10;
}

Jahressummen jahressummen(Sitzung& s, const Kostenstellenwahl& wahl) {
    // 1.
    Jahressummen j;
    j.bedienstetenzahl = letzterbediensteter(s);
    j.monatswerte.assign(static_cast<std::size_t>(j.bedienstetenzahl), Personenwerte{});
    j.kostenstelle = getrimmt(wahl.kostenstelle);
    // 2.
    Kostenstellentexte texte(s);
    for (int p = 1; p <= j.bedienstetenzahl; ++p) {
        Personenwerte& z = j.monatswerte[static_cast<std::size_t>(p - 1)];
        for (int m = 1; m <= 12; ++m) {
            const Personalsatz satz = personalsatzlesen(s, m, p);
            // 2.1 A plain substring search, with case: a short choice matches longer names.
            const bool zaehlt =
                wahl.position == 0 ||
                texte.text(satz.merkmal[27]).find(j.kostenstelle) != std::string::npos;
            if (!zaehlt)
                continue;
            // 2.2
            j.personenwahl[p] = static_cast<std::int16_t>(p);
            monatsetzen(z, m, satz);
        }
    }
    // 3. The year per person, the totals and the sums per month.
    for (int p = 1; p <= j.bedienstetenzahl; ++p) {
        Personenwerte& z = j.monatswerte[static_cast<std::size_t>(p - 1)];
        for (int k = slot::beamtenbezuege; k <= slot::gesamt; ++k) {
            for (int m = 1; m <= 12; ++m) {
                z[k][13] = pf::plus(z[k][13], z[k][m]);
                j.monatssummen[m][k] = pf::plus(j.monatssummen[m][k], z[k][m]);
            }
            j.gesamtsummen[k] = pf::plus(j.gesamtsummen[k], z[k][13]);
        }
    }
    return j;
}

std::string tausenderbild(std::int32_t betrag) {
    // The digits with "," before the last two and "." between the thousands; a value below
    // one DM keeps only its digits, the mask brings the "0,".
    const std::int64_t betragswert = betrag < 0 ? -static_cast<std::int64_t>(betrag) : betrag;
    const std::string ziffern = std::to_string(betragswert);
    std::string bild = ziffern;
    if (ziffern.size() >= 3) {
        std::string ganz = ziffern.substr(0, ziffern.size() - 2);
        for (int i = static_cast<int>(ganz.size()) - 3; i > 0; i -= 3)
            ganz.insert(static_cast<std::size_t>(i), ".");
        bild = ganz + "," + ziffern.substr(ziffern.size() - 2);
    }
    static const std::string maske = "___.___.__0,0";
    std::string aus = maske.substr(0, 14 - bild.size()) + bild;
    if (betrag < 0)
        aus[0] = '-';
    return aus;
}

} // namespace lonvir
