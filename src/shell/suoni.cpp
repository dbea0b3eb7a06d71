#include "shell/suoni.h"

#include "platform/file_system.h"

namespace trameli {

namespace {

std::string NelProgramma(const char* file) {
    return std::string(ProgramFolder) + file;
}

}  // namespace

void Suoni::SuonoMuro() {
    if (stato_.SuoniAttivi) {
        sounds_.PlayWave(NelProgramma("\\suoni\\boing.wav"));
    }
}

void Suoni::SuonoArrivo() {
    if (stato_.SuoniAttivi) {
        sounds_.PlayWave(NelProgramma("\\suoni\\si.wav"));
    }
}

void Suoni::SuonoPasso() {
    if (stato_.SuoniAttivi && stato_.SuonoMovimento) {
        sounds_.PlayWave(NelProgramma("\\suoni\\muovi.wav"));
    }
}

void Suoni::SuonaMidi(const std::string& percorso) {
    if (stato_.SuoniAttivi) {
        sounds_.PlayMusic(percorso);
    }
}

void Suoni::FermaMidi() {
    sounds_.StopMusic();
}

}  // namespace trameli
