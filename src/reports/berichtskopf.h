// What the landscape statements share: the letterhead, the spaced month word, the rule.
#pragma once

#include "core/drucker.h"
#include "start/sitzung.h"

#include <string>

namespace lonvir {

// "J A N U A R" to "D E Z E M B E R" for the month index 0 to 11; no word outside.
[[nodiscard]] std::string gesperrtermonat(int monat);
// A rule across the page: `laenge` underscores.
[[nodiscard]] std::string unterstriche(int laenge);
// The letterhead of the lists: `dienststelle1` where the position stands, `dienststellenort`
// at `Tab(ortspalte)`, line end, `dienststelle2` on a line of its own; both untrimmed.
void briefkopf(const Sitzung& s, Drucker& d, int ortspalte);

} // namespace lonvir
