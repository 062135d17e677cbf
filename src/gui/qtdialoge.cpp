// The core's message boxes as QMessageBox, its help contexts as pages of the folder.
#include "gui/qtdialoge.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

namespace lonvir::gui {

namespace {

QMessageBox::Icon symbolVon(Symbol s) {
    switch (s) {
    case Symbol::stop:
        return QMessageBox::Critical;
    case Symbol::frage:
        return QMessageBox::Question;
    case Symbol::ausruf:
        return QMessageBox::Warning;
    case Symbol::info:
        return QMessageBox::Information;
    case Symbol::keins:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons knoepfeVon(Knoepfe k) {
    switch (k) {
    case Knoepfe::ok:
        return QMessageBox::Ok;
    case Knoepfe::okAbbrechen:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Knoepfe::wiederholenAbbrechen:
        return QMessageBox::Retry | QMessageBox::Cancel;
    case Knoepfe::jaNein:
        return QMessageBox::Yes | QMessageBox::No;
    }
    return QMessageBox::Ok;
}

Knopf knopfVon(int gedrueckt) {
    switch (gedrueckt) {
    case QMessageBox::Cancel:
        return Knopf::abbrechen;
    case QMessageBox::Retry:
        return Knopf::wiederholen;
    case QMessageBox::Yes:
        return Knopf::ja;
    case QMessageBox::No:
        return Knopf::nein;
    default:
        return Knopf::ok;
    }
}

} // namespace

Knopf QtDialoge::zeigen(const Meldung& meldung) {
    QMessageBox box(symbolVon(meldung.symbol), QString::fromStdString(meldung.titel),
                    QString::fromStdString(meldung.text), knoepfeVon(meldung.knoepfe), eltern_);
    // The hourglass of the running handler gives way to the arrow while the box is up.
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int gedrueckt = box.exec();
    QApplication::restoreOverrideCursor();
    return knopfVon(gedrueckt);
}

void QtHilfe::zeigen(int kontext) {
    const QString seite = QDir(ordner_).filePath(QStringLiteral("hilfe/%1.html").arg(kontext));
    if (QFileInfo::exists(seite))
        QDesktopServices::openUrl(QUrl::fromLocalFile(seite));
}

} // namespace lonvir::gui
