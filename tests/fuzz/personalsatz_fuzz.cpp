// The decoder of the Personalsatz under arbitrary bytes.
#include "records/personalsatz.h"
#include "rundreise.h"

LONVIR_FUZZZIEL(personalsatz) {
    lonvir::fuzz::rundreise<lonvir::Personalsatz>(daten);
}
