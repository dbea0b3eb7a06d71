// Which names a user can have.
#include "shell/nome_utente.h"

#include <gtest/gtest.h>

#include <string>

namespace trameli {
namespace {

std::string Ripetuto(const std::string& testo, int volte) {
    std::string lungo;
    for (int i = 0; i < volte; ++i) {
        lungo += testo;
    }
    return lungo;
}

TEST(NomeUtente, LettersOfAllScriptsUpToAHundredThatMakeAFileName) {
    for (const std::string& nome :
         {std::string(), std::string(" "), std::string("Zoë и 名 \U0001F600"), std::string("a.b"),
          std::string("C:*?\"<>|"), Ripetuto("é", 100)}) {
        EXPECT_TRUE(NomeUtenteAmmesso(nome)) << nome;
    }
}

TEST(NomeUtente, NoPathsNoHiddenFilesNoControlsNothingTooLongOrBroken) {
    for (const std::string& nome :
         {std::string("."), std::string(".anna"), std::string("a/b"), std::string("a\\b"),
          std::string("a\tb"), std::string("a\nb"), std::string(1, '\0'), std::string("a\x7F"),
          std::string("a\u0085"), Ripetuto("a", 101), Ripetuto("名", 84),
          std::string("\xED\xA0\x80"), std::string("a\xC3")}) {
        EXPECT_FALSE(NomeUtenteAmmesso(nome)) << nome;
    }
}

}  // namespace
}  // namespace trameli
