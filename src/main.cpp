// Wiring: the services of this machine and the program that runs on them.
#include "platform/desktop.h"
#include "program.h"

int main(int argc, char** argv) {
    const trameli::Desktop desktop(argc, argv);
    trameli::Program program(desktop.Services());
    if (program.Main()) {
        program.Run();
    }
    return 0;
}
