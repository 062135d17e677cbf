// "Gehaltsberechnung als Graphik": the picture of the main window on landscape paper, and the
// advice about printer drivers that follows it.
#pragma once

#include "core/drucker.h"
#include "start/sitzung.h"

namespace lonvir {

// Landscape, the picture of the main window, the end of the document.
void grafikdrucken(Drucker& d);
// The advice, with an OK button; shown after the page has gone out, since the program cannot
// know how the driver took the landscape order.
void grafikhinweis(Sitzung& s);

inline constexpr const char* querformathinweis =
    "Nicht alle Druckertreiber verstehen den Querformat-Befehl gleich. Wenn Ihr Drucker im "
    "Hochformat gedruckt hat und die Gehaltsberechnung deshalb nicht ganz auf dem Papier "
    "erscheint, sollten Sie vor dem Druck das Hauptfenster von voller Größe auf Normalgröße "
    "umstellen und dann erforderlichenfalls nochmals schmäler machen. Sie setzen dazu den Cursor "
    "auf den rechten Rand. Wenn er sich zu einem Doppelpfeil verwandelt hat, ziehen sie ihn nach "
    "links.";

} // namespace lonvir
