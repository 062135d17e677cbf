// A small writer of JSON text: objects, arrays, numbers and strings in order of insertion.
#pragma once

#include "core/currency.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace lonvir::cli {

class Json {
public:
    Json& objektAnfang(std::string_view schluessel = {});
    Json& objektEnde();
    Json& feldAnfang(std::string_view schluessel = {});
    Json& feldEnde();
    Json& zahl(std::string_view schluessel, std::int64_t wert);
    Json& zahl(std::int64_t wert);
    Json& roh(std::string_view schluessel, std::string_view jsontext);
    Json& text(std::string_view schluessel, std::string_view wert);
    Json& text(std::string_view wert);

    [[nodiscard]] const std::string& ergebnis() const { return aus_; }
    [[nodiscard]] static std::string maskiert(std::string_view s);

private:
    void trenner(std::string_view schluessel);
    std::string aus_;
    bool erstes_ = true;
};

// A bounded array as a JSON array; Currency elements as numbers with four decimals.
template <typename F> void feldJson(Json& j, std::string_view name, const F& f) {
    j.feldAnfang(name);
    for (int i = F::unten; i <= F::oben; ++i) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(f[i])>, Currency>)
            j.roh({}, f[i].text());
        else
            j.zahl(f[i]);
    }
    j.feldEnde();
}

// The six switch arrays of a record or the working set, in the order of the record.
template <typename S> void schalterJson(Json& j, const S& s) {
    feldJson(j, "lst", s.lst);
    feldJson(j, "soz", s.soz);
    feldJson(j, "zvk", s.zvk);
    feldJson(j, "wei", s.wei);
    feldJson(j, "tei", s.tei);
    feldJson(j, "bru", s.bru);
}

} // namespace lonvir::cli
