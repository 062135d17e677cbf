// Help as a window of its own: the topic of a help context is the page hilfe/<context>.html
// of the working folder, or of the installation the program was built with. The window closes
// with its button "Schließen" and with Escape; a table reads as a table, one line per row, with
// a horizontal scroll bar where it is wider than the window.
#pragma once

#include "core/hilfe.h"

#include <QString>
#include <QWidget>

class QPushButton;
class QTextBrowser;

namespace lonvir::gui {

class HilfeFenster : public QWidget, public Hilfe {
    Q_OBJECT
public:
    explicit HilfeFenster(QString ordner, QWidget* eltern = nullptr);
    // Shows the topic and brings the window to the front, sized for a table it holds.
    void zeigen(int kontext) override;
    [[nodiscard]] int letzterKontext() const { return letzter_; }
    // The page of a context; empty when neither folder has one.
    [[nodiscard]] QString seite(int kontext) const;
    [[nodiscard]] QString toPlainText() const;
    [[nodiscard]] QTextBrowser* browser() const { return browser_; }
    [[nodiscard]] QPushButton* schliessenknopf() const { return schliessen_; }

protected:
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    void groesseanpassen();

    QString ordner_;
    QTextBrowser* browser_ = nullptr;
    QPushButton* schliessen_ = nullptr;
    int letzter_ = 0;
};

} // namespace lonvir::gui
