#include "shell/maiuscolo.h"

#include <gtest/gtest.h>

#include <string>

namespace trameli {
namespace {

using namespace std::string_literals;

TEST(Maiuscolo, PutsLettersInCapitals) {
    const struct {
        std::string Testo, Atteso;
    } casi[] = {
        {"", ""},
        {"&Avvio az{`@[ 09", "&AVVIO AZ{`@[ 09"},
        {"àèéìíòùçñöþÿ÷×", "ÀÈÉÌÍÒÙÇÑÖÞŸ÷×"},
        {"ąćęłńśźżčďěĺľňřšťůžőűğşțșơưǎǜạỹµſĳŋŷ", "ĄĆĘŁŃŚŹŻČĎĚĹĽŇŘŠŤŮŽŐŰĞŞȚȘƠƯǍǛẠỸΜSĲŊŶ"},
        {"άέήίόύώ αβςσωϋ", "ΆΈΉΊΌΎΏ ΑΒΣΣΩΫ"},
        {"абвя ёђџ ґӏӂөԯ", "АБВЯ ЁЂЏ ҐӀӁӨԮ"},
        // These two stay, and what is no letter does.
        {"straße ışık 日本 🙂 €", "STRAßE ıŞıK 日本 🙂 €"},
        {"a\0b"s, "A\0B"s},
        // Malformed bytes, and overlong forms of letters.
        {"a\xC3", "A\xC3"},
        {"\xC3z", "\xC3Z"},
        {"\xA0z", "\xA0Z"},
        {"\xE1\xBA", "\xE1\xBA"},
        {"\xE1zz", "\xE1ZZ"},
        {"\xC1\xA1", "\xC1\xA1"},
        {"\xE0\x83\xA0", "\xE0\x83\xA0"},
    };
    for (const auto& [testo, atteso] : casi) {
        EXPECT_EQ(Maiuscolo(testo), atteso);
        EXPECT_EQ(Maiuscolo(atteso), atteso) << "a capital has no further capital";
    }
}

}  // namespace
}  // namespace trameli
