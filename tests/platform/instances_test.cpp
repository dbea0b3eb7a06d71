// Other running copies of the program. A lock belongs to whoever opened the folder, so that two
// locks of one process are as far apart as two copies.
#include <gtest/gtest.h>

#include <optional>

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

}  // namespace
}  // namespace trameli
