// Printed documents as PDF.
#include "druck/pdfdatei.h"

#include "core/ausgabedatei.h"
#include "druck/druckmaler.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>

#include <cstdio>
#include <string_view>

namespace lonvir::druck {

QByteArray pdferzeugen(const std::vector<Druckdokument>& dokumente, const QString& titel) {
    QByteArray inhalt;
    QBuffer puffer(&inhalt);
    puffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&puffer);
        pdf.setResolution(1200);
        pdf.setTitle(titel);
        pdf.setCreator(QStringLiteral("Lonvir 97"));
        dokumentemalen(pdf, dokumente);
    }
    puffer.close();
    return inhalt;
}

void pdfschreiben(const std::filesystem::path& ziel, const std::vector<Druckdokument>& dokumente,
                  const QString& titel) {
    const QByteArray inhalt = pdferzeugen(dokumente, titel);
    dateiersetzen(ziel,
                  std::string_view(inhalt.constData(), static_cast<std::size_t>(inhalt.size())));
}

namespace {
int argumentzahl = 1;
// Outside the window Qt's notes on its platform (no runtime folder, no display) are no
// message for the user; errors still go to stderr.
void nurFehler(QtMsgType art, const QMessageLogContext&, const QString& text) {
    if (art == QtCriticalMsg || art == QtFatalMsg)
        std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}
char programmname[] = "lonvir97";
char* argumente[] = {programmname, nullptr};
} // namespace

Druckumgebung::Druckumgebung() {
    if (QGuiApplication::instance())
        return;
    // No display is needed to lay out text; an explicit choice of the caller stays.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(nurFehler);
    app_ = std::make_unique<QGuiApplication>(argumentzahl, argumente);
}

Druckumgebung::~Druckumgebung() = default;

} // namespace lonvir::druck
