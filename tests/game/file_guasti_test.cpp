// User files that cannot be read or written; what goes well is seen in whole games.
#include "game/disco.h"
#include "platform/qt/local_file_system.h"
#include "shell/file_utente.h"
#include "shell/modulo_per_ini.h"

namespace trameli {
namespace {

class DiscoGuasto final : public LocalFileSystem {
public:
    using LocalFileSystem::LocalFileSystem;

    bool NonLegge = false;
    bool NonScrive = false;

    std::optional<std::string> Read(const std::string& path, std::size_t limit) const override {
        return NonLegge ? std::nullopt : LocalFileSystem::Read(path, limit);
    }
    bool Replace(const std::string& path, const std::string& bytes) override {
        return !NonScrive && LocalFileSystem::Replace(path, bytes);
    }
};

class FileGuasti : public testing::Test {
protected:
    FileGuasti() { disco_.Scrivi("Anna"); }

    void Leggi(const char* utente = "Anna") {
        stato_.FileUtente = std::string(ModuloPerIni::CartellaUtenti) + utente + ".ini";
        modulo_.LeggiUtente();
    }
    void SalvaLivello(std::int16_t livello) {
        stato_.Livello = livello;
        modulo_.ScriviUtente();
    }
    bool HaLivello(int livello) const {
        return disco_.Leggi("Anna") == FileUtente().Con(RigaLivello, livello).Bytes();
    }

    Disco disco_;
    Stato stato_;
    DiscoGuasto file_{disco_.Radice()};
    NotedDialogs messaggi_;
    Lingue lingue_{stato_, file_, messaggi_, ""};
    ModuloPerIni modulo_{stato_, file_, messaggi_, lingue_};
};

TEST_F(FileGuasti, OneThatCannotBeReadIsNotReplaced) {
    file_.NonLegge = true;
    Leggi();
    SalvaLivello(9);
    EXPECT_TRUE(HaLivello(3));
    EXPECT_EQ(messaggi_.Messages.size(), 1U);
    Leggi();
    EXPECT_EQ(stato_.Livello, 9) << "the record lives on in memory until the file can be read";
    file_.NonLegge = false;
    Leggi();
    EXPECT_EQ(stato_.Livello, 3);
    SalvaLivello(9);
    EXPECT_TRUE(HaLivello(9));
}

TEST_F(FileGuasti, OneThatCannotBeSavedIsNotReadBackUntilItIs) {
    Leggi();
    file_.NonScrive = true;
    SalvaLivello(8);
    SalvaLivello(9);
    ASSERT_EQ(messaggi_.Messages.size(), 1U) << "told once";
    EXPECT_TRUE(messaggi_.Messages[0].Text.ends_with(disco_.FileDi("Anna").string()));
    Leggi("Bruno");
    EXPECT_EQ(stato_.Livello, 3);
    Leggi("ANNA");
    EXPECT_EQ(stato_.Livello, 9);
    file_.NonScrive = false;
    modulo_.ScriviUtente();
    EXPECT_TRUE(HaLivello(9));
    disco_.Scrivi("Anna");
    Leggi();
    EXPECT_EQ(stato_.Livello, 3);
}

}  // namespace
}  // namespace trameli
