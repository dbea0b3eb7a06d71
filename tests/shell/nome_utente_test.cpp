// Which names a user can have.
#include "shell/nome_utente.h"

#include <gtest/gtest.h>

#include <string>

namespace trameli {
namespace {

TEST(NomeUtente, HasLettersOfAllScriptsUpToAHundredThatMakeAFileName) {
    using namespace std::string_literals;
    for (const std::string& nome : {"Zoë e 名 \U0001F600"s, "a.b"s, std::string(100, 'a')}) {
        EXPECT_TRUE(NomeUtenteAmmesso(nome)) << nome;
    }
    for (const std::string& nome :
         {".anna"s, "a/b"s, "a\\b"s, "a\nb"s, "\0"s, "a\u0085"s, "a\xC3"s, std::string(101, 'a')}) {
        EXPECT_FALSE(NomeUtenteAmmesso(nome)) << nome;
    }
}

}  // namespace
}  // namespace trameli
