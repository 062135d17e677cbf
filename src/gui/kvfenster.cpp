// The widgets of the health-insurance rates: the fund, twelve month panels with their rates,
// "Schließen".
#include "gui/kvfenster.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lonvir::gui {

namespace {

QString qtext(const std::string& utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// The key as the form's handlers know it; keys without a character (Tab, arrows) have none.
int tastencode(const QKeyEvent* e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)
        return 13;
    if (e->key() == Qt::Key_Backspace)
        return 8;
    const QString t = e->text();
    if (t.size() != 1)
        return -1;
    const int code = t.at(0).unicode();
    return code < 256 ? code : 255;
}

} // namespace

KvFenster::KvFenster(Sitzung& s, Hauptbildauftrag auftrag,
                     std::function<void(const std::function<void()>&)> ereignis, QWidget* eltern)
    : QDialog(eltern), k_(std::make_unique<KV>(s, std::move(auftrag))),
      ereignis_(std::move(ereignis)) {
    setObjectName(QStringLiteral("KV"));
    setWindowTitle(QString::fromUtf8(kvTitel));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* spalte = new QVBoxLayout(this);
    label1_ = new QLabel(this);
    label1_->setObjectName(QStringLiteral("Label1"));
    label1_->setStyleSheet(QStringLiteral("font-weight: bold; color: #000080;"));
    spalte->addWidget(label1_);
    combo1_ = new QComboBox(this);
    combo1_->setObjectName(QStringLiteral("Combo1"));
    combo1_->setMaxVisibleItems(28);
    for (const std::string& kasse : k_->Combo1)
        combo1_->addItem(qtext(kasse));
    connect(combo1_, &QComboBox::activated, this,
            [this](int position) { ausfuehren([&] { k_->combo1_Click(position); }); });
    spalte->addWidget(combo1_);
    auto* raster = new QGridLayout;
    for (int monat = 0; monat <= 11; ++monat) {
        auto* titel = new QLabel(this);
        titel->setObjectName(QStringLiteral("SSPanel%1").arg(monat + 1));
        titel->setFrameStyle(QFrame::Panel | QFrame::Raised);
        titel->setAlignment(Qt::AlignCenter);
        auto* feld = new QLineEdit(this);
        feld->setObjectName(QStringLiteral("kvzahl%1").arg(monat));
        feld->setAlignment(Qt::AlignRight);
        feld->installEventFilter(this);
        monate_[static_cast<std::size_t>(monat)] = titel;
        kvzahl_[static_cast<std::size_t>(monat)] = feld;
        raster->addWidget(titel, (monat / 6) * 2, monat % 6);
        raster->addWidget(feld, (monat / 6) * 2 + 1, monat % 6);
    }
    spalte->addLayout(raster);
    auto* schliessen = new QPushButton(QStringLiteral("Schließen"), this);
    schliessen->setObjectName(QStringLiteral("Command2"));
    connect(schliessen, &QPushButton::clicked, this, [this] {
        ausfuehren([&] { k_->command2_Click(); });
        close();
    });
    spalte->addWidget(schliessen, 0, Qt::AlignRight);
    darstellen();
}

KvFenster::~KvFenster() = default;

void KvFenster::ausfuehren(const std::function<void()>& handler) {
    if (darstellend_)
        return;
    ereignis_(handler);
    darstellen();
}

void KvFenster::darstellen() {
    darstellend_ = true;
    label1_->setText(qtext(k_->Label1));
    combo1_->setCurrentIndex(k_->Combo1position);
    for (int monat = 0; monat <= 11; ++monat) {
        monate_[static_cast<std::size_t>(monat)]->setText(qtext(k_->SSPanel[monat]));
        QLineEdit* feld = kvzahl_[static_cast<std::size_t>(monat)];
        if (feld->text() != qtext(k_->kvzahl[monat]))
            feld->setText(qtext(k_->kvzahl[monat]));
    }
    darstellend_ = false;
}

// Every character goes through the model's key handler; the field shows what the model holds.
bool KvFenster::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (darstellend_)
        return QDialog::eventFilter(objekt, ereignis);
    for (int monat = 0; monat <= 11; ++monat) {
        if (objekt != kvzahl_[static_cast<std::size_t>(monat)])
            continue;
        if (ereignis->type() == QEvent::FocusIn) {
            ausfuehren([&] { k_->kvzahl_GotFocus(monat); });
        } else if (ereignis->type() == QEvent::KeyPress) {
            const int taste = tastencode(static_cast<QKeyEvent*>(ereignis));
            if (taste < 0)
                return false;
            ausfuehren([&] {
                const int weiter = k_->kvzahl_KeyPress(monat, taste);
                if (weiter != 0 && weiter != 13)
                    k_->kvzahl[monat] += static_cast<char>(weiter);
            });
            return true;
        }
    }
    return QDialog::eventFilter(objekt, ereignis);
}

} // namespace lonvir::gui
