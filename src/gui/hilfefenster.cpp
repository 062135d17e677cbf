// The help window: one QTextBrowser that shows the page of the asked context.
#include "gui/hilfefenster.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace lonvir::gui {

namespace {
QString installation() {
#ifdef LONVIR_INSTALLATION
    return QStringLiteral(LONVIR_INSTALLATION);
#else
    return {};
#endif
}
} // namespace

HilfeFenster::HilfeFenster(QString ordner, QWidget* eltern)
    : QTextBrowser(eltern), ordner_(std::move(ordner)) {
    setObjectName(QStringLiteral("Hilfe"));
    setWindowTitle(QStringLiteral("LONVIR 97 - Hilfe"));
    setOpenLinks(true);
    resize(640, 560);
}

QString HilfeFenster::seite(int kontext) const {
    const QString name = QStringLiteral("hilfe/%1.html").arg(kontext);
    for (const QString& ordner : {ordner_, installation()}) {
        if (ordner.isEmpty())
            continue;
        const QString pfad = QDir(ordner).filePath(name);
        if (QFileInfo::exists(pfad))
            return pfad;
    }
    return {};
}

void HilfeFenster::zeigen(int kontext) {
    letzter_ = kontext;
    const QString pfad = seite(kontext);
    if (pfad.isEmpty()) {
        setHtml(
            QStringLiteral("<p>Zum Hilfekontext %1 gibt es keine Hilfeseite.</p>").arg(kontext));
    } else {
        setSearchPaths({QFileInfo(pfad).absolutePath()});
        setSource(QUrl::fromLocalFile(pfad));
    }
    show();
    raise();
}

} // namespace lonvir::gui
