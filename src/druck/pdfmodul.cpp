// The module's one function: the documents painted into a PDF, outside the window.
#include "druck/pdfmodul.h"

#include "druck/pdfdatei.h"

extern "C" __attribute__((visibility("default"))) void
lonvir97_pdfbytes(const std::vector<lonvir::Druckdokument>& dokumente, const std::string& titel,
                  std::string& pdf) {
    lonvir::druck::Druckumgebung umgebung;
    const QByteArray bytes = lonvir::druck::pdferzeugen(dokumente, QString::fromStdString(titel));
    pdf.assign(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}
