// The JSON writer of the CLI.
#include "cli/json.h"

#include <cstdio>

namespace lonvir::cli {

std::string Json::maskiert(std::string_view s) {
    std::string aus = "\"";
    for (char c : s) {
        switch (c) {
        case '"':
            aus += "\\\"";
            break;
        case '\\':
            aus += "\\\\";
            break;
        case '\n':
            aus += "\\n";
            break;
        case '\t':
            aus += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20) {
                char puffer[8];
                std::snprintf(puffer, sizeof puffer, "\\u%04x", c);
                aus += puffer;
            } else {
                aus += c;
            }
        }
    }
    return aus + "\"";
}

void Json::trenner(std::string_view schluessel) {
    if (!erstes_)
        aus_ += ",";
    erstes_ = false;
    if (!schluessel.empty())
        aus_ += maskiert(schluessel) + ":";
}

Json& Json::objektAnfang(std::string_view schluessel) {
    trenner(schluessel);
    aus_ += "{";
    erstes_ = true;
    return *this;
}

Json& Json::objektEnde() {
    aus_ += "}";
    erstes_ = false;
    return *this;
}

Json& Json::feldAnfang(std::string_view schluessel) {
    trenner(schluessel);
    aus_ += "[";
    erstes_ = true;
    return *this;
}

Json& Json::feldEnde() {
    aus_ += "]";
    erstes_ = false;
    return *this;
}

Json& Json::zahl(std::string_view schluessel, std::int64_t wert) {
    trenner(schluessel);
    aus_ += std::to_string(wert);
    return *this;
}

Json& Json::zahl(std::int64_t wert) {
    return zahl({}, wert);
}

Json& Json::roh(std::string_view schluessel, std::string_view jsontext) {
    trenner(schluessel);
    aus_ += jsontext;
    return *this;
}

Json& Json::text(std::string_view schluessel, std::string_view wert) {
    trenner(schluessel);
    aus_ += maskiert(wert);
    return *this;
}

Json& Json::text(std::string_view wert) {
    return text({}, wert);
}

} // namespace lonvir::cli
