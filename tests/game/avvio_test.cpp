// The start of the game: folders, splash, second instance.
#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>

#include "game/partita.h"
#include "platform/command_button.h"
#include "platform/form.h"
#include "platform/label.h"
#include "shell/form_avvio.h"

namespace trameli {
namespace {

using Nomi = std::vector<std::string>;

const std::string LeggimiSenzaTesti = "\r\n \r\n\r\n \r\n\r\n";

TEST(PrimoAvvio, MakesFoldersAndReadmeButNoUserFile) {
    const Disco disco;
    Partita partita(disco);
    ASSERT_TRUE(partita.Avvia());
    EXPECT_EQ(disco.Tutti(),
              (Nomi{"ImpostazioniProgrammiOvalia", "ImpostazioniProgrammiOvalia/leggimi.txt",
                    "ImpostazioniProgrammiOvalia/trameli"}));
    // Three texts, with a line that holds a blank between them. There are no language files here.
    EXPECT_EQ(BytesOf(disco.Leggimi()), LeggimiSenzaTesti);
    EXPECT_EQ(partita.Aperte(), Nomi{"FormAvvio"});
}

TEST(SecondoAvvio, LeavesTheReadmeAloneUnlessAFolderIsMissing) {
    const Disco disco;
    EXPECT_TRUE(Partita(disco).Avvia());
    Write(disco.Leggimi(), "mine");
    EXPECT_TRUE(Partita(disco).Avvia());
    EXPECT_EQ(BytesOf(disco.Leggimi()), "mine");

    std::filesystem::remove(disco.Leggimi());
    EXPECT_TRUE(Partita(disco).Avvia());
    EXPECT_FALSE(std::filesystem::exists(disco.Leggimi()));

    // Either folder brings the readme back.
    Write(disco.Leggimi(), "mine");
    std::filesystem::remove(disco.Utenti());
    EXPECT_TRUE(Partita(disco).Avvia());
    EXPECT_TRUE(std::filesystem::is_directory(disco.Utenti()));
    EXPECT_EQ(BytesOf(disco.Leggimi()), LeggimiSenzaTesti);
}

TEST(AltraIstanza, IsToldInAMessageAndTouchesNothing) {
    const Disco disco;
    disco.Scrivi("_predefinito", FileUtente().Con(RigaLivello, 12));
    Write(disco.FileDi("Anna"), "damaged");
    const Nomi prima = disco.Tutti();
    const std::string file = disco.Leggi("_predefinito");

    Partita partita(disco);
    partita.Istanze.Another = true;
    EXPECT_FALSE(partita.Avvia());
    ASSERT_EQ(partita.Messaggi.Messages.size(), 1U);
    EXPECT_EQ(partita.Messaggi.Messages[0].Text, "");
    EXPECT_EQ(partita.Messaggi.Messages[0].Title, "Error");
    EXPECT_EQ(partita.Aperte(), Nomi{});
    EXPECT_EQ(partita.Gioco.Stato().Livello, Impostazioni().Livello);  // nothing was read
    EXPECT_EQ(disco.Tutti(), prima);
    EXPECT_EQ(disco.Leggi("_predefinito"), file);
}

TEST(AltraIstanza, OfAFreshMachineMakesNoFolders) {
    const Disco disco;
    Partita partita(disco);
    partita.Istanze.Another = true;
    EXPECT_FALSE(partita.Avvia());
    EXPECT_EQ(disco.Tutti(), Nomi{});
}

class SfondoAvvio : public testing::TestWithParam<PixelSize> {};

/// The colour of the band that a row of the client area lies in, by the row's middle.
int ChiaroreAtteso(int riga, int altezza) {
    return 255 - static_cast<int>((riga + 0.5) * 256 / altezza);
}

TEST_P(SfondoAvvio, RunsFromWhiteToBlueIn256Bands) {
    const Disco disco;
    Partita partita(disco, GetParam());
    ASSERT_TRUE(partita.Avvia());
    const QImage sfondo = Shot(partita.Finestra("FormAvvio"));
    // The left edge is free of controls.
    const int altezza = sfondo.height();
    EXPECT_EQ(sfondo.pixel(1, 0), qRgb(255, 255, 255));
    EXPECT_EQ(sfondo.pixel(1, altezza - 1), qRgb(0, 0, 255));
    int fasce = 1;
    int sottile = altezza;
    int grossa = 0;
    int inizio = 0;
    for (int riga = 0; riga < altezza; ++riga) {
        const QRgb qui = sfondo.pixel(1, riga);
        ASSERT_EQ(qBlue(qui), 255);
        ASSERT_EQ(qRed(qui), qGreen(qui));
        ASSERT_NEAR(qRed(qui), ChiaroreAtteso(riga, altezza), 1) << "row " << riga;
        ASSERT_EQ(sfondo.pixel(sfondo.width() - 1, riga), qui) << "row " << riga;
        if (riga > 0 && qui != sfondo.pixel(1, riga - 1)) {
            ASSERT_EQ(qRed(qui), qRed(sfondo.pixel(1, riga - 1)) - 1);
            sottile = std::min(sottile, riga - inizio);
            grossa = std::max(grossa, riga - inizio);
            inizio = riga;
            ++fasce;
        }
    }
    EXPECT_EQ(fasce, 256);
    EXPECT_LE(grossa - sottile, 1);
}

INSTANTIATE_TEST_SUITE_P(Schermi, SfondoAvvio,
                         testing::Values(PixelSize{800, 600}, PixelSize{1366, 768},
                                         PixelSize{1080, 1920}, PixelSize{1500, 256 * 4}),
                         [](const auto& voce) {
                             return std::to_string(voce.param.Width) + "x" +
                                    std::to_string(voce.param.Height);
                         });

struct Maiuscole {
    const char* Riga;
    const char* Titolo;
    const char* Bottone;
};

class ScritteAvvio : public testing::TestWithParam<Maiuscole> {};

TEST_P(ScritteAvvio, AreInCapitalsForThoseWhoWantThem) {
    const Disco disco;
    disco.Scrivi("_predefinito", FileUtente().Con(RigaMaiuscolo, GetParam().Riga));
    Partita partita(disco);
    ASSERT_TRUE(partita.Avvia());
    const Form& avvio = partita.Finestra("FormAvvio");
    EXPECT_EQ(Trova<Label>(avvio, "Label2", 0).Caption(), GetParam().Titolo);
    EXPECT_EQ(Trova<Label>(avvio, "Label2", 1).Caption(), "24/02/2008");
    EXPECT_EQ(Trova<CommandButton>(avvio, "Command1").Caption(), GetParam().Bottone);
}

INSTANTIATE_TEST_SUITE_P(Impostazioni, ScritteAvvio,
                         testing::Values(Maiuscole{"True", "TRAMELI", "&AVVIO"},
                                         Maiuscole{"False", "Trameli", "&Avvio"}),
                         [](const auto& voce) { return std::string(voce.param.Riga); });

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
        Gesto{"Enter", true, [](Form& form) { Tap(form, Qt::Key_Return); }},
        Gesto{"Mnemonic", true,
              [](Form& form) {
                  // The toolkit shows the button pressed for a moment of real time.
                  const Forms& forms = form.Forms();
                  Press(form, Qt::Key_A, Qt::AltModifier);
                  static_cast<void>(QTest::qWaitFor([&] { return forms.Find("FormMenu"); }));
                  Pump();
              }},
        Gesto{"SpaceHeldDown", false, [](Form& form) { Press(form, Qt::Key_Space); }},
        Gesto{"ReleaseAlone", false, [](Form& form) { Release(form, Qt::Key_Space); }},
        Gesto{"Picture", false, [](Form& form) { ClickOn(Trova<VisualControl>(form, "Image1")); }},
        Gesto{"Background", false,
              [](Form& form) {
                  QTest::mouseClick(WindowOf(form).windowHandle(), Qt::LeftButton, {}, {3, 3});
                  Pump();
              }},
        Gesto{"OtherKey", false, [](Form& form) { Tap(form, Qt::Key_Right); }}),
    [](const auto& voce) { return std::string(voce.param.Nome); });

TEST(Avvio, StaysUntilItIsClicked) {
    const Disco disco;
    Partita partita(disco);
    ASSERT_TRUE(partita.Avvia());
    partita.Tempo.Advance(3600);
    EXPECT_EQ(partita.Aperte(), Nomi{"FormAvvio"});
}

TEST(Avvio, ClosedByTheDesktopSavesNothing) {
    const Disco disco;
    Partita partita(disco);
    ASSERT_TRUE(partita.Avvia());
    Partita::Chiudi(partita.Finestra("FormAvvio"));
    EXPECT_TRUE(partita.Gioco.Forms().Ended());
    EXPECT_EQ(disco.Leggi("_predefinito"), "");
}

}  // namespace
}  // namespace trameli
