// Runs the built command-line program and keeps its exit status and output.
#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace lonvir::test {

struct Clilauf {
    int status;
    std::string aus;
};

// stderr goes into the output too when asked, else it is dropped.
inline Clilauf clilauf(const std::string& argumente, bool mitFehlern = false) {
    const std::string befehl =
        std::string(LONVIR_CLI) + " " + argumente + (mitFehlern ? " 2>&1" : " 2>/dev/null");
    FILE* rohr = ::popen(befehl.c_str(), "r");
    std::string aus;
    std::array<char, 4096> puffer{};
    while (std::size_t n = std::fread(puffer.data(), 1, puffer.size(), rohr))
        aus.append(puffer.data(), n);
    const int status = ::pclose(rohr);
    return {WEXITSTATUS(status), aus};
}

inline bool enthaelt(const std::string& text, const std::string& teil) {
    return text.find(teil) != std::string::npos;
}

} // namespace lonvir::test
