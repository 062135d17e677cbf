// Code page 1252, the single-byte encoding of every text in the files, to and from UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace lonvir {

// Characters that code page 1252 cannot hold become '?'.
[[nodiscard]] std::string utf8NachCp1252(std::string_view utf8);
[[nodiscard]] std::string cp1252NachUtf8(std::string_view cp1252);

} // namespace lonvir
