#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstddef>
#include <string>

#include "tests/windows/only_powershell.h"
#include "tests/windows/process_usage.h"
#include "tests/windows/sample_structures.h"
#include "tests/windows/served_table.h"
#include "tests/windows/windows_headers.h"

namespace SMBIOS::Tests {
namespace {

/// The library, loaded for as long as this object lives.
class LoadedLibrary {
public:
    LoadedLibrary() : module_(::LoadLibraryW(kFileName)) {}
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;
    ~LoadedLibrary() { ::FreeLibrary(module_); }

    [[nodiscard]] HMODULE Module() const noexcept { return module_; }
    [[nodiscard]] static bool IsLoaded() noexcept { return ::GetModuleHandleW(kFileName) != nullptr; }

    /// The function exported under this name.
    template <class Function>
    [[nodiscard]] Function* Find(const char* name) const noexcept {
        return std::bit_cast<Function*>(::GetProcAddress(module_, name));
    }

private:
    static constexpr const wchar_t* kFileName = L"vantor-shared-smbios-v2.dll";

    HMODULE module_;
};

/// A MemoryInfo of a library that the program is not linked with.
class LoadedMemoryInfo {
public:
    explicit LoadedMemoryInfo(const LoadedLibrary& library) : library_(library) {
        library_.Find<void(void*)>("_ZN6SMBIOS7Parsers10MemoryInfoC1Ev")(object_.data());
    }
    LoadedMemoryInfo(const LoadedMemoryInfo&) = delete;
    LoadedMemoryInfo& operator=(const LoadedMemoryInfo&) = delete;
    ~LoadedMemoryInfo() { library_.Find<void(void*)>("_ZN6SMBIOS7Parsers10MemoryInfoD1Ev")(object_.data()); }

    void RetrieveInfo() {
        library_.Find<void(void*)>("_ZN6SMBIOS7Parsers10MemoryInfo12RetrieveInfoEv")(object_.data());
    }

    [[nodiscard]] const char* GetSerialNumber(std::size_t index) const {
        return library_.Find<const char*(const void*, std::size_t)>(
            "_ZNK6SMBIOS7Parsers10MemoryInfo15GetSerialNumberEy")(object_.data(), index);
    }

private:
    const LoadedLibrary& library_;
    alignas(void*) std::array<std::byte, 2 * sizeof(void*)> object_{};
};

/// A device of which the firmware tells all it can; PowerShell is asked for its position.
StructureBuilder CompleteMemoryDevice(const std::string& serialNumber) {
    return StructureBuilder(17, 0x28)
        .Word(0x08, 64)
        .Word(0x0A, 64)
        .Word(0x0C, 1024)
        .Word(0x15, 2400)
        .String(0x10, "DIMM 1")
        .String(0x11, "BANK 1")
        .String(0x17, "Example")
        .String(0x18, serialNumber)
        .String(0x19, "Tag")
        .String(0x1A, "Part");
}

/// Loads the library, reads the one device it is served, and frees it. Returns the serial number.
std::string ReadSerialNumber(const std::string& served) {
    const LoadedLibrary library;
    const ServedTable table(library.Module(), TableOf(CompleteMemoryDevice(served)).RawTable());
    LoadedMemoryInfo info(library);
    info.RetrieveInfo();
    const char* const read = info.GetSerialNumber(0);
    return read == nullptr ? std::string() : std::string(read);
}

/// Loads the library so often, each time with another table than the time before.
void Reload(std::size_t times) {
    for (std::size_t i = 0; i < times; ++i) {
        const std::string serialNumber = i % 2 == 0 ? "EVEN" : "ODD";
        ASSERT_EQ(ReadSerialNumber(serialNumber), serialNumber);
        ASSERT_FALSE(LoadedLibrary::IsLoaded());
    }
}

TEST(Reload, ReadsTheTableAfresh) {
    const ScriptedPowerShell powerShell("[]");
    Reload(10);
}

/// What the process holds.
struct Usage {
    std::size_t handles = OpenHandles();
    std::size_t privateBytes = PrivateBytes();
    std::size_t heapBytes = HeapBytesInUse();
};

TEST(Reload, LeavesNeitherHandlesNorMemoryBehind) {
    constexpr std::size_t kTimes = 100;
    constexpr std::size_t kNoise = std::size_t{64} << 10;  // of the process as a whole, not of each time
    constexpr std::size_t kFewHandles = kTimes / 4;  // what a PowerShell leaves that Wine failed to start
    const ScriptedPowerShell powerShell("[]");
    Reload(3);
    const Usage before;
    Reload(kTimes);
    const Usage after;
    EXPECT_LE(after.handles, before.handles + kFewHandles);
    EXPECT_LE(after.heapBytes, before.heapBytes + kNoise);
    EXPECT_LE(after.privateBytes, before.privateBytes + kNoise);
}

}  // namespace
}  // namespace SMBIOS::Tests
