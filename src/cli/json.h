// A small writer of JSON text: objects, arrays, numbers and strings in order of insertion.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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

} // namespace lonvir::cli
