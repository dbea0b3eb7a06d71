#include "shell/modulo_per_ini.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "dialogs_finto.h"
#include "file_system_finto.h"
#include "shell/file_utente.h"

namespace trameli {
namespace {

const std::string FileDiAnna = "C:\\ImpostazioniProgrammiOvalia\\trameli\\Anna.ini";
const std::string Leggimi = "C:\\ImpostazioniProgrammiOvalia\\leggimi.txt";

class ModuloPerIniTest : public testing::Test {
protected:
    ModuloPerIniTest() {
        File.CreateFolder(ModuloPerIni::CartellaImpostazioni);
        File.CreateFolder(ModuloPerIni::CartellaUtenti);
        Variabili.FileUtente = FileDiAnna;
    }

    const Impostazioni& Lette() const { return Variabili; }

    void Altera() {
        Variabili.Livello = 9;
        Variabili.SuonoMovimento = true;
    }

    Stato Variabili;
    FileSystemFinto File;
    DialogsFinto Finestre;
    Lingue Testi;
    ModuloPerIni Modulo{Variabili, File, Finestre, Testi};
};

TEST_F(ModuloPerIniTest, SavesAndReadsBack) {
    Altera();
    const Impostazioni salvate = Lette();
    Variabili.RigheGriglia = 12;
    Modulo.ScriviUtente();
    EXPECT_EQ(File.Contenuto(FileDiAnna), Testo(salvate));
    Modulo.ImpostaPredefiniti();
    EXPECT_EQ(Lette(), Impostazioni());
    EXPECT_EQ(Variabili.RigheGriglia, 12) << "no setting";
    EXPECT_EQ(Variabili.FileUtente, FileDiAnna);
    Modulo.LeggiUtente();
    EXPECT_EQ(Lette(), salvate);
    EXPECT_TRUE(Finestre.Messaggi.empty());
}

TEST_F(ModuloPerIniTest, WhatCannotBeReadGivesDefaultsAndStays) {
    Impostazioni salvate;
    salvate.Livello = 11;
    const std::string intero = Testo(salvate);
    struct {
        const char* Nome;
        std::optional<std::string> Byte;  // none: there is no file
        bool Illeggibile;
    } const casi[] = {
        {"assente.ini", std::nullopt, false},
        {"quindici.ini", intero.substr(0, intero.rfind(" 4 ")), false},
        {"vuoto.ini", "", false},
        {"parole.ini", "parole\r\n", false},
        {"chiuso.ini", intero, true},
        {"cartella.ini", std::nullopt, false},
    };
    ASSERT_TRUE(File.CreateFolder(std::string(ModuloPerIni::CartellaUtenti) + "cartella.ini"));
    for (const auto& [nome, byte, illeggibile] : casi) {
        Variabili.FileUtente = ModuloPerIni::CartellaUtenti + std::string(nome);
        if (byte) {
            ASSERT_TRUE(File.Replace(Variabili.FileUtente, *byte));
        }
        if (illeggibile) {
            File.Illeggibili.insert(Maiuscolo(Variabili.FileUtente));
        }
        Altera();
        Modulo.LeggiUtente();
        EXPECT_EQ(Lette(), Impostazioni()) << nome;
        EXPECT_EQ(File.FileExists(Variabili.FileUtente), byte.has_value()) << nome;
        EXPECT_EQ(File.Contenuto(Variabili.FileUtente), byte.value_or("")) << nome;
    }
    EXPECT_TRUE(Finestre.Messaggi.empty());
}

TEST_F(ModuloPerIniTest, AFileThatCannotBeReadIsNotReplaced) {
    const std::string diAnna = Testo(Lette());
    ASSERT_TRUE(File.Replace(FileDiAnna, diAnna));
    File.Illeggibili.insert(Maiuscolo(FileDiAnna));
    Modulo.LeggiUtente();
    Altera();
    Modulo.ScriviUtente();
    EXPECT_EQ(File.Contenuto(FileDiAnna), diAnna);
    EXPECT_EQ(Finestre.Messaggi.size(), 1U);
    // The record lives on in memory, and a file that can be read again counts again.
    const Impostazioni alterate = Lette();
    Modulo.LeggiUtente();
    EXPECT_EQ(Lette(), alterate);
}

TEST_F(ModuloPerIniTest, OnlyTheStartOfAFileIsRead) {
    const std::string lungo = Testo(Lette()) + std::string(1 << 20, 'x');
    ASSERT_TRUE(File.Replace(FileDiAnna, lungo));
    Altera();
    Modulo.LeggiUtente();
    EXPECT_EQ(Lette(), Impostazioni());
    EXPECT_EQ(File.UltimoLimite, ModuloPerIni::LimiteLettura);
    EXPECT_LE(File.UltimoLimite, 4096U);
}

TEST_F(ModuloPerIniTest, FailedSaveIsToldOncePerRun) {
    File.ScritturaGuasta = true;
    Altera();
    const Impostazioni inMemoria = Lette();
    Modulo.ScriviUtente();
    Modulo.ScriviUtente();
    Variabili.FileUtente = "C:\\altrove.ini";
    Modulo.ScriviUtente();
    const std::vector<DialogsFinto::Messaggio> uno{
        {"Impossibile salvare le impostazioni.\nsu:" + FileDiAnna, "Trameli"}};
    EXPECT_EQ(Finestre.Messaggi, uno);
    EXPECT_EQ(Lette(), inMemoria);

    ModuloPerIni altroGiro(Variabili, File, Finestre, Testi);
    altroGiro.ScriviUtente();
    EXPECT_EQ(Finestre.Messaggi.size(), 2U);
}

TEST_F(ModuloPerIniTest, ASaveFromInsideTheMessageTellsNothing) {
    struct DialogsCheSalva : DialogsFinto {
        ModuloPerIni* Modulo = nullptr;
        void Critical(const std::string& text, const std::string& title) override {
            DialogsFinto::Critical(text, title);
            if (Messaggi.size() < 5) {
                Modulo->ScriviUtente();
            }
        }
    } finestre;
    ModuloPerIni modulo(Variabili, File, finestre, Testi);
    finestre.Modulo = &modulo;
    File.ScritturaGuasta = true;
    modulo.ScriviUtente();
    EXPECT_EQ(finestre.Messaggi.size(), 1U);
}

TEST_F(ModuloPerIniTest, WhatCouldNotBeSavedIsNotReadOver) {
    ASSERT_TRUE(File.Replace(FileDiAnna, Testo(Impostazioni())));
    File.ScritturaGuasta = true;
    Altera();
    const Impostazioni diAnna = Lette();
    Modulo.ScriviUtente();
    // Another user, and back under the name in capitals.
    Variabili.FileUtente = std::string(ModuloPerIni::CartellaUtenti) + "Bruno.ini";
    Modulo.LeggiUtente();
    EXPECT_EQ(Lette(), Impostazioni());
    Variabili.FileUtente = std::string(ModuloPerIni::CartellaUtenti) + "ANNA.ini";
    Modulo.LeggiUtente();
    EXPECT_EQ(Lette(), diAnna);

    // Once saved, the file counts again.
    File.ScritturaGuasta = false;
    Modulo.ScriviUtente();
    ASSERT_TRUE(File.Replace(FileDiAnna, Testo(Impostazioni())));
    Modulo.LeggiUtente();
    EXPECT_EQ(Lette(), Impostazioni());
}

TEST_F(ModuloPerIniTest, ExistenceOfFilesAndFolders) {
    ASSERT_TRUE(File.Replace(FileDiAnna, ""));
    EXPECT_TRUE(Modulo.EsisteFile(FileDiAnna));
    EXPECT_FALSE(Modulo.EsisteFile(ModuloPerIni::CartellaUtenti));
    EXPECT_FALSE(Modulo.EsisteFile(""));
    EXPECT_TRUE(Modulo.EsisteCartella(ModuloPerIni::CartellaUtenti));
    EXPECT_FALSE(Modulo.EsisteCartella(FileDiAnna));
    EXPECT_FALSE(Modulo.EsisteCartella(""));
}

TEST_F(ModuloPerIniTest, FoldersThatExistLeaveTheReadmeAlone) {
    ASSERT_TRUE(File.Replace(Leggimi, "mio"));
    Modulo.VerificaCartelle();
    EXPECT_EQ(File.Contenuto(Leggimi), "mio");
    EXPECT_EQ(File.Scritture, 1);
}

TEST_F(ModuloPerIniTest, FirstRunMakesFoldersAndReadme) {
    FileSystemFinto vuoto;
    ModuloPerIni modulo(Variabili, vuoto, Finestre, Testi);
    modulo.VerificaCartelle();
    EXPECT_TRUE(vuoto.FolderExists(ModuloPerIni::CartellaImpostazioni));
    EXPECT_TRUE(vuoto.FolderExists(ModuloPerIni::CartellaUtenti));
    // Five lines, of which the texts of the language are still empty.
    EXPECT_EQ(vuoto.Contenuto(Leggimi), "\r\n \r\n\r\n \r\n\r\n");
    EXPECT_EQ(vuoto.Scritture, 2);
}

TEST_F(ModuloPerIniTest, FoldersThatCannotBeMadeAreNotTold) {
    FileSystemFinto guasto;
    guasto.CartelleGuaste = true;
    ModuloPerIni modulo(Variabili, guasto, Finestre, Testi);
    modulo.VerificaCartelle();
    modulo.LeggiUtente();
    EXPECT_EQ(Lette(), Impostazioni());
    EXPECT_TRUE(Finestre.Messaggi.empty());
}

}  // namespace
}  // namespace trameli
