// The system printer and the preview.
#include "druck/druckfenster.h"

#include "core/laufzeitfehler.h"
#include "druck/druckmaler.h"
#include "druck/pdfdatei.h"

#include <QAction>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QToolBar>

namespace lonvir::druck {

bool druckerdrucken(QWidget* eltern, const std::vector<Druckdokument>& dokumente,
                    const QString& titel) {
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setDocName(titel);
    QPrintDialog dialog(&drucker, eltern);
    dialog.setWindowTitle(QStringLiteral("Drucken"));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    dokumentemalen(drucker, dokumente);
    return true;
}

Druckvorschau::Druckvorschau(std::vector<Druckdokument> dokumente, const QString& titel,
                             QWidget* eltern)
    : QPrintPreviewDialog(eltern), dokumente_(std::move(dokumente)), titel_(titel) {
    setWindowTitle(QStringLiteral("Druckvorschau – ") + titel);
    printer()->setDocName(titel);
    connect(this, &QPrintPreviewDialog::paintRequested, this, &Druckvorschau::malen);
    if (auto* leiste = findChild<QToolBar*>()) {
        leiste->addSeparator();
        QAction* pdf = leiste->addAction(QStringLiteral("Als PDF speichern ..."));
        pdf->setObjectName(QStringLiteral("alsPdfSpeichern"));
        connect(pdf, &QAction::triggered, this, &Druckvorschau::alspdfspeichern);
    }
    resize(900, 1000);
}

Druckvorschau::~Druckvorschau() = default;

void Druckvorschau::malen(QPrinter* drucker) {
    seiten_ = dokumentemalen(*drucker, dokumente_);
}

void Druckvorschau::alspdfspeichern() {
    const QString datei = QFileDialog::getSaveFileName(this, QStringLiteral("Als PDF speichern"),
                                                       titel_ + QStringLiteral(".pdf"),
                                                       QStringLiteral("PDF-Dateien (*.pdf)"));
    if (datei.isEmpty())
        return;
    try {
        pdfschreiben(datei.toStdString(), dokumente_, titel_);
    } catch (const Dateifehler& f) {
        QMessageBox::warning(this, QStringLiteral("Als PDF speichern"),
                             QString::fromUtf8(f.what()));
    }
}

} // namespace lonvir::druck
