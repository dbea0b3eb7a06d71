// The start of the game: folders, splash, second instance.
#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>
#include <map>

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

TEST(AltraIstanza, IsToldInAMessageAndTouchesNothing) {
    const Disco disco;
    Partita partita(disco);
    partita.Istanze.Another = true;
    EXPECT_FALSE(partita.Avvia());
    ASSERT_EQ(partita.Messaggi.Messages.size(), 1U);
    EXPECT_EQ(partita.Messaggi.Messages[0].Text, "Trameli è già aperto.");
    EXPECT_EQ(partita.Messaggi.Messages[0].Title, "Error");
    EXPECT_EQ(partita.Aperte(), Nomi{});
    EXPECT_EQ(disco.Tutti(), Nomi{});

    disco.Scrivi("_predefinito", FileUtente().Con(RigaLivello, 12));
    EXPECT_FALSE(partita.Avvia());
    EXPECT_EQ(partita.Gioco.Stato().Livello, Impostazioni().Livello);  // nothing was read
}

class SfondoAvvio : public testing::TestWithParam<PixelSize> {};

TEST_P(SfondoAvvio, RunsFromWhiteToBlueIn256Bands) {
    const Disco disco;
    Partita partita(disco, GetParam());
    ASSERT_TRUE(partita.Avvia());
    const QImage sfondo = Shot(partita.Finestra("FormAvvio"));
    std::map<QRgb, int> righe;
    for (int riga = 0; riga < sfondo.height(); ++riga) {
        const QRgb qui = sfondo.pixel(1, riga);  // the left edge is free of controls
        ASSERT_EQ(sfondo.pixel(sfondo.width() - 1, riga), qui) << "row " << riga;
        ASSERT_TRUE(riga == 0 || qui <= sfondo.pixel(1, riga - 1)) << "row " << riga;
        ++righe[qui];
    }
    // From the bottom up.
    ASSERT_EQ(righe.size(), 256U);
    int chiarore = 0;
    for (const auto& [colore, quante] : righe) {
        EXPECT_EQ(colore, qRgb(chiarore, chiarore, 255));
        EXPECT_NEAR(quante, sfondo.height() / 256.0, 1) << "band " << chiarore;
        ++chiarore;
    }
}

INSTANTIATE_TEST_SUITE_P(Schermi, SfondoAvvio,
                         testing::Values(PixelSize{800, 600}, PixelSize{1080, 1920}),
                         [](const auto& voce) {
                             return std::to_string(voce.param.Width) + "x" +
                                    std::to_string(voce.param.Height);
                         });

TEST(ScritteAvvio, AreInCapitalsForThoseWhoWantThem) {
    for (const bool maiuscole : {false, true}) {
        const Disco disco;
        disco.Scrivi("_predefinito", FileUtente().Con(RigaMaiuscolo, maiuscole ? "True" : "False"));
        Partita partita(disco);
        ASSERT_TRUE(partita.Avvia());
        const Form& avvio = partita.Finestra("FormAvvio");
        EXPECT_EQ(Trova<Label>(avvio, "Label2", 0).Caption(), maiuscole ? "TRAMELI" : "Trameli");
        EXPECT_EQ(Trova<Label>(avvio, "Label2", 1).Caption(), "24/02/2008");
        EXPECT_EQ(Trova<CommandButton>(avvio, "Command1").Caption(),
                  maiuscole ? "&AVVIO" : "&Avvio");
    }
}

/// Something a player does to the splash.
struct Gesto {
    const char* Nome;
    bool ApreIlMenu;
    void (*Azione)(Form&);
};

class GestiAvvio : public testing::TestWithParam<Gesto> {};

TEST_P(GestiAvvio, OnlyButtonAndLabelsOpenTheMenu) {
    const Disco disco;
    Partita partita(disco);
    ASSERT_TRUE(partita.Avvia());
    partita.Tempo.Advance(3600);
    ASSERT_EQ(partita.Aperte(), Nomi{"FormAvvio"});  // it waits for as long as it takes
    GetParam().Azione(partita.Finestra("FormAvvio"));
    EXPECT_EQ(partita.Aperte(), Nomi{GetParam().ApreIlMenu ? "FormMenu" : "FormAvvio"});
    EXPECT_EQ(disco.Leggi("_predefinito"), "");  // this change of window saves nothing
}

INSTANTIATE_TEST_SUITE_P(
    Gesti, GestiAvvio,
    testing::Values(
        Gesto{"Button", true, [](Form& form) { ClickOn(Trova<CommandButton>(form, "Command1")); }},
        Gesto{"Title", true, [](Form& form) { ClickOn(Trova<Label>(form, "Label2", 0)); }},
        Gesto{"Date", true, [](Form& form) { ClickOn(Trova<Label>(form, "Label2", 1)); }},
        Gesto{"Space", true, [](Form& form) { Tap(form, Qt::Key_Space); }},
        Gesto{"Picture", false, [](Form& form) { ClickOn(Trova<VisualControl>(form, "Image1")); }},
        Gesto{"Background", false,
              [](Form& form) {
                  QTest::mouseClick(WindowOf(form).windowHandle(), Qt::LeftButton, {}, {3, 3});
                  Pump();
              }},
        Gesto{"OtherKey", false, [](Form& form) { Tap(form, Qt::Key_Right); }}),
    [](const auto& voce) { return std::string(voce.param.Nome); });

}  // namespace
}  // namespace trameli
