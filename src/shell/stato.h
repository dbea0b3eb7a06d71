// The variables that all windows share.
#pragma once

#include <memory>
#include <string>

#include "shell/impostazioni.h"

namespace trameli {

class clsResize;

/// The state of one run of the program. Windows meet in it: each reads and writes it directly.
struct Stato : Impostazioni {
    std::string FileUtente;     ///< full path of the current user's file
    std::string NomeUtente;     ///< current user: the file's name without extension
    std::string NomeGiocatore;  ///< name shown while playing; empty until a user was chosen

    std::string LinguaCorrente;  ///< stem of the language file in use; empty until it is needed

    std::int16_t RigheGriglia = 0;    ///< rows of the grid at levels 8 to 15
    std::int16_t ColonneGriglia = 0;  ///< columns of it

    /// Lays out the one of settings and About that was loaded last.
    std::shared_ptr<clsResize> RidimensionaFinestra;

    bool TrameloDisegnato = false;  ///< a play form has drawn its maze; keeps it from a second one
    bool ColoraCasella = false;     ///< whole cells are coloured; lasts until the program ends
};

}  // namespace trameli
