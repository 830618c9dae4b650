#include "structures/probe.h"

namespace SMBIOS::Structures {

namespace {

constexpr std::uint8_t kLengthWithNominalValue = 0x15;

std::optional<float> ReadingOf(std::uint16_t word, float factor) {
    constexpr std::uint16_t kUnknownReading = 0x8000;
    if (word == kUnknownReading) {
        return std::nullopt;
    }
    return static_cast<float>(word) * factor;  // departs from the standard: no reading is negative
}

}  // namespace

void DecodeProbe(const StructureReader& in,
                 std::span<const Common::TextRow<std::uint8_t>> locations,
                 const ProbeFactors& factors,
                 ProbeRecord& record) {
    const auto status = static_cast<std::uint8_t>(in.Byte(0x05) >> 5);
    const auto location = static_cast<std::uint8_t>(in.Byte(0x05) & 0x1F);

    record.oemDefined = in.Dword(0x10);
    record.status = kProbeStatusNames[status];
    record.location = Common::FindText(locations, location).value_or("");
    record.description = in.String(0x04);
    record.maximumValue = ReadingOf(in.Word(0x06), factors.value);
    record.minimumValue = ReadingOf(in.Word(0x08), factors.value);
    record.resolution = ReadingOf(in.Word(0x0A), factors.resolution);
    record.tolerance = ReadingOf(in.Word(0x0C), factors.tolerance);
    record.accuracy = ReadingOf(in.Word(0x0E), factors.accuracy);
    // Departs from the standard: a structure that holds only the low byte of the word has the value too.
    if (in.Length() >= kLengthWithNominalValue) {
        record.nominalValue = ReadingOf(in.Word(0x14), factors.value);
    }
}

}  // namespace SMBIOS::Structures
