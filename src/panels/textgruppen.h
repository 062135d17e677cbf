// The group of a text record: which caption of the text table names the block a record lies in.
#pragma once

namespace lonvir {

struct Textgruppe {
    int von = 0;
    int bis = 0;
    int ueberschrift = 0; // the text record that names the block
};

// The caption record of the block holding text record `nummer`; 0 outside every block.
[[nodiscard]] int textgruppe(int nummer);

// The blocks in ascending order, for the checks of the table.
[[nodiscard]] const Textgruppe* textgruppenanfang();
[[nodiscard]] const Textgruppe* textgruppenende();

} // namespace lonvir
