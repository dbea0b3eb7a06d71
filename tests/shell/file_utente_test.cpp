#include "shell/file_utente.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace trameli {

void PrintTo(const Impostazioni& impostazioni, std::ostream* uscita) {
    *uscita << Testo(impostazioni);
}

namespace {

const std::string Predefinito =
    " 3 \r\nFalse\r\nTrue\r\nTrue\r\n 0 \r\n 49152 \r\n 12648447 \r\n 255 \r\n 8438015 \r\n 255 "
    "\r\n"
    " 1 \r\nTrue\r\nFalse\r\nFalse\r\n 0 \r\n 4 \r\n";

/// No value is a default, and no two that could be mistaken for each other are equal.
Impostazioni Diverse() {
    Impostazioni i;
    i.Livello = 12;
    i.UsaMaiuscolo = true;
    i.CambiaColoreRitorno = false;
    i.LineeNeiPrimiLivelli = false;
    i.ColorePareti = 16777215;
    i.ColoreAvanti = 1;
    i.ColoreSfondo = 100000;
    i.ColoreSimbolo = 1000000;
    i.ColoreRitorno = 10000000;
    i.ColoreScansione = 0;
    i.SpessoreLinee = 6;
    i.SuoniAttivi = false;
    i.SuonoMovimento = true;
    i.PuntatoreSistema = true;
    i.ModoInput = 2;
    i.VelocitaScansione = 60;
    return i;
}

const std::string TestoDiverse =
    " 12 \r\nTrue\r\nFalse\r\nFalse\r\n 16777215 \r\n 1 \r\n 100000 \r\n 1000000 \r\n 10000000 \r\n"
    " 0 \r\n 6 \r\nFalse\r\nTrue\r\nTrue\r\n 2 \r\n 60 \r\n";

std::vector<std::string> Righe(const std::string& testo) {
    std::vector<std::string> righe;
    std::size_t inizio = 0;
    for (std::size_t fine = 0; (fine = testo.find("\r\n", inizio)) != std::string::npos;
         inizio = fine + 2) {
        righe.push_back(testo.substr(inizio, fine - inizio));
    }
    return righe;
}

std::string Unisci(const std::vector<std::string>& righe, const std::string& separatore) {
    std::string testo;
    for (const std::string& riga : righe) {
        testo += riga + separatore;
    }
    return testo;
}

/// The text of `Diverse` with another line, counted from 1.
std::string ConRiga(std::size_t numero, const std::string& riga) {
    std::vector<std::string> righe = Righe(TestoDiverse);
    righe.at(numero - 1) = riga;
    return Unisci(righe, "\r\n");
}

TEST(FileUtenteTest, DefaultsByteForByte) {
    EXPECT_EQ(Testo(Impostazioni()), Predefinito);
    EXPECT_EQ(Leggi(Predefinito), Impostazioni());
}

TEST(FileUtenteTest, EveryFieldByteForByte) {
    EXPECT_EQ(Testo(Diverse()), TestoDiverse);
    EXPECT_EQ(Leggi(TestoDiverse), Diverse());
}

TEST(FileUtenteTest, NegativeNumberTakesThePlaceOfTheBlank) {
    Impostazioni i;
    i.Livello = -5;
    EXPECT_TRUE(Testo(i).starts_with("-5 \r\n"));
}

TEST(FileUtenteTest, EachFlagIsReadIntoItsOwnField) {
    for (const std::size_t riga : {2U, 3U, 4U, 12U, 13U, 14U}) {
        std::vector<std::string> righe = Righe(Predefinito);
        for (const std::size_t altra : {2U, 3U, 4U, 12U, 13U, 14U}) {
            righe[altra - 1] = altra == riga ? "True" : "False";
        }
        const std::string testo = Unisci(righe, "\r\n");
        const auto lette = Leggi(testo);
        ASSERT_TRUE(lette) << riga;
        EXPECT_EQ(Testo(*lette), testo) << riga;
    }
}

TEST(FileUtenteTest, CutAtEveryByte) {
    // Only the digits of the last value must be there; cut behind the first of them, it is another
    // number.
    const std::size_t ultimaCifra = TestoDiverse.rfind("60") + 1;
    for (std::size_t lunghezza = 0; lunghezza <= TestoDiverse.size(); ++lunghezza) {
        const auto lette = Leggi(TestoDiverse.substr(0, lunghezza));
        EXPECT_EQ(lette.has_value(), lunghezza >= ultimaCifra) << lunghezza;
        if (lunghezza > ultimaCifra) {
            EXPECT_EQ(lette, Diverse()) << lunghezza;
        }
    }
}

TEST(FileUtenteTest, FifteenLinesAreTooFew) {
    std::vector<std::string> righe = Righe(TestoDiverse);
    righe.pop_back();
    EXPECT_EQ(Leggi(Unisci(righe, "\r\n")), std::nullopt);
    EXPECT_EQ(Leggi(Unisci(righe, "\r\n") + "  \r\n"), std::nullopt);
}

TEST(FileUtenteTest, WhatFollowsTheSixteenthValueIsNotLookedAt) {
    for (const char* coda : {"17\r\n", "\r\n\r\n", "parola", ",,,", "\x1A"}) {
        EXPECT_EQ(Leggi(TestoDiverse + coda), Diverse()) << coda;
    }
}

TEST(FileUtenteTest, ValuesArePartedByAnyLineEndOrComma) {
    for (const char* separatore : {"\r\n", "\n", "\r", ","}) {
        EXPECT_EQ(Leggi(Unisci(Righe(TestoDiverse), separatore)), Diverse());
    }
    EXPECT_EQ(Leggi("12,True,False,False\n16777215 , 1,100000 1000000 10000000 0\r6,False,True,"
                    "True,2   60"),
              Diverse());
}

TEST(FileUtenteTest, AnEmptyLineIsAnEmptyValue) {
    // For a flag that is False; for a number there is nothing to convert.
    Impostazioni senza = Diverse();
    senza.UsaMaiuscolo = false;
    EXPECT_EQ(Leggi(ConRiga(2, "")), senza);
    EXPECT_EQ(Leggi(ConRiga(1, "")), std::nullopt);
    EXPECT_EQ(Leggi(ConRiga(5, "   ")), std::nullopt);
    EXPECT_EQ(Leggi("\r\n" + TestoDiverse), std::nullopt);
    EXPECT_EQ(Leggi("\n" + TestoDiverse), std::nullopt);
}

struct CasoFlag {
    const char* Parola;
    bool Vero;
};

class FlagTest : public testing::TestWithParam<CasoFlag> {};

TEST_P(FlagTest, OnlyACapitalTAtTheStartCounts) {
    Impostazioni attese = Diverse();
    attese.UsaMaiuscolo = GetParam().Vero;
    EXPECT_EQ(Leggi(ConRiga(2, GetParam().Parola)), attese);
}

INSTANTIATE_TEST_SUITE_P(FileUtente, FlagTest,
                         testing::Values(CasoFlag{"True", true}, CasoFlag{"T", true},
                                         CasoFlag{"Tavolo e sedia", true},
                                         CasoFlag{"Truffa 7", true}, CasoFlag{"true", false},
                                         CasoFlag{"False", false}, CasoFlag{"-1", false},
                                         CasoFlag{"\"True\"", false}, CasoFlag{" True", false},
                                         CasoFlag{"\xD0\xA2", false}));

struct CasoNumero {
    std::size_t Riga;
    const char* Valore;
    enum { Convertito, Predefinito, Fallito } Esito;
    int Atteso = 0;
};

void PrintTo(const CasoNumero& caso, std::ostream* uscita) {
    *uscita << caso.Riga << ": " << caso.Valore;
}

class NumeroTest : public testing::TestWithParam<CasoNumero> {};

TEST_P(NumeroTest, IsConvertedDefaultedOrSpoilsTheRecord) {
    const CasoNumero& caso = GetParam();
    const auto lette = Leggi(ConRiga(caso.Riga, caso.Valore));
    if (caso.Esito == CasoNumero::Fallito) {
        EXPECT_EQ(lette, std::nullopt);
        return;
    }
    // All other values stay.
    const std::string valore = caso.Esito == CasoNumero::Predefinito
                                   ? Righe(Predefinito).at(caso.Riga - 1)
                                   : " " + std::to_string(caso.Atteso) + " ";
    ASSERT_TRUE(lette);
    EXPECT_EQ(Testo(*lette), ConRiga(caso.Riga, valore));
}

constexpr auto Convertito = CasoNumero::Convertito;
constexpr auto AlPredefinito = CasoNumero::Predefinito;
constexpr auto Fallito = CasoNumero::Fallito;

INSTANTIATE_TEST_SUITE_P(
    Forme, NumeroTest,
    testing::Values(CasoNumero{1, "7", Convertito, 7}, CasoNumero{1, "     7      ", Convertito, 7},
                    CasoNumero{1, "\t7\t", Convertito, 7}, CasoNumero{1, "+7", Convertito, 7},
                    CasoNumero{1, "007", Convertito, 7}, CasoNumero{1, "7.", Convertito, 7},
                    CasoNumero{1, ".5", Convertito, 0}, CasoNumero{1, "-0", Convertito, 0},
                    CasoNumero{1, "2.5", Convertito, 2}, CasoNumero{1, "3.5", Convertito, 4},
                    CasoNumero{1, "-0.5", Convertito, 0}, CasoNumero{1, "15.5", AlPredefinito},
                    CasoNumero{1, "14.5", Convertito, 14}, CasoNumero{1, "1e1", Convertito, 10},
                    CasoNumero{1, "1.2E+1", Convertito, 12}, CasoNumero{5, "1e3", Convertito, 1000},
                    CasoNumero{5, "255.0", Convertito, 255}, CasoNumero{5, "-0", Convertito, 0}));

INSTANTIATE_TEST_SUITE_P(
    Limiti, NumeroTest,
    testing::Values(CasoNumero{1, "0", Convertito, 0}, CasoNumero{1, "15", Convertito, 15},
                    CasoNumero{1, "16", AlPredefinito}, CasoNumero{1, "99", AlPredefinito},
                    CasoNumero{1, "-1", AlPredefinito}, CasoNumero{1, "32767", AlPredefinito},
                    CasoNumero{1, "-32768", AlPredefinito}, CasoNumero{11, "6", Convertito, 6},
                    CasoNumero{11, "7", AlPredefinito}, CasoNumero{15, "2", Convertito, 2},
                    CasoNumero{15, "3", AlPredefinito}, CasoNumero{16, "2", Convertito, 2},
                    CasoNumero{16, "1", AlPredefinito}, CasoNumero{16, "60", Convertito, 60},
                    CasoNumero{16, "61", AlPredefinito}));

INSTANTIATE_TEST_SUITE_P(Colori, NumeroTest, testing::ValuesIn([] {
                             std::vector<CasoNumero> casi;
                             for (std::size_t riga = 5; riga <= 10; ++riga) {
                                 casi.push_back({riga, "16777215", Convertito, 16777215});
                                 casi.push_back({riga, "16777216", AlPredefinito});
                                 casi.push_back({riga, "-1", AlPredefinito});
                                 casi.push_back({riga, "254.5", AlPredefinito});
                                 casi.push_back({riga, "1e300", AlPredefinito});
                                 casi.push_back({riga, "rosso", Fallito});
                             }
                             return casi;
                         }()));

INSTANTIATE_TEST_SUITE_P(
    Guasti, NumeroTest,
    testing::Values(CasoNumero{1, "32768", Fallito}, CasoNumero{1, "-32769", Fallito},
                    CasoNumero{1, "32767.5", Fallito}, CasoNumero{1, "4294967299", Fallito},
                    CasoNumero{1, "1e400", Fallito}, CasoNumero{5, "1e400", Fallito},
                    CasoNumero{1, "tre", Fallito}, CasoNumero{1, "3tre", Fallito},
                    CasoNumero{1, "3;4", Fallito}, CasoNumero{1, "\"3\"", Fallito},
                    CasoNumero{1, "0x3", Fallito}, CasoNumero{1, "+-3", Fallito},
                    CasoNumero{1, "+", Fallito}, CasoNumero{1, "-", Fallito},
                    CasoNumero{1, "- 3", Fallito}, CasoNumero{1, "\xEF\xBB\xBF 3 ", Fallito},
                    CasoNumero{1,
                               "\xEF\xBB\xBF"
                               "3 ",
                               Fallito},
                    CasoNumero{5, "inf", Fallito}, CasoNumero{5, "nan", Fallito},
                    CasoNumero{5, "3,5", Fallito}, CasoNumero{11, "True", Fallito},
                    CasoNumero{15, "?", Fallito}, CasoNumero{16, "?", Fallito}));

TEST(FileUtenteTest, BinaryIsDamaged) {
    EXPECT_EQ(Leggi(std::string(4096, '\0')), std::nullopt);
    EXPECT_EQ(Leggi(std::string(4096, '\xFF')), std::nullopt);
    EXPECT_EQ(Leggi(std::string(4096, ' ')), std::nullopt);
    EXPECT_EQ(Leggi(std::string(4096, ',')), std::nullopt);
    EXPECT_EQ(Leggi(std::string("\0", 1) + Predefinito), std::nullopt);
}

/// Any record within the ranges survives; any text whatever gives nothing or such a record.
TEST(FileUtenteTest, RandomTextsAndRecords) {
    std::mt19937 caso(20080224);
    const auto sotto = [&caso](std::size_t n) { return caso() % n; };
    const std::string alfabeto(" ,\r\n\t0123456789+-.eETFrue\xEF\0", 27);
    for (int giro = 0; giro < 20000; ++giro) {
        Impostazioni i;
        i.Livello = static_cast<std::int16_t>(sotto(16));
        i.UsaMaiuscolo = sotto(2) != 0;
        i.SuonoMovimento = sotto(2) != 0;
        i.ColoreSfondo = static_cast<double>(sotto(16777216));
        i.ColoreScansione = static_cast<double>(sotto(16777216));
        i.SpessoreLinee = static_cast<std::int16_t>(sotto(7));
        i.ModoInput = static_cast<std::int16_t>(sotto(3));
        i.VelocitaScansione = static_cast<std::int16_t>(2 + sotto(59));
        std::string testo = Testo(i);
        ASSERT_EQ(Leggi(testo), i);

        for (std::size_t colpi = 1 + sotto(8); colpi > 0; --colpi) {
            testo.insert(sotto(testo.size() + 1), 1, alfabeto[sotto(alfabeto.size())]);
            testo.erase(sotto(testo.size()), sotto(3));
        }
        if (const auto lette = Leggi(testo)) {
            ASSERT_EQ(Leggi(Testo(*lette)), lette) << testo;
        }
    }
}

}  // namespace
}  // namespace trameli
