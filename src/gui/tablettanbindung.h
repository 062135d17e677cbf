// The panel beside the live main screen, the menu bar and the navigation of Form1: the panel
// model and its view, the driver's refresh of the open page, the transfer buttons, the remark
// card button and the menu, wired to the window Form1. It lives no longer than the window.
#pragma once

#include "gui/form1fenster.h"
#include "gui/tablettfenster.h"
#include "panels/hauptbildauftrag.h"
#include "panels/tablett.h"
#include "screen/hauptmenue.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QObject>

#include <memory>

namespace lonvir::gui {

class Tablettanbindung : public QObject, private Anzeige {
    Q_OBJECT
public:
    Tablettanbindung(Form1Fenster& fenster, Sitzung& s, Hilfe* hilfe);
    ~Tablettanbindung() override;

    [[nodiscard]] Tablett& modell() { return t_; }
    [[nodiscard]] TablettFenster* ansicht() const { return ansicht_; }
    // The menu bar from the menu model; built again after every click on it.
    void menueaufbauen();
    // A click on the menu entry `name`.
    void menueklick(const std::string& name);
    // The panel's widgets from the model, and the result column shown or hidden.
    void darstellen();
    // Opens page `seite` as a menu entry or button does.
    void seiteoeffnen(int seite);
    // A form of its own, as MFarben shows Form14, or the password form of page 70.
    void formzeigen(const std::string& name);
    // A transfer button: between the layers, or in the preset mode transfer and cancel.
    void uebertragknopf(int von, int nach);
    // Shows the annual overview "Form3" or the totals "Form2" (their own unit).
    std::function<void(const std::string&)> uebersichtzeigen;

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

signals:
    // A form of its own (tariffs, rates, texts) has been shown.
    void formGezeigt(QDialog* form);

private:
    // Anzeige: the rows go to the main screen, the refresh of the page to the panel.
    void zeilemalen(int zeile) override { f_.modell().zeilemalen(zeile); }
    void tablettauffrischen() override;
    void mauszeigerNormal() override { f_.modell().mauszeigerNormal(); }

    void ausfuehren(const std::function<void()>& handler);
    [[nodiscard]] Hauptbildauftrag hauptbildauftrag();
    void formlageholen();
    [[nodiscard]] double twipsJePixel() const;

    Form1Fenster& f_;
    Sitzung& s_;
    Form1lage lage_;
    Tablett t_;
    Menueziel ziel_;
    TablettFenster* ansicht_ = nullptr;
    bool neuzeichnen_ = false;
    QElapsedTimer zwischendurch_;
    class LStrTabFenster* lstrtab_ = nullptr; // the table viewer, once opened
};

} // namespace lonvir::gui
