// The start of the game: folders, splash, second instance.
#include <gtest/gtest.h>

#include <QTest>
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

TEST(SfondoAvvio, RunsFromWhiteToBlueIn256Bands) {
    for (const PixelSize schermo : {PixelSize{800, 600}, PixelSize{1080, 1920}}) {
        const Disco disco;
        Partita partita(disco, schermo);
        ASSERT_TRUE(partita.Avvia());
        const QImage sfondo = Shot(partita.Finestra("FormAvvio"));
        for (int riga = 0; riga < sfondo.height(); ++riga) {
            const int chiarore = 255 - (2 * riga + 1) * 256 / (2 * sfondo.height());
            const QRgb qui = sfondo.pixel(1, riga);  // the edges are free of controls
            ASSERT_NEAR(qRed(qui), chiarore, 1) << "row " << riga;
            ASSERT_EQ(qui, qRgb(qRed(qui), qRed(qui), 255));
            ASSERT_EQ(sfondo.pixel(sfondo.width() - 1, riga), qui) << "row " << riga;
        }
        EXPECT_EQ(sfondo.pixel(1, 0), qRgb(255, 255, 255));
        EXPECT_EQ(sfondo.pixel(1, sfondo.height() - 1), qRgb(0, 0, 255));
    }
}

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

TEST(GestiAvvio, OnlyButtonAndLabelsOpenTheMenu) {
    struct {
        bool ApreIlMenu;
        std::function<void(Form&)> Gesto;
    } const casi[] = {
        {true, [](Form& form) { ClickOn(Trova<CommandButton>(form, "Command1")); }},
        {true, [](Form& form) { ClickOn(Trova<Label>(form, "Label2", 0)); }},
        {true, [](Form& form) { ClickOn(Trova<Label>(form, "Label2", 1)); }},
        {true, [](Form& form) { Tap(form, Qt::Key_Space); }},
        {false, [](Form& form) { ClickOn(Trova<VisualControl>(form, "Image1")); }},
        {false,
         [](Form& form) {
             QTest::mouseClick(&WindowOf(form), Qt::LeftButton, {}, {3, 3});
         }},
        {false, [](Form& form) { Tap(form, Qt::Key_Right); }},
    };
    const Disco disco;
    for (const auto& [apre, gesto] : casi) {
        Partita partita(disco);
        ASSERT_TRUE(partita.Avvia());
        partita.Tempo.Advance(3600);
        ASSERT_EQ(partita.Aperte(), Nomi{"FormAvvio"});  // it waits for as long as it takes
        gesto(partita.Finestra("FormAvvio"));
        Pump();
        EXPECT_EQ(partita.Aperte(), Nomi{apre ? "FormMenu" : "FormAvvio"});
    }
    EXPECT_EQ(disco.Leggi("_predefinito"), "");  // this change of window saves nothing
}

}  // namespace
}  // namespace trameli
