// Reading and listing files under the program's own names.
#include "platform/file_system.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/qt/environment.h"
#include "platform/qt/local_file_system.h"
#include "support/stage.h"

namespace fs = std::filesystem;

namespace trameli {
namespace {

class FileSystemTest : public testing::Test {
protected:
    FileSystemTest() {
        fs::create_directory(Root);
        fs::create_directory(Program);
    }

    TemporaryFolder Folder;
    fs::path Root = Folder.Path() / "root";
    fs::path Program = Folder.Path() / "program";
    LocalFileSystem Files{Root, Program};
};

TEST_F(FileSystemTest, TellsFilesFromFolders) {
    fs::create_directories(Root / "Folder" / "Inner");
    Write(Root / "Folder" / "file.ini", "text");
    fs::create_symlink("file.ini", Root / "Folder" / "link.ini");
    fs::create_symlink("loop.ini", Root / "Folder" / "loop.ini");
    mkfifo((Root / "Folder" / "pipe.ini").c_str(), 0600);
    struct Row {
        const char* Path;
        bool IsFile;
        bool IsFolder;
    };
    const Row rows[] = {
        {"C:\\", false, true},
        {"C:\\Folder\\Inner\\", false, true},
        {"C:\\Folder\\file.ini", true, false},
        {"C:\\Folder\\link.ini", true, false},
        {"C:\\Folder\\loop.ini", false, false},
        {"C:\\Folder\\pipe.ini", false, false},
        {"C:\\Folder\\file.ini\\x", false, false},
        {"P:\\Folder", false, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Files.FileExists(row.Path), row.IsFile) << row.Path;
        EXPECT_EQ(Files.FolderExists(row.Path), row.IsFolder) << row.Path;
        // Without a writer at its other end, waiting for the pipe would never end.
        EXPECT_EQ(Files.Read(row.Path, 10).has_value(), row.IsFile) << row.Path;
    }
    EXPECT_EQ(Files.Read("C:\\Folder\\file.ini", 3), "tex") << "no more than it is allowed to";
}

TEST_F(FileSystemTest, NeverLeavesItsFolder) {
    using namespace std::string_literals;
    Write(Folder.Path() / "outside.ini", "secret");
    fs::create_directory(Root / "In");
    Write(Root / "In" / "in.ini", "text");
    const std::string paths[] = {
        "C:\\..\\outside.ini"s,
        "C:\\../outside.ini"s,
        "C:\\In/in.ini"s,
        "C:\\In\\in.ini\0.txt"s,
        "C:\\\\In\\in.ini"s,
        "D:\\In\\in.ini"s,
        "/etc/passwd"s,
        "P:\\..\\outside.ini"s,
        "C:\\In\\\xFFin.ini"s,
        ""s,
        "C:\\" + std::string(300, 'x'),
    };
    for (const std::string& path : paths) {
        EXPECT_FALSE(Files.FileExists(path)) << path;
        EXPECT_FALSE(Files.Replace(path, "changed")) << path;
        EXPECT_TRUE(Files.List(path, "").empty()) << path;
        EXPECT_FALSE(Files.CreateFolder(path)) << path;
    }
    EXPECT_EQ(BytesOf(Folder.Path() / "outside.ini"), "secret");
    EXPECT_EQ(std::distance(fs::recursive_directory_iterator(Folder.Path()), {}), 5);
}

TEST_F(FileSystemTest, TheUsersOwnProgramFolderCountsBeforeTheInstalledOne) {
    fs::create_directory(Program / "texts");
    Write(Program / "texts" / "A.lng", "shipped");
    Write(Program / "texts" / "b.lng", "shipped");
    EXPECT_TRUE(Files.Replace("p:\\texts\\B.lng", "mine"));
    EXPECT_TRUE(Files.CreateFolder("P:\\new"));
    EXPECT_TRUE(Files.FolderExists("P:\\new"));
    // As on a machine where programs are installed for all: nothing comes into that folder.
    EXPECT_EQ(std::distance(fs::recursive_directory_iterator(Program), {}), 3);
    EXPECT_EQ(BytesOf(Root / "programma" / "texts" / "B.lng"), "mine");

    EXPECT_EQ(Files.Read("P:\\texts\\b.lng", 10), "mine");
    EXPECT_EQ(Files.List("P:\\texts", ".lng"), (std::vector<std::string>{"A.lng", "B.lng"}));
    fs::create_directory(Root / "programma" / "texts" / "a.lng");
    EXPECT_EQ(Files.Read("P:\\texts\\a.lng", 10), "shipped") << "a folder is no file";
}

TEST_F(FileSystemTest, ProgramFolderLiesBesideAnInstalledProgramOrInTheSources) {
    fs::create_directories(Root / "share" / "trameli");
    EXPECT_EQ(FindProgramFolder(Root / "bin" / "trameli"), Root / "share" / "trameli");
    for (const fs::path& executable : {ThisExecutable(), fs::path("/trameli"), fs::path()}) {
        const fs::path found = FindProgramFolder(executable);
        EXPECT_TRUE(fs::exists(found / "suoni" / "boing.wav")) << executable;
    }
}

TEST_F(FileSystemTest, DisregardsCase) {
    for (const char* name : {"b.ini", "A.ini", "C.INI", "à.ini", ".ini", "B.ini", "x.inii",
                             ".a.ini.new", "日本.ini"}) {
        Write(Root / name, name);
    }
    Write(Root / "\xFF\xFE.ini", "not text");
    Write(Root / "back\\slash.ini", "not to be named");
    EXPECT_EQ(Files.List("c:\\", ".INI"),
              (std::vector<std::string>{".ini", "A.ini", "B.ini", "C.INI", "à.ini", "日本.ini"}));
    // Of several the one that the path spells, apart from the extension, else the first.
    for (const auto& [path, name] : {std::pair{"C:\\b.ini", "b.ini"},
                                     {"C:\\B.INI", "B.ini"},
                                     {"C:\\C.ini", "C.INI"},
                                     {"C:\\À.ini", "à.ini"}}) {
        EXPECT_EQ(Files.Read(path, 20), name) << path;
    }
}

TEST(UserDataFolderTest, FollowsTheEnvironmentIfThatIsAbsolute) {
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    setenv("HOME", "/home/x", 1);
    for (const auto& [data, folder] : {std::pair{"/data", "/data/trameli"},
                                       {"data", "/home/x/.local/share/trameli"},
                                       {"", "/home/x/.local/share/trameli"}}) {
        setenv("XDG_DATA_HOME", data, 1);
        EXPECT_EQ(UserDataFolder(), folder);
    }
    unsetenv("HOME");
    EXPECT_TRUE(UserDataFolder().is_absolute()) << "the system's own list knows the home folder";
    setenv("HOME", home.c_str(), 1);
}

TEST(LocaleOfMessagesTest, IsTheFirstVariableThatSaysSomething) {
    for (const char* name : {"LANG", "LC_MESSAGES", "LC_ALL"}) {
        setenv(name, name, 1);
        EXPECT_EQ(LocaleOfMessages(), name);
    }
    setenv("LC_ALL", "", 1);
    EXPECT_EQ(LocaleOfMessages(), "LC_MESSAGES");
    for (const char* name : {"LANG", "LC_MESSAGES", "LC_ALL"}) {
        unsetenv(name);
    }
    EXPECT_EQ(LocaleOfMessages(), "");
}

}  // namespace
}  // namespace trameli
