// The window Form1: a thin view of the main-screen model. Every widget event goes to the
// model's handler of the same name; after it the widgets are set from the model again.
#pragma once

#include "gui/qtdialoge.h"
#include "screen/form1.h"
#include "screen/rechner.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QFont>
#include <QMainWindow>
#include <QSize>

#include <array>
#include <cstdint>
#include <functional>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;

namespace lonvir::gui {

class Form1Fenster : public QMainWindow {
    Q_OBJECT
public:
    Form1Fenster(Sitzung& s, Dialoge& dialoge, Hilfe* hilfe, QWidget* eltern = nullptr);
    ~Form1Fenster() override;

    // Form_Load, the saved window place, the first picture.
    void laden();
    // The widgets from the model.
    void darstellen();
    // Places and sizes every row for the window's size (reference 9500 by 5500 twips).
    void bildausrechnen(bool erzwingen);
    // Keeps the window's size out of the settings (screenshots and tests).
    void geometrieFesthalten() { geometrieFest_ = geometrieFestGewuenscht_ = true; }
    // Stores the window's place now, as a close does (the end of a screenshot run).
    void platzMerken();

    [[nodiscard]] Form1& modell() { return modell_; }
    [[nodiscard]] QComboBox* z(int zeile) const;
    [[nodiscard]] QLineEdit* t(int zeile) const;
    [[nodiscard]] QCheckBox* schalter(Schalterart art, int zeile) const;
    [[nodiscard]] QLineEdit* bdaBeginn() const { return bdaBeginn_; }
    [[nodiscard]] QLabel* hinweis() const { return panel3D6_; }
    [[nodiscard]] QLabel* picture1() const { return picture1_; }
    [[nodiscard]] QWidget* kopf() const { return kopf_; }
    [[nodiscard]] QPushButton* command7() const { return command7_; }
    [[nodiscard]] Rechner& rechner() { return rechner_; }
    [[nodiscard]] class RechnerAnsicht* rechneransicht() const { return rechneransicht_; }

signals:
    // The transfer buttons and the remark card belong to the navigation of the layers.
    void uebertragGeklickt(int von, int nach);
    void bemerkungGeklickt();
    // The word JAHR in the head opens the annual overview, as the menu entry Jahr does.
    void jahrGeklickt();
    // Command6 opens the name search, Command7 the reform page.
    void suchenGeklickt();
    void reformGeklickt();

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void moveEvent(QMoveEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void changeEvent(QEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    struct Zeile {
        QFrame* streifen = nullptr;
        QComboBox* z = nullptr;
        QLineEdit* t = nullptr;
        QWidget* aufklapp = nullptr; // the viewport of the list's popup
        std::uint32_t listenstand = 0xFFFFFFFF;
        int farbe = -1;
    };

    void aufbauen();
    void kopfAufbauen(QWidget* kopf);
    void kopfAusrechnen(double breite, double zeilenhoehe);
    [[nodiscard]] int listenschrift(QFont schrift, bool linke, int breite, int groesste) const;
    void maximieren();
    void verbinden(int zeile);
    void namenvervollstaendigen(QComboBox* liste);
    // Runs one handler with the hourglass; a run-time error ends the program with its message.
    void ausfuehren(const std::function<void()>& handler);
    bool zeilenereignis(int zeile, QObject* objekt, QEvent* ereignis);
    void umbenennen(int zeile);
    bool listenzweitklick(int zeile, QEvent::Type art);
    bool tastenereignis(int zeile, QLineEdit* feld, QKeyEvent* taste);
    void zeileDarstellen(int zeile);
    void kopfDarstellen();
    void fokusUebergeben();
    void geometrieMerken();
    void beenden();
    [[nodiscard]] bool zeilehatfokus() const;

    Sitzung& s_;
    Form1 modell_;
    Rechner rechner_{modell_}; // the calculator; the form's keys reach it
    std::array<Zeile, 46> zeilen_;
    std::array<std::array<QCheckBox*, 13>, 6> schalter_{};
    QWidget* mitte_ = nullptr;
    QWidget* kopf_ = nullptr;
    QWidget* panel3D1_ = nullptr;
    QWidget* panel3D2_ = nullptr;
    QLabel* panel3D6_ = nullptr;
    class RechnerAnsicht* rechneransicht_ = nullptr;
    QLabel* schalterkopf_ = nullptr;
    QLineEdit* bdaBeginn_ = nullptr;
    QLabel* picture1_ = nullptr;
    QLabel* monatstitel_ = nullptr;
    QLabel* jahrwort_ = nullptr;
    std::array<QLabel*, 3> schichtpanels_{};
    std::array<QPushButton*, 4> uebertragknoepfe_{};
    QPushButton* command1_ = nullptr;
    QPushButton* command6_ = nullptr;
    QPushButton* command7_ = nullptr;
    QLabel* command1text_ = nullptr;
    QTimer* geometriezeit_ = nullptr;
    bool darstellend_ = false;
    bool laeuft_ = false;       // a handler runs: the events of its message boxes stay out
    bool geometrieFest_ = true; // until the load has placed the window
    bool geometrieFestGewuenscht_ = false;
    QSize ausgerechnet_;
    bool listengeaendert_ = false;
    int listendruckzeile_ = -1;
    QElapsedTimer listendruck_;
    int kaestchenpx_ = 0;
    bool beendet_ = false;
};

} // namespace lonvir::gui
