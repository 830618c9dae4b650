#include "tests/support/fake_platform.h"

#include <algorithm>

namespace SMBIOS::Tests {

namespace {

/// A text that is there at once, in one piece.
class PreparedOutput final : public Platform::ProgramOutput {
public:
    explicit PreparedOutput(std::string text) : text_(std::move(text)) {}

    [[nodiscard]] std::optional<std::string_view> NextPiece() override {
        return std::exchange(isRead_, true) ? std::nullopt : std::optional<std::string_view>(text_);
    }

private:
    std::string text_;
    bool isRead_ = false;
};

}  // namespace

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
