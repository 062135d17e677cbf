// What the forms and pages that keep the tables ask of the main screen after a change, and
// the number reading they share.
#pragma once

#include "start/sitzung.h"

#include <functional>
#include <string>

namespace lonvir {

struct Hauptbildauftrag {
    // The left column from the current person's month, with the run (the screen's refresh).
    std::function<void()> bildauffrischen;
    // Every list of the main screen built again from the text table, then the refresh.
    std::function<void()> listenauffrischen;
    // The rate lists rebuilt and the run for the person, with the later months in step.
    std::function<void()> nachrechnen;
};

// Without a screen: the refresh loads the current month and runs it; the lists are the text
// table itself; the run after a rate change also recalculates the later months.
[[nodiscard]] Hauptbildauftrag kernauftrag(Sitzung& s);

// The number at the start of a text, as the forms read a field: blanks in front, a sign,
// digits, a full stop and decimals; anything else ends it. An empty text is 0.
[[nodiscard]] double textzahl(const std::string& text);

// The number of characters of a UTF-8 text.
[[nodiscard]] std::size_t zeichenzahl(const std::string& utf8);

} // namespace lonvir
