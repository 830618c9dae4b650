#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/command_runner.h"
#include "platform/firmware_table.h"

namespace SMBIOS::Tests {

/// A machine that any number of threads may ask at once, in place of the real one while it lives: its table,
/// and a PowerShell that completes every device and every processor of the table.
class Machine final : Platform::FirmwareTable, Platform::CommandRunner {
public:
    Machine();
    ~Machine();

    /// Lets the first `count` attempts to read the table fail.
    void FailFirst(int count) { failures_ = count; }

    /// Number of attempts to read the table.
    [[nodiscard]] int Attempts() const { return attempts_; }

private:
    std::uint32_t Read(std::uint32_t provider,
                       std::uint32_t tableId,
                       std::span<std::uint8_t> buffer) override;
    [[nodiscard]] std::unique_ptr<Platform::ProgramOutput> Start(const std::string& commandLine) override;

    const std::vector<std::uint8_t> table_;
    std::atomic<int> failures_ = 0;
    std::atomic<int> attempts_ = 0;
};

/// What is asked of the machine above, and what it answers.
inline constexpr std::size_t kDevices = 4;
inline constexpr std::size_t kProcessors = 2;

/// Serial number of device `number`, too long for a string to keep within itself.
[[nodiscard]] std::string SerialNumberOf(std::size_t number);

}  // namespace SMBIOS::Tests
