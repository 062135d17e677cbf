// The tariff editor's widgets: the group buttons, West and Ost, the scroll bar and the 27
// fields under their column captions.
#include "gui/tarifefenster.h"

#include "gui/farben.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

namespace lonvir::gui {

namespace {

QString qtext(const std::string& utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// The key as the form's handlers know it: Enter 13, a character its code, others none.
int tastencode(const QKeyEvent* e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)
        return 13;
    const QString t = e->text();
    if (t.size() != 1)
        return 0;
    const int code = t.at(0).unicode();
    return code < 256 ? code : 255;
}

} // namespace

TarifeFenster::TarifeFenster(Sitzung& s, int seite, Hauptbildauftrag auftrag,
                             std::function<void(const std::function<void()>&)> ereignis,
                             QWidget* eltern)
    : QDialog(eltern), t_(std::make_unique<Tarife>(s, seite, std::move(auftrag))),
      ereignis_(std::move(ereignis)) {
    setObjectName(QStringLiteral("Tarife"));
    setWindowTitle(QString::fromUtf8(tarifeTitel));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* spalte = new QVBoxLayout(this);
    ueberschrift_ = new QLabel(this);
    ueberschrift_->setAlignment(Qt::AlignCenter);
    ueberschrift_->setStyleSheet(QStringLiteral("font-weight: bold; color: #000080;"));
    spalte->addWidget(ueberschrift_);

    auto* gruppen = new QGridLayout;
    for (int i = 0; i <= 17; ++i) {
        auto* k = new QPushButton(this);
        k->setObjectName(QStringLiteral("Schalter%1").arg(i));
        k->setFocusPolicy(Qt::NoFocus);
        connect(k, &QPushButton::clicked, this,
                [this, i] { ausfuehren([&] { t_->schalter_Click(i); }); });
        schalter_[static_cast<std::size_t>(i)] = k;
        gruppen->addWidget(k, i / 6, i % 6);
    }
    spalte->addLayout(gruppen);

    auto* auswahl = new QHBoxLayout;
    option1_ = new QRadioButton(QStringLiteral("West"), this);
    option1_->setObjectName(QStringLiteral("Option1"));
    option2_ = new QRadioButton(QStringLiteral("Ost"), this);
    option2_->setObjectName(QStringLiteral("Option2"));
    connect(option1_, &QRadioButton::clicked, this,
            [this] { ausfuehren([&] { t_->Option1_Click(); }); });
    connect(option2_, &QRadioButton::clicked, this,
            [this] { ausfuehren([&] { t_->Option2_Click(); }); });
    hscroll1_ = new QScrollBar(Qt::Horizontal, this);
    hscroll1_->setObjectName(QStringLiteral("HScroll1"));
    hscroll1_->setMinimumWidth(300);
    connect(hscroll1_, &QScrollBar::valueChanged, this, [this](int wert) {
        if (!darstellend_)
            ausfuehren([&] { t_->hscroll1_change(wert); });
    });
    panel3D2_ = new QLabel(this);
    panel3D2_->setObjectName(QStringLiteral("Panel3D2"));
    panel3D2_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    panel3D2_->setMinimumWidth(260);
    auswahl->addWidget(option1_);
    auswahl->addWidget(option2_);
    auswahl->addWidget(hscroll1_, 1);
    auswahl->addWidget(panel3D2_, 1);
    spalte->addLayout(auswahl);

    auto* raster = new QGridLayout;
    for (int i = 0; i <= 26; ++i) {
        auto* titel = new QLabel(QString::fromUtf8(tarifspalte(i)), this);
        titel->setAlignment(Qt::AlignCenter);
        auto* f = new QLineEdit(this);
        f->setObjectName(QStringLiteral("fieldboxes%1").arg(i));
        f->setAlignment(Qt::AlignRight);
        f->installEventFilter(this);
        connect(f, &QLineEdit::textEdited, this,
                [this, i](const QString& neu) { t_->fieldboxes[i] = neu.toStdString(); });
        felder_[static_cast<std::size_t>(i)] = f;
        raster->addWidget(titel, (i / 9) * 2, i % 9);
        raster->addWidget(f, (i / 9) * 2 + 1, i % 9);
    }
    spalte->addLayout(raster);

    auto* abbrechen = new QPushButton(QStringLiteral("Abbrechen"), this);
    abbrechen->setObjectName(QStringLiteral("Command1"));
    connect(abbrechen, &QPushButton::clicked, this, &QDialog::close);
    spalte->addWidget(abbrechen, 0, Qt::AlignRight);
    darstellen();
}

TarifeFenster::~TarifeFenster() = default;

void TarifeFenster::ausfuehren(const std::function<void()>& handler) {
    if (darstellend_)
        return;
    ereignis_(handler);
    darstellen();
}

void TarifeFenster::darstellen() {
    darstellend_ = true;
    ueberschrift_->setText(qtext(t_->ueberschrift));
    panel3D2_->setText(qtext(t_->Panel3D2));
    for (int i = 0; i <= 17; ++i) {
        QPushButton* k = schalter_[static_cast<std::size_t>(i)];
        k->setText(qtext(t_->Schalter[i].text));
        k->setStyleSheet(
            QStringLiteral("background: %1;").arg(qbcolor(t_->Schalter[i].farbe).name()));
    }
    option1_->setChecked(t_->Option1);
    option2_->setChecked(t_->Option2);
    hscroll1_->setRange(t_->HScroll1.minimum, t_->HScroll1.maximum);
    hscroll1_->setValue(t_->HScroll1.wert);
    for (int i = 0; i <= 26; ++i) {
        QLineEdit* f = felder_[static_cast<std::size_t>(i)];
        if (f->text() != qtext(t_->fieldboxes[i]))
            f->setText(qtext(t_->fieldboxes[i]));
    }
    if (t_->alleszeichen) {
        felder_[static_cast<std::size_t>(t_->fokus)]->selectAll();
        t_->alleszeichen = false;
    }
    if (t_->pieptoene > 0) {
        QApplication::beep();
        t_->pieptoene = 0;
    }
    darstellend_ = false;
}

bool TarifeFenster::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (darstellend_)
        return QDialog::eventFilter(objekt, ereignis);
    for (int i = 0; i <= 26; ++i) {
        QLineEdit* f = felder_[static_cast<std::size_t>(i)];
        if (objekt != f)
            continue;
        switch (ereignis->type()) {
        case QEvent::FocusIn:
            ausfuehren([&] { t_->FieldBoxes_GotFocus(i); });
            QTimer::singleShot(0, f, &QLineEdit::selectAll);
            break;
        case QEvent::FocusOut: {
            // The message box of the check takes the focus itself: that is no leaving.
            const auto grund = static_cast<QFocusEvent*>(ereignis)->reason();
            if (meldet_ || grund == Qt::ActiveWindowFocusReason || grund == Qt::PopupFocusReason)
                break;
            t_->fieldboxes[i] = f->text().toStdString();
            bool gut = true;
            meldet_ = true;
            ausfuehren([&] { gut = t_->fieldboxes_lostfocus(i); });
            meldet_ = false;
            if (!gut)
                QTimer::singleShot(0, f, [f] { f->setFocus(); });
            break;
        }
        case QEvent::KeyPress: {
            const int taste = tastencode(static_cast<QKeyEvent*>(ereignis));
            if (taste == 0)
                return false;
            t_->fieldboxes[i] = f->text().toStdString();
            int weiter = 0;
            meldet_ = true;
            ausfuehren([&] { weiter = t_->fieldboxes_KeyPress(i, taste); });
            meldet_ = false;
            if (taste == 13) {
                QLineEdit* naechstes = felder_[static_cast<std::size_t>(t_->fokus)];
                naechstes->setFocus();
                naechstes->selectAll();
            }
            return weiter == 0;
        }
        default:
            break;
        }
    }
    return QDialog::eventFilter(objekt, ereignis);
}

void TarifeFenster::closeEvent(QCloseEvent* ereignis) {
    ausfuehren([&] { t_->Form_Unload(); });
    ereignis->accept();
}

} // namespace lonvir::gui
