// The decoder of the Textsatz under arbitrary bytes.
#include "records/textsatz.h"
#include "rundreise.h"

LONVIR_FUZZZIEL(textsatz) {
    lonvir::fuzz::rundreise<lonvir::Textsatz>(daten);
}
