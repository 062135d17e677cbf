// The stamp of SSPanel1: the current person's row settings given to the persons behind the
// number of persons the display settings know.
#pragma once

#include "start/sitzung.h"

namespace lonvir {

// SSPanel1_Click: stamps while the marking page 61 is open; otherwise nothing.
void SSPanel1_Click(Sitzung& s);
// The stamp itself, for every month file, then the remark cards and the new count.
void stempeln(Sitzung& s);

} // namespace lonvir
