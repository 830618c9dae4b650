#include <cxxabi.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/windows/file_contents.h"
#include "tests/windows/portable_executable.h"
#include "tests/windows/windows_headers.h"

namespace SMBIOS::Tests {
namespace {

/// Every member function that the public headers declare and the library holds.
constexpr const char* kMembers[] = {
    "EBOOL::EBOOL()",
    "EBOOL::operator=(SMBIOS::Parsers::EBOOL const&)",
    "EBOOL::operator=(SMBIOS::Parsers::EBOOL&&)",
    "EBOOL::operator=(bool)",

    "PROCESSOR_CHARACTERISTICS::PROCESSOR_CHARACTERISTICS()",
    "PROCESSOR_CHARACTERISTICS::operator=(SMBIOS::Parsers::PROCESSOR_CHARACTERISTICS const&)",
    "PROCESSOR_CHARACTERISTICS::operator=(SMBIOS::Parsers::PROCESSOR_CHARACTERISTICS&&)",

    "MEMORY_TYPE_DETAILS::MEMORY_TYPE_DETAILS()",
    "MEMORY_TYPE_DETAILS::operator=(SMBIOS::Parsers::MEMORY_TYPE_DETAILS const&)",
    "MEMORY_TYPE_DETAILS::operator=(SMBIOS::Parsers::MEMORY_TYPE_DETAILS&&)",

    "MemoryInfo::MemoryInfo()",
    "MemoryInfo::~MemoryInfo()",
    "MemoryInfo::RetrieveInfo()",
    "MemoryInfo::GetMemoryDeviceCount() const",
    "MemoryInfo::GetDeviceSet(unsigned long long) const",
    "MemoryInfo::GetDataWidth(unsigned long long) const",
    "MemoryInfo::GetTotalWidth(unsigned long long) const",
    "MemoryInfo::GetMemoryType(unsigned long long) const",
    "MemoryInfo::GetStringifiedMemoryType(unsigned long long) const",
    "MemoryInfo::GetPhysicalMemoryArrayHandle(unsigned long long) const",
    "MemoryInfo::GetMemoryErrorInformationHandle(unsigned long long) const",
    "MemoryInfo::GetFormFactor(unsigned long long) const",
    "MemoryInfo::GetStringifiedFormFactor(unsigned long long) const",
    "MemoryInfo::GetDeviceLocator(unsigned long long) const",
    "MemoryInfo::GetTypeDetail(unsigned long long) const",
    "MemoryInfo::GetBitsetTypeDetail(unsigned long long) const",
    "MemoryInfo::GetSpeed(unsigned long long) const",
    "MemoryInfo::GetManufacturer(unsigned long long) const",
    "MemoryInfo::GetSerialNumber(unsigned long long) const",
    "MemoryInfo::GetAssetTag(unsigned long long) const",
    "MemoryInfo::GetPartNumber(unsigned long long) const",
    "MemoryInfo::GetRank(unsigned long long) const",
    "MemoryInfo::GetConfiguredSpeed(unsigned long long) const",
    "MemoryInfo::GetMinVoltageInmV(unsigned long long) const",
    "MemoryInfo::GetMaxVoltageInmV(unsigned long long) const",
    "MemoryInfo::GetConfiguredVoltageInmV(unsigned long long) const",
    "MemoryInfo::GetMemoryTechnology(unsigned long long) const",
    "MemoryInfo::GetStringifiedMemoryTechnology(unsigned long long) const",
    "MemoryInfo::GetMemoryOperatingModeCapability(unsigned long long) const",
    "MemoryInfo::GetStringifiedMemoryOperatingModeCapability(unsigned long long) const",
    "MemoryInfo::GetFirmwareVersion(unsigned long long) const",
    "MemoryInfo::GetCacheSize(unsigned long long) const",
    "MemoryInfo::GetLogicalSize(unsigned long long) const",
    "MemoryInfo::GetVolatileSize(unsigned long long) const",
    "MemoryInfo::GetNonVolatileSize(unsigned long long) const",
    "MemoryInfo::GetModuleProductId(unsigned long long) const",
    "MemoryInfo::GetModuleManufacturerId(unsigned long long) const",
    "MemoryInfo::GetMemorySubsystemControllerManufacturerId(unsigned long long) const",
    "MemoryInfo::GetMemorySubsystemControllerProductId(unsigned long long) const",
    "MemoryInfo::GetRCDManufacturerId(unsigned long long) const",
    "MemoryInfo::GetRCDRevisionNumber(unsigned long long) const",
    "MemoryInfo::GetPMIC0ManufacturerId(unsigned long long) const",
    "MemoryInfo::GetPMIC0RevisionNumber(unsigned long long) const",
    "MemoryInfo::GetBankLocator(unsigned long long) const",
    "MemoryInfo::GetPositionInRow(unsigned long long) const",
    "MemoryInfo::GetSizeInKB(unsigned long long) const",
    "MemoryInfo::DumpRawData(unsigned long long, unsigned long long&) const",
    "MemoryInfo::GetStringSessionSize(unsigned long long) const",
    "MemoryInfo::DumpStringSession(unsigned long long, unsigned long long) const",
    "MemoryInfo::HasError(unsigned long long) const",
    "MemoryInfo::GetErrorMessage(unsigned long long) const",

    "ProcessorInfo::ProcessorInfo()",
    "ProcessorInfo::~ProcessorInfo()",
    "ProcessorInfo::RetrieveInfo()",
    "ProcessorInfo::GetCPUCount() const",
    "ProcessorInfo::GetVersion(unsigned long long) const",
    "ProcessorInfo::GetManufacturer(unsigned long long) const",
    "ProcessorInfo::GetSocketDesignation(unsigned long long) const",
    "ProcessorInfo::GetDeviceId(unsigned long long) const",
    "ProcessorInfo::GetCaption(unsigned long long) const",
    "ProcessorInfo::GetDescription(unsigned long long) const",
    "ProcessorInfo::GetType(unsigned long long) const",
    "ProcessorInfo::GetStringifiedType(unsigned long long) const",
    "ProcessorInfo::GetFamily(unsigned long long) const",
    "ProcessorInfo::GetStringifiedFamily(unsigned long long) const",
    "ProcessorInfo::GetProcessorID(unsigned long long) const",
    "ProcessorInfo::IsLegacyVoltageInfo(unsigned long long) const",
    "ProcessorInfo::GetLegacyVoltageInfoSize(unsigned long long) const",
    "ProcessorInfo::GetLegacyVoltageInfo(unsigned long long, unsigned long long) const",
    "ProcessorInfo::GetNonLegacyVoltageValue(unsigned long long) const",
    "ProcessorInfo::GetExternalClockInMHz(unsigned long long) const",
    "ProcessorInfo::GetMaxSpeedInMHz(unsigned long long) const",
    "ProcessorInfo::GetCurrentSpeedInMHz(unsigned long long) const",
    "ProcessorInfo::IsSocketPopulated(unsigned long long) const",
    "ProcessorInfo::GetStringifiedStatus(unsigned long long) const",
    "ProcessorInfo::GetUpgrade(unsigned long long) const",
    "ProcessorInfo::GetStringifiedUpgrade(unsigned long long) const",
    "ProcessorInfo::GetL1CacheHandle(unsigned long long) const",
    "ProcessorInfo::GetL2CacheHandle(unsigned long long) const",
    "ProcessorInfo::GetL3CacheHandle(unsigned long long) const",
    "ProcessorInfo::GetL1CacheSizeInKB(unsigned long long) const",
    "ProcessorInfo::GetL2CacheSizeInKB(unsigned long long) const",
    "ProcessorInfo::GetL3CacheSizeInKB(unsigned long long) const",
    "ProcessorInfo::GetSerialNumber(unsigned long long) const",
    "ProcessorInfo::GetAssetTag(unsigned long long) const",
    "ProcessorInfo::GetPartNumber(unsigned long long) const",
    "ProcessorInfo::GetCoreCount(unsigned long long) const",
    "ProcessorInfo::GetEnabledCoreCount(unsigned long long) const",
    "ProcessorInfo::GetThreadCount(unsigned long long) const",
    "ProcessorInfo::GetEnabledThreadCount(unsigned long long) const",
    "ProcessorInfo::GetSocketType(unsigned long long) const",
    "ProcessorInfo::GetAddrWidth(unsigned long long) const",
    "ProcessorInfo::GetDataWidth(unsigned long long) const",
    "ProcessorInfo::GetVirtualizationFirmwareEnabled(unsigned long long) const",
    "ProcessorInfo::GetProcessorCharacteristics(unsigned long long) const",
    "ProcessorInfo::DumpRawData(unsigned long long, unsigned long long&) const",
    "ProcessorInfo::GetStringSessionSize(unsigned long long) const",
    "ProcessorInfo::DumpStringSession(unsigned long long, unsigned long long) const",
    "ProcessorInfo::HasError(unsigned long long) const",
    "ProcessorInfo::GetErrorMessage(unsigned long long) const",
};

/// What the compiler adds for a class with a virtual function.
constexpr const char* kClassData[] = {
    "typeinfo for SMBIOS::Parsers::MemoryInfo",
    "typeinfo for SMBIOS::Parsers::ProcessorInfo",
    "vtable for SMBIOS::Parsers::MemoryInfo",
    "vtable for SMBIOS::Parsers::ProcessorInfo",
};

struct Free {
    void operator()(char* text) const noexcept { std::free(text); }
};

std::string Demangle(const std::string& name) {
    int status = 0;
    const std::unique_ptr<char, Free> text(abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status));
    return text == nullptr ? name : std::string(text.get());
}

/// The library's file, laid out as it would be loaded.
class LibraryFile : public testing::Test {
protected:
    [[nodiscard]] ImageView Image() const { return ImageView(bytes_.data()); }

private:
    std::vector<std::byte> bytes_ = LayOutImage(SMBIOS_LIBRARY);
};

TEST_F(LibraryFile, IsFor64BitMachines) {
    EXPECT_EQ(Image().Headers().FileHeader.Machine, IMAGE_FILE_MACHINE_AMD64);
    EXPECT_NE(Image().Headers().FileHeader.Characteristics & IMAGE_FILE_DLL, 0);
}

TEST_F(LibraryFile, MayBeLoadedAnywhereAndExecutesNoData) {
    constexpr int kHighEntropy = 0x0020;  // not in every windows.h
    const int characteristics = Image().Headers().OptionalHeader.DllCharacteristics;
    EXPECT_NE(characteristics & kHighEntropy, 0);
    EXPECT_NE(characteristics & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE, 0);
    EXPECT_NE(characteristics & IMAGE_DLLCHARACTERISTICS_NX_COMPAT, 0);
}

TEST_F(LibraryFile, CanBeRelocated) {
    EXPECT_EQ(Image().Headers().FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED, 0);
    EXPECT_NE(Image().Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_BASERELOC].Size, 0U);
}

TEST_F(LibraryFile, NeedsNothingButTheSystem) {
    const std::vector<std::string> expected = {"KERNEL32.dll", "msvcrt.dll"};
    EXPECT_EQ(Image().ImportedLibraries(), expected);
}

TEST_F(LibraryFile, ExportsTheDeclaredMembersAndNothingElse) {
    std::set<std::string> expected(std::begin(kClassData), std::end(kClassData));
    for (const char* member : kMembers) {
        expected.insert(std::string("SMBIOS::Parsers::") + member);
    }
    std::set<std::string> exported;
    for (const std::string& name : Image().ExportedNames()) {
        exported.insert(Demangle(name));
    }
    EXPECT_EQ(exported, expected);
}

// Each has two names: of the complete object, and of the part of a derived one. A destructor has a third,
// that also frees the object.
TEST_F(LibraryFile, ExportsEveryFormOfConstructorsAndDestructors) {
    std::vector<std::string> names;
    for (const std::string& name : Image().ExportedNames()) {
        names.push_back(Demangle(name));
    }
    for (const std::string className : {"MemoryInfo", "ProcessorInfo"}) {
        const std::string qualifiedName = "SMBIOS::Parsers::" + className + "::";
        EXPECT_EQ(std::ranges::count(names, qualifiedName + className + "()"), 2);
        EXPECT_EQ(std::ranges::count(names, qualifiedName + "~" + className + "()"), 3);
    }
}

TEST(ImportLibrary, LiesInLib) {
    const std::filesystem::path file = SMBIOS_IMPORT_LIBRARY;
    EXPECT_EQ(file.parent_path().filename(), "lib");
    EXPECT_EQ(file.filename(), "vantor-shared-smbios-v2.dll.a");
    const std::vector<std::uint8_t> contents = FileContents(file);
    constexpr std::string_view kArchive = "!<arch>\n";
    EXPECT_TRUE(std::equal(kArchive.begin(), kArchive.end(), contents.begin()));
}

/// The version resource of the library's file.
class LibraryVersion : public testing::Test {
protected:
    void SetUp() override {
        const DWORD size = ::GetFileVersionInfoSizeA(SMBIOS_LIBRARY, nullptr);
        ASSERT_NE(size, 0U) << "no version resource";
        resource_.resize(size);
        ASSERT_TRUE(::GetFileVersionInfoA(SMBIOS_LIBRARY, 0, size, resource_.data()));
    }

    template <class Value>
    const Value* Find(const char* path) {
        void* value = nullptr;
        UINT size = 0;
        return ::VerQueryValueA(resource_.data(), path, &value, &size) ? static_cast<const Value*>(value)
                                                                       : nullptr;
    }

private:
    std::vector<std::byte> resource_;
};

std::string VersionText(DWORD high, DWORD low) {
    return std::to_string(HIWORD(high)) + "." + std::to_string(LOWORD(high)) + "." +
           std::to_string(HIWORD(low));
}

TEST_F(LibraryVersion, IsTheProjects) {
    const auto* version = Find<VS_FIXEDFILEINFO>("\\");
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(VersionText(version->dwFileVersionMS, version->dwFileVersionLS), SMBIOS_VERSION);
    EXPECT_EQ(VersionText(version->dwProductVersionMS, version->dwProductVersionLS), SMBIOS_VERSION);
    EXPECT_EQ(version->dwFileType, static_cast<DWORD>(VFT_DLL));
}

TEST_F(LibraryVersion, IsShownAsText) {
    EXPECT_STREQ(Find<char>("\\StringFileInfo\\040904B0\\FileVersion"), SMBIOS_VERSION);
    EXPECT_STREQ(Find<char>("\\StringFileInfo\\040904B0\\ProductVersion"), SMBIOS_VERSION);
    EXPECT_STREQ(Find<char>("\\StringFileInfo\\040904B0\\OriginalFilename"), "vantor-shared-smbios-v2.dll");
}

}  // namespace
}  // namespace SMBIOS::Tests
