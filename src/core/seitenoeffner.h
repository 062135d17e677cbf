// The panel as the main form's menu reaches it: a page opened by its number.
#pragma once

namespace lonvir {

class Seitenoeffner {
public:
    virtual ~Seitenoeffner() = default;
    // Shows the hourglass, makes `nummer` the current page and opens it.
    virtual void seiteoeffnen(int nummer) = 0;
};

} // namespace lonvir
