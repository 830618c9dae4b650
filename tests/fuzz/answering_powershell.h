#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/command_runner.h"

namespace SMBIOS::Fuzz {

/// An answer in pieces that are shorter than most of its words.
class AnswerInPieces final : public Platform::ProgramOutput {
public:
    explicit AnswerInPieces(std::string_view rest) noexcept : rest_(rest) {}

    [[nodiscard]] std::optional<std::string_view> NextPiece() override {
        constexpr std::size_t kLargestPiece = 7;
        if (rest_.empty()) {
            return std::nullopt;
        }
        const std::string_view piece = rest_.substr(0, kLargestPiece);
        rest_.remove_prefix(piece.size());
        return piece;
    }

private:
    std::string_view rest_;
};

/// Stands in for PowerShell while it lives, and answers everything alike.
class AnsweringPowerShell final : public Platform::CommandRunner {
public:
    explicit AnsweringPowerShell(std::string_view answer) : answer_(answer) {
        Platform::UseCommandRunner(this);
    }
    ~AnsweringPowerShell() { Platform::UseCommandRunner(nullptr); }

    [[nodiscard]] std::unique_ptr<Platform::ProgramOutput> Start(const std::string&) override {
        return std::make_unique<AnswerInPieces>(answer_);
    }

private:
    std::string_view answer_;
};

}  // namespace SMBIOS::Fuzz
