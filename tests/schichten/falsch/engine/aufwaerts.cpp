// A fixture of the layer check: the engine reaching up into the screen.
#include "engine/aufwaerts.h"
#include "core/currency.h"

#include "screen/form1.h"
