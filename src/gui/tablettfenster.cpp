// The widgets of the panel and how their events reach the panel model.
#include "gui/tablettfenster.h"

#include "gui/farben.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>

#include <cmath>

namespace lonvir::gui {

namespace {

QString qtext(const std::string& utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString farbe(int nummer) {
    return qbcolor(nummer).name();
}

// A key as the panel's text handlers know it: a character, Enter 13, backspace 8; 0 for keys
// that type nothing (arrows, Delete), which go to the box as they are.
int feldtaste(const QKeyEvent* e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)
        return 13;
    if (e->key() == Qt::Key_Backspace)
        return 8;
    const QString t = e->text();
    if (t.size() != 1 || t[0].unicode() < 32 || t[0].unicode() > 255)
        return 0;
    return t[0].unicode();
}

QFont schrift(const std::string& name, double punkte, bool fett) {
    QFont f(name == "small fonts" ? QStringLiteral("Sans Serif") : QStringLiteral("Arial"));
    f.setPointSizeF(name == "small fonts" ? 7.0 : punkte);
    f.setBold(fett);
    return f;
}

} // namespace

TablettFenster::TablettFenster(Tablett& modell,
                               std::function<void(const std::function<void()>&)> ereignis,
                               QWidget* eltern)
    : QFrame(eltern), t_(modell), ereignis_(std::move(ereignis)) {
    setObjectName(QStringLiteral("Tablett"));
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setAutoFillBackground(true);
    for (std::size_t i = 0; i < 29; ++i) {
        zeilen_[i] = new QLabel(this);
        zeilen_[i]->setObjectName(QStringLiteral("zeile%1").arg(i));
        zeilen_[i]->installEventFilter(this);
        kaesten_[i] = new QLabel(this);
        kaesten_[i]->setObjectName(QStringLiteral("kasten%1").arg(i));
        kaesten_[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        kaesten_[i]->installEventFilter(this);
    }
    for (std::size_t i = 0; i < 18; ++i) {
        texte_[i] = new QLineEdit(this);
        texte_[i]->setObjectName(QStringLiteral("Text%1").arg(i));
        const int index = static_cast<int>(i);
        connect(texte_[i], &QLineEdit::textEdited, this,
                [this, index](const QString& neu) { t_.Text[index].text = neu.toStdString(); });
        texte_[i]->installEventFilter(this);
        listen_[i] = new QComboBox(this);
        listen_[i]->setObjectName(QStringLiteral("Combo%1").arg(i));
        listen_[i]->installEventFilter(this);
        connect(listen_[i], &QComboBox::activated, this, [this, index](int position) {
            ereignis_([this, index, position] {
                t_.Combo[index].position = position;
                t_.combo_Click(index);
            });
        });
    }
    for (std::size_t i = 0; i < 2; ++i) {
        gitter_[i] = new QTableWidget(this);
        gitter_[i]->setObjectName(QStringLiteral("Grid%1").arg(i + 1));
        gitter_[i]->horizontalHeader()->hide();
        gitter_[i]->verticalHeader()->hide();
    }
    for (std::size_t i = 0; i < 4; ++i) {
        knoepfe_[i] = new QPushButton(this);
        knoepfe_[i]->setObjectName(QStringLiteral("Command%1").arg(i + 1));
    }
    connect(knoepfe_[0], &QPushButton::clicked, this,
            [this] { ereignis_([this] { t_.Command1_Click(); }); });
    connect(knoepfe_[1], &QPushButton::clicked, this,
            [this] { ereignis_([this] { t_.command2_Click(); }); });
    connect(knoepfe_[2], &QPushButton::clicked, this,
            [this] { ereignis_([this] { t_.Command3_Click(); }); });
    connect(knoepfe_[3], &QPushButton::clicked, this,
            [this] { ereignis_([this] { t_.Command4_Click(); }); });
    for (std::size_t i = 0; i < 3; ++i) {
        rollbalken_[i] = new QScrollBar(Qt::Horizontal, this);
        rollbalken_[i]->setObjectName(QStringLiteral("HScroll%1").arg(i + 1));
        // Change and Scroll of a bar are one event here: the model's update of page 43.
        connect(rollbalken_[i], &QScrollBar::valueChanged, this, [this, i](int wert) {
            if (!darstellend_)
                ereignis_([&] { t_.rollbalkenbewegt(static_cast<int>(i) + 1, wert); });
        });
    }
    hide();
}

bool TablettFenster::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (darstellend_)
        return QFrame::eventFilter(objekt, ereignis);
    for (int i = 0; i <= 28; ++i) {
        if (ereignis->type() != QEvent::MouseButtonRelease)
            break;
        if (objekt == zeilen_[static_cast<std::size_t>(i)]) {
            ereignis_([this, i] { t_.zeile_Click(i); });
            return true;
        }
        if (objekt == kaesten_[static_cast<std::size_t>(i)]) {
            ereignis_([this, i] { t_.kasten_Click(i); });
            return true;
        }
    }
    if (ereignis->type() == QEvent::KeyPress)
        for (int i = 0; i <= 17; ++i) {
            QLineEdit* feld = texte_[static_cast<std::size_t>(i)];
            if (objekt != feld)
                continue;
            const int taste = feldtaste(static_cast<QKeyEvent*>(ereignis));
            if (taste == 0)
                return false;
            t_.Text[i].text = feld->text().toStdString();
            int weiter = 0;
            ereignis_([&] { weiter = t_.text_KeyPress(i, taste); });
            if (weiter == taste && taste != 13)
                return false; // the box types the key itself
            if (weiter != 0)
                feld->insert(QString(QChar(weiter)));
            t_.Text[i].text = feld->text().toStdString();
            return true;
        }
    if (ereignis->type() == QEvent::FocusIn)
        for (int i = 0; i <= 17; ++i) {
            if (objekt == texte_[static_cast<std::size_t>(i)])
                t_.text_GotFocus(i);
            if (objekt == listen_[static_cast<std::size_t>(i)])
                t_.combo_GotFocus(i);
        }
    return QFrame::eventFilter(objekt, ereignis);
}

void TablettFenster::mouseReleaseEvent(QMouseEvent* ereignis) {
    ereignis_([this] { t_.Form_Click(); });
    QFrame::mouseReleaseEvent(ereignis);
}

void TablettFenster::fokusuebergeben() {
    if (!t_.sichtbar || t_.fokus == gesetzterfokus_)
        return;
    gesetzterfokus_ = t_.fokus;
    const auto i = static_cast<std::size_t>(t_.fokus.index);
    QWidget* ziel = nullptr;
    if (t_.fokus.art == Tablettfokusart::text && i < texte_.size())
        ziel = texte_[i];
    else if (t_.fokus.art == Tablettfokusart::combo && i < listen_.size())
        ziel = listen_[i];
    else if (t_.fokus.art == Tablettfokusart::knopf && i >= 1 && i <= knoepfe_.size())
        ziel = knoepfe_[i - 1];
    if (ziel && ziel->isVisible())
        ziel->setFocus(Qt::OtherFocusReason);
}

void TablettFenster::darstellen(double twipsJePixel) {
    darstellend_ = true;
    tpp_ = twipsJePixel;
    const auto px = [this](int twips) { return static_cast<int>(std::lround(twips / tpp_)); };
    const auto rechteck = [&px](const Lage& l) {
        return QRect(px(l.links), px(l.oben), std::max(1, px(l.breite)), std::max(1, px(l.hoehe)));
    };
    setStyleSheet(QStringLiteral("QFrame#Tablett { background: %1; }").arg(farbe(t_.hintergrund)));
    for (int i = 0; i <= 28; ++i) {
        const Tablettzeile& z = t_.zeile[i];
        QLabel* l = zeilen_[static_cast<std::size_t>(i)];
        l->setText(qtext(z.text));
        l->setFont(schrift(z.schrift, 8.25, z.fett));
        l->setStyleSheet(
            QStringLiteral("color: %1; background: %2;%3")
                .arg(farbe(z.vordergrund), farbe(z.hintergrund),
                     z.rahmen ? QStringLiteral(" border: 1px solid black;") : QString()));
        l->setGeometry(rechteck(z.lage));
        l->setVisible(z.sichtbar);
        const Tablettkasten& k = t_.kasten[i];
        QLabel* c = kaesten_[static_cast<std::size_t>(i)];
        c->setText(qtext(k.text) + QStringLiteral(" "));
        c->setFont(schrift("arial", k.schriftgroesse, false));
        c->setFrameStyle(QFrame::Panel | (k.fase == 0 ? QFrame::Plain : QFrame::Sunken));
        c->setStyleSheet(QStringLiteral("background: %1;").arg(farbe(k.hintergrund)));
        c->setGeometry(rechteck(k.lage));
        c->setVisible(k.sichtbar);
    }
    for (int i = 0; i <= 17; ++i) {
        const Tablettfeld& f = t_.Text[i];
        QLineEdit* e = texte_[static_cast<std::size_t>(i)];
        if (e->text() != qtext(f.text))
            e->setText(qtext(f.text));
        e->setFont(schrift(f.schrift, 8.25, false));
        e->setEchoMode(f.passwortzeichen.empty() ? QLineEdit::Normal : QLineEdit::Password);
        e->setStyleSheet(QStringLiteral("color: %1; background: %2;")
                             .arg(farbe(f.vordergrund), farbe(f.hintergrund)));
        e->setGeometry(rechteck(f.lage));
        e->setEnabled(f.aktiv);
        e->setVisible(f.sichtbar);
        const Tablettliste& c = t_.Combo[i];
        QComboBox* b = listen_[static_cast<std::size_t>(i)];
        b->clear();
        for (const std::string& eintrag : c.liste)
            b->addItem(qtext(eintrag));
        b->setCurrentIndex(c.position);
        b->setGeometry(rechteck(c.lage));
        b->setFont(schrift("arial", c.schriftgroesse, false));
        b->setStyleSheet(QStringLiteral("QComboBox { color: %1; background: %2; }")
                             .arg(farbe(c.vordergrund), farbe(c.hintergrund)));
        b->setEnabled(c.aktiv);
        b->setVisible(c.sichtbar);
    }
    const Tablettgitter* gitter[] = {&t_.Grid1, &t_.Grid2};
    for (std::size_t i = 0; i < 2; ++i) {
        const Tablettgitter& g = *gitter[i];
        QTableWidget* w = gitter_[i];
        const int zeilen = static_cast<int>(g.zellen.size());
        w->setRowCount(zeilen);
        w->setColumnCount(zeilen > 0 ? static_cast<int>(g.zellen[0].size()) : 0);
        for (int r = 0; r < zeilen; ++r)
            for (int s = 0; s < static_cast<int>(g.zellen[static_cast<std::size_t>(r)].size()); ++s)
                w->setItem(
                    r, s,
                    new QTableWidgetItem(
                        qtext(g.zellen[static_cast<std::size_t>(r)][static_cast<std::size_t>(s)])));
        w->setGeometry(rechteck(g.lage));
        w->setVisible(g.sichtbar);
    }
    const Tablettknopf* knoepfe[] = {&t_.Command1, &t_.Command2, &t_.Command3, &t_.Command4};
    for (std::size_t i = 0; i < 4; ++i) {
        const Tablettknopf& k = *knoepfe[i];
        knoepfe_[i]->setText(qtext(k.text));
        knoepfe_[i]->setFont(schrift("arial", k.schriftgroesse, false));
        knoepfe_[i]->setGeometry(rechteck(k.lage));
        knoepfe_[i]->setVisible(k.sichtbar);
    }
    const Tablettrollbalken* balken[] = {&t_.HScroll1, &t_.HScroll2, &t_.HScroll3};
    for (std::size_t i = 0; i < 3; ++i) {
        rollbalken_[i]->setRange(balken[i]->minimum, balken[i]->maximum);
        rollbalken_[i]->setValue(balken[i]->wert);
        rollbalken_[i]->setGeometry(rechteck(balken[i]->lage));
        rollbalken_[i]->setVisible(balken[i]->sichtbar);
    }
    setCursor(t_.sanduhr ? Qt::WaitCursor : Qt::ArrowCursor);
    fokusuebergeben();
    darstellend_ = false;
}

} // namespace lonvir::gui
