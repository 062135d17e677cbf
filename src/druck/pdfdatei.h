// Printed documents as a PDF file with the font embedded, written whole or not at all.
#pragma once

#include "core/drucker.h"

#include <QByteArray>
#include <QString>

#include <filesystem>
#include <memory>
#include <vector>

class QGuiApplication;

namespace lonvir::druck {

// The bytes of a PDF of the documents; `titel` goes into the document's properties.
[[nodiscard]] QByteArray pdferzeugen(const std::vector<Druckdokument>& dokumente,
                                     const QString& titel);
// The PDF written to a temporary name beside `ziel`, then renamed; a failure names `ziel`.
void pdfschreiben(const std::filesystem::path& ziel, const std::vector<Druckdokument>& dokumente,
                  const QString& titel);

// Fonts need an application object. Outside the window (the command line, a test) this
// provides one on the offscreen platform for as long as it lives; inside it does nothing.
class Druckumgebung {
public:
    Druckumgebung();
    ~Druckumgebung();
    Druckumgebung(const Druckumgebung&) = delete;
    Druckumgebung& operator=(const Druckumgebung&) = delete;

private:
    std::unique_ptr<QGuiApplication> app_;
};

} // namespace lonvir::druck
