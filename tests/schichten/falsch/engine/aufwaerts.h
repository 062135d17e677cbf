// A fixture of the layer check: a header of the engine that is in order.
#pragma once
#include "start/sitzung.h"
