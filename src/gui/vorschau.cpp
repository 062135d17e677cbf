// The preview of a recorded report.
#include "gui/vorschau.h"

#include "druck/druckfenster.h"

namespace lonvir::gui {

Druckauftrag vorschaudruck(QWidget* eltern) {
    return [eltern](const QString& titel, const std::function<void(Drucker&)>& bericht) {
        Merkdrucker d;
        bericht(d);
        druck::Druckvorschau vorschau(std::move(d.dokumente), titel, eltern);
        vorschau.exec();
    };
}

} // namespace lonvir::gui
