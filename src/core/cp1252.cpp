// Code page 1252: Latin-1 with the printable characters of 0x80..0x9F.
#include "core/cp1252.h"

#include <array>
#include <cstdint>

namespace lonvir {

namespace {

// Unicode of 0x80..0x9F; 0 where the code page leaves the byte undefined.
constexpr std::array<char32_t, 32> obererBlock = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char32_t zeichen(unsigned char b) {
    if (b >= 0x80 && b < 0xA0)
        return obererBlock[b - 0x80] ? obererBlock[b - 0x80] : b;
    return b;
}

char byteFuer(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (std::size_t i = 0; i < obererBlock.size(); ++i)
        if (obererBlock[i] == c)
            return static_cast<char>(0x80 + i);
    return '?';
}

void anhaengen(std::string& aus, char32_t c) {
    if (c < 0x80) {
        aus += static_cast<char>(c);
    } else if (c < 0x800) {
        aus += static_cast<char>(0xC0 | (c >> 6));
        aus += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        aus += static_cast<char>(0xE0 | (c >> 12));
        aus += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        aus += static_cast<char>(0x80 | (c & 0x3F));
    }
}

} // namespace

std::string cp1252NachUtf8(std::string_view cp1252) {
    std::string aus;
    aus.reserve(cp1252.size());
    for (char b : cp1252)
        anhaengen(aus, zeichen(static_cast<unsigned char>(b)));
    return aus;
}

std::string utf8NachCp1252(std::string_view utf8) {
    std::string aus;
    aus.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        auto b = static_cast<unsigned char>(utf8[i]);
        char32_t c = 0;
        std::size_t laenge = 1;
        if (b < 0x80) {
            c = b;
        } else if ((b & 0xE0) == 0xC0) {
            c = b & 0x1F;
            laenge = 2;
        } else if ((b & 0xF0) == 0xE0) {
            c = b & 0x0F;
            laenge = 3;
        } else if ((b & 0xF8) == 0xF0) {
            c = b & 0x07;
            laenge = 4;
        } else {
            aus += '?';
            ++i;
            continue;
        }
        if (i + laenge > utf8.size()) {
            aus += '?';
            break;
        }
        for (std::size_t k = 1; k < laenge; ++k)
            c = (c << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        aus += byteFuer(c);
        i += laenge;
    }
    return aus;
}

} // namespace lonvir
