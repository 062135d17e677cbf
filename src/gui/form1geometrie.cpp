// The geometry of Form1: rows divided evenly over the window's height, fonts that follow the
// size of the window, the window's place kept in the display settings.
#include "gui/form1fenster.h"
#include "gui/rechneransicht.h"
#include "gui/twips.h"

#include "screen/fensterlage.h"
#include "start/einstellungen.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFontMetrics>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace lonvir::gui {

namespace {

// The height is divided into 26 equal plaetze: two for the head with the layer panels, one for
// each of the 23 rows of a column, one for the hint panel at the foot.
constexpr double kopfslots = 2.0;
constexpr double plaetze = 26.0;
constexpr double linkerAnteil = 0.56;  // Panel3D1's share of the width
constexpr double hinweisAnteil = 0.40; // the hint panel's share of the foot

// Cells of the left column as parts of its width.
constexpr double listeBis = 0.44;
constexpr double lszBis = 0.56;
constexpr double wertBis = 0.84;
constexpr double wtpBis = 0.96;
// And of the right column.
constexpr double rechteListeBis = 0.60;

// The largest pixel size up to `groesste` at which `probe` fits `breite`.
int passend(QFont schrift, const QString& probe, int breite, int groesste) {
    int px = std::max(groesste, 6);
    for (; px > 6; --px) {
        schrift.setPixelSize(px);
        if (QFontMetrics(schrift).horizontalAdvance(probe) <= breite)
            break;
    }
    return px;
}

QRect zelle(double x0, double x1, double y, double h, double breite) {
    return QRect(static_cast<int>(x0 * breite), static_cast<int>(y), //
                 std::max(1, static_cast<int>((x1 - x0) * breite) - 2),
                 std::max(1, static_cast<int>(h) - 1));
}

} // namespace

void Form1Fenster::laden() {
    modell_.Form_Load();
    const double tpp = twipsJePixel(this);
    const auto px = [tpp](Currency twips) {
        return static_cast<int>(std::lround(twips.alsDouble() / tpp));
    };
    const QScreen* bildschirm = screen();
    const QRect frei = bildschirm ? bildschirm->availableGeometry() : QRect(0, 0, 1024, 768);
    const QRect ort(px(s_.dim.form1left), px(s_.dim.form1top), px(s_.dim.form1width),
                    px(s_.dim.form1height));
    if (eigenefensterlage(s_) && ort.width() >= 320 && ort.height() >= 240) {
        // The place it had when it was closed, kept on the screen of this start.
        const QRect innen(ort.topLeft(), ort.size().boundedTo(frei.size()));
        setGeometry(innen
                        .translated(std::min(0, frei.right() - innen.right()),
                                    std::min(0, frei.bottom() - innen.bottom()))
                        .translated(std::max(0, frei.left() - innen.left()),
                                    std::max(0, frei.top() - innen.top())));
        if (ort.width() >= frei.width() && ort.height() >= frei.height())
            maximieren();
    } else {
        // The first start: the whole screen.
        setGeometry(frei);
        maximieren();
    }
    bildausrechnen(true);
    darstellen();
    QTimer::singleShot(0, this, [this] { geometrieFest_ = geometrieFestGewuenscht_; });
}

void Form1Fenster::bildausrechnen(bool erzwingen) {
    const QSize groesse = mitte_->size();
    if (!erzwingen && groesse == ausgerechnet_)
        return;
    ausgerechnet_ = groesse;
    const double breite = groesse.width();
    const double h = groesse.height() / plaetze;
    const double links = breite * linkerAnteil;
    const double rechts = breite - links;

    kopf_->setGeometry(0, 0, groesse.width(), static_cast<int>(kopfslots * h));
    panel3D1_->setGeometry(0, static_cast<int>(kopfslots * h), static_cast<int>(links),
                           static_cast<int>(23 * h));
    panel3D2_->setGeometry(static_cast<int>(links), static_cast<int>(kopfslots * h),
                           static_cast<int>(rechts), static_cast<int>(23 * h));
    // The foot: the hint panel, and beside it the pocket calculator.
    const int hinweisbreite = static_cast<int>(breite * hinweisAnteil);
    panel3D6_->setGeometry(0, static_cast<int>((kopfslots + 23) * h), hinweisbreite,
                           static_cast<int>(h));
    rechneransicht_->setGeometry(hinweisbreite, static_cast<int>((kopfslots + 23) * h),
                                 groesse.width() - hinweisbreite, static_cast<int>(h));

    // Fonts: as large as the row height allows, and no wider than the cells.
    const int hoechste = static_cast<int>(h * 0.62);
    QFont proportional = font();
    QFont fest(QStringLiteral("Courier New"));
    fest.setStyleHint(QFont::TypeWriter);
    fest.setFixedPitch(true);
    const int listenpx = std::min(
        listenschrift(proportional, true, static_cast<int>(listeBis * links - h) - 12, hoechste),
        listenschrift(proportional, false, static_cast<int>(rechteListeBis * rechts - h) - 12,
                      hoechste));
    const int wertpx = passend(fest, QStringLiteral("1.234.567,89+"),
                               static_cast<int>((wertBis - lszBis) * links - 8), hoechste);
    proportional.setPixelSize(listenpx);
    fest.setPixelSize(wertpx);

    for (int zeile = 0; zeile <= 45; ++zeile) {
        Zeile& w = zeilen_[static_cast<std::size_t>(zeile)];
        const bool linke = zeile <= 22;
        const double spaltenbreite = linke ? links : rechts;
        const double y = (linke ? zeile : zeile - 23) * h;
        w.streifen->setGeometry(zelle(0, 1, y, h, spaltenbreite));
        if (w.z) {
            w.z->setFont(proportional);
            if (w.z->lineEdit())
                w.z->lineEdit()->setFont(proportional);
            w.z->setGeometry(zelle(0.005, linke ? listeBis : rechteListeBis, y, h, spaltenbreite));
        }
        if (w.t) {
            w.t->setFont(fest);
            w.t->setGeometry(linke ? zelle(lszBis, wertBis, y, h, spaltenbreite)
                                   : zelle(rechteListeBis + 0.01, 0.995, y, h, spaltenbreite));
        }
    }
    // The switches grow and shrink with the rows.
    const int kaestchenpx = std::clamp(static_cast<int>(h * 0.55), 8, 32);
    if (kaestchenpx != kaestchenpx_) {
        kaestchenpx_ = kaestchenpx;
        const QString stil =
            QStringLiteral("QCheckBox::indicator { width: %1px; height: %1px; }").arg(kaestchenpx);
        for (auto& spalte : schalter_)
            for (QCheckBox* box : spalte)
                box->setStyleSheet(stil);
    }
    const double kaestchen = (lszBis - listeBis) / 3;
    for (std::size_t art = 0; art < 6; ++art)
        for (int zeile = 7; zeile <= 19; ++zeile) {
            const double x0 = art < 3 ? listeBis + static_cast<double>(art) * kaestchen
                                      : wertBis + static_cast<double>(art - 3) * kaestchen;
            QCheckBox* box = schalter_[art][static_cast<std::size_t>(zeile - 7)];
            const QRect r = zelle(x0, x0 + kaestchen, zeile * h, h, links);
            const QSize indikator = box->sizeHint();
            box->setGeometry(r.x() + std::max(0, (r.width() - indikator.width()) / 2),
                             r.y() + std::max(0, (r.height() - indikator.height()) / 2),
                             std::min(r.width(), indikator.width()),
                             std::min(r.height(), indikator.height()));
        }
    // The heading keeps its blanks: fixed pitch, as wide as the cell allows.
    QFont kopfschrift = fest;
    kopfschrift.setBold(true);
    kopfschrift.setPixelSize(passend(kopfschrift, schalterkopf_->text(),
                                     static_cast<int>((wtpBis - listeBis) * links) - 4, hoechste));
    schalterkopf_->setFont(kopfschrift);
    schalterkopf_->setGeometry(zelle(listeBis, wtpBis, 6 * h, h, links));
    // The service-age box holds "MM.19JJ" whole.
    const QRect bdaOrt = zelle(listeBis + 0.005, lszBis, 1 * h, h, links);
    QFont bdaSchrift = fest;
    bdaSchrift.setPixelSize(
        passend(fest, QStringLiteral("12.1999"), bdaOrt.width() - 10, hoechste));
    bdaBeginn_->setFont(bdaSchrift);
    bdaBeginn_->setGeometry(bdaOrt);
    QFont hinweisschrift = proportional;
    hinweisschrift.setPixelSize(std::max(6, static_cast<int>(h * 0.55)));
    panel3D6_->setFont(hinweisschrift);
    kopfAusrechnen(breite, h);
}

// The head: Picture1, the three layer panels, the four transfer buttons, Command1 and the
// month title over the result column.
void Form1Fenster::kopfAusrechnen(double breite, double h) {
    const double y = 0.15 * h;
    const double hoehe = 1.7 * h;
    const auto setzen = [&](QWidget* w, double x0, double x1, const QString& probe, bool fett) {
        w->setGeometry(zelle(x0, x1, y, hoehe, breite));
        QFont f = font();
        f.setBold(fett);
        f.setPixelSize(passend(f, probe, static_cast<int>((x1 - x0) * breite) - 10,
                               static_cast<int>(h * 0.6)));
        w->setFont(f);
    };
    setzen(picture1_, 0.005, 0.07, picture1_->text(), true);
    for (std::size_t i = 0; i < 3; ++i)
        setzen(schichtpanels_[i], 0.075 + static_cast<double>(i) * 0.07,
               0.14 + static_cast<double>(i) * 0.07, QStringLiteral("I  N  F  O"), true);
    for (std::size_t i = 0; i < 4; ++i)
        setzen(uebertragknoepfe_[i], 0.29 + static_cast<double>(i) * 0.0675,
               0.355 + static_cast<double>(i) * 0.0675, QStringLiteral("Plan >  Info"), false);
    command1_->setGeometry(zelle(0.565, 0.61, y, hoehe, breite));
    QFont klein = font();
    klein.setPixelSize(
        std::max(6, std::min(static_cast<int>(h * 0.5), static_cast<int>(hoehe / 3.6))));
    command1text_->setFont(klein);
    command1text_->setGeometry(command1_->rect().adjusted(2, 1, -2, -1));
    setzen(command6_, 0.615, 0.665, QStringLiteral("Suchen"), false);
    setzen(command7_, 0.67, 0.72, QStringLiteral("Reform"), false);
    setzen(monatstitel_, 0.725, 0.93, QStringLiteral("JANUAR 1997"), true);
    setzen(jahrwort_, 0.935, 0.995, QStringLiteral("JAHR"), true);
}

void Form1Fenster::resizeEvent(QResizeEvent* ereignis) {
    QMainWindow::resizeEvent(ereignis);
    bildausrechnen(false);
    if (!geometrieFest_)
        geometriezeit_->start();
}

void Form1Fenster::moveEvent(QMoveEvent* ereignis) {
    QMainWindow::moveEvent(ereignis);
    if (!geometrieFest_)
        geometriezeit_->start();
}

// The largest pixel size up to `groesste` at which the longest entry of every list of one
// column, and the typed name of row 0, fits `breite` pixels.
int Form1Fenster::listenschrift(QFont schrift, bool linke, int breite, int groesste) const {
    constexpr int mass = 100; // measured at 100 pixels, then scaled
    schrift.setPixelSize(mass);
    const QFontMetrics metrik(schrift);
    int laengste = 1;
    QString probe;
    const auto messen = [&](const QString& text) {
        const int weite = metrik.horizontalAdvance(text);
        if (weite > laengste) {
            laengste = weite;
            probe = text;
        }
    };
    for (int zeile = linke ? 0 : 23; zeile <= (linke ? 22 : 45); ++zeile) {
        const QComboBox* liste = zeilen_[static_cast<std::size_t>(zeile)].z;
        if (liste == nullptr)
            continue;
        for (int i = 0; i < liste->count(); ++i)
            messen(liste->itemText(i));
        messen(liste->currentText());
    }
    // Glyph widths do not scale exactly: from the estimate down to the size that fits.
    int px =
        std::min(groesste, static_cast<int>(static_cast<double>(breite) * mass / laengste) + 1);
    for (; px > 6; --px) {
        schrift.setPixelSize(px);
        if (QFontMetrics(schrift).horizontalAdvance(probe) <= breite)
            break;
    }
    return std::max(px, 6);
}

// A window whose size a test or a picture holds keeps the normal state.
void Form1Fenster::maximieren() {
    if (!geometrieFestGewuenscht_)
        setWindowState(windowState() | Qt::WindowMaximized);
}

void Form1Fenster::platzMerken() {
    geometrieFest_ = false;
    geometrieMerken();
}

// The window's place in twips into the display settings, which are written at once.
void Form1Fenster::geometrieMerken() {
    if (geometrieFest_ || s_.startphase != 0 || isMinimized())
        return;
    const double tpp = twipsJePixel(this);
    const QRect r = geometry();
    s_.dim.form1top = Currency::gerundet(r.top() * tpp);
    s_.dim.form1left = Currency::gerundet(r.left() * tpp);
    s_.dim.form1height = Currency::gerundet(r.height() * tpp);
    s_.dim.form1width = Currency::gerundet(r.width() * tpp);
    dimschreiben(s_);
}

void Form1Fenster::closeEvent(QCloseEvent* ereignis) {
    if (!beendet_) {
        geometriezeit_->stop();
        geometrieMerken();
        modell_.Form_Unload();
    }
    ereignis->accept();
}

void Form1Fenster::changeEvent(QEvent* ereignis) {
    QMainWindow::changeEvent(ereignis);
    if (ereignis->type() == QEvent::ActivationChange && isActiveWindow()) {
        ausfuehren([this] { modell_.Form_Activate(); });
        return;
    }
    if (ereignis->type() != QEvent::WindowStateChange)
        return;
    const Fensterzustand zustand = isMinimized()   ? Fensterzustand::minimiert
                                   : isMaximized() ? Fensterzustand::maximiert
                                                   : Fensterzustand::normal;
    const Fensteraktion aktion = modell_.bildanpassen(zustand);
    if (aktion.ausrechnen)
        bildausrechnen(true);
    if (aktion.neuerzustand)
        QTimer::singleShot(0, this, [this, neu = *aktion.neuerzustand] {
            if (neu == Fensterzustand::maximiert)
                showMaximized();
            else if (neu == Fensterzustand::minimiert)
                showMinimized();
            else
                showNormal();
        });
    if (!geometrieFest_)
        geometriezeit_->start();
}

} // namespace lonvir::gui
