// zeilendrucken: a stored text with carriage returns printed at column 10.
#include "reports/zeilendrucken.h"

#include "core/druckformat.h"

namespace lonvir {

void zeilendrucken(Drucker& d, std::string text) {
    text = getrimmt(text);
    while (!text.empty()) {
        const auto cr = text.find('\r');
        if (cr == std::string::npos) {
            d.Print({Tab{10}, text});
            return;
        }
        d.Print({Tab{10}, text.substr(0, cr)}, Zeilenende::bleiben);
        std::string rest = text.substr(cr + 1);
        if (!rest.empty() && rest.front() == '\n') {
            // The line feed behind the carriage return ends the printed line.
            d.Print({});
            rest.erase(0, 1);
        }
        text = getrimmt(rest);
    }
}

} // namespace lonvir
