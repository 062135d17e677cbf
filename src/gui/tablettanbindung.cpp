// Wiring of the panel and the menu to the window Form1.
#include "gui/tablettanbindung.h"

#include "core/programmende.h"
#include "engine/berechnen.h"
#include "engine/steuerrechtwahl.h"
#include "gui/druckauftrag.h"
#include "gui/farbenfenster.h"
#include "gui/kvfenster.h"
#include "gui/lstrtabfenster.h"
#include "gui/passwortfenster.h"
#include "gui/tarifefenster.h"
#include "gui/texteditfenster.h"
#include "gui/twips.h"
#include "panels/dienstalterseite.h"
#include "panels/namen.h"
#include "panels/seiten.h"
#include "panels/tarife.h"
#include "reports/tabellenerklaerung.h"
#include "screen/uebertragung.h"
#include "screen/uebertragungsmeldung.h"
#include "screen/voreinstellmodus.h"

#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include <cmath>
#include <cstdlib>

namespace lonvir::gui {

namespace {
QString qtext(const std::string& utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
} // namespace

Tablettanbindung::Tablettanbindung(Form1Fenster& fenster, Sitzung& s, Hilfe* hilfe)
    : f_(fenster), s_(s), t_(s, lage_, hilfe), ziel_{s, fenster.modell(), t_, hilfe} {
    // The rows' text z(row) comes from the main screen's lists.
    t_.zeilenname = [this](int zeile) {
        const Bildzeile& z = f_.modell().bild.zeilen[static_cast<std::size_t>(zeile)];
        if (z.position >= 0 && static_cast<std::size_t>(z.position) < z.liste.size())
            return z.liste[static_cast<std::size_t>(z.position)];
        return zeilenbezeichnung(s_, zeile);
    };
    s_.anzeige = this;
    ansicht_ = new TablettFenster(
        t_, [this](const std::function<void()>& h) { ausfuehren(h); }, f_.centralWidget());
    connect(&f_, &Form1Fenster::uebertragGeklickt, this,
            [this](int von, int nach) { uebertragknopf(von, nach); });
    t_.linkespalteauffrischen = [this] { f_.modell().bildauffrischen(); };
    // Page 42 carries its result through the main screen's own handlers.
    t_.auswahlsetzen = [this](int zeile, int position) {
        f_.modell().auswahltreffen(zeile, position);
    };
    t_.bdauebernehmen = [this](const std::string& text) { f_.modell().bdatippen(text); };
    // A click anywhere outside the panel leaves the gross slider (the panel's deactivation).
    qApp->installEventFilter(this);
    t_.voreinstellmodus = [this](int von, int bis) {
        voreinstellmodusbeginnen(f_.modell(), von, bis);
    };
    // Shown once the click on "Passwort ändern" is over, not from within its handler.
    t_.passwortzeigen = [this] { QTimer::singleShot(0, this, [this] { formzeigen("Password"); }); };
    connect(&f_, &Form1Fenster::bemerkungGeklickt, this, [this] { seiteoeffnen(23); });
    connect(&f_, &Form1Fenster::jahrGeklickt, this, [this] { menueklick("MJahr"); });
    t_.seiteanmelden(66, vkeseite);
    connect(&f_, &Form1Fenster::suchenGeklickt, this, [this] { seiteoeffnen(22); });
    connect(&f_, &Form1Fenster::reformGeklickt, this, [this] {
        // Before the law in force the page stays shut and the button says so.
        if (!reformseiteoffen(s_)) {
            f_.command7()->setText(QString::fromUtf8(reformgesperrt));
            f_.command7()->setToolTip(QString::fromUtf8(reformgesperrt));
            return;
        }
        f_.command7()->setText(QStringLiteral("Reform"));
        seiteoeffnen(68);
    });
    // A page that works long (the year change) shows its labels as they move; the window is
    // repainted and serves its events, but takes no input until the page is done.
    t_.zwischendurch = [this] {
        if (zwischendurch_.isValid() && zwischendurch_.elapsed() < 40)
            return;
        zwischendurch_.start();
        darstellen();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
}

// The main screen's part in a change of the tables: the model of Form1 does it.
Hauptbildauftrag Tablettanbindung::hauptbildauftrag() {
    Hauptbildauftrag a;
    a.bildauffrischen = [this] { f_.modell().bildauffrischen(); };
    a.listenauffrischen = [this] {
        Form1& f = f_.modell();
        s_.aenderungssperre = -1;
        f.listenfuellen();
        f.namensliste();
        s_.aenderungssperre = 0;
        f.bildauffrischen();
    };
    a.nachrechnen = [this] {
        Form1& f = f_.modell();
        f.kvliste();
        s_.aenderungscode = 0;
        s_.Neuberechnung = -1;
        lonvir::nachrechnen(s_);
        f.allezeilen();
    };
    return a;
}

bool Tablettanbindung::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (ereignis->type() == QEvent::MouseButtonPress && s_.bruttomodus == 1 && t_.sichtbar) {
        const auto* w = qobject_cast<QWidget*>(objekt);
        if (w != nullptr && w->window() == f_.window() && w != ansicht_ &&
            !ansicht_->isAncestorOf(w))
            ausfuehren([this] { t_.Form_Deactivate(); });
    }
    return QObject::eventFilter(objekt, ereignis);
}

Tablettanbindung::~Tablettanbindung() {
    qApp->removeEventFilter(this);
    if (s_.anzeige == this)
        s_.anzeige = &f_.modell();
}

double Tablettanbindung::twipsJePixel() const {
    return gui::twipsJePixel(&f_);
}

// The form in twips, relative to its client area. The window's head is not 640 twips high:
// its top is taken so that the panel starts where the result column does.
void Tablettanbindung::formlageholen() {
    const double tpp = twipsJePixel();
    const auto twips = [tpp](int px) { return static_cast<int>(std::lround(px * tpp)); };
    QWidget* mitte = f_.centralWidget();
    const QWidget* p1 = mitte->findChild<QWidget*>(QStringLiteral("Panel3D1"));
    const QWidget* p2 = mitte->findChild<QWidget*>(QStringLiteral("Panel3D2"));
    lage_.links = 0;
    lage_.breite = twips(mitte->width());
    lage_.oben = twips(p2->y()) - 640;
    lage_.panel3d1breite = twips(p1->width());
    lage_.panel3d2breite = twips(p2->width());
    lage_.panel3d2hoehe = twips(p2->height());
    const auto zeilenoben = [&](int zeile) {
        return twips(f_.z(zeile)->mapTo(mitte, QPoint(0, 0)).y()) - lage_.oben - 640;
    };
    lage_.zeile4oben = zeilenoben(4);
    lage_.zeile5oben = zeilenoben(5);
    lage_.zeile19oben = zeilenoben(19);
}

void Tablettanbindung::darstellen() {
    const double tpp = twipsJePixel();
    const auto px = [tpp](int twips) { return static_cast<int>(std::lround(twips / tpp)); };
    ansicht_->darstellen(tpp);
    ansicht_->setGeometry(px(t_.lage.links), px(t_.lage.oben), std::max(1, px(t_.lage.breite)),
                          std::max(1, px(t_.lage.hoehe)));
    ansicht_->setVisible(t_.sichtbar);
    if (t_.sichtbar)
        ansicht_->raise();
    if (QWidget* p2 = f_.centralWidget()->findChild<QWidget*>(QStringLiteral("Panel3D2")))
        p2->setVisible(lage_.panel3d2sichtbar);
    if (t_.druckwunsch == std::optional<std::string>("bda")) {
        // The sheet of page 42 shows its preview once the click is over.
        t_.druckwunsch.reset();
        QTimer::singleShot(0, this, [this] {
            const Dienstalterblatt blatt = dienstalterblatt(t_);
            ausfuehren([&] { bdadruckauftrag(f_, s_, blatt); });
        });
    }
    if (t_.formwunsch == std::optional<std::string>("Form2")) {
        // The totals chosen on page 66 open once the click is over.
        t_.formwunsch.reset();
        QTimer::singleShot(0, this, [this] { formzeigen("Form2"); });
    }
    if (t_.formwunsch) {
        // The wage-tax table viewer comes with its own window; until then nothing opens.
        const std::string name = *t_.formwunsch;
        t_.formwunsch.reset();
        formzeigen(name);
    }
}

void Tablettanbindung::ausfuehren(const std::function<void()>& handler) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        formlageholen();
        handler();
    } catch (const std::exception& fehler) {
        QApplication::restoreOverrideCursor();
        programmende(s_.dialoge, fehler);
    }
    QApplication::restoreOverrideCursor();
    f_.darstellen();
    darstellen();
}

void Tablettanbindung::seiteoeffnen(int seite) {
    ausfuehren([&] {
        s_.Tablettseite = static_cast<std::int16_t>(seite);
        t_.tablettoeffnen();
    });
}

void Tablettanbindung::uebertragknopf(int von, int nach) {
    Form1& form = f_.modell();
    if (form.voreinstellung.aktiv) {
        int knopf = 0;
        for (int k = 2; k <= 5; ++k)
            if (const auto r = uebertragungsrichtung(k); r && r->first == von && r->second == nach)
                knopf = k;
        QProgressDialog fortschritt(QStringLiteral("Voreinstellungen werden übertragen ..."),
                                    QString(), 0, 1, &f_);
        fortschritt.setWindowTitle(QStringLiteral("Voreinstellungen"));
        fortschritt.setWindowModality(Qt::WindowModal);
        fortschritt.setMinimumDuration(300);
        ausfuehren([&] {
            voreinstellknopf(form, knopf, [&fortschritt](int erledigt, int gesamt) {
                fortschritt.setMaximum(gesamt);
                fortschritt.setValue(erledigt);
                QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            });
        });
        return;
    }
    // No recalculation and no refresh: the screen shows the old data, the status line what
    // was done.
    ausfuehren([&] {
        uebertragen(s_, static_cast<std::int16_t>(von), static_cast<std::int16_t>(nach));
        f_.modell().bild.hinweis = uebertragungsmeldung(s_.aktuelleperson, von, nach);
    });
}

void Tablettanbindung::formzeigen(const std::string& name) {
    if (name == "Form2" || name == "Form3") {
        if (uebersichtzeigen)
            uebersichtzeigen(name);
        return;
    }
    if (name == "LStrTab") {
        // The viewer keeps its inputs while it stays open; the menu and page 6 bring it up.
        if (lstrtab_ == nullptr) {
            lstrtab_ = new LStrTabFenster(&f_);
            lstrtab_->ortbinden(s_);
            // A class's steps stand in the working rows of the tax panel.
            lstrtab_->klassegewaehlt = [this](std::int16_t klasse) {
                tabellenzeileerklaeren(s_, lstrtab_->modell(), klasse);
                seiteoeffnen(6);
            };
        }
        lstrtab_->rechtsetzen(steuerrechtfuer(s_));
        lstrtab_->show();
        lstrtab_->raise();
        emit formGezeigt(lstrtab_);
        return;
    }
    if (name == "Form14") {
        auto* farben = new FarbenFenster(f_);
        connect(farben, &FarbenFenster::entladen, farben, &QObject::deleteLater);
        farben->laden();
        return;
    }
    if (name == "Password") {
        PasswortFenster passwort(s_, &f_);
        passwort.zeigen();
        f_.darstellen();
        darstellen();
        return;
    }
    // The forms that keep the tables open beside the main screen.
    const auto ereignis = [this](const std::function<void()>& h) { ausfuehren(h); };
    QDialog* form = nullptr;
    if (name == "Tarife" && tarifseite(s_.Tablettseite))
        form = new TarifeFenster(s_, s_.Tablettseite, hauptbildauftrag(), ereignis, &f_);
    else if (name == "KV")
        form = new KvFenster(s_, hauptbildauftrag(), ereignis, &f_);
    else if (name == "Textedit")
        form = new TexteditFenster(s_, t_.textvon, t_.textbis, hauptbildauftrag(), ereignis, &f_);
    if (form == nullptr)
        return; // the totals form Form2 comes with its own unit
    // Left and top of the main form, 320 twips lower.
    const double tpp = twipsJePixel();
    form->move(f_.mapToGlobal(QPoint(0, static_cast<int>(std::lround(320 / tpp)))));
    form->setModal(false);
    form->show();
    form->raise();
    emit formGezeigt(form);
}

void Tablettanbindung::tablettauffrischen() {
    t_.auffrischen();
    // A run from the main screen's own handlers: the panel follows once they are done.
    if (!neuzeichnen_) {
        neuzeichnen_ = true;
        QTimer::singleShot(0, this, [this] {
            neuzeichnen_ = false;
            darstellen();
        });
    }
}

void Tablettanbindung::menueklick(const std::string& name) {
    const std::optional<Menuepunkt> p = menuepunkt(s_, name);
    ausfuehren([&] { lonvir::menueklick(ziel_, name); });
    if (ziel_.beendet)
        QApplication::exit(0);
    if (ziel_.formwunsch) {
        const std::string form = *ziel_.formwunsch;
        ziel_.formwunsch.reset();
        formzeigen(form);
    }
    if (ziel_.druckwunsch) {
        const std::string bericht = *ziel_.druckwunsch;
        ziel_.druckwunsch.reset();
        ausfuehren([&] { druckauftrag(f_, s_, bericht); });
    }
    // A change of year may check and enable other entries: the bar is built again once
    // this click is over.
    if (p && (p->aktion == Menueaktion::jahr || p->aktion == Menueaktion::personalloeschen ||
              p->aktion == Menueaktion::jahreswechsel))
        QTimer::singleShot(0, this, [this] { menueaufbauen(); });
}

void Tablettanbindung::menueaufbauen() {
    QMenuBar* leiste = f_.menuBar();
    // MBeenden stays the window's own entry, owned by the menu that the window built.
    QAction* beenden = leiste->findChild<QAction*>(QStringLiteral("MBeenden"));
    const QObject* eigner = beenden ? beenden->parent() : nullptr;
    for (QAction* a : leiste->actions()) {
        if (QMenu* m = a->menu()) {
            if (m != eigner)
                m->deleteLater();
        } else if (a->parent() == leiste) {
            a->deleteLater();
        }
    }
    leiste->clear();
    const auto eintragen = [this](QWidget* ziel, const Menuepunkt& p, QAction* vorhanden) {
        QAction* a = vorhanden ? vorhanden : new QAction(qtext(p.text), ziel);
        a->setObjectName(qtext(p.name));
        a->setEnabled(p.aktiv);
        a->setCheckable(p.aktion == Menueaktion::jahr);
        a->setChecked(p.markiert);
        ziel->addAction(a);
        if (!vorhanden)
            connect(a, &QAction::triggered, this, [this, name = p.name] { menueklick(name); });
    };
    for (const Menuepunkt& p : hauptmenue(s_)) {
        if (p.punkte.empty()) {
            eintragen(leiste, p, nullptr);
            continue;
        }
        QMenu* menue = leiste->addMenu(qtext(p.text));
        menue->setObjectName(qtext(p.name));
        menue->menuAction()->setEnabled(p.aktiv);
        if (p.aktion == Menueaktion::zeilenhilfe)
            connect(menue, &QMenu::aboutToShow, this, [this, name = p.name] { menueklick(name); });
        for (const Menuepunkt& q : p.punkte)
            eintragen(menue, q, q.name == "MBeenden" ? beenden : nullptr);
    }
}

} // namespace lonvir::gui
