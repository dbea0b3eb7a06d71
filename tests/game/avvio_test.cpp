// The start of the game: folders, splash, second instance.
#include <gtest/gtest.h>

#include <functional>

#include "game/partita.h"
#include "platform/command_button.h"
#include "platform/form.h"
#include "platform/label.h"

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

    Write(disco.Leggimi(), "mine");
    EXPECT_TRUE(Partita(disco, senzaLingue).Avvia());
    EXPECT_EQ(BytesOf(disco.Leggimi()), "mine");
    std::filesystem::remove(disco.Leggimi());
    EXPECT_TRUE(Partita(disco, senzaLingue).Avvia());
    EXPECT_FALSE(std::filesystem::exists(disco.Leggimi()));

    std::filesystem::remove(disco.Utenti());
    EXPECT_TRUE(Partita(disco, senzaLingue).Avvia());
    EXPECT_TRUE(std::filesystem::is_directory(disco.Utenti()));
    EXPECT_EQ(BytesOf(disco.Leggimi()), senzaTesti);
}

TEST(AltraIstanza, ShowsNoWindowAndTouchesNothing) {
    const Disco disco;
    Partita partita(disco);
    partita.Istanze.Another = true;
    EXPECT_FALSE(partita.Avvia());
    EXPECT_EQ(partita.Aperte(), Nomi{});
    EXPECT_EQ(disco.Tutti(), Nomi{});
}

TEST(SfondoAvvio, RunsFromWhiteToBlueIn256Bands) {
    const Disco disco;
    Partita partita(disco, {800, 600});
    ASSERT_TRUE(partita.Avvia());
    const QImage sfondo = Shot(partita.Finestra("FormAvvio"));
    for (int riga = 0; riga < sfondo.height(); ++riga) {
        const int chiarore = 255 - (2 * riga + 1) * 256 / (2 * sfondo.height());
        const QRgb qui = sfondo.pixel(1, riga);  // the edges are free of controls
        ASSERT_NEAR(qRed(qui), chiarore, 1) << "row " << riga;
        ASSERT_EQ(qui, qRgb(qRed(qui), qRed(qui), 255));
        ASSERT_EQ(sfondo.pixel(sfondo.width() - 1, riga), qui) << "row " << riga;
    }
}

TEST(GestiAvvio, ButtonLabelsAndSpaceOpenTheMenu) {
    const std::function<void(Form&)> gesti[] = {
        [](Form& form) { ClickOn(Trova<CommandButton>(form, "Command1")); },
        [](Form& form) { ClickOn(Trova<Label>(form, "Label2", 0)); },
        [](Form& form) { ClickOn(Trova<Label>(form, "Label2", 1)); },
        [](Form& form) { Tap(form, Qt::Key_Space); },
    };
    const Disco disco;
    disco.Scrivi("_predefinito", FileUtente().Con(RigaMaiuscolo, "True"));
    for (const auto& gesto : gesti) {
        Partita partita(disco);
        ASSERT_TRUE(partita.Avvia());
        partita.Tempo.Advance(3600);
        ASSERT_EQ(partita.Aperte(), Nomi{"FormAvvio"});  // it waits for as long as it takes
        Form& avvio = partita.Finestra("FormAvvio");
        EXPECT_EQ(Trova<Label>(avvio, "Label2", 0).Caption(), "TRAMELI");
        EXPECT_EQ(Trova<CommandButton>(avvio, "Command1").Caption(), "&AVVIO");
        gesto(avvio);
        EXPECT_EQ(partita.Aperte(), Nomi{"FormMenu"});
    }
}

}  // namespace
}  // namespace trameli
