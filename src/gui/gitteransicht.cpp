// Filling a table widget from a grid of the core.
#include "gui/gitteransicht.h"

#include "gui/farben.h"

#include <QHeaderView>

namespace lonvir::gui {

Gitteransicht::Gitteransicht(QWidget* eltern) : QTableWidget(eltern) {
    horizontalHeader()->hide();
    verticalHeader()->hide();
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    QFont f = font();
    f.setFamily(QStringLiteral("Arial"));
    setFont(f);
}

void Gitteransicht::darstellen(const Gitter& g) {
    setRowCount(g.zeilen());
    setColumnCount(g.spalten());
    const QColor fest = qbcolor(7);
    for (int r = 0; r < g.zeilen(); ++r)
        for (int s = 0; s < g.spalten(); ++s) {
            auto* zelle = new QTableWidgetItem(QString::fromStdString(g.zelle(r, s)));
            const bool istFest = r < g.festzeilen || s < g.festspalten;
            zelle->setBackground(istFest ? fest : qbcolor(g.hintergrund));
            zelle->setForeground(istFest ? qbcolor(0) : qbcolor(g.vordergrund));
            zelle->setTextAlignment(s < g.festspalten ? (Qt::AlignLeft | Qt::AlignVCenter)
                                                      : (Qt::AlignRight | Qt::AlignVCenter));
            if (festeschrift_ && !istFest) {
                QFont fest(QStringLiteral("Courier New"));
                fest.setStyleHint(QFont::TypeWriter);
                fest.setFixedPitch(true);
                zelle->setFont(fest);
            }
            setItem(r, s, zelle);
        }
    resizeColumnsToContents();
    resizeRowsToContents();
}

int Gitteransicht::vollehoehe() const {
    int h = 2 * frameWidth();
    for (int r = 0; r < rowCount(); ++r)
        h += rowHeight(r);
    return h;
}

} // namespace lonvir::gui
