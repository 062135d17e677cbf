// The print entries of the menu.
#include "gui/druckauftrag.h"

#include "core/druckformat.h"
#include "druck/druckfenster.h"
#include "panels/arbeitsblaetter.h"
#include "reports/abzuegedrucken.h"
#include "reports/bdadrucken.h"
#include "reports/beitragsnachweis.h"
#include "reports/gehaltdrucken.h"
#include "reports/grafikdrucken.h"
#include "reports/lohnsteuernachweis.h"
#include "screen/schirmtexte.h"

#include <QApplication>

namespace lonvir::gui {

namespace {

// The entries of the statement, and the form each sets.
struct Statementeintrag {
    const char* name;
    const char* titel;
    int form;
};
constexpr Statementeintrag statements[] = {
    {"Mlinksbrutto", "Gehaltsberechnung nur brutto", nurbrutto},
    {"Mlinksnetto", "Gehaltsberechnung brutto/netto", bruttonetto},
    {"MlinksAG", "Gehaltsberechnung mit AG-Aufw.", mitarbeitgeber},
};

// "Gehaltsberechnung brutto/netto Schneider, Petra Januar 1997": the name of a saved PDF.
QString titelfuer(const char* bericht, const Schirmtexte& b) {
    return QString::fromUtf8(bericht) + QLatin1Char(' ') +
           QString::fromStdString(getrimmt(b.z[0])) + QLatin1Char(' ') +
           QString::fromStdString(getrimmt(b.z[20]));
}

void vorschauzeigen(Form1Fenster& fenster, const Merkdrucker& d, const QString& titel,
                    const QImage& formbild = QImage()) {
    if (d.dokumente.empty())
        return;
    druck::Druckvorschau vorschau(d.dokumente, titel, &fenster, formbild);
    vorschau.setObjectName(QStringLiteral("Druckvorschau"));
    // The hourglass of the running handler gives way to the arrow while the preview is up.
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    vorschau.exec();
    QApplication::restoreOverrideCursor();
}

} // namespace

void druckauftrag(Form1Fenster& fenster, Sitzung& s, const std::string& name) {
    const Schirmtexte texte = schirmtexte(fenster.modell().bild);
    Merkdrucker d;
    if (name == "MGraphik") {
        const QImage bild = fenster.grab().toImage();
        grafikdrucken(d);
        vorschauzeigen(fenster, d, titelfuer("Gehaltsberechnung als Graphik", texte), bild);
        grafikhinweis(s);
        return;
    }
    if (name == "MLst") {
        abzuegedrucken(
            s, texte, [&s](bool sv) { return arbeitsblaetterkopieren(s, sv); }, d);
        vorschauzeigen(fenster, d, titelfuer("LSt, Soz, ZVK", texte));
        return;
    }
    // The month's statements of the whole layer, from the stored records.
    if (name == "MBeitrag" || name == "MLstNachweis") {
        const bool beitrag = name == "MBeitrag";
        (beitrag ? beitragsnachweis : lohnsteuernachweis)(s, d);
        vorschauzeigen(fenster, d,
                       QString::fromUtf8(beitrag ? "Beitragsnachweis " : "Lohnsteuer-Nachweis ") +
                           QString::fromStdString(getrimmt(texte.z[20])));
        return;
    }
    for (const Statementeintrag& e : statements) {
        if (name == e.name) {
            gehaltdrucken(s, texte, e.form, d);
            vorschauzeigen(fenster, d, titelfuer(e.titel, texte));
            return;
        }
    }
}

void bdadruckauftrag(Form1Fenster& fenster, Sitzung& s, const Dienstalterblatt& blatt) {
    Merkdrucker d;
    bdadrucken(s, blatt, d);
    vorschauzeigen(fenster, d,
                   QStringLiteral("Berechnung des Besoldungsdienstalters (BDA) ") +
                       QString::fromStdString(blatt.name));
}

} // namespace lonvir::gui
