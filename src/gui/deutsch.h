// Qt's own dialogs in German: buttons, the print dialog, the preview, the file dialog.
#pragma once

#include <QCoreApplication>

namespace lonvir::gui {

// Loads Qt's German translations (qtbase_de of the system's Qt) into the application and sets
// German as the default locale. False when the translations are not installed: the dialogs of
// the toolkit then speak English, the program's own words stay German.
bool qtdeutsch(QCoreApplication& app);

} // namespace lonvir::gui
