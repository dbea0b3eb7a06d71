// Other running copies of the program.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include "platform/in_child.h"
#include "platform/qt/folder_lock.h"
#include "support/stage.h"

namespace fs = std::filesystem;

namespace trameli {
namespace {

/// Another copy of the program: it says whether it found one running, and stays until it is ended.
class Copy {
public:
    explicit Copy(const fs::path& folder) {
        EXPECT_EQ(pipe(answer_), 0);
        EXPECT_EQ(pipe(end_), 0);
        child_ = StartChild([&] {
            FolderLock lock(folder);
            char byte = lock.AnotherRuns() ? 'y' : 'n';
            if (write(answer_[1], &byte, 1) != 1) {
                return 1;
            }
            return read(end_[0], &byte, 1) == 1 ? 0 : 2;
        });
        close(answer_[1]);
        close(end_[0]);
    }
    ~Copy() {
        End();
        close(answer_[0]);
    }

    bool FoundAnother() const {
        char byte = 0;
        EXPECT_EQ(read(answer_[0], &byte, 1), 1);
        return byte == 'y';
    }
    void End() {
        if (child_ != 0) {
            EXPECT_EQ(write(end_[1], "x", 1), 1);
            EXPECT_EQ(ExitOf(child_), 0);
            child_ = 0;
            close(end_[1]);
        }
    }
    void Kill() {
        kill(child_, SIGKILL);
        EXPECT_EQ(ExitOf(child_), -1);
        child_ = 0;
        close(end_[1]);
    }

private:
    int answer_[2];
    int end_[2];
    pid_t child_ = 0;
};

TEST(InstancesTest, AreThoseOnTheSameFolder) {
    const TemporaryFolder folder;
    const fs::path here = folder.Path() / "data" / "trameli";  // made by the first that needs it
    Copy first(here);
    EXPECT_FALSE(first.FoundAnother());
    EXPECT_TRUE(fs::is_directory(here));
    Copy second(here);
    EXPECT_TRUE(second.FoundAnother());
    Copy elsewhere(folder.Path() / "data" / "other");
    EXPECT_FALSE(elsewhere.FoundAnother());

    first.End();
    Copy third(here);
    EXPECT_FALSE(third.FoundAnother()) << "the second did not count as running";
}

TEST(InstancesTest, ThatWereKilledLeaveNothingBehind) {
    const TemporaryFolder folder;
    Copy first(folder.Path());
    EXPECT_FALSE(first.FoundAnother());
    first.Kill();
    Copy second(folder.Path());
    EXPECT_FALSE(second.FoundAnother());
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(InstancesTest, AreToldTheSameHoweverOftenAsked) {
    const TemporaryFolder folder;
    Copy other(folder.Path());
    EXPECT_FALSE(other.FoundAnother());
    FolderLock lock(folder.Path());
    EXPECT_TRUE(lock.AnotherRuns());
    EXPECT_TRUE(lock.AnotherRuns());
    other.End();
    EXPECT_FALSE(lock.AnotherRuns());
    EXPECT_FALSE(lock.AnotherRuns());
    Copy next(folder.Path());
    EXPECT_TRUE(next.FoundAnother());
}

TEST(InstancesTest, AreKnownInAReadOnlyFolder) {
    const TemporaryFolder folder;
    fs::permissions(folder.Path(), fs::perms(0555));
    Copy first(folder.Path());
    EXPECT_FALSE(first.FoundAnother());
    EXPECT_EQ(RunInChild([&] {
                  FolderLock lock(folder.Path());
                  return BecomeNobody() && lock.AnotherRuns() ? 0 : 1;
              }),
              0);
    // Where no folder can be made, two copies are better than none.
    EXPECT_EQ(RunInChild([&] {
                  FolderLock lock(folder.Path() / "none");
                  return BecomeNobody() && !lock.AnotherRuns() ? 0 : 1;
              }),
              0);
}

TEST(InstancesTest, AreNotKeptOutByAFileInPlaceOfTheFolder) {
    const TemporaryFolder folder;
    Write(folder.Path() / "file", "");
    FolderLock lock(folder.Path() / "file");
    EXPECT_FALSE(lock.AnotherRuns());
    FolderLock below(folder.Path() / "file" / "below");
    EXPECT_FALSE(below.AnotherRuns());
}

}  // namespace
}  // namespace trameli
