// What every window of the game is given when it is made.
#pragma once

#include <string>

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/printers.h"
#include "shell/lingue.h"
#include "shell/modulo_navigate.h"
#include "shell/modulo_per_ini.h"
#include "shell/stampa.h"
#include "shell/stato.h"
#include "shell/suoni.h"

namespace trameli {

/// The shared variables and the routines that windows call. All outlive the windows.
struct Servizi {
    trameli::Stato& Stato;
    trameli::Lingue& Lingue;
    trameli::ModuloPerIni& ModuloPerIni;
    trameli::FileSystem& FileSystem;
    trameli::Suoni& Suoni;
    trameli::ModuloNavigate& ModuloNavigate;
    trameli::Dialogs& Dialogs;
    trameli::Printers& Printers;
    trameli::Stampa& Stampa;
    std::string SeparatoreDecimale;  ///< of numbers, as the desktop writes them
};

}  // namespace trameli
