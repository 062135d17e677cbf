// What the main screen shows in its rows, as the printed statements read it: the text of
// each list z(row) and of each box t(row).
#pragma once

#include <array>
#include <string>

namespace lonvir {

struct Schirmtexte {
    std::array<std::string, 46> z;  // UTF-8; empty where the row has no list or no entry shown
    std::array<std::string, 46> t;  // UTF-8; empty where the row has no box
    std::array<int, 46> position{}; // the list position shown; -1 for none
};

} // namespace lonvir
