// The documents that the menu opens.
#include <filesystem>

#include "game/partita.h"

namespace trameli {
namespace {

TEST(Documenti, AreOpenedInTheCurrentLanguageIfTheyAreThere) {
    const Disco disco;
    std::filesystem::create_directories(disco.Radice() / "programma");
    Write(disco.Radice() / "programma" / "trameli.english.pdf", "");
    Partita partita(disco);
    Form& menu = partita.ApriMenu();
    for (const char* lingua : {"italiano", "english", ""}) {
        partita.Gioco.Stato().LinguaCorrente = lingua;
        Partita::Scegli(menu, "mnuDocumentazione");
    }
    EXPECT_EQ(partita.Documenti.Opened,
              (std::vector<std::string>{"P:\\trameli.pdf", "P:\\trameli.english.pdf",
                                        "P:\\trameli.pdf"}));
    EXPECT_TRUE(partita.Aperta("FormMenu"));
}

}  // namespace
}  // namespace trameli
