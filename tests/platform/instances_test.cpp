// Other running copies of the program. A lock belongs to whoever opened the folder, so that two
// locks of one process are as far apart as two copies.
#include <gtest/gtest.h>

#include <optional>

#include "platform/in_child.h"
#include "platform/qt/folder_lock.h"
#include "support/stage.h"

namespace fs = std::filesystem;

namespace trameli {
namespace {

TEST(InstancesTest, AreThoseOnTheSameFolder) {
    const TemporaryFolder folder;
    const fs::path here = folder.Path() / "data" / "trameli";  // made by the first that needs it
    std::optional<FolderLock> first(here);
    EXPECT_FALSE(first->AnotherRuns());
    FolderLock second(here);
    FolderLock elsewhere(folder.Path() / "data" / "other");
    EXPECT_FALSE(first->AnotherRuns());
    EXPECT_TRUE(second.AnotherRuns());
    EXPECT_FALSE(elsewhere.AnotherRuns());
    first.reset();
    FolderLock third(here);
    EXPECT_FALSE(third.AnotherRuns()) << "the second did not count as running";
    EXPECT_TRUE(second.AnotherRuns());
}

TEST(InstancesTest, ThatWereKilledLeaveNothingBehind) {
    const TemporaryFolder folder;
    EXPECT_EQ(RunInChild([&] {
                  // Never destroyed.
                  return (new FolderLock(folder.Path()))->AnotherRuns() ? 1 : 0;
              }),
              0);
    EXPECT_FALSE(FolderLock(folder.Path()).AnotherRuns());
}

TEST(InstancesTest, AreKnownInAReadOnlyFolderAndUnknownWithoutOne) {
    const TemporaryFolder folder;
    Write(folder.Path() / "file", "");
    fs::permissions(folder.Path(), fs::perms(0555));
    FolderLock first(folder.Path());
    EXPECT_FALSE(first.AnotherRuns());
    EXPECT_EQ(RunInChild([&] {
                  // Where no folder can be made, two copies are better than none.
                  return BecomeNobody() && FolderLock(folder.Path()).AnotherRuns() &&
                                 !FolderLock(folder.Path() / "none").AnotherRuns() &&
                                 !FolderLock(folder.Path() / "file").AnotherRuns()
                             ? 0
                             : 1;
              }),
              0);
}

}  // namespace
}  // namespace trameli
