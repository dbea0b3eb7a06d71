#include "shell/livelli.h"

#include <gtest/gtest.h>

#include <ostream>

namespace trameli {
namespace {

struct Caso {
    int Livello;
    const char* Form;
    int Righe;
    int Colonne;
};

void PrintTo(const Caso& caso, std::ostream* uscita) {
    *uscita << "livello " << caso.Livello;
}

constexpr int Prima = 77;  // what the grid measured before; the lower levels leave it

class LivelliTest : public testing::TestWithParam<Caso> {};

TEST_P(LivelliTest, FormAndGrid) {
    const Caso& caso = GetParam();
    EXPECT_STREQ(FormDelLivello(caso.Livello), caso.Form);
    Stato stato;
    stato.Livello = static_cast<std::int16_t>(caso.Livello);
    stato.RigheGriglia = Prima;
    stato.ColonneGriglia = Prima;
    ImpostaGriglia(stato);
    EXPECT_EQ(stato.RigheGriglia, caso.Righe);
    EXPECT_EQ(stato.ColonneGriglia, caso.Colonne);
}

INSTANTIATE_TEST_SUITE_P(Tabella, LivelliTest,
                         testing::Values(Caso{0, "frmTrm0", Prima, Prima},
                                         Caso{4, "frmTrm0", Prima, Prima},
                                         Caso{5, "frmTrm1", Prima, Prima},
                                         Caso{7, "frmTrm1", Prima, Prima}, Caso{8, "frmTrm3", 3, 4},
                                         Caso{9, "frmTrm3", 4, 5}, Caso{10, "frmTrm3", 5, 6},
                                         Caso{11, "frmTrm3", 6, 7}, Caso{12, "frmTrm3", 8, 10},
                                         Caso{13, "frmTrm3", 10, 15}, Caso{14, "frmTrm3", 12, 18},
                                         Caso{15, "frmTrm3", 15, 20}));

}  // namespace
}  // namespace trameli
