// The wage-tax table viewer and the allowances display.
#include "gui/lstrtabfenster.h"

#include "core/betragstext.h"
#include "core/drucker.h"
#include "druck/druckfenster.h"
#include "gui/twips.h"
#include "reports/lstrtablage.h"
#include "reports/tabellendruck.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QHideEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace lonvir::gui {

namespace {

QString u8(const std::string& s) {
    return QString::fromUtf8(s);
}

template <typename Liste> void fuellen(QComboBox* c, const Liste& liste) {
    for (const auto* text : liste)
        c->addItem(QString::fromUtf8(text));
}

QTableWidgetItem* zelle(const QString& text, bool rechts) {
    auto* z = new QTableWidgetItem(text);
    z->setFlags(Qt::ItemIsEnabled);
    if (rechts)
        z->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return z;
}

void vorschau(QWidget* eltern, Merkdrucker& d, const QString& titel) {
    druck::Druckvorschau v(std::move(d.dokumente), titel, eltern);
    v.exec();
}

} // namespace

FreibetrFenster::FreibetrFenster(QWidget* eltern) : QDialog(eltern) {
    setObjectName(QStringLiteral("freibetr"));
    setWindowTitle(QString::fromUtf8(freibetraegeTitel));
    grid1_ = new QTableWidget(static_cast<int>(freibetragszeilen.size()), 2, this);
    grid1_->setObjectName(QStringLiteral("Grid1"));
    grid1_->horizontalHeader()->hide();
    grid1_->verticalHeader()->hide();
    for (int i = 0; i < grid1_->rowCount(); ++i)
        grid1_->setItem(
            i, 0, zelle(QString::fromUtf8(freibetragszeilen[static_cast<std::size_t>(i)]), false));
    grid1_->resizeColumnToContents(0);
    grid1_->setColumnWidth(1, 110);
    auto* l = new QVBoxLayout(this);
    l->addWidget(grid1_);
    resize(grid1_->columnWidth(0) + 140, 330);
}

void FreibetrFenster::zeigen(const Freibetraege& f) {
    for (int i = 0; i < grid1_->rowCount(); ++i)
        grid1_->setItem(i, 1, zelle(u8(f.text(static_cast<std::size_t>(i))), true));
}

LStrTabFenster::LStrTabFenster(QWidget* eltern) : QDialog(eltern) {
    setObjectName(QStringLiteral("LStrTab"));
    setWindowTitle(QString::fromUtf8(lstrtabTitel));
    for (std::size_t i = 0; i < combos_.size(); ++i) {
        combos_[i] = new QComboBox(this);
        combos_[i]->setObjectName(QStringLiteral("Combo%1").arg(i + 1));
    }
    fuellen(combos_[0], lohnzeitraumliste);
    for (int p = 0; p < 15; ++p)
        combos_[1]->addItem(u8(kinderfreibetragseintrag(p)));
    fuellen(combos_[2], tabellenliste);
    fuellen(combos_[3], altersliste);
    fuellen(combos_[4], kirchensteuerliste);

    hscroll1_ = new QScrollBar(Qt::Horizontal, this);
    hscroll1_->setObjectName(QStringLiteral("HScroll1"));
    hscroll1_->setRange(0, lstrtabScrollMax);
    hscroll1_->setPageStep(10);
    label1_ = new QLabel(this);
    label1_->setObjectName(QStringLiteral("Label1"));
    label2_ = new QLabel(this);
    label2_->setObjectName(QStringLiteral("Label2"));
    auto* von = new QGroupBox(QStringLiteral("von DM"), this);
    (new QHBoxLayout(von))->addWidget(label1_);
    auto* bis = new QGroupBox(QStringLiteral("bis DM"), this);
    (new QHBoxLayout(bis))->addWidget(label2_);

    grid1_ = new QTableWidget(6, 3, this);
    grid1_->setObjectName(QStringLiteral("Grid1"));
    QStringList kopf;
    for (std::size_t i = 1; i < tabellenkopf.size(); ++i)
        kopf << QString::fromUtf8(tabellenkopf[i]);
    grid1_->setHorizontalHeaderLabels(kopf);
    QStringList klassen;
    for (const char* k : klassenzeilen)
        klassen << QString::fromUtf8(k);
    grid1_->setVerticalHeaderLabels(klassen);
    grid1_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid1_->setCornerButtonEnabled(false);
    grid1_->setToolTip(QStringLiteral("Doppelklick: Freibeträge der Steuerklasse"));

    auto* drucken = new QPushButton(QStringLiteral("Drucken ..."), this);
    drucken->setObjectName(QStringLiteral("Drucken"));
    auto* bereich = new QPushButton(QStringLiteral("Tabelle drucken von ... bis ..."), this);
    bereich->setObjectName(QStringLiteral("Bereich"));
    auto* schliessen = new QPushButton(QStringLiteral("Schließen"), this);

    auto* l = new QVBoxLayout(this);
    for (QComboBox* c : combos_)
        l->addWidget(c);
    auto* grenzen = new QHBoxLayout;
    grenzen->addWidget(von);
    grenzen->addWidget(bis);
    l->addLayout(grenzen);
    l->addWidget(hscroll1_);
    l->addWidget(grid1_);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->addWidget(drucken);
    knoepfe->addWidget(bereich);
    knoepfe->addStretch();
    knoepfe->addWidget(schliessen);
    l->addLayout(knoepfe);

    for (QComboBox* c : combos_)
        connect(c, &QComboBox::currentIndexChanged, this, [this] { auswahlgeaendert(); });
    connect(hscroll1_, &QScrollBar::valueChanged, this, [this] { auswahlgeaendert(); });
    connect(grid1_, &QTableWidget::cellDoubleClicked, this,
            [this](int zeile, int) { grid1_DblClick(zeile + 1); });
    connect(drucken, &QPushButton::clicked, this, &LStrTabFenster::drucken);
    connect(bereich, &QPushButton::clicked, this, &LStrTabFenster::bereichdrucken);
    connect(schliessen, &QPushButton::clicked, this, &QDialog::close);
    resize(520, 500);
    auswahlgeaendert();
}

void LStrTabFenster::ortbinden(Sitzung& s) {
    sitzung_ = &s;
    const Fensterort ort = lstrtablage(s);
    const double tpp = twipsJePixel(this);
    move(static_cast<int>(ort.links / tpp), static_cast<int>(ort.oben / tpp));
}

void LStrTabFenster::hideEvent(QHideEvent* ereignis) {
    // Form_Unload: the place goes to the display settings.
    if (sitzung_ != nullptr) {
        const double tpp = twipsJePixel(this);
        lstrtablagespeichern(*sitzung_, {static_cast<int>(y() * tpp), static_cast<int>(x() * tpp)});
    }
    QDialog::hideEvent(ereignis);
}

void LStrTabFenster::rechtsetzen(Steuerrecht recht) {
    setWindowTitle(u8(lstrtabTitelFuer(recht)));
    if (t_.auswahl.recht == recht)
        return;
    t_.auswahl.recht = recht;
    auswahlgeaendert();
}

void LStrTabFenster::auswahlgeaendert() {
    Tabellenauswahl& a = t_.auswahl;
    a.lohnzeitraum = static_cast<std::int16_t>(combos_[0]->currentIndex() + 1);
    a.kinderfreibetraege = Currency::roh(5000 * std::int64_t{combos_[1]->currentIndex()});
    a.besonderetabelle = static_cast<std::int16_t>(combos_[2]->currentIndex());
    a.altersentlastung = static_cast<std::int16_t>(combos_[3]->currentIndex());
    a.kirchensteuersatz = Currency::roh(combos_[4]->currentIndex() == 1 ? 900 : 800);
    a.scrollwert = hscroll1_->value();
    if (tabellefuellen(t_))
        darstellen();
}

void LStrTabFenster::darstellen() {
    label1_->setText(u8(tabellenbetrag(t_.band.unten)));
    label2_->setText(u8(tabellenbetrag(t_.band.oben)));
    for (int klasse = 1; klasse <= 6; ++klasse) {
        const Tabellenzeile& z = t_.zeilen[klasse];
        const std::array<Currency, 3> werte{z.lohnsteuer, z.solidaritaetszuschlag, z.kirchensteuer};
        for (int s = 0; s < 3; ++s)
            grid1_->setItem(klasse - 1, s,
                            zelle(u8(tabellenbetrag(werte[static_cast<std::size_t>(s)])), true));
    }
}

void LStrTabFenster::grid1_DblClick(int klasse) {
    if (freibetr_ == nullptr)
        freibetr_ = new FreibetrFenster(this);
    Freibetragsauswahl a;
    a.scrollwert = t_.auswahl.scrollwert;
    a.steuerklasse = static_cast<std::int16_t>(klasse);
    a.kinderfreibetraege = t_.auswahl.kinderfreibetraege;
    a.altersentlastung = t_.auswahl.altersentlastung;
    a.besonderetabelle = t_.auswahl.besonderetabelle;
    freibetr_->zeigen(freibetraegeberechnen(a));
    freibetr_->setWindowTitle(
        QString::fromUtf8(freibetraegeTitel) + QStringLiteral(" – Klasse ") +
        QString::fromUtf8(klassenzeilen.at(static_cast<std::size_t>(klasse - 1))));
    freibetr_->show();
    freibetr_->raise();
    if (klassegewaehlt)
        klassegewaehlt(static_cast<std::int16_t>(klasse));
}

void LStrTabFenster::drucken() {
    Merkdrucker d;
    tabelledrucken(t_, d);
    vorschau(this, d, u8(lstrtabTitelFuer(t_.auswahl.recht)));
}

void LStrTabFenster::bereichdrucken() {
    QDialog frage(this);
    frage.setWindowTitle(QStringLiteral("Tabelle drucken"));
    auto* von = new QLineEdit(label1_->text(), &frage);
    auto* bis = new QLineEdit(label2_->text(), &frage);
    auto* form = new QFormLayout(&frage);
    form->addRow(QStringLiteral("Tabelle drucken von DM"), von);
    form->addRow(QStringLiteral("bis DM"), bis);
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &frage);
    form->addRow(knoepfe);
    connect(knoepfe, &QDialogButtonBox::accepted, &frage, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, &frage, &QDialog::reject);
    if (frage.exec() != QDialog::Accepted)
        return;
    const auto unten = dmlesen(von->text().trimmed().toStdString());
    const auto oben = dmlesen(bis->text().trimmed().toStdString());
    if (!unten || !oben) {
        QMessageBox::warning(
            this, QStringLiteral("Tabelle drucken"),
            QStringLiteral("Bitte Beträge in DM eingeben, z. B. 2000 oder 2000,50."));
        return;
    }
    Tabellenbereich b{t_.auswahl, scrollwertfuer(t_.auswahl.lohnzeitraum, *unten),
                      scrollwertfuer(t_.auswahl.lohnzeitraum, *oben)};
    if (const std::string fehler = bereichpruefen(b); !fehler.empty()) {
        QMessageBox::warning(this, QStringLiteral("Tabelle drucken"), u8(fehler));
        return;
    }
    Merkdrucker d;
    tabellenbereichdrucken(b, d);
    vorschau(this, d, u8(lstrtabTitelFuer(t_.auswahl.recht)));
}

} // namespace lonvir::gui
