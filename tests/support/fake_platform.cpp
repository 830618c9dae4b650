#include "tests/support/fake_platform.h"

#include <algorithm>

#include "tests/support/prepared_output.h"

namespace SMBIOS::Tests {

std::uint32_t FakeFirmwareTable::Read(std::uint32_t provider,
                                      std::uint32_t tableId,
                                      std::span<std::uint8_t> buffer) {
    if (provider != Platform::kRawSmbiosProvider || tableId != Platform::kRawSmbiosTableId) {
        return 0;
    }
    const auto size = static_cast<std::uint32_t>(table_.size());
    if (buffer.empty()) {
        ++sizeQueries_;
        duringSizeQuery_();
        return size;
    }
    wasGivenZeros_ = std::ranges::all_of(buffer, [](std::uint8_t byte) { return byte == 0; });
    std::copy_n(table_.begin(), std::min(table_.size(), buffer.size()), buffer.begin());
    return claimedSize_.value_or(size);
}

std::unique_ptr<Platform::ProgramOutput> FakeCommandRunner::Start(const std::string& commandLine) {
    commandLines_.push_back(commandLine);
    return answer_ ? std::make_unique<PreparedOutput>(*answer_) : nullptr;
}

}  // namespace SMBIOS::Tests
