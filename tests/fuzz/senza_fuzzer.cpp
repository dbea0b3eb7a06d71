// Stands in for the fuzzer where there is none: runs its function on files, and on what chance
// makes of them.
//
//     NAME_fuzz FILE...
#include <cstdint>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "support/amount.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti);

namespace {

void Prova(const std::string& file) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(file.data()), file.size());
}

/// Makes a byte another one, takes some away, or puts some in twice.
void Guasta(std::string& file, std::mt19937& caso) {
    const std::size_t dove = caso() % (file.size() + 1);
    const std::size_t quanti = caso() % 16;
    switch (caso() % 3) {
        case 0:
            file.replace(dove, 1, 1, static_cast<char>(caso()));
            break;
        case 1:
            file.erase(dove, quanti);
            break;
        default:
            file.insert(dove, file.substr(caso() % (file.size() + 1), quanti));
    }
}

}  // namespace

int main(int quanti, char** argomenti) {
    std::vector<std::string> semi{""};
    for (int i = 1; i < quanti; ++i) {
        std::ifstream file(argomenti[i], std::ios::binary);
        semi.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    for (const std::string& seme : semi) {
        Prova(seme);
    }
    std::mt19937 caso;
    const int prove = trameli::Amount("TRAMELI_INPUTS", 1000);
    for (int i = 0; i < prove; ++i) {
        std::string file = semi[caso() % semi.size()];
        for (auto guasti = 1 + caso() % 8; guasti > 0; --guasti) {
            Guasta(file, caso);
        }
        Prova(file);
    }
    trameli::Tell(prove, " inputs");
    return 0;
}
