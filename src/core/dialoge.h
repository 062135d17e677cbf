// Message boxes as a platform interface: the core asks, the face (Qt, CLI, test) answers.
#pragma once

#include <deque>
#include <string>
#include <vector>

namespace lonvir {

enum class Symbol { keins, stop, frage, ausruf, info };
enum class Knoepfe { ok, okAbbrechen, wiederholenAbbrechen, jaNein };
enum class Knopf { ok, abbrechen, wiederholen, ja, nein };

struct Meldung {
    std::string titel;
    std::string text;
    Symbol symbol = Symbol::ausruf;
    Knoepfe knoepfe = Knoepfe::ok;
};

class Dialoge {
public:
    virtual ~Dialoge() = default;
    // Shows the box and returns the button that was pressed.
    virtual Knopf zeigen(const Meldung& meldung) = 0;
};

// Records every box; answers from a script, and when the script is used up with a fixed
// answer to yes/no questions (OK and Cancel boxes answer OK, Retry and Cancel boxes Cancel).
class SkriptDialoge : public Dialoge {
public:
    explicit SkriptDialoge(bool jaAufFragen = false) : jaAufFragen_(jaAufFragen) {}

    Knopf zeigen(const Meldung& meldung) override;

    void antworten(Knopf k) { antworten_.push_back(k); }
    [[nodiscard]] const std::vector<Meldung>& gezeigt() const { return gezeigt_; }
    void vergessen() { gezeigt_.clear(); }

private:
    bool jaAufFragen_;
    std::deque<Knopf> antworten_;
    std::vector<Meldung> gezeigt_;
};

} // namespace lonvir
