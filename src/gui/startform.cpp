// The start form with its picture.
#include "gui/startform.h"

#include <QFont>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace lonvir::gui {

Startform::Startform(Hilfe* hilfe, QWidget* eltern) : QWidget(eltern, Qt::Dialog), hilfe_(hilfe) {
    setWindowTitle(QStringLiteral("\"Lonvir 97\"  startet. Bitte warten ..."));
    setCursor(Qt::WaitCursor);
    auto* layout = new QVBoxLayout(this);
    // Picture1: the name of the program on the colours of the main screen.
    auto* picture1 = new QLabel(QStringLiteral("LONVIR 97"), this);
    picture1->setObjectName(QStringLiteral("Picture1"));
    picture1->setAlignment(Qt::AlignCenter);
    QFont schrift = picture1->font();
    schrift.setPointSize(28);
    schrift.setBold(true);
    picture1->setFont(schrift);
    picture1->setAutoFillBackground(true);
    picture1->setStyleSheet(
        QStringLiteral("background: #FFFF00; color: #000080; border: 2px solid #000080;"));
    picture1->setMinimumSize(360, 140);
    layout->addWidget(picture1);
}

void Startform::zeigenMittig() {
    adjustSize();
    if (const QScreen* bildschirm = QGuiApplication::primaryScreen()) {
        const QRect flaeche = bildschirm->geometry();
        move((flaeche.width() - width()) / 2, (flaeche.height() - height()) / 2);
    }
    show();
}

void Startform::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_F1 && hilfe_)
        hilfe_->zeigen(96201);
    else
        QWidget::keyPressEvent(ereignis);
}

} // namespace lonvir::gui
