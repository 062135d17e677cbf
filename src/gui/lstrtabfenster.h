// The wage-tax table viewer LStrTab and the allowances display freibetr: thin views of the
// table model, with the printing of the band shown and of a range of bands.
#pragma once

#include "reports/freibetraege.h"
#include "reports/lohnsteuertabelle.h"
#include "reports/lstrtablage.h"

#include <QDialog>

#include <array>
#include <cstdint>
#include <functional>

class QComboBox;
class QLabel;
class QScrollBar;
class QTableWidget;

namespace lonvir::gui {

class FreibetrFenster : public QDialog {
public:
    explicit FreibetrFenster(QWidget* eltern = nullptr);
    void zeigen(const Freibetraege& f);
    [[nodiscard]] QTableWidget* grid1() const { return grid1_; }

private:
    QTableWidget* grid1_ = nullptr;
};

class LStrTabFenster : public QDialog {
public:
    explicit LStrTabFenster(QWidget* eltern = nullptr);

    [[nodiscard]] const Lohnsteuertabelle& modell() const { return t_; }
    [[nodiscard]] QComboBox* combo(int n) const {
        return combos_.at(static_cast<std::size_t>(n - 1));
    }
    [[nodiscard]] QScrollBar* hscroll1() const { return hscroll1_; }
    [[nodiscard]] QTableWidget* grid1() const { return grid1_; }
    [[nodiscard]] QLabel* label1() const { return label1_; }
    [[nodiscard]] QLabel* label2() const { return label2_; }
    [[nodiscard]] FreibetrFenster* freibetr() const { return freibetr_; }

    // The session whose display settings keep the viewer's place: it moves there now, and
    // goes back there whenever it is hidden.
    void ortbinden(Sitzung& s);
    // The law every cell is computed with; the caption names its year.
    void rechtsetzen(Steuerrecht recht);
    // A double click on the row of class `klasse` (1 to 6): the allowances of that class, and
    // whoever listens gets the class to show its steps.
    void grid1_DblClick(int klasse);
    std::function<void(std::int16_t klasse)> klassegewaehlt;
    // The band shown, and a range of bands from `von` to `bis` DM, each to the preview.
    void drucken();
    void bereichdrucken();

protected:
    void hideEvent(QHideEvent* ereignis) override;

private:
    void auswahlgeaendert();
    void darstellen();

    Lohnsteuertabelle t_;
    std::array<QComboBox*, 5> combos_{};
    QScrollBar* hscroll1_ = nullptr;
    QLabel* label1_ = nullptr;
    QLabel* label2_ = nullptr;
    QTableWidget* grid1_ = nullptr;
    FreibetrFenster* freibetr_ = nullptr;
    Sitzung* sitzung_ = nullptr;
};

} // namespace lonvir::gui
