// The page builders of the panel, and the layout they share.
#pragma once

#include "panels/tablett.h"

namespace lonvir {

// Page 6: the wage-tax steps of the month, captions from text record 3743 on; two builders,
// the captions and the amounts of lstwert.
void lohnsteuerzeilen(Tablett& t);
void lohnsteuerbetraege(Tablett& t);
// Page 29: the social-insurance steps, captions from text record 3773 on, amounts of svwert.
void sozialzeilen(Tablett& t);
void sozialbetraege(Tablett& t);
// Page 8 for staff classes above 4: the supplementary pension, captions from 3803 on.
void zvkzeilen(Tablett& t);
void zvkbetraege(Tablett& t);
// Page 8 for civil servants: the pension levy row by row.
void umlageseite(Tablett& t);
// Page 35: the part-time pay explained row by row.
void teilzeitseite(Tablett& t);
// Page 23: the person's remark card, and its store by Command1 "Speichern".
void jahreswertespeichern(Tablett& t);
void jahreswerteseite(Tablett& t);
// Page 47: the year change with its progress and what it copied.
void jahresuebertrag(Tablett& t);
// Page 67: the take-over of the former version's data, announced only; Command1 answers that
// it is not yet available.
void versionsseite(Tablett& t);
void versionuebernehmen(Tablett& t);
namespace versionstext {
constexpr int erster = 3971;
constexpr int letzter = 3978;
} // namespace versionstext

// Page 66: the administrative cost refund; its explanation (Command1), the cost-centre list
// of Combo(0) (Command3) and the totals of all staff (Command4). Combo(0) at position 0
// stands for all staff; the panel then asks the face for Form2. The face that can show Form2
// registers the page: t.seiteanmelden(66, vkeseite).
void vkeseite(Tablett& t);
void vkeerlaeuterung(Tablett& t);
void kostenstellenliste(Tablett& t);
void gesamtauswertung(Tablett& t);

// Page 43 "Netto": the gross amount set by three scroll bars in gross mode. `seiteleeren`
// clears the controls when the page is built anew in that mode; `bruttoregler` builds it and
// puts the bars to the gross amount; `bruttoaendern` is the update after a move of a bar;
// `bruttobetraege` shows the results on the page.
void seiteleeren(Tablett& t);
void bruttoregler(Tablett& t);
void bruttoaendern(Tablett& t);
void bruttobetraege(Tablett& t);

namespace seitenlage {
constexpr int anfang = 150;  // top of the first row
constexpr int abstand = 240; // pitch of the rows of the explaining pages
constexpr int links = 100;
constexpr int kastenbreite = 1100;
} // namespace seitenlage

// Row i of an explaining page: caption and, unless `betrag` is empty, the amount's cell.
void erklaerzeile(Tablett& t, int i, const std::string& text,
                  const std::optional<std::int32_t>& betrag);
// The heading in row 0, bold.
void ueberschrift(Tablett& t, const std::string& text);

// The filler of the explaining pages.
inline constexpr const char* punktzeile = ".....................................................";

} // namespace lonvir
