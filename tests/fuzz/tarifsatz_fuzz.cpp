// The decoder of the Tarifsatz under arbitrary bytes.
#include "records/tarifsatz.h"
#include "rundreise.h"

LONVIR_FUZZZIEL(tarifsatz) {
    lonvir::fuzz::rundreise<lonvir::Tarifsatz>(daten);
}
