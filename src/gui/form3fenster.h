// The annual overview Form3 as a window: a thin view of the model Form3, with the small
// chart of the year below the grids and the export for a spreadsheet.
#pragma once

#include "core/drucker.h"
#include "gui/gitteransicht.h"
#include "gui/jahresdiagrammansicht.h"
#include "reports/form3.h"
#include "reports/jahresdiagramm.h"

#include <QWidget>

#include <array>
#include <functional>

class QPushButton;
class QScrollBar;

namespace lonvir::gui {

// Sends a report to the printer with its preview: the title and the report's procedure.
using Druckauftrag =
    std::function<void(const QString& titel, const std::function<void(Drucker&)>& bericht)>;

class Form3Fenster : public QWidget {
    Q_OBJECT
public:
    Form3Fenster(Sitzung& s, Druckauftrag drucken, QWidget* eltern);

    [[nodiscard]] Form3& modell() { return modell_; }
    // Form_Load and Form_Activate for `jahresperson`: shown in the employer view.
    void oeffnen(std::int16_t jahresperson);
    void darstellen();

    [[nodiscard]] Gitteransicht* gitter(int i) const {
        return gitter_.at(static_cast<std::size_t>(i - 1));
    }
    [[nodiscard]] QPushButton* knopf(int i) const {
        return knoepfe_.at(static_cast<std::size_t>(i - 1));
    }
    [[nodiscard]] QPushButton* exportknopf() const { return export_; }
    [[nodiscard]] QScrollBar* rollbalken() const { return hscroll1_; }
    [[nodiscard]] Jahresdiagrammansicht* diagramm() const { return diagramm_; }
    // The export to a file chosen by the caller (tests); the button asks for it.
    bool exportieren(const QString& datei);

signals:
    // A click on a month column: the main screen is to show that month of the person.
    void monatGewaehlt();

protected:
    void closeEvent(QCloseEvent* ereignis) override;

private:
    void ausfuehren(const std::function<void()>& handler);
    Form3 modell_;
    Druckauftrag drucken_;
    std::array<Gitteransicht*, 3> gitter_{};
    std::array<QPushButton*, 3> knoepfe_{};
    QPushButton* export_ = nullptr;
    QScrollBar* hscroll1_ = nullptr;
    Jahresdiagrammansicht* diagramm_ = nullptr;
    bool darstellend_ = false;
};

} // namespace lonvir::gui
