// The decoder of the Jahressatz under arbitrary bytes.
#include "records/jahressatz.h"
#include "rundreise.h"

LONVIR_FUZZZIEL(jahressatz) {
    lonvir::fuzz::rundreise<lonvir::Jahressatz>(daten);
}
