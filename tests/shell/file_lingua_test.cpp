// What is read from the bytes of language and initialisation files.
#include "shell/file_lingua.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace trameli {
namespace {

using namespace std::string_literals;

/// What the key K of the section S has for its value.
struct Caso {
    std::string Byte;
    std::string Valore;
};

const std::vector<Caso> Piccoli{
    {"[S]\nK=\"a\"", "a"},
    {"[S]\r\nK=\"a\"\r\n", "a"},
    {" [ s ] \n\t k = \"a\" \t\n", "a"},  // case and blanks round the parts do not matter
    {"[S]\nK=a b", "a b"},
    {"[S]\nK=\" a \"", " a "},
    {"[S]\nK=\"a\"\"b=c\"", "a\"\"b=c"},
    {"[S]\nK=\"a", "\"a"},
    {"[S]\nK\n=\"x\"\n[\n]\n;K=\"x\"\nKK=\"x\"\nK=\"a\"", "a"},  // lines that say nothing
    {"K=\"x\"\n[T]\nK=\"x\"\n[S]\nK=\"a\"\nK=\"x\"\n[S]\nK=\"x\"", "a"},
    // Up to the first zero character, at most 511 characters.
    {"[S]\nK=\"a\0b\""s, "a"},
    {"[S]\nK=\"" + std::string(512, 'a') + "\"", std::string(511, 'a')},
    {"[S]\nK=\"" + std::string(510, 'a') + "\xC3\xA8\xC3\xA8\"",
     std::string(510, 'a') + "\xC3\xA8"},
    // UTF-8 with or without a mark, else Windows-1252.
    {"\xEF\xBB\xBF[S]\nK=\"perch\xC3\xA9\"", "perch\xC3\xA9"},
    {"[S]\nK=\"perch\xE9 \x80\x9F\"", "perch\xC3\xA9 \xE2\x82\xAC\xC5\xB8"},
    {"\xEF\xBB\xBF[S]\nK=\"\xE9\"", "\xC3\xA9"},
    {"[S]\nK=\"\xC0\xAF\"", "\xC3\x80\xC2\xAF"},  // longer than need be
    {"[S]\nK=\"\xC3", "\"\xC3\x83"},              // cut off
};

TEST(FileLingua, GivesWhatCanBeRead) {
    for (const Caso& caso : Piccoli) {
        EXPECT_EQ(FileLingua(caso.Byte).Valore("S", "K"), caso.Valore) << caso.Byte;
    }
}

TEST(FileLingua, TakesAValueAndKeepsTheRest) {
    const std::vector<Caso> casi{
        {"", "[S]\r\nK=v\r\n"},
        {"[S]\nK=\"a\"\nL=b", "[S]\nK=v\nL=b"},
        {"[T]\r\nK=a\r\n[s]\r\nk = a\r\nK=a\r\n", "[T]\r\nK=a\r\n[s]\r\nk =v\r\nK=a\r\n"},
        {"[S]\nL=b\n\n[T]\nK=a\n", "[S]\nL=b\r\nK=v\n\n[T]\nK=a\n"},
        {"; mine\nK=a", "; mine\nK=a\r\n[S]\r\nK=v\r\n"},
        {"[S]\nL=\xE9", "[S]\nL=\xC3\xA9\r\nK=v"},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(ConValore(caso.Byte, "S", "K", "v"), caso.Valore) << caso.Byte;
    }
}

}  // namespace
}  // namespace trameli
