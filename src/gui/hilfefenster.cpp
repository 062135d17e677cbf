// The help window: a QTextBrowser that shows the page of the asked context, and a button that
// closes it.
#include "gui/hilfefenster.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace lonvir::gui {

namespace {
QString installation() {
#ifdef LONVIR_INSTALLATION
    return QStringLiteral(LONVIR_INSTALLATION);
#else
    return {};
#endif
}

// Amounts and headings of the pay tables stay on one line; a table wider than the window is
// scrolled sideways instead of wrapped.
const char* const tabellenstil = "td, th { white-space: nowrap; }";
} // namespace

HilfeFenster::HilfeFenster(QString ordner, QWidget* eltern)
    : QWidget(eltern, Qt::Window), ordner_(std::move(ordner)) {
    setObjectName(QStringLiteral("Hilfe"));
    setWindowTitle(QStringLiteral("LONVIR 97 - Hilfe"));
    browser_ = new QTextBrowser(this);
    browser_->setObjectName(QStringLiteral("Hilfetext"));
    browser_->setOpenLinks(true);
    browser_->document()->setDefaultStyleSheet(QString::fromUtf8(tabellenstil));
    browser_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    schliessen_ = new QPushButton(QStringLiteral("Schließen"), this);
    schliessen_->setObjectName(QStringLiteral("HilfeSchliessen"));
    connect(schliessen_, &QPushButton::clicked, this, &QWidget::close);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->addStretch();
    knoepfe->addWidget(schliessen_);
    auto* spalte = new QVBoxLayout(this);
    spalte->addWidget(browser_);
    spalte->addLayout(knoepfe);
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

QString HilfeFenster::toPlainText() const {
    return browser_->toPlainText();
}

void HilfeFenster::zeigen(int kontext) {
    letzter_ = kontext;
    const QString pfad = seite(kontext);
    if (pfad.isEmpty()) {
        browser_->setHtml(
            QStringLiteral("<p>Zum Hilfekontext %1 gibt es keine Hilfeseite.</p>").arg(kontext));
    } else {
        browser_->setSearchPaths({QFileInfo(pfad).absolutePath()});
        browser_->setSource(QUrl::fromLocalFile(pfad));
    }
    groesseanpassen();
    show();
    raise();
    activateWindow();
}

// A page with a table gets the width the table needs, as far as the screen allows; any other
// page keeps the window as the user left it.
void HilfeFenster::groesseanpassen() {
    if (!browser_->toHtml().contains(QStringLiteral("<table"), Qt::CaseInsensitive))
        return;
    QTextDocument* dokument = browser_->document();
    dokument->setTextWidth(-1);
    const double ideal = dokument->idealWidth();
    dokument->setTextWidth(browser_->viewport()->width());
    const QScreen* bildschirm = screen();
    const QRect frei = bildschirm ? bildschirm->availableGeometry() : QRect(0, 0, 1024, 768);
    const int rand = width() - browser_->viewport()->width() + 40;
    const int breite = std::clamp(static_cast<int>(std::ceil(ideal)) + rand, 640,
                                  std::max(640, frei.width() - 40));
    const int hoehe = std::max(height(), std::min(frei.height() - 80, 720));
    resize(breite, hoehe);
}

void HilfeFenster::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(ereignis);
}

} // namespace lonvir::gui
