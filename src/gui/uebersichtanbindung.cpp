// Opening the overview forms and carrying their choices back to the main screen.
#include "gui/uebersichtanbindung.h"

#include "core/druckformat.h"

namespace lonvir::gui {

Uebersichtanbindung::Uebersichtanbindung(Form1Fenster& fenster, Tablettanbindung& tablett,
                                         Sitzung& s, Druckauftrag drucken)
    : QObject(&fenster), f_(fenster), t_(tablett), s_(s), drucken_(std::move(drucken)) {
    t_.uebersichtzeigen = [this](const std::string& name) { zeigen(name); };
}

void Uebersichtanbindung::zeigen(const std::string& name) {
    if (name == "Form3") {
        jahresuebersicht(s_.aktuelleperson);
        return;
    }
    if (name != "Form2")
        return;
    const Tablettliste& liste = t_.modell().Combo[0];
    Kostenstellenwahl wahl;
    wahl.position = std::max(0, liste.position);
    if (liste.position >= 0 && static_cast<std::size_t>(liste.position) < liste.liste.size() &&
        liste.position > 0)
        wahl.kostenstelle = getrimmt(liste.liste[static_cast<std::size_t>(liste.position)]);
    if (form2_)
        form2_->close();
    form2_ = new Form2Fenster(s_, wahl, drucken_, &f_);
    connect(form2_, &QObject::destroyed, this, [this] { form2_ = nullptr; });
    connect(form2_, &Form2Fenster::personGewaehlt, this,
            [this](int person) { jahresuebersicht(static_cast<std::int16_t>(person)); });
    form2_->laden();
}

void Uebersichtanbindung::jahresuebersicht(std::int16_t person) {
    if (f_.isMinimized())
        f_.showNormal();
    if (!form3_) {
        form3_ = new Form3Fenster(s_, drucken_, &f_);
        connect(form3_, &Form3Fenster::monatGewaehlt, this, [this] {
            // The month and person of the click: the main screen shows them.
            f_.modell().bildauffrischen();
            f_.darstellen();
            t_.darstellen();
            f_.raise();
            f_.activateWindow();
        });
    }
    form3_->oeffnen(person);
}

} // namespace lonvir::gui
