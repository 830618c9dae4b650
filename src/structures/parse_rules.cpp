#include "structures/parse_rules.h"

#include <stdexcept>

#include "common/message_exception.h"
#include "structures/formatted_area.h"

namespace SMBIOS::Structures {

namespace {

constexpr std::size_t kHeaderSize = 4;
constexpr const char* kMalformed =
    "Malformed or corrupted structure. Maybe a version outside the interval this lib supports [2.0.0, 3.8.0]";

}  // namespace

void CheckHeader(const std::vector<std::uint8_t>& formattedBytes) {
    if (formattedBytes.size() < kHeaderSize) {
        throw Common::MessageException(kMalformed);
    }
}

void CheckStructure(const ParseRules& rules,
                    SmbiosVersionIndex version,
                    const std::vector<std::uint8_t>& formattedBytes) {
    if (formattedBytes.empty()) {
        throw std::runtime_error("Invalid structure format pointer");
    }
    CheckHeader(formattedBytes);
    const std::uint8_t length = FormattedArea(formattedBytes).Length();
    if (!rules.lengths.Contains(length) || !rules.versions.Contains(version)) {
        throw Common::MessageException(kMalformed);
    }
    for (const Gate& gate : rules.gates) {
        if (gate.lengths.Contains(length) && gate.versions.Contains(version)) {
            throw Common::MessageException(gate.message);
        }
    }
}

}  // namespace SMBIOS::Structures
