// The widgets of the annual overview and how their events reach Form3.
#include "gui/form3fenster.h"

#include "gui/twips.h"
#include "reports/uebersichtcsv.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <cstdlib>

namespace lonvir::gui {

Form3Fenster::Form3Fenster(Sitzung& s, Druckauftrag drucken, QWidget* eltern)
    : QWidget(eltern, Qt::Window), modell_(s), drucken_(std::move(drucken)) {
    setObjectName(QStringLiteral("Form3"));
    auto* spalte = new QVBoxLayout(this);
    for (std::size_t i = 0; i < 3; ++i) {
        gitter_[i] = new Gitteransicht(this);
        gitter_[i]->setObjectName(QStringLiteral("Grid%1").arg(i + 1));
        gitter_[i]->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        spalte->addWidget(gitter_[i]);
        connect(gitter_[i], &QTableWidget::cellClicked, this, [this](int, int spalte) {
            bool sprung = false;
            ausfuehren([&] { sprung = modell_.Grid_Click(spalte); });
            if (sprung) {
                hide();
                emit monatGewaehlt();
            }
        });
    }
    diagramm_ = new Jahresdiagrammansicht(this);
    spalte->addWidget(diagramm_, 1);
    hscroll1_ = new QScrollBar(Qt::Horizontal, this);
    hscroll1_->setObjectName(QStringLiteral("HScroll1"));
    spalte->addWidget(hscroll1_);
    connect(hscroll1_, &QScrollBar::valueChanged, this, [this](int wert) {
        if (!darstellend_)
            ausfuehren([&] { modell_.HScroll1_Change(wert); });
    });
    auto* zeile = new QHBoxLayout();
    spalte->addLayout(zeile);
    for (std::size_t i = 0; i < 3; ++i) {
        knoepfe_[i] = new QPushButton(this);
        knoepfe_[i]->setObjectName(QStringLiteral("Command%1").arg(i + 1));
    }
    export_ = new QPushButton(QStringLiteral("Export (CSV)"), this);
    export_->setObjectName(QStringLiteral("Export"));
    zeile->addWidget(knoepfe_[1]);
    zeile->addWidget(knoepfe_[2]);
    zeile->addWidget(export_);
    zeile->addStretch(1);
    zeile->addWidget(knoepfe_[0]);
    connect(knoepfe_[0], &QPushButton::clicked, this, [this] { close(); });
    connect(knoepfe_[1], &QPushButton::clicked, this,
            [this] { ausfuehren([this] { modell_.Command2_Click(); }); });
    connect(knoepfe_[2], &QPushButton::clicked, this, [this] {
        if (drucken_)
            drucken_(QString::fromStdString(modell_.caption),
                     [this](Drucker& d) { modell_.Command3_Click(d); });
    });
    connect(export_, &QPushButton::clicked, this, [this] {
        const QString datei = QFileDialog::getSaveFileName(
            this, QStringLiteral("Jahresübersicht exportieren"),
            QStringLiteral("jahresuebersicht-%1.csv").arg(modell_.jahresperson),
            QStringLiteral("CSV-Dateien (*.csv)"));
        if (!datei.isEmpty() && !exportieren(datei))
            QMessageBox::warning(
                this, QStringLiteral("Export"),
                QStringLiteral("Die Datei %1 konnte nicht geschrieben werden.").arg(datei));
    });
    resize(1200, 620);
}

void Form3Fenster::oeffnen(std::int16_t jahresperson) {
    ausfuehren([&] {
        modell_.jahresperson = jahresperson;
        modell_.Form_Load();
        modell_.Form_Activate();
    });
    // The form's place of the display settings, in twips.
    const double tpp = twipsJePixel(this);
    move(static_cast<int>(modell_.s.dim.form3left.alsDouble() / tpp),
         static_cast<int>(modell_.s.dim.form3top.alsDouble() / tpp));
    show();
    raise();
    activateWindow();
}

void Form3Fenster::ausfuehren(const std::function<void()>& handler) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        handler();
    } catch (const std::exception& fehler) {
        QApplication::restoreOverrideCursor();
        QMessageBox::critical(this, QStringLiteral("Lonvir 97"), QString::fromUtf8(fehler.what()));
        std::exit(3);
    }
    QApplication::restoreOverrideCursor();
    darstellen();
}

void Form3Fenster::darstellen() {
    darstellend_ = true;
    setWindowTitle(QString::fromStdString(modell_.caption));
    const Gitter* modelle[] = {&modell_.Grid1, &modell_.Grid2, &modell_.Grid3};
    for (std::size_t i = 0; i < 3; ++i)
        gitter_[i]->darstellen(*modelle[i]);
    // The three grids share their column widths, so that the months stand one below the other.
    for (int spalte = 0; spalte < gitter_[0]->columnCount(); ++spalte) {
        int breite = 0;
        for (Gitteransicht* g : gitter_)
            breite = std::max(breite, g->columnWidth(spalte));
        for (Gitteransicht* g : gitter_)
            g->setColumnWidth(spalte, breite);
    }
    for (Gitteransicht* g : gitter_) {
        g->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        g->setFixedHeight(g->vollehoehe());
    }
    knoepfe_[0]->setText(QString::fromStdString(modell_.Command1));
    knoepfe_[1]->setText(QString::fromStdString(modell_.Command2));
    knoepfe_[2]->setText(QString::fromStdString(modell_.Command3));
    knoepfe_[2]->setEnabled(static_cast<bool>(drucken_));
    hscroll1_->setRange(modell_.HScroll1.minimum, modell_.HScroll1.maximum);
    hscroll1_->setValue(modell_.HScroll1.wert);
    diagramm_->setzen(jahresdiagramm(modell_.jahresmatrix, modell_.ansichtabzuege));
    darstellend_ = false;
}

bool Form3Fenster::exportieren(const QString& datei) {
    QFile f(datei);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    const std::string text = jahresuebersichtcsv(modell_).text();
    return f.write(text.data(), static_cast<qint64>(text.size())) ==
           static_cast<qint64>(text.size());
}

void Form3Fenster::closeEvent(QCloseEvent* ereignis) {
    // Command1 "Schließen" and the window's own close: the place goes to the settings.
    const double tpp = twipsJePixel(this);
    modell_.Command1_Click(static_cast<int>(y() * tpp), static_cast<int>(x() * tpp));
    QWidget::closeEvent(ereignis);
}

} // namespace lonvir::gui
