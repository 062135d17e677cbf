// The start lock's form.
#include "gui/passwortfenster.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QVBoxLayout>

namespace lonvir::gui {

int passworttastencode(const QKeyEvent* e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)
        return 13;
    if (e->key() == Qt::Key_Shift)
        return 16;
    const bool ziffernblock = (e->modifiers() & Qt::KeypadModifier) != 0;
    if (e->key() >= Qt::Key_0 && e->key() <= Qt::Key_9)
        return passworttaste(static_cast<char32_t>('0' + (e->key() - Qt::Key_0)), ziffernblock);
    if (e->key() >= Qt::Key_A && e->key() <= Qt::Key_Z)
        return passworttaste(static_cast<char32_t>('A' + (e->key() - Qt::Key_A)));
    return 0;
}

PasswortFenster::PasswortFenster(Sitzung& s, QWidget* eltern) : QDialog(eltern), modell_(s) {
    setObjectName(QStringLiteral("Password"));
    setWindowTitle(QString::fromUtf8(Password::titel));
    auto* spalte = new QVBoxLayout(this);
    auto* panel = new QLabel(QString::fromUtf8(Password::aufforderung), this);
    panel->setObjectName(QStringLiteral("Panel3D1"));
    panel->setAlignment(Qt::AlignCenter);
    panel->setFrameStyle(QFrame::Panel | QFrame::Raised);
    panel->setMinimumHeight(36);
    spalte->addWidget(panel);
    auto* reihe = new QHBoxLayout;
    for (std::size_t i = 0; i < 8; ++i) {
        auto* box = new QLineEdit(this);
        box->setObjectName(QStringLiteral("pawo%1").arg(i));
        box->setEchoMode(QLineEdit::Password);
        box->setReadOnly(true);
        box->setFixedWidth(28);
        box->setAlignment(Qt::AlignCenter);
        box->installEventFilter(this);
        pawo_[i] = box;
        reihe->addWidget(box);
    }
    spalte->addLayout(reihe);
}

void PasswortFenster::mittig() {
    adjustSize();
    if (const QScreen* bildschirm = QGuiApplication::primaryScreen()) {
        const QRect flaeche = bildschirm->geometry();
        move((flaeche.width() - width()) / 2, (flaeche.height() - height()) / 2);
    }
}

Password::Stand PasswortFenster::zeigen() {
    mittig();
    darstellen();
    exec();
    return modell_.stand;
}

void PasswortFenster::darstellen() {
    for (int i = 0; i <= 7; ++i)
        pawo_[static_cast<std::size_t>(i)]->setText(QString::fromUtf8(modell_.pawo[i].c_str()));
    pawo_[static_cast<std::size_t>(modell_.fokus)]->setFocus(Qt::OtherFocusReason);
}

bool PasswortFenster::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (ereignis->type() != QEvent::KeyPress)
        return QDialog::eventFilter(objekt, ereignis);
    for (int i = 0; i <= 7; ++i) {
        if (objekt != pawo_[static_cast<std::size_t>(i)])
            continue;
        const auto* taste = static_cast<QKeyEvent*>(ereignis);
        if (taste->key() == Qt::Key_Escape)
            return true; // the form has no way out but the entry
        const Password::Stand stand = modell_.pawo_keydown(i, passworttastencode(taste));
        darstellen();
        if (stand == Password::Stand::beenden)
            reject();
        else if (stand != Password::Stand::offen && stand != Password::Stand::falsch)
            accept();
        return true;
    }
    return QDialog::eventFilter(objekt, ereignis);
}

} // namespace lonvir::gui
