#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/command_runner.h"
#include "platform/firmware_table.h"

namespace SMBIOS::Tests {

/// Stands in for the machine's firmware table while it lives.
class FakeFirmwareTable final : public Platform::FirmwareTable {
public:
    explicit FakeFirmwareTable(std::vector<std::uint8_t> table = {}) : table_(std::move(table)) {
        Platform::UseFirmwareTable(this);
    }
    ~FakeFirmwareTable() { Platform::UseFirmwareTable(nullptr); }

    std::uint32_t Read(std::uint32_t provider,
                       std::uint32_t tableId,
                       std::span<std::uint8_t> buffer) override;

    void Supply(std::vector<std::uint8_t> table) { table_ = std::move(table); }

    /// What the second call, the one that fills the buffer, claims to have written.
    void ClaimToFill(std::uint32_t size) { claimedSize_ = size; }

    /// Runs `action` in the middle of every load: within the first call, the one that asks for the size.
    void DuringSizeQuery(std::function<void()> action) { duringSizeQuery_ = std::move(action); }

    [[nodiscard]] int SizeQueries() const noexcept { return sizeQueries_; }

    /// Whether the buffer of the latest second call came filled with zeros.
    [[nodiscard]] bool WasGivenZeros() const noexcept { return wasGivenZeros_; }

private:
    std::vector<std::uint8_t> table_;
    std::optional<std::uint32_t> claimedSize_;
    std::function<void()> duringSizeQuery_ = [] {};
    int sizeQueries_ = 0;
    bool wasGivenZeros_ = false;
};

/// Stands in for PowerShell while it lives: notes every command line and answers with a prepared text.
class FakeCommandRunner final : public Platform::CommandRunner {
public:
    FakeCommandRunner() { Platform::UseCommandRunner(this); }
    ~FakeCommandRunner() { Platform::UseCommandRunner(nullptr); }

    [[nodiscard]] std::unique_ptr<Platform::ProgramOutput> Start(const std::string& commandLine) override;

    void Answer(std::string output) { answer_ = std::move(output); }
    void FailToStart() { answer_.reset(); }

    [[nodiscard]] const std::vector<std::string>& CommandLines() const noexcept { return commandLines_; }

private:
    std::optional<std::string> answer_ = std::string();
    std::vector<std::string> commandLines_;
};

}  // namespace SMBIOS::Tests
