#include "smbios-inspect/record_wording.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "smbios-inspect/memory_size.h"
#include "smbios-inspect/record_text.h"
#include "smbios-inspect/units.h"
#include "structures/formatted_area.h"

namespace SMBIOS::Inspect {

using Structures::FormattedArea;

namespace {

constexpr std::uint64_t kKilobyte = 1024;

/// Where the DWORD at `offset` is all ones, the address stands elsewhere and in bytes.
Lines AddressText(const std::string& address, const std::vector<std::uint8_t>& rawBytes, std::size_t offset) {
    if (address.empty()) {
        return {};
    }
    const bool isInBytes = FormattedArea(rawBytes).Dword(offset) == 0xFFFFFFFF;
    return {address + (isInBytes ? "" : " KiB")};
}

}  // namespace

Lines RawBytesOfFailure(const Structures::StructureRecord& record) {
    return record.error.empty() ? Lines() : RecordText::LinesOf(record.rawBytes);
}

Lines CacheLevelText(const Structures::Type7::Types::Type7Struct& record) {
    return {"L" + std::to_string(record.cacheLevel + 1)};
}

Lines CacheLocationText(const Structures::Type7::Types::Type7Struct& record) {
    if (!record.cacheLocation) {
        return {};
    }
    return {*record.cacheLocation == 0 ? "Internal (0)" : "External (1)"};
}

Lines MaximumCapacityText(const Structures::Type16::Types::Type16Struct& record) {
    if (!record.maximumCapacity) {
        return {};
    }
    const bool isExtended = FormattedArea(record.rawBytes).Dword(0x07) == 0;
    return {ByteSizeText(*record.maximumCapacity * (isExtended ? 1 : kKilobyte))};
}

Lines DeviceSizeText(const Structures::Type17::Types::Type17Struct& record) {
    const std::optional<std::uint64_t> bytes = MemoryDeviceBytes(record.size, record.rawBytes);
    return bytes ? Lines{ByteSizeText(*bytes)} : Lines();
}

Lines ArrayStartText(const Structures::Type19::Types::Type19Struct& record) {
    return AddressText(record.startingAddress, record.rawBytes, 0x04);
}

Lines ArrayEndText(const Structures::Type19::Types::Type19Struct& record) {
    return AddressText(record.endingAddress, record.rawBytes, 0x08);
}

Lines DeviceStartText(const Structures::Type20::Types::Type20Struct& record) {
    return AddressText(record.startingAddress, record.rawBytes, 0x04);
}

Lines DeviceEndText(const Structures::Type20::Types::Type20Struct& record) {
    return AddressText(record.endingAddress, record.rawBytes, 0x08);
}

Lines VendorIdText(const Structures::Type43::Types::Type43Struct& record) {
    const std::size_t last = record.vendorId.find_last_not_of('\0');
    return last == std::string::npos ? Lines() : Lines{record.vendorId.substr(0, last + 1)};
}

}  // namespace SMBIOS::Inspect
