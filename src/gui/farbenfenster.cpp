// The row colours chosen beside the rows themselves.
#include "gui/farbenfenster.h"

#include "gui/farben.h"
#include "start/einstellungen.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace lonvir::gui {

namespace {
constexpr int knopfbreite = 26;
}

FarbenFenster::FarbenFenster(Form1Fenster& form1)
    : QWidget(form1.centralWidget()), form1_(form1), modell_(form1.modell().s, [&form1] {
          form1.modell().farbenanwenden();
          form1.darstellen();
      }) {
    setObjectName(QStringLiteral("Form14"));
    for (std::size_t i = 0; i < 46; ++i) {
        auto* knopf = new QPushButton(this);
        knopf->setObjectName(QStringLiteral("colo%1").arg(i));
        knopf->setFocusPolicy(Qt::NoFocus);
        const int zeile = static_cast<int>(i);
        connect(knopf, &QPushButton::clicked, this, [this, zeile] {
            modell_.colo_Click(zeile);
            darstellen();
        });
        colo_[i] = knopf;
    }
    const std::pair<const char*, const char*> knoepfe[] = {{"Command1", Form14::abbrechen},
                                                           {"Empfehlung", Form14::empfehlung},
                                                           {"Farbenwahl", Form14::farbenwahl}};
    for (const auto& [name, text] : knoepfe) {
        auto* knopf = new QPushButton(QString::fromUtf8(text), this);
        knopf->setObjectName(QString::fromUtf8(name));
        connect(knopf, &QPushButton::clicked, this, [this, name = std::string(name)] {
            if (name == "Command1")
                modell_.Command1_Click();
            else if (name == "Empfehlung")
                modell_.Empfehlung_Click();
            else
                modell_.Farbenwahl_Click();
            darstellen();
            if (!modell_.geladen) {
                hide();
                emit entladen();
            }
        });
    }
}

QPushButton* FarbenFenster::knopf(const char* name) const {
    return findChild<QPushButton*>(QString::fromUtf8(name));
}

void FarbenFenster::laden() {
    modell_.Form_Load();
    QWidget* mitte = form1_.centralWidget();
    // Over the whole screen of Form1, so that every row keeps a button beside it; the form
    // paints no background of its own and the rows stay in view.
    setGeometry(mitte->rect());
    for (int i = 0; i <= 45; ++i) {
        // Beside the row's list, or its box where the row has no list.
        const QWidget* zeile = form1_.z(i);
        if (!zeile)
            zeile = form1_.t(i);
        QPushButton* knopf = colo_[static_cast<std::size_t>(i)];
        knopf->setVisible(zeile != nullptr);
        if (!zeile)
            continue;
        const QPoint ecke = zeile->mapTo(mitte, QPoint(0, 0));
        knopf->setGeometry(ecke.x(), ecke.y(), knopfbreite, zeile->height());
    }
    // The three buttons in the head, over the month's title.
    const QWidget* panel2 = mitte->findChild<QWidget*>(QStringLiteral("Panel3D2"));
    int links = panel2 ? panel2->mapTo(mitte, QPoint(0, 0)).x() + 10 : 10;
    const int oben = panel2 ? std::max(0, panel2->mapTo(mitte, QPoint(0, 0)).y() - 34) : 0;
    for (const char* name : {"Command1", "Empfehlung", "Farbenwahl"}) {
        knopf(name)->setGeometry(links, oben, 110, 28);
        links += 120;
    }
    darstellen();
    show();
    raise();
}

void FarbenFenster::darstellen() {
    for (int i = 0; i <= 45; ++i) {
        QPushButton* k = colo_[static_cast<std::size_t>(i)];
        const int farbe = modell_.s.dim.zeilenfarbe[i];
        k->setText(QString::fromUtf8(modell_.colo[i].c_str()));
        k->setStyleSheet(QStringLiteral("background: %1; color: %2; padding: 0;")
                             .arg(qbcolor(farbe).name(), qbcolor(textfarbe(farbe)).name()));
    }
}

} // namespace lonvir::gui
