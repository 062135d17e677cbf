// The text editor's widgets: the explanation, the record with its block and number, the
// scroll bar, the search with "Weiter", "Abbrechen".
#include "gui/texteditfenster.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

namespace lonvir::gui {

namespace {

QString qtext(const std::string& utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool enter(const QEvent* e) {
    const auto* k = static_cast<const QKeyEvent*>(e);
    return k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter;
}

} // namespace

TexteditFenster::TexteditFenster(Sitzung& s, std::int16_t textvon, std::int16_t textbis,
                                 Hauptbildauftrag auftrag,
                                 std::function<void(const std::function<void()>&)> ereignis,
                                 QWidget* eltern)
    : QDialog(eltern), t_(std::make_unique<Textedit>(s, textvon, textbis, std::move(auftrag))),
      ereignis_(std::move(ereignis)) {
    setObjectName(QStringLiteral("Textedit"));
    setWindowTitle(QString::fromUtf8(texteditTitel));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* spalte = new QVBoxLayout(this);
    label1_ = new QLabel(this);
    label1_->setObjectName(QStringLiteral("Label1"));
    label1_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label1_->setStyleSheet(QStringLiteral("background: #FFFFE0; padding: 4px;"));
    spalte->addWidget(label1_);

    auto* satz = new QGroupBox(this);
    satz->setObjectName(QStringLiteral("SSFrame1"));
    auto* satzspalte = new QVBoxLayout(satz);
    label3_ = new QLabel(satz);
    label3_->setObjectName(QStringLiteral("Label3"));
    label3_->setStyleSheet(QStringLiteral("font-weight: bold; color: #000080;"));
    text1_ = new QLineEdit(satz);
    text1_->setObjectName(QStringLiteral("Text1"));
    text1_->setMinimumWidth(360);
    text1_->installEventFilter(this);
    connect(text1_, &QLineEdit::textEdited, this,
            [this](const QString& neu) { t_->Text1 = neu.toStdString(); });
    hscroll1_ = new QScrollBar(Qt::Horizontal, satz);
    hscroll1_->setObjectName(QStringLiteral("HScroll1"));
    connect(hscroll1_, &QScrollBar::valueChanged, this, [this](int wert) {
        if (!darstellend_)
            ausfuehren([&] { t_->hscroll1_change(wert); });
    });
    satzspalte->addWidget(label3_);
    satzspalte->addWidget(text1_);
    satzspalte->addWidget(hscroll1_);
    spalte->addWidget(satz);

    auto* suche = new QGroupBox(QStringLiteral("Suchen"), this);
    suche->setObjectName(QStringLiteral("SSFrame2"));
    auto* suchzeile = new QHBoxLayout(suche);
    text2_ = new QLineEdit(suche);
    text2_->setObjectName(QStringLiteral("Text2"));
    text2_->installEventFilter(this);
    connect(text2_, &QLineEdit::textEdited, this,
            [this](const QString& neu) { t_->Text2 = neu.toStdString(); });
    auto* weiter = new QPushButton(QStringLiteral("Weiter"), suche);
    weiter->setObjectName(QStringLiteral("Command1"));
    connect(weiter, &QPushButton::clicked, this,
            [this] { ausfuehren([&] { t_->Command1_Click(); }); });
    suchzeile->addWidget(text2_, 1);
    suchzeile->addWidget(weiter);
    spalte->addWidget(suche);

    auto* abbrechen = new QPushButton(QStringLiteral("Abbrechen"), this);
    abbrechen->setObjectName(QStringLiteral("Command2"));
    abbrechen->setAutoDefault(false);
    weiter->setAutoDefault(false);
    connect(abbrechen, &QPushButton::clicked, this, &QDialog::close);
    spalte->addWidget(abbrechen, 0, Qt::AlignRight);
    darstellen();
}

TexteditFenster::~TexteditFenster() = default;

void TexteditFenster::ausfuehren(const std::function<void()>& handler) {
    if (darstellend_)
        return;
    ereignis_(handler);
    darstellen();
}

void TexteditFenster::darstellen() {
    darstellend_ = true;
    QStringList zeilen;
    for (const std::string& z : t_->Label1)
        zeilen << qtext(z);
    label1_->setText(zeilen.join(QLatin1Char('\n')));
    label3_->setText(qtext(t_->kopf));
    if (text1_->text() != qtext(t_->Text1))
        text1_->setText(qtext(t_->Text1));
    text1_->setStyleSheet(t_->Text1farbe == 12 ? QStringLiteral("color: #FF0000;")
                                               : QStringLiteral("color: #000000;"));
    if (text2_->text() != qtext(t_->Text2))
        text2_->setText(qtext(t_->Text2));
    hscroll1_->setRange(t_->HScroll1.minimum, t_->HScroll1.maximum);
    hscroll1_->setValue(t_->HScroll1.wert);
    if (t_->Text2markiert) {
        QTimer::singleShot(0, text2_, &QLineEdit::selectAll);
        t_->Text2markiert = false;
    }
    setCursor(t_->sanduhr ? Qt::WaitCursor : Qt::ArrowCursor);
    darstellend_ = false;
}

bool TexteditFenster::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (darstellend_)
        return QDialog::eventFilter(objekt, ereignis);
    const QEvent::Type art = ereignis->type();
    if (objekt == text1_) {
        if (art == QEvent::KeyPress && enter(ereignis)) {
            ausfuehren([&] {
                t_->Text1 = text1_->text().toStdString();
                t_->text1_KeyDown(13);
            });
            return true;
        }
        if (art == QEvent::KeyRelease)
            ausfuehren([&] {
                t_->Text1 = text1_->text().toStdString();
                t_->text1_KeyUp();
            });
    } else if (objekt == text2_) {
        if (art == QEvent::FocusIn)
            ausfuehren([&] { t_->Text2_GotFocus(); });
        if (art == QEvent::KeyPress && enter(ereignis)) {
            ausfuehren([&] {
                t_->Text2 = text2_->text().toStdString();
                t_->Text2_KeyPress(13);
            });
            return true;
        }
    }
    return QDialog::eventFilter(objekt, ereignis);
}

// Closing the window is "Abbrechen": the names are counted, the main screen follows.
void TexteditFenster::closeEvent(QCloseEvent* ereignis) {
    ausfuehren([&] { t_->command2_Click(); });
    ereignis->accept();
}

} // namespace lonvir::gui
