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
    Impostazioni negativo;
    negativo.Livello = -5;
    EXPECT_TRUE(Testo(negativo).starts_with("-5 \r\n"));
}

TEST(FileUtente, CutAtEveryByte) {
    const std::string testo = Unisci(RigheDiverse);
    // Only the digits of the last value must be there; cut behind the first of them, it is another
    // number.
    const std::size_t ultimaCifra = testo.rfind("60") + 1;
    for (std::size_t lunghezza = 0; lunghezza <= testo.size(); ++lunghezza) {
        const auto lette = Leggi(testo.substr(0, lunghezza));
        EXPECT_EQ(lette.has_value(), lunghezza >= ultimaCifra) << lunghezza;
        if (lunghezza > ultimaCifra) {
            EXPECT_EQ(lette, Diverse) << lunghezza;
        }
    }
}

TEST(FileUtente, ValuesArePartedByAnyLineEndOrComma) {
    for (const char* separatore : {"\r\n", "\n", "\r", ","}) {
        EXPECT_EQ(Leggi(Unisci(RigheDiverse, separatore)), Diverse);
    }
    EXPECT_EQ(Leggi("12,True,False,False\n16777215 , 1,100000 1000000 10000000 0\r6,False,True,"
                    "True,2   60\r\n17,"),
              Diverse)
        << "mixed, and with more behind";
}

TEST(FileUtente, OnlyACapitalTAtTheStartOfAFlagCounts) {
    Impostazioni senza = Diverse;
    senza.UsaMaiuscolo = false;
    for (const char* parola : {"True", "T", "Tavolo e sedia"}) {
        EXPECT_EQ(Leggi(ConRiga(2, parola)), Diverse) << parola;
    }
    for (const char* parola : {"", "true", "-1", "\"True\"", " True", "\xD0\xA2"}) {
        EXPECT_EQ(Leggi(ConRiga(2, parola)), senza) << parola;
    }
}

TEST(FileUtente, NumbersAreConverted) {
    const struct {
        std::size_t Riga;
        const char* Valore;
        int Atteso;
    } casi[] = {
        {1, "\t 7 ", 7},   {1, "+007.", 7}, {1, ".5", 0}, {1, "2.5", 2},  {1, "3.5", 4},
        {1, "1.2E+1", 12}, {5, "-0", 0},    {15, "2", 2}, {16, "60", 60},
    };
    for (const auto& [riga, valore, atteso] : casi) {
        // All other values stay.
        EXPECT_EQ(Testo(Leggi(ConRiga(riga, valore)).value()),
                  ConRiga(riga, " " + std::to_string(atteso) + " "))
            << riga << ": " << valore;
    }
}

/// Texts for one line of a file.
struct ValoriDi {
    std::size_t Riga;
    std::vector<const char*> Valori;
};

TEST(FileUtente, OnlyTheValueOutsideItsRangeIsDefaulted) {
    const ValoriDi casi[] = {
        {1, {"16", "-1", "15.5", "32767", "-32768"}},
        {5, {"16777216", "-1", "254.5", "1e300"}},
        {6, {"16777216", "-1"}},
        {7, {"16777216", "-1"}},
        {8, {"16777216", "-1"}},
        {9, {"16777216", "-1"}},
        {10, {"16777216", "-1"}},
        {11, {"7", "-1"}},
        {15, {"3", "-1"}},
        {16, {"1", "61"}},
    };
    for (const auto& [riga, valori] : casi) {
        for (const char* valore : valori) {
            EXPECT_EQ(Testo(Leggi(ConRiga(riga, valore)).value()),
                      ConRiga(riga, Predefinite.at(riga - 1)))
                << riga << ": " << valore;
        }
    }
}

TEST(FileUtente, WhatIsNoNumberSpoilsTheRecord) {
    const ValoriDi casi[] = {
        {1,
         {"", "32768", "-32769", "32767.5", "4294967299", "1e400", "tre", "3tre", "3;4", "\"3\"",
          "0x3", "+-3", "+", "-", "- 3", "\xEF\xBB\xBF 3 "}},
        {5, {"   ", "1e400", "inf", "nan", "3,5", "rosso"}},
        {11, {"True"}},
        {16, {"?"}},
    };
    for (const auto& [riga, valori] : casi) {
        for (const char* valore : valori) {
            EXPECT_EQ(Leggi(ConRiga(riga, valore)), std::nullopt) << riga << ": " << valore;
        }
    }
}

}  // namespace
}  // namespace trameli
