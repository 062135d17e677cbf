// The decoder of the Dimsatz under arbitrary bytes.
#include "records/dimsatz.h"
#include "rundreise.h"

LONVIR_FUZZZIEL(dimsatz) {
    lonvir::fuzz::rundreise<lonvir::Dimsatz>(daten);
}
