// Help as a window of its own: the topic of a help context is the page hilfe/<context>.html
// of the working folder, or of the installation the program was built with.
#pragma once

#include "core/hilfe.h"

#include <QString>
#include <QTextBrowser>

namespace lonvir::gui {

class HilfeFenster : public QTextBrowser, public Hilfe {
    Q_OBJECT
public:
    explicit HilfeFenster(QString ordner, QWidget* eltern = nullptr);
    // Shows the topic and brings the window to the front.
    void zeigen(int kontext) override;
    [[nodiscard]] int letzterKontext() const { return letzter_; }
    // The page of a context; empty when neither folder has one.
    [[nodiscard]] QString seite(int kontext) const;

private:
    QString ordner_;
    int letzter_ = 0;
};

} // namespace lonvir::gui
