#include "shell/file_utente.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace trameli {

void PrintTo(const Impostazioni& impostazioni, std::ostream* uscita) {
    *uscita << Testo(impostazioni);
}

namespace {

using Righe = std::vector<std::string>;

const Righe Predefinite{" 3 ",        "False", "True",      "True",  " 0 ", " 49152 ",
                        " 12648447 ", " 255 ", " 8438015 ", " 255 ", " 1 ", "True",
                        "False",      "False", " 0 ",       " 4 "};

// No value is a default, and no two colours are equal.
const Impostazioni Diverse{12,       true, false, false, 16777215, 1,    100000, 1000000,
                           10000000, 0,    6,     false, true,     true, 2,      60};
const Righe RigheDiverse{" 12 ",     "True",      "False",      "False", " 16777215 ", " 1 ",
                         " 100000 ", " 1000000 ", " 10000000 ", " 0 ",   " 6 ",        "False",
                         "True",     "True",      " 2 ",        " 60 "};

std::string Unisci(const Righe& righe, const std::string& separatore = "\r\n") {
    std::string testo;
    for (const std::string& riga : righe) {
        testo += riga + separatore;
    }
    return testo;
}

/// The text of `Diverse` with another line, counted from 1.
std::string ConRiga(std::size_t numero, const std::string& riga) {
    Righe righe = RigheDiverse;
    righe.at(numero - 1) = riga;
    return Unisci(righe);
}

TEST(FileUtente, IsWrittenAndReadByteForByte) {
    EXPECT_EQ(Testo(Impostazioni()), Unisci(Predefinite));
    EXPECT_EQ(Leggi(Unisci(Predefinite)), Impostazioni());
    EXPECT_EQ(Testo(Diverse), Unisci(RigheDiverse));
    EXPECT_EQ(Leggi(Unisci(RigheDiverse)), Diverse);
}

TEST(FileUtente, CutShortIsNoRecordAndWhatFollowsIsNotLookedAt) {
    const std::string testo = Unisci(RigheDiverse);
    // Only the digits of the last value must be there.
    const std::size_t fine = testo.rfind("60") + 2;
    for (std::size_t lunghezza = 0; lunghezza < fine - 1; ++lunghezza) {
        EXPECT_EQ(Leggi(testo.substr(0, lunghezza)), std::nullopt) << lunghezza;
    }
    EXPECT_EQ(Leggi(testo.substr(0, fine)), Diverse);
    for (const char* coda : {"17\r\n", "parola", ",,,", "\x1A"}) {
        EXPECT_EQ(Leggi(testo + coda), Diverse) << coda;
    }
}

TEST(FileUtente, ValuesArePartedByAnyLineEndOrComma) {
    for (const char* separatore : {"\r\n", "\n", "\r", ","}) {
        EXPECT_EQ(Leggi(Unisci(RigheDiverse, separatore)), Diverse);
    }
    EXPECT_EQ(Leggi("12,True,False,False\n16777215 , 1,100000 1000000 10000000 0\r6,False,True,"
                    "True,2   60"),
              Diverse);
}

/// Texts that one line of a file can have, and what that value is saved as.
struct ValoriDi {
    std::size_t Riga;
    std::vector<const char*> Valori;
    std::string Salvato;
};

TEST(FileUtente, EachValueIsReadAsWhatItCanMean) {
    const auto predefinita = [](std::size_t riga) { return Predefinite.at(riga - 1); };
    const ValoriDi casi[] = {
        {1, {"     7      ", "\t7\t", "+7", "007", "7."}, " 7 "},
        {1, {".5", "-0.5", "0", "1e-400"}, " 0 "},
        {1, {"2.5"}, " 2 "},
        {1, {"3.5"}, " 4 "},
        {1, {"1.2E+1"}, " 12 "},
        {1, {"15"}, " 15 "},
        {1, {"16", "-1", "15.5", "32767", "-32768"}, predefinita(1)},
        {2, {"True", "T", "Tavolo e sedia"}, "True"},
        {2, {"", "true", "-1", "\"True\"", " True", "\xD0\xA2"}, "False"},
        {5, {"1e3"}, " 1000 "},
        {5, {"-0.1e-9999999999"}, " 0 "},
        {5, {"16777215"}, " 16777215 "},
        {5, {"16777216", "-1", "254.5", "1e300"}, predefinita(5)},
        {6, {"16777216", "-1"}, predefinita(6)},
        {10, {"16777216", "-1"}, predefinita(10)},
        {11, {"7", "-1"}, predefinita(11)},
        {15, {"2"}, " 2 "},
        {15, {"3", "-1"}, predefinita(15)},
        {16, {"2"}, " 2 "},
        {16, {"1", "61"}, predefinita(16)},
    };
    for (const auto& [riga, valori, salvato] : casi) {
        for (const char* valore : valori) {
            // All other values stay.
            EXPECT_EQ(Testo(Leggi(ConRiga(riga, valore)).value()), ConRiga(riga, salvato))
                << riga << ": " << valore;
        }
    }
}

TEST(FileUtente, WhatIsNoNumberSpoilsTheRecord) {
    for (const char* valore :
         {"", "32768", "-32769", "32767.5", "4294967299", "1e400", "tre", "3tre", "3;4", "\"3\"",
          "0x3", "+-3", "-", "- 3", "\xEF\xBB\xBF 3 ", "True"}) {
        EXPECT_EQ(Leggi(ConRiga(1, valore)), std::nullopt) << valore;
    }
    for (const char* valore : {"   ", "1e400", "inf", "nan", "3,5"}) {
        EXPECT_EQ(Leggi(ConRiga(5, valore)), std::nullopt) << valore;
    }
}

}  // namespace
}  // namespace trameli
