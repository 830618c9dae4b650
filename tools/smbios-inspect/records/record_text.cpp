#include "smbios-inspect/records/record_text.h"

#include "common/format.h"
#include "smbios-inspect/records/record_fields_system.h"

namespace SMBIOS::Inspect {

Lines RecordText::LinesOf(float number) {
    return {Common::format("{:.6g}", number)};
}

Lines RecordText::LinesOf(const std::vector<std::uint8_t>& bytes) {
    Lines texts;
    for (const std::uint8_t byte : bytes) {
        texts.push_back(Common::format("{:02x}", byte));
    }
    return texts.empty() ? Lines() : Lines{Joined(texts, " ")};
}

Lines RecordText::LinesOf(const Common::Dynamic_BitSet& flags, UnnamedBits bits) {
    Lines names;
    for (std::size_t bit = 0; bit < flags.GetBitCount(); ++bit) {
        if (!flags.Test(bit)) {
            continue;
        }
        const char* const name = flags.GetBitName(bit);
        const Lines word = WordFor(static_cast<int>(bit), bits.other, bits.unknown);
        if (name != nullptr) {
            names.emplace_back(name);
        } else {
            names.push_back(word.empty() ? "bit " + std::to_string(bit) : word.front());
        }
    }
    return {names.empty() ? "none" : Joined(names, ", ")};
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

Lines RecordText::WordFor(int number, int other, int unknown) {
    if (number == unknown) {
        return {"Unknown"};
    }
    return number == other ? Lines{"Other"} : Lines();
}

std::string RecordText::Joined(const Lines& texts, const char* separator) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += joined.empty() ? text : separator + text;
    }
    return joined;
}

}  // namespace SMBIOS::Inspect
