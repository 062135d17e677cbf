// The commands of lonvir97-cli and what they share.
#pragma once

#include "cli/json.h"
#include "cli/optionen.h"
#include "core/dialoge.h"
#include "engine/steuerrecht.h"
#include "start/sitzung.h"

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace lonvir::cli {

// Message boxes of the CLI: each goes to stderr as "TITEL: TEXT" and is kept for JSON.
class CliDialoge : public Dialoge {
public:
    explicit CliDialoge(bool ja) : skript_(ja) {}
    Knopf zeigen(const Meldung& meldung) override;
    [[nodiscard]] const std::vector<Meldung>& gezeigt() const { return skript_.gezeigt(); }

private:
    SkriptDialoge skript_;
};

// A session opened on the folder, year and layer of the common options.
struct Kontext {
    // With `mitOrdner` the working folder is opened (and so created) as the program starts;
    // commands that need no stored data leave it untouched.
    Kontext(const Optionen& o, bool mitOrdner);
    const Optionen& optionen;
    CliDialoge dialoge;
    Sitzung s;
    bool json;
    // Adds the "meldungen" array to a JSON object that is still open.
    void meldungenAnhaengen(Json& j) const;
};

int ausfuehren(int argc, char** argv);

int anlegen(Kontext& k, std::ostream& aus);
int zeigen(Kontext& k, std::ostream& aus);
int setzen(Kontext& k, std::ostream& aus);
int satz(Kontext& k, std::ostream& aus);
int lohnsteuer(Kontext& k, std::ostream& aus);
int tabelle(Kontext& k, std::ostream& aus);
int uebertragen(Kontext& k, std::ostream& aus);
int drucken(Kontext& k, std::ostream& aus);
int einstellungen(Kontext& k, std::ostream& aus);
int tarif(Kontext& k, std::ostream& aus);
int text(Kontext& k, std::ostream& aus);
int suchen(Kontext& k, std::ostream& aus);
int jahreswechsel(Kontext& k, std::ostream& aus);

// A count of child allowances, 0 to 7 in steps of 0.5, written "1,5" or "1.5"; missing is 0
// unless pflicht is set. Anything else is a usage error.
[[nodiscard]] Currency halbeSchritte(const Optionen& o, const std::string& name, bool pflicht);
// --recht 1997|1998: the tax law of a run; the law of 1997 when the option is absent.
[[nodiscard]] Steuerrecht rechtAus(const Optionen& o);
// Needs no session: compiles data/ into a folder.
int installieren(const Optionen& o, std::ostream& aus);
// The compiled installation of the build, which seeds a new working folder.
[[nodiscard]] std::filesystem::path mitgelieferteinstallation();

} // namespace lonvir::cli
