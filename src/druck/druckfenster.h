// The system printer and the preview for printed documents: Qt's print dialog and
// QPrintPreviewDialog over the same painting as the PDF files.
#pragma once

#include "core/drucker.h"

#include <QPrintPreviewDialog>
#include <QString>

#include <vector>

class QPrinter;
class QWidget;

namespace lonvir::druck {

// Asks for a printer in Qt's print dialog and prints there; false when the user cancels.
bool druckerdrucken(QWidget* eltern, const std::vector<Druckdokument>& dokumente,
                    const QString& titel);

// The preview: pages as they will come out. Its tool bar prints (Qt's print dialog, which
// also prints to a PDF file) and saves a PDF directly.
class Druckvorschau : public QPrintPreviewDialog {
    Q_OBJECT
public:
    Druckvorschau(std::vector<Druckdokument> dokumente, const QString& titel,
                  QWidget* eltern = nullptr);
    ~Druckvorschau() override;

    [[nodiscard]] const std::vector<Druckdokument>& dokumente() const { return dokumente_; }
    // The pages the last painting produced.
    [[nodiscard]] int seiten() const { return seiten_; }

    // Asks for a file name and writes the PDF; a failure is shown in a message box.
    void alspdfspeichern();

private:
    void malen(QPrinter* drucker);

    std::vector<Druckdokument> dokumente_;
    QString titel_;
    int seiten_ = 0;
};

} // namespace lonvir::druck
