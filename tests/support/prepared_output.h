#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/command_runner.h"

namespace SMBIOS::Tests {

/// What a program prints that never ran: a text that is there at once, in one piece.
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

}  // namespace SMBIOS::Tests
