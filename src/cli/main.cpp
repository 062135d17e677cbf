// lonvir97-cli: the headless face of the program.
#include "cli/befehle.h"

int main(int argc, char** argv) {
    return lonvir::cli::ausfuehren(argc, argv);
}
