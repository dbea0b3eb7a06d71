// The start of the game: its folders, and the ground of the splash.
#include <gtest/gtest.h>

#include "game/partita.h"
#include "platform/form.h"

namespace trameli {
namespace {

using Nomi = std::vector<std::string>;

TEST(Cartelle, AreMadeWithTheirReadmeWhereOneIsMissing) {
    const Disco disco;
    const Installazione senzaLingue{"", ""};
    EXPECT_TRUE(Partita(disco, senzaLingue).Avvia());
    EXPECT_EQ(disco.Tutti(),
              (Nomi{"ImpostazioniProgrammiOvalia", "ImpostazioniProgrammiOvalia/leggimi.txt",
                    "ImpostazioniProgrammiOvalia/trameli"}));
    // Three texts, with a line that holds a blank between them.
    const std::string senzaTesti = "\r\n \r\n\r\n \r\n\r\n";
    EXPECT_EQ(BytesOf(disco.Leggimi()), senzaTesti);

    std::filesystem::remove(disco.Utenti());
    EXPECT_TRUE(Partita(disco, senzaLingue).Avvia());
    EXPECT_TRUE(std::filesystem::is_directory(disco.Utenti()));
    EXPECT_EQ(BytesOf(disco.Leggimi()), senzaTesti);
}

TEST(SfondoAvvio, RunsFromWhiteToBlueIn256Bands) {
    const Disco disco;
    Partita partita(disco, {800, 600});
    ASSERT_TRUE(partita.Avvia());
    const QImage sfondo = Shot(partita.Finestra("FormAvvio"));
    for (int riga = 0; riga < sfondo.height(); ++riga) {
        const int chiarore = 255 - 256 * riga / sfondo.height();
        for (const int x : {1, sfondo.width() - 1}) {  // the edges are free of controls
            const QRgb qui = sfondo.pixel(x, riga);
            ASSERT_NEAR(qRed(qui), chiarore, 1) << "row " << riga;
            ASSERT_EQ(qui, qRgb(qRed(qui), qRed(qui), 255));
        }
    }
}

}  // namespace
}  // namespace trameli
