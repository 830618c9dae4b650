#include "tests/windows/served_table.h"

#include <algorithm>
#include <cstddef>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <utility>

#include "tests/windows/portable_executable.h"

namespace SMBIOS::Tests {

namespace {

constexpr DWORD kRawSmbiosProvider = 0x52534D42;

/// What is served: the function in the import table has no other way to know.
struct Service {
    std::mutex lock;
    std::vector<std::uint8_t> table;
    std::optional<std::vector<std::uint8_t>> nextTable;
    int sizeQueries = 0;
    int reads = 0;
};

Service service;

void CountCall(bool asksForSize) {
    ++(asksForSize ? service.sizeQueries : service.reads);
}

UINT WINAPI Answer(DWORD provider, DWORD, PVOID buffer, DWORD size) {
    if (provider != kRawSmbiosProvider) {
        return 0;
    }
    const std::scoped_lock lock(service.lock);
    const bool asksForSize = buffer == nullptr || size == 0;
    CountCall(asksForSize);
    const auto required = static_cast<UINT>(service.table.size());
    if (size >= required) {
        std::ranges::copy(service.table, static_cast<std::uint8_t*>(buffer));
    }
    if (asksForSize && service.nextTable) {
        service.table = *std::exchange(service.nextTable, std::nullopt);
    }
    return required;
}

const ULONGLONG* SlotOf(HMODULE library) {
    const ImageView image(reinterpret_cast<const std::byte*>(library));
    const ULONGLONG* const slot = image.ImportSlot("GetSystemFirmwareTable");
    if (slot == nullptr) {
        throw std::runtime_error("the library does not import GetSystemFirmwareTable");
    }
    return slot;
}

void Redirect(const ULONGLONG* slot, ULONGLONG function) {
    auto* const writableSlot = const_cast<ULONGLONG*>(slot);
    DWORD formerProtection = 0;
    ::VirtualProtect(writableSlot, sizeof(*slot), PAGE_READWRITE, &formerProtection);
    *writableSlot = function;
    ::VirtualProtect(writableSlot, sizeof(*slot), formerProtection, &formerProtection);
}

}  // namespace

ServedTable::ServedTable(std::vector<std::uint8_t> table)
    : ServedTable(::GetModuleHandleW(L"vantor-shared-smbios-v2.dll"), std::move(table)) {}

ServedTable::ServedTable(HMODULE library, std::vector<std::uint8_t> table)
    : slot_(SlotOf(library)), formerFunction_(*slot_) {
    Serve(std::move(table));
    service.sizeQueries = 0;
    service.reads = 0;
    Redirect(slot_, reinterpret_cast<ULONGLONG>(&Answer));
}

ServedTable::~ServedTable() {
    Redirect(slot_, formerFunction_);
}

void ServedTable::Serve(std::vector<std::uint8_t> table) {
    const std::scoped_lock lock(service.lock);
    service.table = std::move(table);
    service.nextTable.reset();
}

void ServedTable::ServeAfterSizeQuery(std::vector<std::uint8_t> table) {
    const std::scoped_lock lock(service.lock);
    service.nextTable = std::move(table);
}

int ServedTable::SizeQueries() const noexcept {
    return service.sizeQueries;
}

int ServedTable::Reads() const noexcept {
    return service.reads;
}

}  // namespace SMBIOS::Tests
