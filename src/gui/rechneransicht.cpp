// The calculator strip: display, digits, point, operators, the clear buttons and "Übertrag".
#include "gui/rechneransicht.h"

#include <QFont>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace lonvir::gui {

RechnerAnsicht::RechnerAnsicht(Rechner& modell,
                               std::function<void(const std::function<void()>&)> ereignis,
                               QWidget* eltern)
    : QFrame(eltern), r_(modell), ereignis_(std::move(ereignis)) {
    setObjectName(QStringLiteral("Calculator"));
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setStyleSheet(QStringLiteral("QFrame#Calculator { background: #C0C0C0; }"));
    readout_ = new QLabel(this);
    readout_->setObjectName(QStringLiteral("readout"));
    readout_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    readout_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    readout_->setStyleSheet(QStringLiteral("background: white; color: black;"));
    for (int i = 0; i < 10; ++i)
        number_[static_cast<std::size_t>(i)] =
            knopf(QStringLiteral("number%1").arg(i), QString::number(i),
                  [this, i] { r_.number_Click(i); });
    decimalp_ =
        knopf(QStringLiteral("decimalp"), QStringLiteral(","), [this] { r_.decimalp_Click(); });
    const QString zeichen[] = {QStringLiteral("+"), QStringLiteral("-"), QStringLiteral("X"),
                               QStringLiteral("/"), QStringLiteral("=")};
    for (int i = 0; i < 5; ++i)
        operator_[static_cast<std::size_t>(i)] = knopf(
            QStringLiteral("operator%1").arg(i), zeichen[i], [this, i] { r_.operator_Click(i); });
    cancel_ = knopf(QStringLiteral("cancel"), QStringLiteral("C"), [this] { r_.cancel_Click(); });
    cancelentry_ = knopf(QStringLiteral("cancelentry"), QStringLiteral("CE"),
                         [this] { r_.cancelentry_Click(); });
    eintrag_ = knopf(QStringLiteral("Eintrag"), QStringLiteral("Übertrag"),
                     [this] { r_.Eintrag_Click(); });
    eintrag_->setToolTip(QStringLiteral("Das Ergebnis in die zuletzt angeklickte Zeile"));
    darstellen();
}

QPushButton* RechnerAnsicht::knopf(const QString& name, const QString& text,
                                   const std::function<void()>& h) {
    auto* k = new QPushButton(text, this);
    k->setObjectName(name);
    // The buttons take no focus: the row being worked on keeps it.
    k->setFocusPolicy(Qt::NoFocus);
    connect(k, &QPushButton::clicked, this, [this, h] { ereignis_(h); });
    return k;
}

void RechnerAnsicht::darstellen() {
    readout_->setText(QString::fromUtf8(r_.readout.c_str()) + QLatin1Char(' '));
}

void RechnerAnsicht::resizeEvent(QResizeEvent* ereignis) {
    QFrame::resizeEvent(ereignis);
    ausrichten(height());
}

void RechnerAnsicht::ausrichten(int hoehe) {
    // Display 3 parts, each button 1, "CE" 1.3 and "Übertrag" 2.6 parts of the width.
    const double teile = 3 + 10 + 1 + 5 + 1 + 1.3 + 2.6;
    const double teil = (width() - 4) / teile;
    const int h = std::max(1, hoehe - 4);
    QFont f = font();
    f.setPixelSize(std::max(6, static_cast<int>(h * 0.6)));
    double x = 2;
    const auto setzen = [&](QWidget* w, double anteil) {
        w->setFont(f);
        w->setGeometry(static_cast<int>(x), 2, std::max(1, static_cast<int>(anteil * teil) - 2), h);
        x += anteil * teil;
    };
    QFont fest(QStringLiteral("Courier New"));
    fest.setStyleHint(QFont::TypeWriter);
    fest.setPixelSize(f.pixelSize());
    setzen(readout_, 3);
    readout_->setFont(fest);
    for (QPushButton* k : number_)
        setzen(k, 1);
    setzen(decimalp_, 1);
    for (QPushButton* k : operator_)
        setzen(k, 1);
    setzen(cancel_, 1);
    setzen(cancelentry_, 1.3);
    setzen(eintrag_, 2.6);
}

} // namespace lonvir::gui
