// The small chart of the annual overview: a group of bars per month, painted by hand.
#pragma once

#include "reports/jahresdiagramm.h"

#include <QWidget>

namespace lonvir::gui {

class Jahresdiagrammansicht : public QWidget {
public:
    explicit Jahresdiagrammansicht(QWidget* eltern);
    void setzen(Jahresdiagramm d);
    [[nodiscard]] const Jahresdiagramm& diagramm() const { return d_; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    Jahresdiagramm d_;
};

} // namespace lonvir::gui
