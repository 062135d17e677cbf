// Painting the bars of the annual overview's chart: months along, DM upward, a legend.
#include "gui/jahresdiagrammansicht.h"

#include "core/druckformat.h"
#include "gui/farben.h"

#include <QPainter>

#include <array>

namespace lonvir::gui {

namespace {
constexpr std::array<const char*, 12> monate = {"Jan", "Feb", "Mrz", "Apr", "Mai", "Jun",
                                                "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};
}

Jahresdiagrammansicht::Jahresdiagrammansicht(QWidget* eltern) : QWidget(eltern) {
    setObjectName(QStringLiteral("Jahresdiagramm"));
    setMinimumHeight(140);
}

void Jahresdiagrammansicht::setzen(Jahresdiagramm d) {
    d_ = std::move(d);
    update();
}

void Jahresdiagrammansicht::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), qbcolor(15));
    p.setPen(qbcolor(8));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    const QFontMetrics fm(font());
    const int links = fm.horizontalAdvance(QStringLiteral("99.999 DM")) + 10;
    const int oben = fm.height() + 8;
    const int unten = fm.height() + 6;
    const QRect flaeche(links, oben, width() - links - 10, height() - oben - unten);
    if (flaeche.width() <= 0 || flaeche.height() <= 0)
        return;
    // The legend along the top.
    int x = links;
    for (const Balkenreihe& r : d_.reihen) {
        p.fillRect(x, 4, 12, fm.height() - 2, qbcolor(r.farbe));
        p.setPen(qbcolor(0));
        p.drawRect(x, 4, 12, fm.height() - 2);
        p.drawText(x + 16, 3 + fm.ascent(), QString::fromStdString(r.name));
        x += 24 + fm.horizontalAdvance(QString::fromStdString(r.name));
    }
    const std::int64_t groesster = std::max<std::int64_t>(d_.groesster(), 1);
    // The axis: the largest amount at the top, 0 at the bottom, whole DM.
    p.setPen(qbcolor(0));
    p.drawLine(flaeche.bottomLeft(), flaeche.bottomRight());
    p.drawLine(flaeche.bottomLeft(), flaeche.topLeft());
    const auto dm = [](std::int64_t pfennig) {
        return QString::fromStdString(formatpfennig(pfennig, "##,##0")) + QStringLiteral(" DM");
    };
    p.drawText(QRect(0, flaeche.top() - fm.height() / 2, links - 4, fm.height()),
               Qt::AlignRight | Qt::AlignVCenter, dm(d_.groesster()));
    p.drawText(QRect(0, flaeche.bottom() - fm.height() / 2, links - 4, fm.height()),
               Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("0 DM"));
    const double monatsbreite = flaeche.width() / 12.0;
    const int reihen = std::max<int>(1, static_cast<int>(d_.reihen.size()));
    const double balkenbreite = monatsbreite * 0.8 / reihen;
    for (int m = 0; m < 12; ++m) {
        const double x0 = flaeche.left() + m * monatsbreite + monatsbreite * 0.1;
        for (int r = 0; r < static_cast<int>(d_.reihen.size()); ++r) {
            const std::int64_t w =
                d_.reihen[static_cast<std::size_t>(r)].pfennig[static_cast<std::size_t>(m)];
            if (w <= 0)
                continue;
            const double h =
                flaeche.height() * static_cast<double>(w) / static_cast<double>(groesster);
            const QRectF balken(x0 + r * balkenbreite, flaeche.bottom() - h, balkenbreite - 1, h);
            p.fillRect(balken, qbcolor(d_.reihen[static_cast<std::size_t>(r)].farbe));
            p.setPen(qbcolor(8));
            p.drawRect(balken);
        }
        p.setPen(qbcolor(0));
        p.drawText(QRectF(flaeche.left() + m * monatsbreite, flaeche.bottom() + 2, monatsbreite,
                          fm.height()),
                   Qt::AlignCenter, QString::fromUtf8(monate[static_cast<std::size_t>(m)]));
    }
}

} // namespace lonvir::gui
