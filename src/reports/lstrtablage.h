// Where the wage-tax table viewer stands on the screen: kept in the display settings, in twips,
// so that it opens where it was closed.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

struct Fensterort {
    int oben = 0;
    int links = 0;
};

// The place the display settings hold for the viewer.
[[nodiscard]] Fensterort lstrtablage(const Sitzung& s);

// Unloading the viewer: its place goes to the display settings and they are written.
void lstrtablagespeichern(Sitzung& s, Fensterort ort);

} // namespace lonvir
