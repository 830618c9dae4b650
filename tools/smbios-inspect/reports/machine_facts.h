#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "smbios-inspect/standard/field_values.h"

// What a table says of its machine in few words, as the SMBIOS standard has it. Texts are the firmware's own,
// and empty where it gives none; sizes are in bytes.
namespace SMBIOS::Inspect {

struct FirmwareFacts {
    std::string vendor;
    std::string version;
    std::string release;  ///< major and minor number
    std::string releaseDate;
    std::optional<std::uint64_t> romSize;
};

/// A system, a board or a chassis, whose name is its type.
struct ProductFacts {
    std::string manufacturer;
    std::string name;
    std::string version;
    std::string serialNumber;
};

struct SystemFacts {
    ProductFacts product;
    std::string uuid;
};

struct ProcessorFacts {
    static constexpr std::size_t kCacheLevels = 3;

    std::string socket;
    bool isPopulated = true;
    std::string name;
    std::string status;
    std::optional<std::uint64_t> cores;
    std::optional<std::uint64_t> coresEnabled;
    std::optional<std::uint64_t> threads;
    std::array<std::optional<std::uint64_t>, kCacheLevels> installedCaches;  ///< level 1 first
};

/// What is in a memory slot.
struct ModuleFacts {
    std::string locator;
    std::uint64_t size = 0;
    std::string type;
    std::string formFactor;
    std::optional<std::uint64_t> speed;  ///< MT/s: at which it runs, or else the highest
};

/// The machine's own memory, without that of graphics, firmware and the like.
struct MemoryFacts {
    std::size_t slots = 0;
    std::size_t freeSlots = 0;
    std::size_t unknownSlots = 0;  ///< of which the firmware does not say what size is in them
    std::uint64_t size = 0;
    std::optional<std::uint64_t> maximum;  ///< that the arrays take
    std::vector<ModuleFacts> modules;
};

struct MachineFacts {
    std::vector<FirmwareFacts> firmware;
    std::vector<SystemFacts> systems;
    std::vector<ProductFacts> boards;
    std::vector<ProductFacts> chassis;
    std::vector<ProcessorFacts> processors;
    MemoryFacts memory;
};

/// Whether a socket with these fields holds a processor; one that the firmware says nothing of does.
[[nodiscard]] bool IsPopulatedSocket(const Standard::FieldValues& processor);

/// The facts of a raw table, its header included.
[[nodiscard]] MachineFacts MachineFactsOf(std::span<const std::uint8_t> rawTable);

}  // namespace SMBIOS::Inspect
