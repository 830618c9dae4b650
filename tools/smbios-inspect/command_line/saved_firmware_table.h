#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/command_runner.h"
#include "platform/firmware_table.h"

namespace SMBIOS::Inspect {

/// A raw table in memory in the place of the machine's.
class SavedFirmwareTable final : public Platform::FirmwareTable {
public:
    explicit SavedFirmwareTable(std::vector<std::uint8_t> rawTable) : rawTable_(std::move(rawTable)) {}

    std::uint32_t Read(std::uint32_t provider,
                       std::uint32_t tableId,
                       std::span<std::uint8_t> buffer) override;

private:
    std::vector<std::uint8_t> rawTable_;
};

/// Starts nothing.
class NoCommandRunner final : public Platform::CommandRunner {
public:
    [[nodiscard]] std::unique_ptr<Platform::ProgramOutput> Start(const std::string&) override {
        return nullptr;
    }
};

}  // namespace SMBIOS::Inspect
