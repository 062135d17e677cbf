// Message boxes and help of the window: QMessageBox for the core's questions and notices.
#pragma once

#include "core/dialoge.h"
#include "core/hilfe.h"

#include <QString>

class QWidget;

namespace lonvir::gui {

class QtDialoge : public Dialoge {
public:
    explicit QtDialoge(QWidget* eltern = nullptr) : eltern_(eltern) {}
    void elternSetzen(QWidget* eltern) { eltern_ = eltern; }
    Knopf zeigen(const Meldung& meldung) override;

private:
    QWidget* eltern_;
};

// Help topics as pages hilfe/<context>.html of the working folder, opened by the desktop.
class QtHilfe : public Hilfe {
public:
    explicit QtHilfe(QString ordner) : ordner_(std::move(ordner)) {}
    void zeigen(int kontext) override;

private:
    QString ordner_;
};

} // namespace lonvir::gui
