// The step procedures that the run calls at their place in its order.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// Gross pay from the tariff: rows 5, 7, 8, 9, 11 and the VWL input (step 2).
void tarifwerte(Sitzung& s);
// Staff class 0 from July 1997: the base of the transition allowance (step 5).
void ueberleitungsbasis(Sitzung& s);
// Row 10 and the values kept for the next year (step 6).
void ueberleitungszulage(Sitzung& s);
// Row 15 from the VWL selection (step 7).
void vwlzeile(Sitzung& s);
// Row 17 (step 8) and row 18 (step 9).
void urlaubsgeld(Sitzung& s);
void zuwendung(Sitzung& s);
// Rows 7 to 19 after the part-time factor into teilwert (step 10).
void teilzeit(Sitzung& s);
// Pension levy for civil servants, supplementary pension for all others (steps 14 and 29).
void umlage_beamte(Sitzung& s);
void zvk_berechnen(Sitzung& s);
// Tax inputs and the month's wage tax, surcharge and church tax, December equalisation
// (steps 20 and 21).
void monatssteuer(Sitzung& s);
// Row 34 from the child-benefit selection (step 24).
void kindergeld(Sitzung& s);
// Employee's and employer's insurance contributions (steps 25 and 29).
void sozialversicherung(Sitzung& s);
// The pay step from the service age.
void stufeausbda(Sitzung& s);
// Staff classes whose step does not follow a service age: candidates, workers, drivers,
// apprentices, the railway and the special tariffs.
bool ohneDienstalter(int art);

} // namespace lonvir
