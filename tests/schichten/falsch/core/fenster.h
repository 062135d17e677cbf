// A fixture of the layer check: Qt in the core.
#pragma once
#include <QString>
