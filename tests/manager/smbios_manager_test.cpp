#include "manager/smbios_manager.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <new>
#include <thread>

#include "manager/smbios_version.h"
#include "structures/type_1.h"
#include "structures/type_17.h"
#include "structures/unknown_type.h"
#include "tests/support/allocation_hook.h"
#include "tests/support/decode.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/fake_platform.h"
#include "tests/support/meeting_point.h"

// The manager is once per process: every test here needs a process of its own.
namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosManager;
using Manager::Types::StructureTypes;
using Structures::Type_1;
using Structures::Type_17;
using Structures::UnknownType;

SmbiosManager& TheManager() {
    return *SmbiosManager::GetInstance();
}

/// The text with which a load fails; "" when it does not.
std::string TextOfFailedLoad() {
    try {
        TheManager().UpdateBiosInfo();
    } catch (const std::exception& failure) {
        return failure.what();
    }
    return "";
}

/// Tries a load whose allocations fail from the `n`-th on, or it alone; tells whether it needed fewer.
bool LoadsWithMemoryFor(std::size_t n, Failing failing = Failing::fromThenOn) {
    SmbiosManager& manager = TheManager();
    const FailAllocation after(n, failing);
    try {
        manager.UpdateBiosInfo();
    } catch (const std::bad_alloc&) {
        return false;
    }
    return !after.HasFailed();
}

/// The record of the one structure filed under `key`.
template <class Type>
auto TheRecordOf(StructureTypes key) {
    return std::dynamic_pointer_cast<Type>(TheManager().GetStructuresByType(key).at(0))->GetRecord();
}

StructureBuilder MemoryDevice(std::uint16_t handle) {
    return {17, 0x28, handle};
}

std::vector<std::uint8_t> TableOfVersion(std::uint8_t major, std::uint8_t minor, std::uint8_t revision) {
    return TableBuilder(major, minor, revision).Add({1, 8}).RawTable();
}

std::vector<std::uint16_t> HandlesOf(StructureTypes type) {
    std::vector<std::uint16_t> handles;
    for (const auto& structure : TheManager().GetStructuresByType(type)) {
        handles.push_back(structure->GetHandle());
    }
    return handles;
}

/// Meets at each of its thread's allocations.
class MeetAtAllocations final : public AllocationHook {
public:
    explicit MeetAtAllocations(MeetingPoint& meetingPoint) noexcept : meetingPoint_(meetingPoint) {}

    void BeforeAllocation(std::size_t) override { meetingPoint_.Arrive(); }

private:
    MeetingPoint& meetingPoint_;
};

/// What `ask` gives a thread that asks while another one is in the middle of loading `table`.
template <class Ask>
auto AnswerDuringALoad(const std::vector<std::uint8_t>& table, Ask ask) {
    FakeFirmwareTable firmware(table);
    MeetingPoint middleOfTheLoad;
    firmware.DuringSizeQuery([&] { middleOfTheLoad.Arrive(); });
    std::thread loading([] { TheManager().UpdateBiosInfo(); });
    middleOfTheLoad.AwaitFirstArrival();
    auto answer = ask();
    middleOfTheLoad.Arrive();  // nothing holds the load up any longer
    loading.join();
    return answer;
}

// Instance

TEST(SmbiosManager, GetInstanceGivesOneInstance) {
    ASSERT_NE(SmbiosManager::GetInstance(), nullptr);
    EXPECT_EQ(SmbiosManager::GetInstance(), SmbiosManager::GetInstance());
}

TEST(SmbiosManager, OfTwoThreadsOneMakesTheInstanceOfBoth) {
    SmbiosManager* first = nullptr;
    SmbiosManager* second = nullptr;
    MeetingPoint creation;
    const auto getInstance = [&creation](SmbiosManager*& instance) {
        const MeetAtAllocations hook(creation);
        instance = SmbiosManager::GetInstance();
    };
    std::thread one([&] { getInstance(first); });
    std::thread two([&] { getInstance(second); });
    one.join();
    two.join();
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(first, second);
    EXPECT_EQ(creation.Arrivals(), 1);
}

TEST(SmbiosManager, AnInstanceThatCannotBeMadeIsTriedAgain) {
    const auto getInstanceWithoutMemory = [] {
        const FailAllocation after(1);
        (void)SmbiosManager::GetInstance();
    };
    EXPECT_THROW(getInstanceWithoutMemory(), std::bad_alloc);
    EXPECT_NE(SmbiosManager::GetInstance(), nullptr);
}

TEST(SmbiosManager, BeforeALoadThereIsNoStructureAndNoVersion) {
    EXPECT_TRUE(TheManager().GetStructuresByType(StructureTypes::MemoryDevice).empty());
    EXPECT_EQ(TheManager().GetVersion(), "");
}

// Raw table

TEST(SmbiosManager, ATableWithoutSizeFails) {
    const FakeFirmwareTable firmware;
    EXPECT_EQ(TextOfFailedLoad(),
              "Failed to get size of firmware table. Origin: SMBIOS::Manager::SmbiosManager::UpdateBiosInfo");
}

TEST(SmbiosManager, ATableThatShrinksBetweenTheCallsFails) {
    FakeFirmwareTable firmware(TableOfVersion(2, 8, 0));
    firmware.ClaimToFill(10);
    EXPECT_EQ(TextOfFailedLoad(),
              "Failed to retrieve data from firmware table. Origin: "
              "SMBIOS::Manager::SmbiosManager::UpdateBiosInfo");
}

TEST(SmbiosManager, ATableThatGrowsBetweenTheCallsFails) {
    FakeFirmwareTable firmware(TableOfVersion(2, 8, 0));
    firmware.ClaimToFill(1000);
    EXPECT_EQ(TextOfFailedLoad(),
              "Failed to retrieve data from firmware table. Origin: "
              "SMBIOS::Manager::SmbiosManager::UpdateBiosInfo");
}

TEST(SmbiosManager, ABareHeaderOf8BytesIsCorrupted) {
    const FakeFirmwareTable firmware({0, 2, 8, 0, 0, 0, 0, 0});
    EXPECT_EQ(TextOfFailedLoad(),
              "SMBIOS structure is corrupted. Origin: SMBIOS::Manager::SmbiosManager::UpdateBiosInfo");
}

TEST(SmbiosManager, A9ByteTableLoadsWithNothingFiled) {
    FakeFirmwareTable firmware({0, 2, 8, 0, 1, 0, 0, 0, 17});
    EXPECT_EQ(TextOfFailedLoad(), "");
    EXPECT_TRUE(TheManager().GetStructuresByType(StructureTypes::MemoryDevice).empty());
    EXPECT_TRUE(TheManager().GetStructuresByType(StructureTypes::Unknown).empty());
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(firmware.SizeQueries(), 1);
}

TEST(SmbiosManager, TheLengthFieldOfTheHeaderIsIgnored) {
    std::vector<std::uint8_t> table =
        TableBuilder(2, 8, 0).Add(MemoryDevice(1)).Add(MemoryDevice(2)).RawTable();
    table[4] = 1;
    table[7] = 0xFF;
    const FakeFirmwareTable firmware(table);
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(HandlesOf(StructureTypes::MemoryDevice), (std::vector<std::uint16_t>{1, 2}));
}

TEST(SmbiosManager, TwoLoadsReadTheFirmwareTableOnce) {
    const FakeFirmwareTable firmware(TableOfVersion(2, 8, 0));
    TheManager().UpdateBiosInfo();
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(firmware.SizeQueries(), 1);
}

TEST(SmbiosManager, AFailedLoadFilesNothingAndIsTriedAgain) {
    FakeFirmwareTable firmware({0, 2, 8, 0, 0, 0, 0, 0});
    EXPECT_NE(TextOfFailedLoad(), "");
    EXPECT_TRUE(TheManager().GetStructuresByType(StructureTypes::MemoryDevice).empty());

    firmware.Supply(TableBuilder(2, 8, 0).Add(MemoryDevice(7)).RawTable());
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(firmware.SizeQueries(), 2);
    EXPECT_EQ(HandlesOf(StructureTypes::MemoryDevice), std::vector<std::uint16_t>{7});
}

TEST(SmbiosManager, ALoadThatFailsPartWayLeavesNothingBehindForTheNext) {
    const std::vector<std::uint16_t> handles = {1, 2, 3};
    const FakeFirmwareTable firmware(
        TableBuilder(2, 8, 0).Add(MemoryDevice(1)).Add(MemoryDevice(2)).Add(MemoryDevice(3)).RawTable());
    bool sawSomeFiled = false;
    for (std::size_t n = 1; !LoadsWithMemoryFor(n); ++n) {
        const std::vector<std::uint16_t> filed = HandlesOf(StructureTypes::MemoryDevice);
        ASSERT_LT(filed.size(), handles.size()) << "allocation " << n;
        ASSERT_TRUE(std::equal(filed.begin(), filed.end(), handles.begin())) << "allocation " << n;
        sawSomeFiled = sawSomeFiled || !filed.empty();
    }
    EXPECT_TRUE(sawSomeFiled);
    EXPECT_EQ(HandlesOf(StructureTypes::MemoryDevice), handles);
}

TEST(SmbiosManager, AnAllocationThatFailsFailsTheLoadAndLeavesNoTraceInTheNext) {
    const FakeFirmwareTable firmware(
        TableBuilder(2, 8, 0)
            .Add(StructureBuilder(1, 0x1B).String(0x04, "A manufacturer of some length"))
            .Add(MemoryDevice(1).String(0x18, "A serial number of some length"))
            .RawTable());
    std::size_t n = 1;
    while (!LoadsWithMemoryFor(n, Failing::once)) {
        ++n;
    }
    EXPECT_GT(n, 12U);
    const auto device = TheRecordOf<Type_17>(StructureTypes::MemoryDevice);
    EXPECT_EQ(device->error, "");
    EXPECT_EQ(device->serialNumber, "A serial number of some length");
    const auto system = TheRecordOf<Type_1>(StructureTypes::SystemInformation);
    EXPECT_EQ(system->manufacturer, "A manufacturer of some length");
    EXPECT_EQ(system->uuid, "00000000-0000-0000-0000-000000000000");
}

TEST(SmbiosManager, ThePlatformIsGivenABufferOfZeros) {
    const FakeFirmwareTable firmware(TableOfVersion(2, 8, 0));
    TheManager().UpdateBiosInfo();
    EXPECT_TRUE(firmware.WasGivenZeros());
}

// Threads

TEST(SmbiosManager, AThreadThatWaitsForALoadFindsItDone) {
    FakeFirmwareTable firmware(TableOfVersion(2, 8, 0));
    MeetingPoint middleOfTheLoad;
    firmware.DuringSizeQuery([&] { middleOfTheLoad.Arrive(); });
    std::thread one([] { TheManager().UpdateBiosInfo(); });
    std::thread two([] { TheManager().UpdateBiosInfo(); });
    one.join();
    two.join();
    EXPECT_EQ(middleOfTheLoad.Arrivals(), 1);
}

TEST(SmbiosManager, StructuresAskedForDuringALoadAreThoseLoaded) {
    const auto structures =
        AnswerDuringALoad(TableBuilder(2, 8, 0).Add(MemoryDevice(1)).Add(MemoryDevice(2)).RawTable(),
                          [] { return HandlesOf(StructureTypes::MemoryDevice); });
    EXPECT_EQ(structures, (std::vector<std::uint16_t>{1, 2}));
}

TEST(SmbiosManager, TheVersionAskedForDuringALoadIsTheOneLoaded) {
    EXPECT_EQ(AnswerDuringALoad(TableOfVersion(2, 8, 0), [] { return TheManager().GetVersion(); }), "2.8.0");
}

// Version

TEST(SmbiosManager, HeaderBytes2And7And1GiveVersion271) {
    const FakeFirmwareTable firmware(TableOfVersion(2, 7, 1));
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(TheManager().GetVersion(), "2.7.1");
    EXPECT_EQ(static_cast<int>(Manager::currentVersionIndex), 13);
}

TEST(SmbiosManager, HeaderBytes3And0And0GiveVersion300) {
    const FakeFirmwareTable firmware(TableOfVersion(3, 0, 0));
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(TheManager().GetVersion(), "3.0.0");
}

TEST(SmbiosManager, VersionNumbersAreDecimalWithoutLeadingZeros) {
    const FakeFirmwareTable firmware(TableOfVersion(3, 10, 255));
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(TheManager().GetVersion(), "3.10.255");
}

TEST(SmbiosManager, Version371HasIndex24) {
    const FakeFirmwareTable firmware(TableOfVersion(3, 7, 1));
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(static_cast<int>(Manager::currentVersionIndex), 24);
}

TEST(SmbiosManager, Version240HasIndex8) {
    const FakeFirmwareTable firmware(TableOfVersion(2, 4, 0));
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(static_cast<int>(Manager::currentVersionIndex), 8);
}

TEST(SmbiosManager, AnUnlistedVersionKeepsTheIndex) {
    Manager::currentVersionIndex = v2_8_0;
    const FakeFirmwareTable firmware(TableOfVersion(2, 3, 1));
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(Manager::currentVersionIndex, v2_8_0);
}

TEST(SmbiosManager, AnUnlistedVersionInAFreshProcessReadsAs200AndRefusesMemoryDevices) {
    const FakeFirmwareTable firmware(TableBuilder(3, 9, 0).Add(MemoryDevice(1)).RawTable());
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(Manager::currentVersionIndex, v2_0_0);
    const auto devices = TheManager().GetStructuresByType(StructureTypes::MemoryDevice);
    ASSERT_EQ(devices.size(), 1U);
    EXPECT_EQ(std::dynamic_pointer_cast<Type_17>(devices[0])->GetRecord()->error, kMalformed);
}

// Filing

TEST(SmbiosManager, StructuresOfOneTypeKeepTableOrder) {
    const FakeFirmwareTable firmware(TableBuilder(2, 8, 0)
                                         .Add(MemoryDevice(0x30))
                                         .Add({1, 8, 0x01})
                                         .Add(MemoryDevice(0x10))
                                         .Add(MemoryDevice(0x20))
                                         .Add(MemoryDevice(0x10))
                                         .RawTable());
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(HandlesOf(StructureTypes::MemoryDevice), (std::vector<std::uint16_t>{0x30, 0x10, 0x20, 0x10}));
}

TEST(SmbiosManager, TypesWithoutADecoderAreFiledUnderUnknownOnly) {
    const FakeFirmwareTable firmware(
        TableBuilder(2, 8, 0).Add({200, 4, 0x01}).Add({126, 4, 0x02}).Add({127, 4, 0x03}).RawTable());
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(HandlesOf(StructureTypes::Unknown), (std::vector<std::uint16_t>{1, 2, 3}));
    EXPECT_TRUE(TheManager().GetStructuresByType(StructureTypes{126}).empty());
    EXPECT_TRUE(TheManager().GetStructuresByType(StructureTypes{127}).empty());
}

TEST(SmbiosManager, AnUnknownStructureKeepsItsTypeNumber) {
    const FakeFirmwareTable firmware(TableBuilder(2, 8, 0).Add({200, 4}).RawTable());
    TheManager().UpdateBiosInfo();
    const auto unknown = TheManager().GetStructuresByType(StructureTypes::Unknown);
    ASSERT_EQ(unknown.size(), 1U);
    EXPECT_EQ(std::dynamic_pointer_cast<UnknownType>(unknown[0])->GetRecord()->type, 200);
}

TEST(SmbiosManager, AStructureThatIsRefusedDoesNotFailTheLoad) {
    const FakeFirmwareTable firmware(
        TableBuilder(2, 8, 0).Add({17, 0x10, 0x01}).Add(MemoryDevice(2)).RawTable());
    TheManager().UpdateBiosInfo();
    EXPECT_EQ(HandlesOf(StructureTypes::MemoryDevice), (std::vector<std::uint16_t>{0, 2}));
}

}  // namespace
}  // namespace SMBIOS::Tests
