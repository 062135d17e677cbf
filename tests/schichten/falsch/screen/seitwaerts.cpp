// A fixture of the layer check: a folder of one level including another.
#include "panels/tablett.h"
