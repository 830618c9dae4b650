#include "smbios-inspect/records/record_text.h"

#include <array>
#include <bit>
#include <charconv>

#include "common/format.h"
#include "smbios-inspect/records/record_fields_system.h"

namespace SMBIOS::Inspect {

Lines RecordText::LinesOf(float number) {
    return {Common::format("{:.6g}", number)};
}

Lines RecordText::LinesOf(const std::vector<std::uint8_t>& bytes) {
    return bytes.empty() ? Lines() : Lines{HexadecimalText(bytes, " ")};
}

Lines RecordText::LinesOf(const Common::Dynamic_BitSet& flags, UnnamedBits bits) {
    std::string names;
    for (std::uint64_t rest = WordOf(flags); rest != 0; rest &= rest - 1) {
        const auto bit = static_cast<std::size_t>(std::countr_zero(rest));
        names += names.empty() ? "" : ", ";
        const char* const name = flags.GetBitName(bit);
        if (name != nullptr) {
            names += name;
        } else {
            const std::string_view word = WordFor(static_cast<int>(bit), bits.other, bits.unknown);
            names.append(word.empty() ? "bit " + std::to_string(bit) : std::string(word));
        }
    }
    return {names.empty() ? "none" : std::move(names)};
}

Lines RecordText::LinesOf(const Structures::Type3::Types::ContainedElements& elements) {
    Lines lines;
    for (std::size_t i = 0; i < elements.CountWithinStructure(); ++i) {
        lines.push_back(Joined(LinesOf(elements.At(i)), ", "));
    }
    if (const std::size_t more = elements.Count() - lines.size(); more != 0) {
        lines.push_back("and " + std::to_string(more) + " past the end of the structure");
    }
    return lines;
}

std::string RecordText::WithNumber(std::string_view text, int number) {
    std::array<char, 16> behind = {' ', '('};
    char* end = std::to_chars(behind.data() + 2, behind.data() + behind.size() - 1, number).ptr;
    *end++ = ')';
    const auto size = static_cast<std::size_t>(end - behind.data());
    std::string line;
    line.reserve(text.size() + size);
    line.append(text).append(behind.data(), size);
    return line;
}

std::string_view RecordText::WordFor(int number, int other, int unknown) noexcept {
    if (number == unknown) {
        return "Unknown";
    }
    return number == other ? "Other" : "";
}

std::string RecordText::Joined(const Lines& texts, const char* separator) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += joined.empty() ? text : separator + text;
    }
    return joined;
}

}  // namespace SMBIOS::Inspect
