// Replacing a file: whole or not at all, whatever happens in between.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <random>

#include "platform/in_child.h"
#include "platform/qt/environment.h"
#include "platform/qt/local_file_system.h"
#include "support/amount.h"
#include "support/stage.h"

namespace fs = std::filesystem;

namespace trameli {
namespace {

class ReplaceTest : public testing::Test {
protected:
    long EntriesLeft() const { return std::distance(fs::directory_iterator(Root), {}); }
    /// Replaces a file without the rights of root; 1 if that went well, 0 if not. In either case
    /// its place on the disk can be told.
    int ReplaceAsNobody(const std::string& path) {
        return RunInChild([&] {
            return !BecomeNobody() || !Files.OnThisMachine(path).starts_with(Root.string()) ? 2
                   : Files.Replace(path, "new")                                             ? 1
                                                                                            : 0;
        });
    }

    TemporaryFolder Folder;
    fs::path Root = Folder.Path();
    LocalFileSystem Files{Root};
};

TEST_F(ReplaceTest, WritesTheBytesAsTheyAre) {
    for (const std::string& bytes : {std::string("a\r\nb\n\0c\xFF", 8), std::string()}) {
        EXPECT_TRUE(Files.Replace("C:\\file.ini", bytes));
        EXPECT_EQ(BytesOf(Root / "file.ini"), bytes);
        EXPECT_EQ(EntriesLeft(), 1);
    }
}

TEST_F(ReplaceTest, KeepsModeOwnerAndGroup) {
    const std::string file = Root / "file.ini";
    Write(file, "old");
    constexpr uid_t other = 65534;
    for (const mode_t mode : {0600U, 0666U, 0750U}) {
        const bool given = chown(file.c_str(), other, other) == 0;  // by root alone
        chmod(file.c_str(), mode);
        ASSERT_TRUE(Files.Replace("C:\\file.ini", "new"));
        struct stat state {};
        stat(file.c_str(), &state);
        EXPECT_EQ(state.st_mode & ~S_IFMT, mode);
        EXPECT_EQ(state.st_uid, given ? other : geteuid());
        EXPECT_EQ(state.st_gid, given ? other : getegid());
    }
}

TEST_F(ReplaceTest, RefusesWhatIsNoFile) {
    fs::create_directory(Root / "folder.ini");
    mkfifo((Root / "pipe.ini").c_str(), 0600);
    fs::create_symlink("loop.ini", Root / "loop.ini");
    for (const char* path :
         {"C:\\folder.ini", "C:\\pipe.ini", "C:\\loop.ini", "C:\\none\\file.ini", "C:\\"}) {
        EXPECT_FALSE(Files.Replace(path, "new")) << path;
    }
    EXPECT_TRUE(fs::is_fifo(Root / "pipe.ini"));
    EXPECT_EQ(EntriesLeft(), 3);
}

TEST_F(ReplaceTest, WritesOverWhatACrashLeft) {
    const std::pair<const char*, void (*)(const fs::path&)> leftovers[] = {
        {"read-only",
         [](const fs::path& path) {
             Write(path, "half");
             fs::permissions(path, fs::perms::owner_read);
         }},
        {"link", [](const fs::path& path) { fs::create_symlink("victim", path); }},
        {"pipe", [](const fs::path& path) { mkfifo(path.c_str(), 0600); }},
    };
    Write(Root / "victim", "precious");
    fs::permissions(Root, fs::perms::all);
    for (const auto& [what, leave] : leftovers) {
        SCOPED_TRACE(what);
        Write(Root / "file.ini", "old");
        fs::permissions(Root / "file.ini", fs::perms::all);
        leave(Root / ".file.ini.new");
        EXPECT_EQ(ReplaceAsNobody("C:\\file.ini"), 1);
        EXPECT_EQ(BytesOf(Root / "file.ini"), "new");
        EXPECT_EQ(BytesOf(Root / "victim"), "precious");
        EXPECT_EQ(EntriesLeft(), 2);
    }
}

TEST_F(ReplaceTest, LosesNothingAndLeavesNothingWhenKilled) {
    constexpr std::size_t length = 400;
    const int kills = Amount("TRAMELI_KILLS", 50);
    std::minstd_rand chance;
    long left = 0;
    Files.Replace("C:\\file.ini", std::string(length, 'a'));
    for (int i = 0; i < kills; ++i) {
        const pid_t child = StartChild([&] {
            for (char letter = 'a';; letter ^= 1) {
                Files.Replace("C:\\file.ini", std::string(length, letter));
            }
            return 0;
        });
        usleep(static_cast<useconds_t>(chance() % 4000));
        kill(child, SIGKILL);
        ExitOf(child);
        const std::string bytes = BytesOf(Root / "file.ini");
        ASSERT_EQ(bytes.size(), length);
        EXPECT_EQ(bytes, std::string(length, bytes[0]));
        left += EntriesLeft() - 1;
        Files.Tidy("C:\\");  // the next start
        EXPECT_EQ(EntriesLeft(), 1);
    }
    EXPECT_LE(left, kills / 10) << "between two calls of the system at most";
    Tell(kills, " kills while saving, none lost, ", left, " left over until the next start");
}

TEST_F(ReplaceTest, KeepsTheOldFileWhereNothingMayBeWritten) {
    const struct {
        const char* What;
        const char* Path;
        fs::perms OfFolder;
        fs::perms OfFile;
    } cases[] = {
        {"read-only folder", "C:\\file.ini", fs::perms(0555), fs::perms::all},
        {"read-only file", "C:\\file.ini", fs::perms::all, fs::perms(0444)},
        // The file must not be taken for a missing one.
        {"folder that cannot be looked through", "C:\\FILE.INI", fs::perms(0333), fs::perms::all},
    };
    Write(Root / "file.ini", "old");
    for (const auto& one : cases) {
        SCOPED_TRACE(one.What);
        fs::permissions(Root / "file.ini", one.OfFile);
        fs::permissions(Root, one.OfFolder);
        EXPECT_EQ(ReplaceAsNobody(one.Path), 0);
        fs::permissions(Root, fs::perms::all);
        EXPECT_EQ(BytesOf(Root / "file.ini"), "old");
        EXPECT_EQ(EntriesLeft(), 1);
    }
}

TEST_F(ReplaceTest, KeepsTheOldFileWhenTheDiskIsFull) {
    Write(Root / "file.ini", "old");
    EXPECT_EQ(RunInChild([&] {
                  // As on a full disk, writing stops in the middle.
                  OutliveFileSizeLimit();
                  const rlimit limit{1000, 1000};
                  setrlimit(RLIMIT_FSIZE, &limit);
                  return Files.Replace("C:\\file.ini", std::string(5000, 'n')) ? 1 : 0;
              }),
              0);
    EXPECT_EQ(BytesOf(Root / "file.ini"), "old");
    EXPECT_EQ(EntriesLeft(), 1) << "and nothing else";
}

}  // namespace
}  // namespace trameli
