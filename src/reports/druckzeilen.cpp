// The print-line helpers of the statements.
#include "reports/druckzeilen.h"

#include "core/druckformat.h"

namespace lonvir {

namespace {

// The trim of a pass: the blanks on both sides, and the line feed that a carriage return
// left in front, which has already ended the printed line before.
std::string passtext(const std::string& text) {
    std::string t = getrimmt(text);
    while (!t.empty() && t.front() == '\n')
        t = getrimmt(t.substr(1));
    return t;
}

} // namespace

void zeilendrucken(Drucker& d, std::string& drucktext) {
    drucktext = passtext(drucktext);
    while (!drucktext.empty()) {
        const auto cr = drucktext.find('\r');
        if (cr == std::string::npos) {
            d.Print({Tab{10}, drucktext});
            drucktext.clear();
            break;
        }
        d.Print({Tab{10}, drucktext.substr(0, cr)}, Zeilenende::bleiben);
        drucktext = passtext(drucktext.substr(cr + 1));
    }
}

void strichzeile(Drucker& d) {
    d.Print({Tab{10}, std::string(strichlinie)});
}

} // namespace lonvir
