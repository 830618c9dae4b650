#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What is drawn of a machine. Texts can be drawn as they are; an empty one stands for what nobody knows.
// Tooltips have several lines.
namespace SMBIOS::Inspect::Picture {

/// So many boxes of a kind are drawn; of more it is said how many there are. No machine has as many of
/// anything.
inline constexpr std::size_t kMostOfAKind = 512;

/// The first of many, and how many there are besides.
template <class Thing>
struct Kept {
    std::vector<Thing> items = {};
    std::size_t leftOut = 0;

    void Add(Thing thing) {
        if (HasRoom()) {
            items.push_back(std::move(thing));
        } else {
            ++leftOut;
        }
    }

    [[nodiscard]] bool HasRoom() const noexcept { return items.size() < kMostOfAKind; }
    [[nodiscard]] std::size_t Count() const noexcept { return items.size() + leftOut; }
};

/// A box of a few lines: its name, and what else is to be said of it.
struct Note {
    std::string kind = {};
    std::string name = {};
    std::vector<std::string> details = {};
    std::string tooltip = {};
};

struct Cache {
    std::string text = {};  ///< "L2 3 MiB"
    std::string tooltip = {};
};

struct Processor {
    std::string socket;
    std::string name;
    std::string detail;   ///< cores, threads, speed
    std::string warning;  ///< why it is not at work
    bool isPopulated = false;
    std::size_t cores = 0;
    std::size_t coresEnabled = 0;
    std::size_t threads = 0;
    std::vector<std::vector<Cache>> cacheLevels;  ///< the outermost first
    std::string tooltip;
};

enum class MemoryKind : std::uint8_t { older, ddr3, ddr4, ddr5, other };

/// How large a module is beside the largest of the machine: less than half, less, as large.
enum class MemoryStep : std::uint8_t { small, medium, large };

struct MemoryDevice {
    std::string locator;
    std::string bank;
    std::string module;  ///< "16 GiB DDR4"
    std::string speed;
    bool isFilled = false;
    std::uint64_t bytes = 0;
    MemoryKind kind = MemoryKind::other;
    MemoryStep step = MemoryStep::small;
    std::string tooltip;
};

/// How many slots there are, how many of them are filled, and with how much.
struct MemoryTotals {
    std::size_t slots = 0;
    std::size_t filled = 0;
    std::uint64_t bytes = 0;
};

struct MemoryArray {
    std::string name = {};
    std::optional<std::uint64_t> mostBytes = {};
    MemoryTotals totals = {};
    std::vector<MemoryDevice> devices = {};  ///< in slot order; those of `totals` that are drawn
    std::string tooltip = {};
};

enum class Usage : std::uint8_t { unknown, free, inUse };

struct Slot {
    std::string name;
    std::string type;
    std::string usageText;
    Usage usage = Usage::unknown;
    unsigned lanes = 0;  ///< or what is as wide; 0 for none that is known
    std::string tooltip;
};

enum class Health : std::uint8_t { unknown, good, warning, critical };

/// A device on board, a probe, a fan or a connector.
struct Part {
    std::string name = {};
    std::string detail = {};
    bool isPresent = true;  ///< or enabled, or accessible from outside
    Health health = Health::unknown;
    std::string tooltip = {};
};

struct Machine {
    Note title;
    std::vector<Note> notes;
    Kept<Processor> processors;
    std::size_t socketsFilled = 0;
    std::uint64_t cores = 0;
    std::uint64_t threads = 0;
    Kept<MemoryArray> arrays;
    MemoryTotals systemMemory;
    Kept<Slot> slots;
    std::size_t slotsFree = 0;
    Kept<Part> onBoard;
    Kept<Part> sensors;
    Kept<Part> connectors;
};

}  // namespace SMBIOS::Inspect::Picture
