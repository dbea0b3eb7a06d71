// Where the files that come with the program are found.
#include <gtest/gtest.h>

#include "platform/qt/local_file_system.h"
#include "support/stage.h"

namespace trameli {
namespace {

namespace fs = std::filesystem;

class ProgramFolderTest : public testing::Test {
protected:
    ProgramFolderTest() {
        fs::create_directories(Program / "suoni");
        Write(Program / "suoni" / "boing.wav", "boing");
    }

    TemporaryFolder Folder;
    fs::path Program = Folder.Path() / "share" / "trameli";
    LocalFileSystem Files{Folder.Path() / "data", Program};
};

TEST_F(ProgramFolderTest, HoldsWhatCanBeReadInAnyCase) {
    EXPECT_EQ(Files.Read(std::string(ProgramFolder) + "\\suoni\\boing.wav", 100), "boing");
    EXPECT_EQ(Files.Read("p:\\SUONI\\Boing.Wav", 100), "boing");
    EXPECT_TRUE(Files.FileExists("P:\\suoni\\boing.wav"));
    EXPECT_TRUE(Files.FolderExists("P:\\suoni"));
    EXPECT_EQ(Files.List("P:\\suoni\\", ".WAV"), std::vector<std::string>{"boing.wav"});
    EXPECT_FALSE(Files.FileExists("C:\\suoni\\boing.wav"));
}

TEST_F(ProgramFolderTest, IsNeverChanged) {
    EXPECT_FALSE(Files.Replace("P:\\suoni\\boing.wav", "altro"));
    EXPECT_FALSE(Files.Replace("P:\\nuovo.wav", "altro"));
    EXPECT_FALSE(Files.CreateFolder("P:\\nuova"));
    EXPECT_EQ(BytesOf(Program / "suoni" / "boing.wav"), "boing");
    EXPECT_FALSE(fs::exists(Program / "nuovo.wav"));
    EXPECT_FALSE(fs::exists(Program / "nuova"));
}

TEST_F(ProgramFolderTest, CannotBeLeft) {
    Write(Folder.Path() / "share" / "segreto.wav", "segreto");
    for (const char* path : {"P:\\..\\segreto.wav", "P:\\suoni\\..\\..\\segreto.wav",
                             "P:\\../segreto.wav", "P:..\\segreto.wav"}) {
        EXPECT_EQ(Files.Read(path, 100), std::nullopt) << path;
    }
}

TEST_F(ProgramFolderTest, NamesNothingIfThereIsNone) {
    const fs::path before = fs::current_path();
    fs::current_path(Folder.Path());  // where a path without a beginning would lead
    const LocalFileSystem files(Folder.Path() / "data");
    EXPECT_FALSE(files.FolderExists("P:\\"));
    EXPECT_EQ(files.Read("P:\\share\\trameli\\suoni\\boing.wav", 100), std::nullopt);
    fs::current_path(before);
}

TEST_F(ProgramFolderTest, LiesBesideAnInstalledProgram) {
    EXPECT_EQ(FindProgramFolder(Folder.Path() / "bin" / "trameli"), Program);
}

TEST_F(ProgramFolderTest, IsThatOfTheSourcesIfNothingIsInstalled) {
    for (const fs::path& executable : {ThisExecutable(), fs::path("/trameli"), fs::path()}) {
        const fs::path found = FindProgramFolder(executable);
        EXPECT_TRUE(fs::exists(found / "suoni" / "boing.wav")) << executable;
    }
}

}  // namespace
}  // namespace trameli
