#include "smbios-inspect/records/record_fields_memory.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "smbios-inspect/output/units.h"
#include "smbios-inspect/records/memory_size.h"
#include "smbios-inspect/records/record_writer_definition.h"
#include "structures/formatted_area.h"
#include "structures/hex_text.h"

namespace SMBIOS::Inspect {

namespace {

using Structures::FormattedArea;

constexpr std::uint64_t kKilobyte = 1024;

/// The address of a byte. The DWORD at `offset` counts kilobytes, of which the byte is the first or the last;
/// where it is all ones, the address stands elsewhere and in bytes.
std::string AddressText(const std::string& address,
                        const std::vector<std::uint8_t>& rawBytes,
                        std::size_t offset,
                        std::uint64_t byteOfKilobyte) {
    constexpr std::size_t kLeastDigits = 8;
    if (address.empty()) {
        return {};
    }
    const std::uint64_t kilobytes = FormattedArea(rawBytes).Dword(offset);
    const bool isInBytes = kilobytes == 0xFFFFFFFF;
    return isInBytes ? address
                     : Structures::PaddedHexText(kilobytes * kKilobyte + byteOfKilobyte, kLeastDigits);
}

}  // namespace

std::string MaximumCapacityText(const Structures::Type16::Types::Type16Struct& record) {
    if (!record.maximumCapacity) {
        return {};
    }
    const bool isExtended = FormattedArea(record.rawBytes).Dword(0x07) == 0;
    return ByteSizeText(*record.maximumCapacity * (isExtended ? 1 : kKilobyte));
}

std::string DeviceSizeText(const Structures::Type17::Types::Type17Struct& record) {
    const std::optional<std::uint64_t> bytes = MemoryDeviceBytes(record.size, record.rawBytes);
    return bytes ? ByteSizeText(*bytes) : std::string();
}

std::string ArrayStartText(const Structures::Type19::Types::Type19Struct& record) {
    return AddressText(record.startingAddress, record.rawBytes, 0x04, 0);
}

std::string ArrayEndText(const Structures::Type19::Types::Type19Struct& record) {
    return AddressText(record.endingAddress, record.rawBytes, 0x08, kKilobyte - 1);
}

std::string DeviceStartText(const Structures::Type20::Types::Type20Struct& record) {
    return AddressText(record.startingAddress, record.rawBytes, 0x04, 0);
}

std::string DeviceEndText(const Structures::Type20::Types::Type20Struct& record) {
    return AddressText(record.endingAddress, record.rawBytes, 0x08, kKilobyte - 1);
}

template RecordWriter WriterOf<Structures::Type_16>();
template RecordWriter WriterOf<Structures::Type_17>();
template RecordWriter WriterOf<Structures::Type_18>();
template RecordWriter WriterOf<Structures::Type_19>();
template RecordWriter WriterOf<Structures::Type_20>();
template RecordWriter WriterOf<Structures::Type_33>();

}  // namespace SMBIOS::Inspect
