// Files that cannot be read or written; what goes well is seen in whole games.
#include "shell/modulo_per_ini.h"

#include <gtest/gtest.h>

#include <string>

#include "file_system_finto.h"
#include "shell/file_utente.h"

namespace trameli {
namespace {

const std::string FileDiAnna = "C:\\ImpostazioniProgrammiOvalia\\trameli\\Anna.ini";

/// Message boxes that nobody has to close.
class DialogsFinto : public Dialogs {
public:
    int Messaggi = 0;

    Answer Message(const std::string& /*text*/, const std::string& /*title*/, Icon /*icon*/,
                   Buttons /*buttons*/) override {
        ++Messaggi;
        return Answer::Ok;
    }
    std::optional<Colour> ChooseColour() override { return std::nullopt; }
    void Language(const std::string& /*locale*/) override {}
};

class ModuloPerIniTest : public testing::Test {
protected:
    ModuloPerIniTest() { Variabili.FileUtente = FileDiAnna; }

    const Impostazioni& Lette() const { return Variabili; }

    /// Other settings than the defaults, which are saved then.
    void SalvaAltre() {
        Variabili.Livello = 9;
        Variabili.SuonoMovimento = true;
        Modulo.ScriviUtente();
    }
    void LeggiDi(const std::string& file) {
        Variabili.FileUtente = file;
        Modulo.LeggiUtente();
    }

    Stato Variabili;
    FileSystemFinto File;
    DialogsFinto Finestre;
    Lingue Testi{Variabili, File, Finestre, ""};
    ModuloPerIni Modulo{Variabili, File, Finestre, Testi};
    const std::string DiAnna = Testo(Impostazioni());
};

TEST_F(ModuloPerIniTest, AFileThatCannotBeReadIsNotReplaced) {
    File.Replace(FileDiAnna, DiAnna);
    File.Illeggibili.insert(Capitals(FileDiAnna));
    Variabili.Livello = 14;
    Modulo.LeggiUtente();
    EXPECT_EQ(Lette(), Impostazioni());
    SalvaAltre();
    EXPECT_EQ(File.Contenuto(FileDiAnna), DiAnna);
    EXPECT_EQ(Finestre.Messaggi, 1);
    // The record lives on in memory, until the file can be read again.
    const Impostazioni altre = Lette();
    Modulo.LeggiUtente();
    EXPECT_EQ(Lette(), altre);

    File.Illeggibili.clear();
    Modulo.LeggiUtente();
    EXPECT_EQ(Testo(Lette()), DiAnna);
    SalvaAltre();
    EXPECT_EQ(File.Contenuto(FileDiAnna), Testo(altre));
}

TEST_F(ModuloPerIniTest, WhatCouldNotBeSavedIsNotReadOver) {
    File.Replace(FileDiAnna, DiAnna);
    Modulo.LeggiUtente();
    File.ScritturaGuasta = true;
    SalvaAltre();
    const Impostazioni altre = Lette();
    // Another user, and back under the name in capitals.
    LeggiDi("C:\\ImpostazioniProgrammiOvalia\\trameli\\Bruno.ini");
    EXPECT_EQ(Lette(), Impostazioni());
    LeggiDi("C:\\ImpostazioniProgrammiOvalia\\trameli\\ANNA.ini");
    EXPECT_EQ(Lette(), altre);

    // Once saved, the file counts again.
    File.ScritturaGuasta = false;
    Modulo.ScriviUtente();
    EXPECT_EQ(File.Contenuto(FileDiAnna), Testo(altre));
    File.Replace(FileDiAnna, DiAnna);
    Modulo.LeggiUtente();
    EXPECT_EQ(Testo(Lette()), DiAnna);
}

}  // namespace
}  // namespace trameli
