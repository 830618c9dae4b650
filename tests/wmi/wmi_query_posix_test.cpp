#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "support/memory_limit_posix.h"
#include "support/temporary_folder.h"
#include "wmi/wmi_query.h"

namespace SMBIOS::Wmi {
namespace {

/// Makes `powershell.exe` a shell script, for the rest of the process.
class PowerShellScript {
public:
    explicit PowerShellScript(const std::string& script) {
        namespace fs = std::filesystem;
        fs::permissions(folder_.Write("powershell.exe", "#!/bin/sh\n" + script + "\n"), fs::perms::owner_all);
        const std::string path = folder_.Path().string() + ":" + std::getenv("PATH");
        ::setenv("PATH", path.c_str(), 1);
    }

private:
    Tests::TemporaryFolder folder_;
};

Instances Fetched() {
    Instances result;
    WmiQuery().FetchByKey(result, "SerialNumber", {"SerialNumber", "Capacity"});
    return result;
}

[[noreturn]] void FetchWithLittleMemory() {
    Tests::LimitMemory();
    const Instances expected{{"A", {{"SerialNumber", "A"}, {"Capacity", std::uint64_t{1}}}}};
    ::_exit(Fetched() == expected ? 0 : 1);
}

TEST(WmiQueryDeathTest, AnAnswerMayBeLargerThanTheMemory) {
    if (Tests::kMemoryIsWatched) {
        GTEST_SKIP() << "the sanitizer ends the process when memory runs out";
    }
    const PowerShellScript powershell(
        "echo '['\n"
        "yes '{\"SerialNumber\":\"A\",\"Capacity\":1,\"Other\":[{\"Other\":\"text\"}]},' | head -n 1500000\n"
        "echo '{\"SerialNumber\":\"A\"}]'");
    EXPECT_EXIT(FetchWithLittleMemory(), testing::ExitedWithCode(0), "");
}

[[noreturn]] void FetchWithinTenSeconds() {
    ::alarm(10);
    try {
        (void)Fetched();
    } catch (const nlohmann::json::parse_error&) {
        ::_exit(0);
    }
    ::_exit(1);
}

TEST(WmiQueryDeathTest, AProgramThatGoesOnBehindTextThatIsNotJsonIsEnded) {
    const PowerShellScript powershell("trap '' PIPE TERM\nwhile :; do echo no JSON; done 2>/dev/null");
    EXPECT_EXIT(FetchWithinTenSeconds(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace SMBIOS::Wmi
