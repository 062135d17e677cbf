// The panel as the main form's menu reaches it: a page opened by its number, a form of its own
// asked for, and the range of text records that form opens on.
#pragma once

#include <cstdint>
#include <string>

namespace lonvir {

class Seitenoeffner {
public:
    virtual ~Seitenoeffner() = default;
    // Shows the hourglass, makes `nummer` the current page and opens it.
    virtual void seiteoeffnen(int nummer) = 0;
    // Asks the face to show a form of its own, e.g. "KV" or "Textedit".
    virtual void formwuenschen(const std::string& name) = 0;
    // The range of text records the form Textedit opens on.
    virtual void textbereichsetzen(std::int16_t von, std::int16_t bis) = 0;
};

} // namespace lonvir
