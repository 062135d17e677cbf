// Packing and defaults of the person-month record.
#include "records/personalsatz.h"

#include "core/laufzeitfehler.h"
#include "records/bytes.h"

namespace lonvir {

Personalsatz Personalsatz::neu(std::int16_t monat) {
    Personalsatz p;
    p.merkmal[13] = 19;
    p.merkmal[14] = 6;
    p.merkmal[20] = monat;
    p.merkmal[41] = 5;
    p.merkmal[42] = 14;
    p.merkmal[43] = 16;
    p.wert[0] = 3850; // Wochenstunden normal
    p.wert[1] = 3850; // Teilzeit-Wochenstunden
    p.wert[2] = 3000; // Arbeitstage normal
    p.wert[3] = 3000; // zu bezahlende Arbeitstage
    for (Schalter* s : {&p.lst, &p.soz, &p.zvk, &p.wei, &p.tei, &p.bru})
        s->fuellen(1);
    // Overtime and the one-off rows carry no supplementary pension or Christmas bonus.
    p.zvk[15] = 0;
    p.zvk[17] = 0;
    p.wei[17] = 0;
    p.wei[18] = 0;
    p.wei[19] = 0;
    p.bru[16] = 0;
    p.bdabeginn = "01.1997";
    return p;
}

Personalsatz Personalsatz::lesen(std::span<const std::uint8_t> b) {
    Personalsatz p;
    bytes::feldLesen(p.merkmal, b, abMerkmal);
    bytes::feldLesen(p.wert, b, abWert);
    bytes::feldLesen(p.nebenwert, b, abNebenwert);
    bytes::feldLesen(p.lst, b, abLst);
    bytes::feldLesen(p.soz, b, abSoz);
    bytes::feldLesen(p.zvk, b, abZvk);
    bytes::feldLesen(p.wei, b, abWei);
    bytes::feldLesen(p.tei, b, abTei);
    bytes::feldLesen(p.bru, b, abBru);
    p.bdabeginn = bytes::text(b, abBdabeginn, 7);
    return p;
}

std::int32_t Personalsatz::wertLesen(std::span<const std::uint8_t> b, int zeile) {
    if (zeile < 0 || zeile > 45)
        throw Laufzeitfehler::indexfehler();
    return bytes::i32(b, abWert + 4 * static_cast<std::size_t>(zeile));
}

void Personalsatz::schreiben(std::span<std::uint8_t> b) const {
    bytes::feldSchreiben(merkmal, b, abMerkmal);
    bytes::feldSchreiben(wert, b, abWert);
    bytes::feldSchreiben(nebenwert, b, abNebenwert);
    bytes::feldSchreiben(lst, b, abLst);
    bytes::feldSchreiben(soz, b, abSoz);
    bytes::feldSchreiben(zvk, b, abZvk);
    bytes::feldSchreiben(wei, b, abWei);
    bytes::feldSchreiben(tei, b, abTei);
    bytes::feldSchreiben(bru, b, abBru);
    bytes::setzeText(b, abBdabeginn, 7, bdabeginn);
}

std::array<std::uint8_t, Personalsatz::laenge> Personalsatz::bytes() const {
    std::array<std::uint8_t, laenge> b{};
    schreiben(b);
    return b;
}

} // namespace lonvir
