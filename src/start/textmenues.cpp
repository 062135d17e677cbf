// The entries of the menu "Txt" and their ranges of text records.
#include "start/textmenues.h"

namespace lonvir {

const std::vector<Textmenue>& textmenues() {
    static const std::vector<Textmenue> menues = {
        {"MNamen", "Namen eingeben", 5001, 6000},
        {"MTKostenstellen", "Kostenstellen", 4801, 5000},
        {"MTa", "Dienstbez. Bes.Ordn. A", 1, 530},
        {"MTB", "Dienstbez. Bes.Ordn. B", 531, 850},
        {"MTC", "Dienstbez. Bes.Ordn. C", 851, 890},
        {"MTR", "Dienstbez. Bes.Ordn. R", 891, 1080},
        {"MTAnwärter", "Dienstbez. Anwärter", 1091, 1100},
        {"MTBAT", "Dienstbez. BAT (B/L, VKA)", 1101, 1430},
        {"MTPflege", "Dienstbez. Pflegedienst", 1431, 1570},
        {"MTArbeiter", "Dienstbez. Arbeiter", 1571, 1740},
        {"MTFahrer", "Dienstbez. Kraftfahrer", 1741, 1788},
        {"MTAzubi", "Dienstbez. Auszubildende", 1791, 1825},
        {"MTKirche", "Dienstbez. AVR-Kirche (BAT)", 1831, 2030},
        {"MTAVRC", "Dienstbez. AVR-Caritas", 2041, 2240},
        {"MTAVRP", "Dienstbez. AVR-Parit.", 2251, 2510},
        {"MTBahn", "Dienstbez. Deutsche Bahn", 2521, 2670},
        {"MTAussertar", "Dienstbez. Außertarifl.Bed.", 2681, 2880},
        {"MTZulagen", "Bezeichnungen der Zulagen", 3390, 3449},
        {"MTeinmalige", "Bez.d.einmaligen Zuwendungen", 3472, 3486},
        {"MTEinbehalte", "Bez. der Einbehalte", 3713, 3742},
        {"MTalles", "Alles", 1, 6000},
    };
    return menues;
}

} // namespace lonvir
