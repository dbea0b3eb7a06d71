#include "shell/maiuscolo.h"

#include <gtest/gtest.h>

#include <string>

namespace trameli {
namespace {

struct Caso {
    const char* Testo;
    const char* Atteso;
};

class MaiuscoloTest : public testing::TestWithParam<Caso> {};

TEST_P(MaiuscoloTest, PutsLettersInCapitals) {
    EXPECT_EQ(Maiuscolo(GetParam().Testo), GetParam().Atteso);
    // A capital has no further capital.
    EXPECT_EQ(Maiuscolo(GetParam().Atteso), GetParam().Atteso);
}

INSTANTIATE_TEST_SUITE_P(
    Testi, MaiuscoloTest,
    testing::Values(Caso{"", ""}, Caso{"&Avvio", "&AVVIO"}, Caso{"_predefinito", "_PREDEFINITO"},
                    Caso{"Imposta il livello", "IMPOSTA IL LIVELLO"},
                    Caso{"az{`@[ 09", "AZ{`@[ 09"}, Caso{"àèéìíòù", "ÀÈÉÌÍÒÙ"},
                    Caso{"çñöþÿ÷×", "ÇÑÖÞŸ÷×"}, Caso{"ąćęłńśźż", "ĄĆĘŁŃŚŹŻ"},
                    Caso{"čďěĺľňřšťůž", "ČĎĚĹĽŇŘŠŤŮŽ"}, Caso{"őűğşțș", "ŐŰĞŞȚȘ"},
                    Caso{"ơưǎǜạỹ", "ƠƯǍǛẠỸ"}, Caso{"µſĳŋŷ", "ΜSĲŊŶ"},
                    Caso{"άέήίόύώ αβςσωϋ", "ΆΈΉΊΌΎΏ ΑΒΣΣΩΫ"},
                    Caso{"абвя ёђџ ґӏӂөԯ", "АБВЯ ЁЂЏ ҐӀӁӨԮ"},
                    // These two stay, and what is no letter does.
                    Caso{"straße", "STRAßE"}, Caso{"ışık", "ıŞıK"},
                    Caso{"日本 🙂 €", "日本 🙂 €"}));

INSTANTIATE_TEST_SUITE_P(ByteGuasti, MaiuscoloTest,
                         testing::Values(Caso{"a\xC3", "A\xC3"},
                                         Caso{"\xC3"
                                              "a",
                                              "\xC3"
                                              "A"},
                                         Caso{"\xA0z", "\xA0Z"}, Caso{"\xE1\xBA", "\xE1\xBA"},
                                         Caso{"\xE1"
                                              "bb",
                                              "\xE1"
                                              "BB"},
                                         // Overlong forms are no letters.
                                         Caso{"\xC1\xA1", "\xC1\xA1"},
                                         Caso{"\xE0\x83\xA0", "\xE0\x83\xA0"},
                                         Caso{"\xFF\xFE", "\xFF\xFE"}));

TEST(MaiuscoloByteTest, KeepsZeroBytes) {
    const std::string zero("a\0b", 3);
    EXPECT_EQ(Maiuscolo(zero), std::string("A\0B", 3));
}

}  // namespace
}  // namespace trameli
