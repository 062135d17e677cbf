// lonvir97: the start form, the session on the working folder, the main form Form1.
#include "core/laufzeitfehler.h"
#include "core/programmende.h"
#include "gui/deutsch.h"
#include "gui/form1fenster.h"
#include "gui/hilfefenster.h"
#include "gui/passwortfenster.h"
#include "gui/qtdialoge.h"
#include "gui/startform.h"
#include "gui/tablettanbindung.h"
#include "gui/twips.h"
#include "gui/uebersichtanbindung.h"
#include "gui/vorschau.h"
#include "start/bestandspruefung.h"
#include "start/start.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>

#include <iostream>

namespace {

struct Aufruf {
    QString ordner;
    QString bildschirmfoto; // file of a picture of the window, then the program ends
    QSize groesse;          // window size for the picture
    int seite = 0;          // a page of the panel opened for the picture
    QString form;           // a form shown for the picture: Form14 or Password
    QString markiert;       // the preset mode for the records VON-BIS, for the picture
    QString menue;          // a menu entry clicked for the picture; a form it shows is taken
    QString suche;          // a name searched on page 22 for the picture
    int hilfe = 0;          // a help topic whose window is the picture
};

Aufruf aufrufLesen(const QApplication& app) {
    QCommandLineParser p;
    p.setApplicationDescription(QStringLiteral("Gehaltsrechner für den öffentlichen Dienst"));
    p.addHelpOption();
    const QCommandLineOption ordner(QStringLiteral("ordner"), QStringLiteral("Arbeitsordner"),
                                    QStringLiteral("DIR"));
    const QCommandLineOption foto(QStringLiteral("bildschirmfoto"),
                                  QStringLiteral("Bild des Fensters in DATEI, dann Ende"),
                                  QStringLiteral("DATEI"));
    const QCommandLineOption groesse(QStringLiteral("groesse"),
                                     QStringLiteral("Fenstergröße für das Bild, BREITExHÖHE"),
                                     QStringLiteral("BxH"));
    const QCommandLineOption seite(QStringLiteral("seite"),
                                   QStringLiteral("Seite des Tabletts für das Bild"),
                                   QStringLiteral("N"));
    const QCommandLineOption menue(QStringLiteral("menue"),
                                   QStringLiteral("Menüpunkt für das Bild, z. B. M_KV"),
                                   QStringLiteral("NAME"));
    const QCommandLineOption form(QStringLiteral("form"),
                                  QStringLiteral("Form für das Bild: Form14, Password, Form3 "
                                                 "oder Form2"),
                                  QStringLiteral("NAME"));
    const QCommandLineOption markiert(
        QStringLiteral("voreinstellung"),
        QStringLiteral("Hauptbild im Voreinstellungsmodus für die Datensätze VON-BIS"),
        QStringLiteral("VON-BIS"));
    const QCommandLineOption suche(QStringLiteral("suche"),
                                   QStringLiteral("Namenssuche der Seite 22 für das Bild"),
                                   QStringLiteral("TEXT"));
    const QCommandLineOption hilfe(QStringLiteral("hilfe"),
                                   QStringLiteral("Hilfethema, dessen Fenster das Bild ist"),
                                   QStringLiteral("KONTEXT"));
    p.addOptions({ordner, foto, groesse, seite, form, markiert, menue, suche, hilfe});
    p.process(app);
    Aufruf a;
    a.ordner = p.isSet(ordner) ? p.value(ordner)
                               : QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    a.bildschirmfoto = p.value(foto);
    const QStringList teile = p.value(groesse).split(QLatin1Char('x'));
    if (teile.size() == 2)
        a.groesse = QSize(teile[0].toInt(), teile[1].toInt());
    a.seite = p.value(seite).toInt();
    a.form = p.value(form);
    a.markiert = p.value(markiert);
    a.menue = p.value(menue);
    a.suche = p.value(suche);
    a.hilfe = p.value(hilfe).toInt();
    return a;
}

// The picture of a run without --groesse shows the window where it opened; with it, the
// window as the user sized it. Either way the run ends as a close does: the place is stored,
// and the next start opens there.
void fotografieren(lonvir::gui::Form1Fenster& fenster, lonvir::gui::Tablettanbindung& tablett,
                   lonvir::gui::HilfeFenster& hilfe, const Aufruf& a) {
    fenster.geometrieFesthalten();
    if (a.groesse.isValid()) {
        fenster.setWindowState(Qt::WindowNoState);
        fenster.resize(a.groesse);
    }
    // A form that a page or a menu entry shows is the picture itself.
    static QPointer<QDialog> form;
    QObject::connect(&tablett, &lonvir::gui::Tablettanbindung::formGezeigt, &fenster,
                     [](QDialog* f) { form = f; });
    QTimer::singleShot(500, &fenster, [&fenster, &tablett, &hilfe, a] {
        fenster.bildausrechnen(true);
        fenster.darstellen();
        fenster.platzMerken();
        if (a.hilfe > 0) {
            hilfe.zeigen(a.hilfe);
            QApplication::processEvents();
            QApplication::exit(hilfe.grab().save(a.bildschirmfoto) ? 0 : 4);
            return;
        }
        if (a.seite > 0)
            tablett.seiteoeffnen(a.seite);
        const QStringList bereich = a.markiert.split(QLatin1Char('-'));
        if (bereich.size() == 2) {
            lonvir::voreinstellmodusbeginnen(fenster.modell(), bereich[0].toInt(),
                                             bereich[1].toInt());
            fenster.darstellen();
        }
        if (a.form == QStringLiteral("Password")) {
            // The form as it stands after three keys.
            auto* passwort = new lonvir::gui::PasswortFenster(fenster.modell().s, &fenster);
            for (int i = 0; i < 3; ++i)
                passwort->pawo(i)->setText(QStringLiteral("x"));
            passwort->mittig();
            passwort->show();
            QApplication::processEvents();
            QApplication::exit(passwort->grab().save(a.bildschirmfoto) ? 0 : 4);
            return;
        }
        if (a.form == QStringLiteral("Form3") || a.form == QStringLiteral("Form2")) {
            // The annual overview of the main screen's person, or the totals of all staff.
            tablett.formzeigen(a.form.toStdString());
            auto* uebersicht = fenster.findChild<QWidget*>(a.form);
            if (a.groesse.isValid())
                uebersicht->resize(a.groesse);
            QApplication::processEvents();
            QApplication::exit(uebersicht->grab().save(a.bildschirmfoto) ? 0 : 4);
            return;
        }
        if (a.form == QStringLiteral("Form14"))
            tablett.formzeigen("Form14");
        if (!a.menue.isEmpty())
            tablett.menueklick(a.menue.toStdString());
        if (a.seite == 22 && !a.suche.isEmpty()) {
            QLineEdit* feld = tablett.ansicht()->text(1);
            feld->setText(a.suche);
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
            QApplication::sendEvent(feld, &enter);
        }
        QApplication::processEvents();
        QTimer::singleShot(300, &fenster, [&fenster, a] {
            const bool gespeichert =
                form ? form->grab().save(a.bildschirmfoto) : fenster.grab().save(a.bildschirmfoto);
            QApplication::exit(gespeichert ? 0 : 4);
        });
    });
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("lonvir97"));
    lonvir::gui::qtdeutsch(app);
    const Aufruf aufruf = aufrufLesen(app);

    lonvir::gui::HilfeFenster hilfe(aufruf.ordner);
    lonvir::gui::Startform start(&hilfe);
    start.zeigenMittig();
    QApplication::processEvents();

    lonvir::Sitzung s;
    lonvir::gui::QtDialoge dialoge(&start);
    s.dialoge = &dialoge;
    const std::filesystem::path ordner = QDir(aufruf.ordner).absolutePath().toStdString();
    s.ordner = lonvir::Arbeitsordner(ordner);
    s.installation = LONVIR_INSTALLATION;
    if (const QScreen* bildschirm = QGuiApplication::primaryScreen()) {
        // The screen in twips, for the default window place of a new installation.
        const double tpp = lonvir::gui::twipsJePixel(&start);
        s.bildschirmhoehe = static_cast<std::int32_t>(bildschirm->geometry().height() * tpp);
        s.bildschirmbreite = static_cast<std::int32_t>(bildschirm->geometry().width() * tpp);
    }
    try {
        s.ordner.anlegen();
        const lonvir::Startergebnis ergebnis = lonvir::startenOderNurLesen(s);
        if (ergebnis == lonvir::Startergebnis::angehalten)
            return app.exec(); // the start form stays up; no main form follows
        if (ergebnis == lonvir::Startergebnis::passwort) {
            // The start lock: page 2 is the check of the entry; Cancel ends the program.
            s.Tablettseite = 2;
            lonvir::gui::PasswortFenster passwort(s);
            dialoge.elternSetzen(&passwort);
            if (passwort.zeigen() != lonvir::Password::Stand::richtig)
                return 0;
        }
        lonvir::gui::Form1Fenster fenster(s, dialoge, &hilfe);
        dialoge.elternSetzen(&fenster);
        lonvir::gui::Tablettanbindung tablett(fenster, s, &hilfe);
        lonvir::gui::Uebersichtanbindung uebersichten(fenster, tablett, s,
                                                      lonvir::gui::vorschaudruck(&fenster));
        fenster.laden();
        tablett.menueaufbauen();
        start.close();
        fenster.show();
        if (!aufruf.bildschirmfoto.isEmpty())
            fotografieren(fenster, tablett, hilfe, aufruf);
        return app.exec();
    } catch (const lonvir::Bestandsschaden& schaden) {
        // Reported and declined: the program ends without writing anything.
        std::cerr << schaden.what() << "\n";
        return 4;
    } catch (const std::exception& fehler) {
        dialoge.elternSetzen(nullptr); // the window of the try block is gone
        lonvir::programmende(&dialoge, fehler);
    }
}
