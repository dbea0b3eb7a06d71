#include "shell/livelli.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace trameli {
namespace {

struct Caso {
    const char* Form;
    DimensioniGriglia Griglia;
};

constexpr std::array<Caso, NumeroLivelli> Tabella{{
    {"frmTrm0", {6, 9}},
    {"frmTrm0", {6, 9}},
    {"frmTrm0", {6, 9}},
    {"frmTrm0", {6, 9}},
    {"frmTrm0", {6, 9}},
    {"frmTrm1", {8, 11}},
    {"frmTrm1", {8, 11}},
    {"frmTrm1", {8, 11}},
    {"frmTrm3", {3, 4}},
    {"frmTrm3", {4, 5}},
    {"frmTrm3", {5, 6}},
    {"frmTrm3", {6, 7}},
    {"frmTrm3", {8, 10}},
    {"frmTrm3", {10, 15}},
    {"frmTrm3", {12, 18}},
    {"frmTrm3", {15, 20}},
}};

TEST(Livelli, HaveAFormAndAGrid) {
    for (std::int16_t livello = 0; livello < NumeroLivelli; ++livello) {
        SCOPED_TRACE(livello);
        const Caso& caso = Tabella.at(static_cast<std::size_t>(livello));
        EXPECT_STREQ(FormDelLivello(livello), caso.Form);
        EXPECT_EQ(DimensioniDi(livello), caso.Griglia);

        constexpr DimensioniGriglia prima{77, 78};
        Stato stato;
        stato.Livello = livello;
        stato.RigheGriglia = prima.Righe;
        stato.ColonneGriglia = prima.Colonne;
        ImpostaGriglia(stato);
        // The lower levels leave it.
        EXPECT_EQ((DimensioniGriglia{stato.RigheGriglia, stato.ColonneGriglia}),
                  livello < 8 ? prima : caso.Griglia);
    }
}

TEST(Livelli, OthersHaveNoGrid) {
    EXPECT_THROW(DimensioniDi(-1), std::out_of_range);
    EXPECT_THROW(DimensioniDi(16), std::out_of_range);
}

}  // namespace
}  // namespace trameli
