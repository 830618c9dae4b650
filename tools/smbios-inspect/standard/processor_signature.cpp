#include "smbios-inspect/standard/processor_signature.h"

#include <algorithm>
#include <array>
#include <string>

#include "smbios-inspect/standard/forms.h"

namespace SMBIOS::Inspect::Standard {

namespace {

enum class IdKind : std::uint8_t { unknown, i386, i486, intel, amd, arm };

struct FamilyRange {
    std::uint64_t first;
    std::uint64_t last;
    IdKind kind;
};

constexpr auto kFamilyRanges = std::to_array<FamilyRange>({
    {0x05, 0x05, IdKind::i386},    {0x06, 0x06, IdKind::i486},
    {0x0B, 0x15, IdKind::intel},    // Pentium to Pentium 4 HT
    {0x18, 0x1D, IdKind::amd},      // Duron to Athlon
    {0x1F, 0x1F, IdKind::amd},      // K6-2+
    {0x28, 0x2F, IdKind::intel},    // Core Duo to Core m7
    {0x38, 0x3F, IdKind::amd},      // Turion II to FX
    {0x46, 0x4F, IdKind::amd},      // C-Series to FirePro
    {0x66, 0x6B, IdKind::amd},      // Athlon X4 to Zen
    {0x83, 0x8F, IdKind::amd},      // Athlon 64 to Athlon X2
    {0xA1, 0xB3, IdKind::intel},    // Xeon 3200 to Xeon
    {0xB5, 0xB5, IdKind::intel},    // Xeon MP
    {0xB6, 0xB7, IdKind::amd},      // Athlon XP and MP
    {0xB9, 0xC7, IdKind::intel},    // Pentium M to Dual-Core Celeron
    {0xCD, 0xD0, IdKind::intel},    // Core i5 to Xeon D
    {0xD2, 0xDB, IdKind::intel},    // C7-M to Xeon 5xxx
    {0xDD, 0xE0, IdKind::intel},    // Xeon 7xxx to Xeon 3400
    {0xE4, 0xEF, IdKind::amd},      // Opteron 3000 to Sempron M
    {0x100, 0x102, IdKind::arm},    // ARMv7 to ARMv9
    {0x118, 0x119, IdKind::arm},    // ARM and StrongARM
    {0x300, 0x307, IdKind::intel},  // Core 3 to Core Ultra 9
});

IdKind KindOf(std::uint64_t family) noexcept {
    const auto range = std::ranges::find_if(
        kFamilyRanges, [=](const FamilyRange& each) { return each.first <= family && family <= each.last; });
    return range == kFamilyRanges.end() ? IdKind::unknown : range->kind;
}

std::string BitsText(std::uint64_t id, unsigned low, unsigned count) {
    return std::to_string(id >> low & ((1U << count) - 1));
}

/// Family, model and stepping as the processor's own instruction gives them.
std::string FamilyModelStepping(std::uint64_t id) {
    const std::uint64_t family = (id >> 8 & 0x0F) + (id >> 20 & 0xFF);
    const std::uint64_t model = (id >> 4 & 0x0F) + (id >> 12 & 0xF0);
    return "Family " + std::to_string(family) + ", Model " + std::to_string(model) + ", Stepping " +
           BitsText(id, 0, 4);
}

/// AMD extends family and model only where the family is 15.
std::string AmdSignature(std::uint64_t id) {
    constexpr std::uint64_t kExtended = 0x0F;
    if ((id >> 8 & kExtended) == kExtended) {
        return FamilyModelStepping(id);
    }
    return FamilyModelStepping(id & 0x0FFF);
}

std::string ArmSignature(std::uint64_t id) {
    const auto hex = [&](unsigned low, unsigned count, std::size_t digits) {
        std::string text = HexText(id >> low & ((1U << count) - 1), digits);
        std::ranges::transform(text, text.begin(), [](char c) {
            return 'A' <= c && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c;
        });
        return text;
    };
    return "Implementor " + hex(24, 8, 2) + ", Variant " + hex(20, 4, 1) + ", Architecture " +
           BitsText(id, 16, 4) + ", Part " + hex(4, 12, 3) + ", Revision " + BitsText(id, 0, 4);
}

}  // namespace

Value SignatureOf(std::uint64_t family, std::uint64_t id) {
    switch (KindOf(family)) {
        case IdKind::i386:
            return Text("Type " + BitsText(id, 12, 4) + ", Family " + BitsText(id, 8, 4) +
                        ", Major Stepping " + BitsText(id, 4, 4) + ", Minor Stepping " + BitsText(id, 0, 4));
        case IdKind::i486:
            return Text("Type " + BitsText(id, 12, 2) + ", Family " + BitsText(id, 8, 4) + ", Model " +
                        BitsText(id, 4, 4) + ", Stepping " + BitsText(id, 0, 4));
        case IdKind::intel:
            return Text("Type " + BitsText(id, 12, 2) + ", " + FamilyModelStepping(id));
        case IdKind::amd:
            return Text(AmdSignature(id));
        case IdKind::arm:
            return Text(ArmSignature(id));
        case IdKind::unknown:
            break;
    }
    return Nothing("Not Applicable");
}

bool HasFeatureFlags(std::uint64_t family) noexcept {
    const IdKind kind = KindOf(family);
    return kind == IdKind::intel || kind == IdKind::amd;
}

}  // namespace SMBIOS::Inspect::Standard
