#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/raw_table_header.h"
#include "smbios-inspect/output/output_style.h"
#include "tests/support/fake_platform.h"

namespace SMBIOS::Fuzz {

/// A raw table as the fuzzer gives it, in the place of the machine's while it lives. Bytes of its header
/// that the library does not look at say how it is shown.
class GivenTable {
public:
    explicit GivenTable(std::span<const std::uint8_t> table)
        : table_(table), firmware_({table.begin(), table.end()}) {}

    /// A shorter one is refused at once, and there is nothing to show.
    [[nodiscard]] static bool IsOne(std::span<const std::uint8_t> input) noexcept {
        return input.size() > Platform::RawTableHeader::kSize;
    }

    [[nodiscard]] Inspect::OutputStyle Style() const noexcept { return {.width = table_[kCallingMethod]}; }
    [[nodiscard]] bool IsQuiet() const noexcept { return table_[kLength] % 2 != 0; }
    [[nodiscard]] bool HasBytes() const noexcept { return table_[kLength] % 4 >= 2; }

private:
    static constexpr std::size_t kCallingMethod = 0;
    static constexpr std::size_t kLength = 4;

    std::span<const std::uint8_t> table_;
    Tests::FakeFirmwareTable firmware_;
};

}  // namespace SMBIOS::Fuzz
