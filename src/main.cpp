// Wiring: the services of this machine and the program that runs on them.
#include "platform/desktop.h"
#include "program.h"

int main(int argc, char** argv) {
    const trameli::Desktop desktop(argc, argv);
    trameli::Program program(desktop.Clock(), desktop.Screen(), desktop.FileSystem(),
                             desktop.Dialogs(), desktop.Instances(), desktop.Sounds());
    if (program.Main()) {
        program.Run();
    }
    return 0;
}
