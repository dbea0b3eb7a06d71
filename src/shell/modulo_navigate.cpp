#include "shell/modulo_navigate.h"

#include <algorithm>

namespace trameli {

void ModuloNavigate::ApriDocumento(const std::string& percorso) {
    std::string nellaLingua = percorso;
    nellaLingua.insert(std::min(percorso.rfind('.'), percorso.size()), "." + stato_.LinguaCorrente);
    documents_.Open(fileSystem_.FileExists(nellaLingua) ? nellaLingua : percorso);
}

}  // namespace trameli
