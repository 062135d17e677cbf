// The main form Form1 without its window: the rows, their lists and every input handler.
// The Qt window, the command line and the tests all drive this one object.
#pragma once

#include "core/hilfe.h"
#include "screen/hauptbild.h"
#include "screen/hauptform.h"
#include "screen/voreinstellmodus.h"
#include "start/sitzung.h"

#include <cstdint>
#include <optional>
#include <string>

namespace lonvir {

// The pocket calculator beside the rows: the keys of the form reach it (its own unit).
class Rechnertasten {
public:
    virtual ~Rechnertasten() = default;
    virtual void number_Click(int index) = 0;
    virtual void operator_Click(int index) = 0;
    virtual void decimalp_Click() = 0;
    virtual void Eintrag_Click() = 0;
};

enum class Fensterzustand { normal, minimiert, maximiert };

// What bildanpassen asks of the window.
struct Fensteraktion {
    std::optional<Fensterzustand> neuerzustand;
    bool tablettschliessen = false;
    bool ausrechnen = false;
};

// Key codes the handlers look at.
namespace taste {
constexpr int rueck = 8;
constexpr int enter = 13;
} // namespace taste

class Form1 : public Anzeige, public Hauptform {
public:
    explicit Form1(Sitzung& s, Hilfe* hilfe = nullptr, Rechnertasten* rechner = nullptr);
    ~Form1() override;
    Form1(const Form1&) = delete;
    Form1& operator=(const Form1&) = delete;

    Sitzung& s;
    Hauptbild bild;
    Hilfe* hilfe;
    Rechnertasten* rechner;

    // --- event state
    std::int16_t ungueltig = 0;    // first change since the last store of the row
    std::int16_t zwischenwert = 0; // 0 while a value is being typed
    std::int16_t vorherigestufe = -1;
    bool stufeohnefrage = false; // the next z_Click of row 7 asks no BDA question
    bool jahresansicht = false;  // set while the year view is being built
    bool wiedereintritt = false; // the next activation acts as a click on aktuellezeile
    bool seiteverlangtauffrischen = false;
    bool beendet = false;            // MBeenden: the program ends, nothing is written
    int fensterstufe = 0;            // bildanpassen's state variable
    Voreinstellmodus voreinstellung; // the preset mode that page 61 starts

    // --- start and end (form load, activation, MBeenden, closing the window)
    void Form_Load();
    void Form_Activate();
    void Form_Unload();
    void MBeenden();
    [[nodiscard]] Fensteraktion bildanpassen(Fensterzustand zustand);

    // --- the lists
    void listenfuellen();
    void namensliste();
    void gruppenliste();
    void amtsliste();
    void stufenliste();
    void familienliste();
    void stellenzulageliste();
    void zulagenliste();
    void monatsliste();
    void kvliste();
    // Rows 5 to 9, 11 and 20: the lists that follow the staff class, group and month.
    void personalartlisten();
    void beitragslisten();

    // --- the screen
    void sperrbild();
    void bildauffrischen() override;
    void zeilemalen(int zeile) override;
    void allezeilen();
    void schaltermalen();
    void schaltermalen(Schalterart art);
    void jahressicht();
    void farbenanwenden();
    // Takes the session as it stands: list positions from merkmal, texts from the rows; builds
    // no list and changes nothing stored. For callers without a window.
    void spiegeln();

    // --- the events of the rows; a key handler returns the key as it goes on, 0 if dropped
    int t_KeyPress(int zeile, int taste);
    void t_Click(int zeile);
    void t_GotFocus(int zeile);
    void t_LostFocus(int) {}
    void t_MouseDown(int) {}
    void z_GotFocus(int zeile);
    void z_Click(int zeile);
    void z_DblClick(int zeile);
    // F1 on the list or box of a row: the row becomes the current one and its help topic opens
    // as with a double click on its list.
    void F1(int zeile);
    // The picture "LONVIR 97" in the head: the topic "Über LONVIR97".
    void Picture1_Click();
    int z_KeyPress(int zeile, int taste);
    void z_KeyDown(int, int) {}
    void z_LostFocus(int) {}
    void z_DragDrop(int) {}
    int BDABeginn_KeyPress(int taste);
    void lst_Click(int zeile, bool an);
    void soz_Click(int zeile, bool an);
    void zvk_Click(int zeile, bool an);
    void wei_Click(int zeile, bool an);
    void tei_Click(int zeile, bool an);
    void bru_Click(int zeile, bool an);
    int Form_KeyPress(int taste, bool zeilehatfokus);
    void Form_Click() {}
    void naechsterfocus();
    // The status line after a run: says when the month is 0,00 for want of a tariff amount,
    // and takes that word back once the month has one.
    void tarifhinweis();
    void tastenauswerten() {}
    // The layer panels "I  N  F  O", "P  L  A  N", "R  E  A  L": the set of that layer.
    void SSPanel_Click(int schicht);

    // --- one confirmed input as a user makes it, for callers without a window
    // The box emptied, the amount typed in DM and confirmed with Enter ("-" when negative).
    void betragtippen(int zeile, std::int32_t pfennig);
    // Focus on the list, the entry picked.
    void auswahltreffen(int zeile, int position);
    // The text typed over the service-age box and confirmed with Enter.
    void bdatippen(const std::string& text);
    // The name typed into the edit part of row 0 and confirmed with Enter.
    void umbenennen(const std::string& name);
    // A switch of a pay row clicked to `an`.
    void schalterklicken(Schalterart art, int zeile, bool an);
    // The calculator's "Übertrag": the amount into eingabe and wert of the row as a confirmed
    // key does it (limits, recalculation, later months); a negative amount is confirmed as
    // with "-". False, with a message, for a row without an amount box.
    bool betraguebernehmen(int zeile, std::int32_t pfennig);

    // --- Anzeige
    void tablettauffrischen() override {}
    void mauszeigerNormal() override { bild.sanduhr = false; }

    // --- Hauptform: what the changes of person, month, layer and year ask of the form
    void schichtanzeigen(int schicht) override { bild.aktiveSchicht = schicht; }
    void zeilenfarben() override { farbenanwenden(); }
    void jahresanzeige() override;
    void sanduhr(bool an) override { bild.sanduhr = an; }
    void entladen() override { Form_Unload(); }
    void laden() override;
    void zeilenlistenfuellen() override;
    void jahresmenue() override;

private:
    void listesetzen(int zeile, std::vector<std::string> eintraege);
    void textlistesetzen(int zeile, int anfang, int ende);
    void positionenklemmen();
    void positionensetzen();
    void positionenuebernehmen();
    void zeilenabhaengig(int zeile);
    void neuberechnen(int zeile);
    void bestaetigen(int zeile, std::int32_t betrag, bool minus);
    void grenzenpruefen(int zeile);
    void korrigieren(int zeile, std::int32_t wert, const char* text, const char* titel);
    bool jahresgehaltgesperrt();
    bool stufenfrage();
    void schalterclick(Schalterart art, int zeile, bool an);

    Anzeige* vorherigeAnzeige_;
};

// The amount of a row box's text: a number in DM with a decimal comma, "." ignored, up to the
// first other character; in Pfennig, rounded (ties to even).
[[nodiscard]] std::int32_t betragauslesen(const std::string& text);
// The text a user types for an amount: whole DM without decimals, others with two.
[[nodiscard]] std::string betragseingabe(std::int32_t pfennig);

} // namespace lonvir
