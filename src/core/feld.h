// Arrays that keep their declared bounds, e.g. wert(0..45) or lst(7..19).
#pragma once

#include "core/laufzeitfehler.h"

#include <array>
#include <cstddef>

namespace lonvir {

// An index outside [Unten, Oben] raises run-time error 9, as the declared arrays do.
template <typename T, int Unten, int Oben> class Feld {
    static_assert(Unten <= Oben);

public:
    static constexpr int unten = Unten;
    static constexpr int oben = Oben;
    static constexpr std::size_t groesse = static_cast<std::size_t>(Oben - Unten + 1);

    constexpr Feld() : daten_{} {}

    T& operator[](int i) {
        pruefen(i);
        return daten_[static_cast<std::size_t>(i - Unten)];
    }
    const T& operator[](int i) const {
        pruefen(i);
        return daten_[static_cast<std::size_t>(i - Unten)];
    }

    void fuellen(const T& wert) { daten_.fill(wert); }
    bool operator==(const Feld&) const = default;

private:
    static void pruefen(int i) {
        if (i < Unten || i > Oben)
            throw Laufzeitfehler::indexfehler();
    }
    std::array<T, groesse> daten_;
};

} // namespace lonvir
