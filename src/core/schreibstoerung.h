// A write failure on demand, as a full disk gives it: the tests use it to show that a failed
// store leaves the old state intact.
#pragma once

namespace lonvir::schreibstoerung {

// From now on the n-th write of a record, journal or installation file and every write after it
// fail with "no space left on the device"; 0 frees the disk again.
void einstellen(long n);
// Counts one write; true when this write is to fail.
[[nodiscard]] bool trifft();

} // namespace lonvir::schreibstoerung
