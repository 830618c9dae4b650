#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <string>
#include <vector>

#include "manager/smbios_manager.h"
#include "tests/threads/machine.h"
#include "tests/threads/together.h"

// The manager on several threads. It is once per process: so is every test here.
namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosManager;
using Manager::Types::StructureTypes;

TEST(ThreadsManager, LookupsBesideALoadSeeNothingOrAllOfIt) {
    const Machine machine;
    constexpr std::size_t kThreads = 4;
    std::atomic<bool> isLoaded = false;
    std::vector<std::set<std::size_t>> counts(kThreads);
    std::vector<std::set<std::string>> versions(kThreads);
    RunTogether(kThreads, [&](std::size_t number) {
        SmbiosManager& manager = *SmbiosManager::GetInstance();
        if (number == 0) {
            manager.UpdateBiosInfo();
            isLoaded = true;
        }
        do {
            counts[number].insert(manager.GetStructuresByType(StructureTypes::MemoryDevice).size());
            versions[number].insert(manager.GetVersion());
        } while (!isLoaded);
    });
    for (std::size_t number = 0; number < kThreads; ++number) {
        counts[number].erase(0);
        versions[number].erase("");
        EXPECT_TRUE(counts[number].empty() || counts[number] == std::set<std::size_t>{kDevices});
        EXPECT_TRUE(versions[number].empty() || versions[number] == std::set<std::string>{"2.8.0"});
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
