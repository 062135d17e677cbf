// Painting printed documents page by page.
#include "druck/druckmaler.h"

#include "core/druckseiten.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cctype>

namespace lonvir::druck {

namespace {

bool gleich(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) ==
               std::tolower(static_cast<unsigned char>(y));
    });
}

QPageLayout seitenlage(int ausrichtung) {
    return QPageLayout(
        QPageSize(QPageSize::A4),
        ausrichtung == querformat ? QPageLayout::Landscape : QPageLayout::Portrait,
        QMarginsF(papier::randlinks, papier::randoben, papier::randrechts, papier::randunten),
        QPageLayout::Millimeter);
}

// Keeps the painter's font and sets a new one only when a piece asks for another.
class Schriftwahl {
public:
    explicit Schriftwahl(QPainter& p) : p_(p) {}
    void setzen(const Druckstueck& s) {
        if (gesetzt_ && s.schrift == schrift_ && s.groesse == groesse_ && s.fett == fett_)
            return;
        schrift_ = s.schrift;
        groesse_ = s.groesse;
        fett_ = s.fett;
        gesetzt_ = true;
        p_.setFont(druckschrift(schrift_, groesse_, fett_));
    }

private:
    QPainter& p_;
    bool gesetzt_ = false;
    std::string schrift_;
    float groesse_ = 0;
    bool fett_ = false;
};

} // namespace

QString schriftfamilie(std::string_view name) {
    if (gleich(name, "courier new") || gleich(name, "courier")) {
        static const bool liberation =
            QFontDatabase::families().contains(QStringLiteral("Liberation Mono"));
        return liberation ? QStringLiteral("Liberation Mono") : QStringLiteral("Courier New");
    }
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

QFont druckschrift(std::string_view name, float groesse, bool fett) {
    QFont f(schriftfamilie(name));
    f.setStyleHint(QFont::TypeWriter);
    f.setPointSizeF(groesse);
    f.setBold(fett);
    f.setKerning(false);
    return f;
}

// A page whose widest line runs past the printable width is drawn smaller as a whole, so that
// no column is cut at the paper's edge (the overview of a year is 134 characters wide at 12
// points); the page breaks stay, the page only ends higher.
double seitenmass(const Druckdokument& dok, const Druckseite& seite, double breite) {
    double rechts = 0;
    const Druckstueck* letztes = nullptr;
    QFontMetricsF masse{QFont()};
    for (std::size_t z = seite.von; z < seite.bis; ++z)
        for (const Druckstueck& s : dok.zeilen[z].stuecke) {
            if (letztes == nullptr || s.schrift != letztes->schrift ||
                s.groesse != letztes->groesse || s.fett != letztes->fett)
                masse = QFontMetricsF(druckschrift(s.schrift, s.groesse, s.fett));
            letztes = &s;
            const double ende = s.x + masse.horizontalAdvance(QString::fromStdString(s.text)) *
                                          72.0 / masse.fontDpi();
            rechts = std::max(rechts, ende);
        }
    return rechts > breite ? breite / rechts : 1.0;
}

namespace {

// The picture in points: a screen pixel is 1/96 inch at 100 %, as the window was drawn.
void bildmalen(QPainter& p, const QImage& bild, const Druckbereich& bereich, double dpp) {
    if (bild.isNull())
        return;
    const double proPixel =
        72.0 / (bild.dotsPerMeterX() > 0 ? bild.dotsPerMeterX() * 0.0254 : 96.0);
    double breite = bild.width() * proPixel;
    double hoehe = bild.height() * proPixel;
    const double mass = std::min({1.0, bereich.breite / breite, bereich.hoehe / hoehe});
    breite *= mass;
    hoehe *= mass;
    p.drawImage(QRectF(0, 0, breite * dpp, hoehe * dpp), bild);
}

} // namespace

int dokumentemalen(QPagedPaintDevice& geraet, const std::vector<Druckdokument>& dokumente,
                   const QImage& formbild) {
    const Druckbereich hoch = a4bereich(hochformat);
    const Druckbereich quer = a4bereich(querformat);
    const std::vector<Druckseite> seiten = seitenumbruch(dokumente, hoch.hoehe, quer.hoehe);
    geraet.setPageLayout(seitenlage(seiten.empty() ? hochformat : seiten.front().ausrichtung));
    QPainter p;
    if (!p.begin(&geraet))
        return 0;
    // Positions are points; the device counts its own dots.
    const double dpp = geraet.logicalDpiY() / 72.0;
    for (std::size_t n = 0; n < seiten.size(); ++n) {
        const Druckseite& seite = seiten[n];
        if (n > 0) {
            // A printer takes no new layout while it prints: only a change of orientation
            // asks for one (the PDF writer takes it for the next page).
            if (seite.ausrichtung != seiten[n - 1].ausrichtung)
                geraet.setPageLayout(seitenlage(seite.ausrichtung));
            geraet.newPage();
        }
        const Druckdokument& dok = dokumente[seite.dokument];
        if (dok.formbild && seite.von == 0)
            bildmalen(p, formbild, seite.ausrichtung == querformat ? quer : hoch, dpp);
        const double mass =
            seitenmass(dok, seite, (seite.ausrichtung == querformat ? quer : hoch).breite);
        p.save();
        p.scale(mass, mass);
        Schriftwahl schrift(p);
        double y = 0;
        for (std::size_t z = seite.von; z < seite.bis; ++z) {
            const Druckzeile& zeile = dok.zeilen[z];
            const double h = zeilenhoehe(zeile);
            const double grundlinie = y + h / zeilenabstand * oberlaenge;
            for (const Druckstueck& s : zeile.stuecke) {
                schrift.setzen(s);
                p.drawText(QPointF(s.x * dpp, grundlinie * dpp), QString::fromStdString(s.text));
            }
            y += h;
        }
        p.restore();
    }
    p.end();
    return static_cast<int>(seiten.size());
}

} // namespace lonvir::druck
