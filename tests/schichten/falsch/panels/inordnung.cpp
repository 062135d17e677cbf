// A fixture of the layer check: includes that point down.
#include "core/feld.h"
#include "panels/tablett.h"
#include "start/sitzung.h"
