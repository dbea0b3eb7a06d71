// Reading and listing files under the program's own names.
#include "platform/file_system.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <limits>

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
    fs::create_symlink("nowhere", Root / "Folder" / "dangling.ini");
    mkfifo((Root / "Folder" / "pipe.ini").c_str(), 0600);
    struct Row {
        const char* Path;
        bool IsFile;
        bool IsFolder;
    };
    const Row rows[] = {
        {"C:\\", false, true},
        {"C:\\Folder", false, true},
        {"C:\\Folder\\", false, true},
        {"C:\\Folder\\Inner", false, true},
        {"C:\\Folder\\file.ini", true, false},
        {"C:\\Folder\\link.ini", true, false},
        {"C:\\Folder\\dangling.ini", false, false},
        {"C:\\Folder\\pipe.ini", false, false},
        {"C:\\Folder\\file.ini\\x", false, false},
        {"C:\\nothing", false, false},
        {"P:\\", false, true},
        {"P:\\Folder", false, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Files.FileExists(row.Path), row.IsFile) << row.Path;
        EXPECT_EQ(Files.FolderExists(row.Path), row.IsFolder) << row.Path;
        // Without a writer at its other end, waiting for the pipe would never end.
        EXPECT_EQ(Files.Read(row.Path, 10).has_value(), row.IsFile) << row.Path;
    }
    EXPECT_FALSE(Files.Replace("C:\\Folder\\pipe.ini", "text"));
    EXPECT_TRUE(fs::is_fifo(Root / "Folder" / "pipe.ini"));
}

TEST_F(FileSystemTest, TakesNamesInAnyCase) {
    fs::create_directory(Root / "ImPoStazioni");
    Write(Root / "ImPoStazioni" / "Però_Ünal.INI", "text");
    for (const char* path : {"C:\\ImPoStazioni\\Però_Ünal.INI", "c:\\impostazioni\\però_ünal.ini",
                             "C:\\IMPOSTAZIONI\\PERÒ_ÜNAL.ini"}) {
        EXPECT_EQ(Files.Read(path, 100), "text") << path;
        EXPECT_EQ(Files.OnThisMachine(path), (Root / "ImPoStazioni" / "Però_Ünal.INI").string());
    }
    EXPECT_EQ(Files.List("c:\\impoSTAZIONI", ".ini"), std::vector<std::string>{"Però_Ünal.INI"});
    EXPECT_TRUE(Files.CreateFolder("C:\\impostazioni\\Neu"));
    EXPECT_TRUE(fs::is_directory(Root / "ImPoStazioni" / "Neu"));
    EXPECT_FALSE(fs::exists(Root / "impostazioni"));
}

TEST_F(FileSystemTest, NeverLeavesItsFolder) {
    using namespace std::string_literals;
    Write(Folder.Path() / "outside.ini", "secret");
    fs::create_directory(Root / "In");
    Write(Root / "In" / "in.ini", "text");
    const std::string paths[] = {
        "C:\\..\\outside.ini"s,
        "C:\\In\\..\\..\\outside.ini"s,
        "C:\\In\\..\\In\\in.ini"s,
        "C:\\.\\In\\in.ini"s,
        "C:\\../outside.ini"s,
        "C:\\In/in.ini"s,
        "C:\\/etc/passwd"s,
        "C:/In/in.ini"s,
        "C:\\In\\in.ini\0.txt"s,
        "C:\\\\In\\in.ini"s,
        "C:\\In\\\\in.ini"s,
        "D:\\In\\in.ini"s,
        "C:In\\in.ini"s,
        "In\\in.ini"s,
        "\\In\\in.ini"s,
        "/etc/passwd"s,
        "P:\\..\\outside.ini"s,
        "C:"s,
        ""s,
        "C:\\In\\\xFFin.ini"s,
        "C:\\" + std::string(100000, 'x'),
        "C:\\In\\" + std::string(300, 'x') + ".ini",
    };
    for (const std::string& path : paths) {
        EXPECT_FALSE(Files.FileExists(path)) << path;
        EXPECT_FALSE(Files.Read(path, 10)) << path;
        EXPECT_FALSE(Files.Replace(path, "changed")) << path;
        EXPECT_TRUE(Files.List(path, "").empty()) << path;
        EXPECT_FALSE(Files.CreateFolder(path)) << path;
    }
    EXPECT_EQ(BytesOf(Folder.Path() / "outside.ini"), "secret");
    EXPECT_EQ(std::distance(fs::recursive_directory_iterator(Folder.Path()), {}), 5);
}

TEST_F(FileSystemTest, ChangesNothingInTheProgramFolder) {
    Write(Program / "Boing.wav", "sound");
    EXPECT_EQ(Files.Read("P:\\boing.WAV", 10), "sound");
    EXPECT_FALSE(Files.Replace("P:\\boing.wav", "other"));
    EXPECT_FALSE(Files.Replace("p:\\new.wav", "other"));
    EXPECT_FALSE(Files.CreateFolder("P:\\new"));
    EXPECT_EQ(std::distance(fs::directory_iterator(Program), {}), 1);
    EXPECT_EQ(BytesOf(Program / "Boing.wav"), "sound");
    EXPECT_EQ(Files.List("P:\\", ".WAV"), std::vector<std::string>{"Boing.wav"});
    EXPECT_FALSE(Files.FileExists("C:\\boing.wav"));
}

TEST_F(FileSystemTest, NamesNothingInAProgramFolderThatThereIsNot) {
    const fs::path before = fs::current_path();
    fs::current_path(Program);  // where a path without a beginning would lead
    Write(Program / "boing.wav", "sound");
    const LocalFileSystem files(Root);
    EXPECT_FALSE(files.FolderExists("P:\\"));
    EXPECT_EQ(files.Read("P:\\boing.wav", 10), std::nullopt);
    fs::current_path(before);
}

TEST_F(FileSystemTest, ProgramFolderLiesBesideAnInstalledProgramOrInTheSources) {
    fs::create_directories(Root / "share" / "trameli");
    EXPECT_EQ(FindProgramFolder(Root / "bin" / "trameli"), Root / "share" / "trameli");
    for (const fs::path& executable : {ThisExecutable(), fs::path("/trameli"), fs::path()}) {
        const fs::path found = FindProgramFolder(executable);
        EXPECT_TRUE(fs::exists(found / "suoni" / "boing.wav")) << executable;
    }
}

TEST_F(FileSystemTest, ReadsNoMoreThanItIsAllowedTo) {
    Write(Root / "short.ini", "0123456789");
    EXPECT_EQ(Files.Read("C:\\short.ini", 4), "0123");
    EXPECT_EQ(Files.Read("C:\\short.ini", 10), "0123456789");
    EXPECT_EQ(Files.Read("C:\\short.ini", 0), "");
    EXPECT_EQ(Files.Read("C:\\short.ini", std::numeric_limits<std::size_t>::max()), "0123456789");

    constexpr std::uintmax_t gibibyte = 1 << 30;
    Write(Root / "large.ini", "begin");
    fs::resize_file(Root / "large.ini", gibibyte);
    const auto bytes = Files.Read("C:\\large.ini", 1000);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, "begin" + std::string(995, '\0'));
    EXPECT_LT(bytes->capacity(), 100000U);
}

TEST_F(FileSystemTest, ReadsNothingThatIsNoFileOrMayNotBeRead) {
    fs::create_directory(Root / "folder.ini");
    fs::create_symlink("loop.ini", Root / "loop.ini");
    EXPECT_EQ(Files.Read("C:\\folder.ini", 10), std::nullopt);
    EXPECT_EQ(Files.Read("C:\\loop.ini", 10), std::nullopt);
    EXPECT_EQ(Files.Read("C:\\none.ini", 10), std::nullopt);
    EXPECT_FALSE(Files.Replace("C:\\loop.ini", "text"));
}

TEST_F(FileSystemTest, ListsInAlphabeticalOrderWithoutRegardToCase) {
    for (const char* name : {"b.ini", "A.ini", "C.INI", "_first.ini", "a.txt", "ini", "à.ini",
                             ".ini", "B.ini", "x.inii", ".a.ini.new"}) {
        Write(Root / name, "");
    }
    EXPECT_EQ(Files.List("C:\\", ".ini"),
              (std::vector<std::string>{".ini", "_first.ini", "A.ini", "B.ini", "C.INI", "à.ini"}));
    EXPECT_EQ(Files.List("C:\\", ".INI"), Files.List("C:\\", ".ini"));
    EXPECT_EQ(Files.List("C:\\", ".txt"), std::vector<std::string>{"a.txt"});
    EXPECT_EQ(Files.List("C:\\", "").size(), 10U);
    EXPECT_TRUE(Files.List("C:\\none", ".ini").empty());
    EXPECT_TRUE(Files.List("C:\\a.ini", ".ini").empty());
}

TEST_F(FileSystemTest, TakesTheFirstOfNamesThatDifferOnlyInCase) {
    // Made in both orders, since a folder lists them in an order of its own.
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        std::string names[] = {std::string("X") + letter + ".ini",
                               std::string("x") + letter + ".ini"};
        if (letter % 2 == 0) {
            std::swap(names[0], names[1]);
        }
        for (const std::string& name : names) {
            Write(Root / name, name);
        }
    }
    const auto names = Files.List("C:\\", ".ini");
    ASSERT_EQ(names.size(), 26U);
    for (const std::string& name : names) {
        EXPECT_EQ(name.front(), 'X');
        EXPECT_EQ(Files.Read("C:\\x" + name.substr(1), 10), name);
    }
}

TEST_F(FileSystemTest, ListsOddNamesThatItCanName) {
    const std::string longest = std::string(251, 'l') + ".ini";
    const std::string odd[] = {"new\nline.ini", " .ini",     "..ini", "-rf.ini",
                               "*?\".ini",      "tab\t.ini", longest, "日本.ini"};
    for (const std::string& name : odd) {
        Write(Root / name, name);
    }
    Write(Root / "\xFF\xFE.ini", "not text");
    Write(Root / "back\\slash.ini", "not to be named");
    fs::create_directory(Root / "folder.ini");
    fs::create_symlink("nowhere", Root / "dangling.ini");
    mkfifo((Root / "pipe.ini").c_str(), 0600);

    const auto names = Files.List("C:\\", ".ini");
    EXPECT_EQ(names.size(), std::size(odd) + 3);
    for (const std::string& name : odd) {
        EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
        EXPECT_EQ(Files.Read("C:\\" + name, 1000), name);
        EXPECT_TRUE(Files.Replace("C:\\" + name, "new")) << name;
        EXPECT_EQ(BytesOf(Root / name), "new");
    }
}

TEST_F(FileSystemTest, MakesFoldersWithThoseAboveThem) {
    const LocalFileSystem lazy(Root / "not" / "there");
    EXPECT_FALSE(fs::exists(Root / "not")) << "made only when something is put into it";
    LocalFileSystem files(Root / "not" / "there");
    EXPECT_TRUE(files.CreateFolder("C:\\one\\two"));
    EXPECT_TRUE(files.CreateFolder("C:\\one\\two")) << "it is there already";
    EXPECT_TRUE(fs::is_directory(Root / "not" / "there" / "one" / "two"));
    Write(Root / "file", "");
    EXPECT_FALSE(Files.CreateFolder("C:\\file"));
    EXPECT_FALSE(Files.CreateFolder("C:\\file\\below"));
    fs::create_symlink(Root / "not", Root / "link");
    EXPECT_TRUE(Files.CreateFolder("C:\\link"));
}

TEST(UserDataFolderTest, FollowsTheEnvironmentIfThatIsAbsolute) {
    struct Row {
        const char* Data;
        const char* Home;
        const char* Folder;
    };
    const Row rows[] = {
        {"/data", "/home/x", "/data/trameli"},
        {"data", "/home/x", "/home/x/.local/share/trameli"},
        {"", "/home/x", "/home/x/.local/share/trameli"},
        {nullptr, "/home/x", "/home/x/.local/share/trameli"},
    };
    const auto set = [](const char* name, const char* value) {
        value ? setenv(name, value, 1) : unsetenv(name);
    };
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    for (const Row& row : rows) {
        set("XDG_DATA_HOME", row.Data);
        set("HOME", row.Home);
        EXPECT_EQ(UserDataFolder(), row.Folder);
    }
    unsetenv("HOME");
    EXPECT_TRUE(UserDataFolder().is_absolute()) << "the system's own list knows the home folder";
    set("HOME", home.c_str());
}

}  // namespace
}  // namespace trameli
