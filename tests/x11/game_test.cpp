// A game on a real display: by keys from the splash into a maze, and out at the exit.
#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

#include "game/partita.h"
#include "platform/option_button.h"

namespace trameli {
namespace {

void Type(const QStringList& keys) {
    ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"), QStringList("key") + keys), 0);
}

bool Until(const std::function<bool()>& condition) {
    constexpr int hopeless = 20000;  // milliseconds
    return QTest::qWaitFor(condition, hopeless);
}

TEST(AGame, GoesByKeysFromTheSplashIntoAMazeAndOutAtTheExit) {
    constexpr int livello = 3;
    const Disco disco;
    Partita partita(disco);
    const auto davanti = [&](const std::string& nome) {
        return Until([&] {
            return partita.Aperta(nome) && WindowOf(partita.Finestra(nome)).isActiveWindow();
        });
    };
    // Its set-up puts the keyboard on the level.
    const auto menuPronto = [&] {
        return davanti("FormMenu") && Until([&] {
                   partita.Tempo.Advance(0.3);
                   const Form& menu = partita.Finestra("FormMenu");
                   return WidgetOf(Trova<OptionButton>(menu, "Option1", livello)).hasFocus();
               });
    };
    partita.Avvia();
    ASSERT_TRUE(davanti("FormAvvio"));
    Type({"space"});
    ASSERT_TRUE(menuPronto());
    Type({"Tab", "space"});
    ASSERT_TRUE(davanti("frmTrm0"));
    ASSERT_TRUE(Until([&] { return partita.Gioco.Stato().TrameloDisegnato; }));
    Form& gioco = partita.Finestra("frmTrm0");
    const Tavolo tavolo(gioco, livello);
    constexpr std::array tasti{"Up", "Right", "Down", "Left"};
    Type({tasti.at(static_cast<std::size_t>(tavolo.Soluzione().front()))});
    EXPECT_TRUE(Until([&] { return tavolo.Passi() == 1; }));
    Partita::Scegli(gioco, "mnuEsci");
    ASSERT_TRUE(menuPronto());
    Type({"Tab", "Tab", "space"});
    EXPECT_TRUE(Until([&] { return partita.Gioco.Forms().Ended(); }));
}

}  // namespace
}  // namespace trameli
