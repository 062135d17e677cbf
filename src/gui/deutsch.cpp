// Qt's own dialogs in German.
#include "gui/deutsch.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace lonvir::gui {

bool qtdeutsch(QCoreApplication& app) {
    const QLocale deutsch(QLocale::German, QLocale::Germany);
    QLocale::setDefault(deutsch);
    auto* uebersetzung = new QTranslator(&app);
    if (!uebersetzung->load(deutsch, QStringLiteral("qtbase"), QStringLiteral("_"),
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete uebersetzung;
        return false;
    }
    return QCoreApplication::installTranslator(uebersetzung);
}

} // namespace lonvir::gui
