#include "platform/program_search_posix.h"

#include <gtest/gtest.h>

namespace SMBIOS::Platform {
namespace {

using Files = std::vector<std::string>;

TEST(ProgramSearch, TriesEveryFolderInOrder) {
    EXPECT_EQ(ProgramCandidates("tool", "/usr/bin:/bin"), (Files{"/usr/bin/tool", "/bin/tool"}));
}

TEST(ProgramSearch, PassesOverEmptyFolders) {
    EXPECT_EQ(ProgramCandidates("tool", ":/bin::/sbin:"), (Files{"/bin/tool", "/sbin/tool"}));
}

TEST(ProgramSearch, PassesOverRelativeFolders) {
    EXPECT_EQ(ProgramCandidates("tool", ".:bin:../bin:/bin"), Files{"/bin/tool"});
}

TEST(ProgramSearch, FindsNothingInAnEmptyPath) {
    EXPECT_EQ(ProgramCandidates("tool", ""), Files());
}

TEST(ProgramSearch, TakesANameThatTellsItsPlaceAsItIs) {
    EXPECT_EQ(ProgramCandidates("./tool", "/bin"), Files{"./tool"});
}

TEST(ProgramSearch, FindsNothingForAnEmptyName) {
    EXPECT_EQ(ProgramCandidates("", "/bin"), Files());
}

}  // namespace
}  // namespace SMBIOS::Platform
