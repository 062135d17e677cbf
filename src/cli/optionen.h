// The command line of lonvir97-cli: a command, options with values, and flags.
#pragma once

#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace lonvir::cli {

// Bad usage: the message is German and the exit status 2.
class Aufruffehler : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class Optionen {
public:
    Optionen(int argc, char** argv);

    [[nodiscard]] const std::string& befehl() const { return befehl_; }
    // The words behind the command that are no options (only commands that take them).
    [[nodiscard]] const std::vector<std::string>& argumente() const { return argumente_; }
    [[nodiscard]] bool schalter(const std::string& name) const;
    [[nodiscard]] std::optional<std::string> wert(const std::string& name) const;
    // An integer option within [min, max]; missing or out of range is a usage error.
    [[nodiscard]] long zahl(const std::string& name, long min, long max) const;
    [[nodiscard]] long zahl(const std::string& name, long min, long max, long vorgabe) const;
    [[nodiscard]] std::string pflicht(const std::string& name) const;
    // Options given but not listed here are a usage error.
    void nurErlaubt(const std::vector<std::string>& erlaubt) const;

private:
    std::string befehl_;
    std::vector<std::string> argumente_;
    std::map<std::string, std::string> werte_;
    std::map<std::string, bool> schalter_;
};

} // namespace lonvir::cli
