// The decoder of the Kvsatz under arbitrary bytes.
#include "records/kvsatz.h"
#include "rundreise.h"

LONVIR_FUZZZIEL(kvsatz) {
    lonvir::fuzz::rundreise<lonvir::Kvsatz>(daten);
}
