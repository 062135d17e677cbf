// The decoder of the Voeinsatz under arbitrary bytes.
#include "records/voeinsatz.h"
#include "rundreise.h"

LONVIR_FUZZZIEL(voeinsatz) {
    lonvir::fuzz::rundreise<lonvir::Voeinsatz>(daten);
}
