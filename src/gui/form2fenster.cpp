// The widgets of the totals over the staff and how their events reach Form2.
#include "gui/form2fenster.h"

#include "gui/twips.h"
#include "reports/uebersichtcsv.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <cstdlib>

namespace lonvir::gui {

Form2Fenster::Form2Fenster(Sitzung& s, Kostenstellenwahl wahl, Druckauftrag drucken,
                           QWidget* eltern)
    : QWidget(eltern, Qt::Window), modell_(s, std::move(wahl)), drucken_(std::move(drucken)) {
    setObjectName(QStringLiteral("Form2"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* spalte = new QVBoxLayout(this);
    gitter_ = new Gitteransicht(this);
    gitter_->setObjectName(QStringLiteral("Grid1"));
    gitter_->festeschrift(true);
    spalte->addWidget(gitter_, 1);
    connect(gitter_, &QTableWidget::cellClicked, this, [this](int zeile, int) {
        const std::optional<std::int16_t> person = modell_.Grid1_Click(zeile);
        if (person) {
            hide();
            emit personGewaehlt(*person);
            close();
        }
    });
    auto* zeile = new QHBoxLayout();
    spalte->addLayout(zeile);
    for (std::size_t i = 0; i < 3; ++i) {
        knoepfe_[i] = new QPushButton(this);
        knoepfe_[i]->setObjectName(QStringLiteral("Command%1").arg(i + 1));
    }
    export_ = new QPushButton(QStringLiteral("Export (CSV)"), this);
    export_->setObjectName(QStringLiteral("Export"));
    zeile->addWidget(knoepfe_[0]);
    zeile->addWidget(knoepfe_[1]);
    zeile->addWidget(export_);
    zeile->addStretch(1);
    zeile->addWidget(knoepfe_[2]);
    connect(knoepfe_[0], &QPushButton::clicked, this, [this] {
        if (drucken_)
            drucken_(QStringLiteral("Gehälterliste"),
                     [this](Drucker& d) { modell_.Command1_Click(d); });
    });
    connect(knoepfe_[1], &QPushButton::clicked, this, [this] {
        if (drucken_)
            drucken_(QStringLiteral("Monatsübersicht"),
                     [this](Drucker& d) { modell_.Command2_Click(d); });
    });
    connect(knoepfe_[2], &QPushButton::clicked, this, [this] {
        modell_.Command3_Click();
        close();
    });
    connect(export_, &QPushButton::clicked, this, [this] {
        const QString datei = QFileDialog::getSaveFileName(
            this, QStringLiteral("Arbeitgeberaufwendungen exportieren"),
            QStringLiteral("arbeitgeberaufwendungen.csv"), QStringLiteral("CSV-Dateien (*.csv)"));
        if (!datei.isEmpty() && !exportieren(datei))
            QMessageBox::warning(
                this, QStringLiteral("Export"),
                QStringLiteral("Die Datei %1 konnte nicht geschrieben werden.").arg(datei));
    });
}

void Form2Fenster::laden() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        modell_.Form_Load();
    } catch (const std::exception& fehler) {
        QApplication::restoreOverrideCursor();
        QMessageBox::critical(this, QStringLiteral("Lonvir 97"), QString::fromUtf8(fehler.what()));
        std::exit(3);
    }
    QApplication::restoreOverrideCursor();
    darstellen();
    // The form's place of the display settings, in twips.
    const double tpp = twipsJePixel(this);
    const Dimsatz& d = modell_.s.dim;
    setGeometry(static_cast<int>(d.form2left.alsDouble() / tpp),
                static_cast<int>(d.form2top.alsDouble() / tpp),
                std::max(600, static_cast<int>(d.form2width.alsDouble() / tpp)),
                std::max(300, static_cast<int>(d.form2height.alsDouble() / tpp)));
    show();
    raise();
    activateWindow();
}

void Form2Fenster::darstellen() {
    setWindowTitle(QString::fromStdString(modell_.caption));
    gitter_->darstellen(modell_.Grid1);
    knoepfe_[0]->setText(QString::fromStdString(modell_.Command1));
    knoepfe_[1]->setText(QString::fromStdString(modell_.Command2));
    knoepfe_[2]->setText(QString::fromStdString(modell_.Command3));
    knoepfe_[0]->setEnabled(static_cast<bool>(drucken_));
    knoepfe_[1]->setEnabled(static_cast<bool>(drucken_));
}

bool Form2Fenster::exportieren(const QString& datei) {
    QFile f(datei);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    const std::string text = gesamtsummencsv(modell_.s, modell_).text();
    return f.write(text.data(), static_cast<qint64>(text.size())) ==
           static_cast<qint64>(text.size());
}

} // namespace lonvir::gui
