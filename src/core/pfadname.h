// The name of a file within its folder, taken from the path's text: what `filename()` gives on
// this system (everything after the last '/'), without building a path object for it.
#pragma once

#include <filesystem>
#include <string>

namespace lonvir {

[[nodiscard]] inline std::string dateinamevon(const std::filesystem::path& pfad) {
    const std::string& roh = pfad.native();
    const auto strich = roh.rfind('/');
    return strich == std::string::npos ? roh : roh.substr(strich + 1);
}

} // namespace lonvir
