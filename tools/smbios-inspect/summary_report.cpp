#include "smbios-inspect/summary_report.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "parsers/decoded_records.h"
#include "smbios-inspect/memory_size.h"
#include "smbios-inspect/structure_count.h"
#include "smbios-inspect/text_layout.h"
#include "smbios-inspect/units.h"
#include "structures/string_lookup.h"
#include "structures/type_0.h"
#include "structures/type_1.h"
#include "structures/type_16.h"
#include "structures/type_17.h"
#include "structures/type_2.h"
#include "structures/type_3.h"
#include "structures/type_4.h"
#include "structures/type_7.h"

namespace SMBIOS::Inspect {

using Manager::SmbiosManager;
using Manager::Types::StructureTypes;
using Structures::StructureRecord;
using Structures::Type0::Types::Type0Struct;
using Structures::Type16::Types::Type16Struct;
using Structures::Type17::Types::Type17Struct;
using Structures::Type3::Types::Type3Struct;
using Structures::Type4::Types::Type4Struct;
using Structures::Type7::Types::Type7Struct;

namespace {

/// What is said of one thing, part by part.
using Item = std::vector<std::string>;

std::string Joined(const std::vector<std::string>& texts, std::string_view separator) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() || text.empty() ? std::string() : std::string(separator)) + text;
    }
    return joined;
}

std::string Prefixed(std::string_view prefix, const std::string& text) {
    return text.empty() ? std::string() : std::string(prefix) + text;
}

/// "1 core", "12 cores"; nothing for a number that is absent.
template <class Number>
std::string Counted(const std::optional<Number>& number, const std::string& noun) {
    return number ? std::to_string(*number) + " " + noun + (*number == 1 ? "" : "s") : std::string();
}

/// Prints labels with their items beside them. Equal items share a line.
class Printer {
public:
    Printer(const OutputStyle& style, std::ostream& output) : style_(style), output_(output) {}

    void Print(std::string_view label, const std::vector<Item>& items) {
        label_ = label;
        for (const Item& item : items) {
            const bool isFirstOfItsKind = &item == &*std::ranges::find(items, item);
            if (isFirstOfItsKind) {
                PrintItem(item, static_cast<std::size_t>(std::ranges::count(items, item)));
            }
        }
        if (items.empty()) {
            PrintLine("not reported");
        }
    }

    /// Prints a line of its own below what was printed last.
    void PrintWarning(const std::string& text) {
        for (const std::string& line : Lines({text})) {
            PrintLine(Emphasised(line, Emphasis::warning, style_));
        }
    }

private:
    static constexpr std::size_t kLabelWidth = 12;
    static constexpr std::string_view kContinuation = "  ";

    void PrintItem(Item item, std::size_t count) {
        std::erase(item, "");
        if (item.empty()) {
            item = {"nothing is known of it"};
        }
        if (count > 1) {
            item.front() = std::to_string(count) + " x " + item.front();
        }
        std::string_view indent = "";
        for (const std::string& line : Lines(item)) {
            PrintLine(std::string(indent) + line);
            indent = kContinuation;
        }
    }

    /// Breaks between parts where that does, else between words.
    [[nodiscard]] std::vector<std::string> Lines(const Item& item) const {
        const std::size_t width = style_.width == 0 ? 0 : ValueWidth();
        std::vector<std::string> lines;
        for (const std::string& part : item) {
            const std::string text = Printable(part) + (&part == &item.back() ? "" : ",");
            if (!lines.empty() && (width == 0 || DisplayWidth(lines.back() + " " + text) <= width)) {
                lines.back() += " " + text;
            } else {
                std::ranges::move(WrapWords(text, width), std::back_inserter(lines));
            }
        }
        return lines;
    }

    [[nodiscard]] std::size_t ValueWidth() const {
        constexpr std::size_t kTaken = kLabelWidth + kContinuation.size();
        return style_.width > kTaken ? style_.width - kTaken : 1;
    }

    void PrintLine(const std::string& text) {
        const std::string gap(kLabelWidth - label_.size(), ' ');
        output_ << Emphasised(label_, Emphasis::heading, style_) << gap << text << '\n';
        label_ = {};
    }

    const OutputStyle& style_;
    std::ostream& output_;
    std::string_view label_;
};

/// The string whose number stands at `offset`, also of a structure that could not be decoded.
std::string StringAt(const StructureRecord& record, std::size_t offset) {
    if (!record.strings || offset >= record.rawBytes.size()) {
        return {};
    }
    return Structures::GetStringByIndex(record.rawBytes[offset], *record.strings);
}

/// Firmware says 255.255 when it has no release number.
std::string ReleaseAt(const StructureRecord& record, std::size_t offset) {
    if (offset + 1 >= record.rawBytes.size() || record.rawBytes[offset] == 0xFF) {
        return {};
    }
    return std::to_string(record.rawBytes[offset]) + "." + std::to_string(record.rawBytes[offset + 1]);
}

// Much firmware of the last decades has a structure that the library does not decode. Its first fields mean
// the same in every version.
Item Describe(const Type0Struct& firmware) {
    return {Joined({StringAt(firmware, 0x04), StringAt(firmware, 0x05)}, " "),
            Prefixed("release ", ReleaseAt(firmware, 0x14)),
            StringAt(firmware, 0x08)};
}

template <class Record>
Item DescribeProduct(const Record& record, const std::string& name) {
    return {Joined({record.manufacturer, name}, " "),
            Prefixed("version ", record.version),
            Prefixed("serial number ", record.serialNumber)};
}

Item Describe(const Structures::Type1::Types::Type1Struct& system) {
    return DescribeProduct(system, system.productName);
}

Item Describe(const Structures::Type2::Types::Type2Struct& board) {
    return DescribeProduct(board, board.product);
}

Item Describe(const Type3Struct& chassis) {
    return DescribeProduct(chassis, chassis.chassisType);
}

/// An item for each structure filed under `key`.
template <class Type>
std::vector<Item> DescribeAll(const SmbiosManager& manager, StructureTypes key) {
    std::vector<Item> items;
    for (const auto& record : Parsers::DecodedRecords<Type>(manager, key)) {
        items.push_back(Describe(*record));
    }
    return items;
}

/// The processors with their caches, which have structures of their own.
class ProcessorSummary {
public:
    explicit ProcessorSummary(const SmbiosManager& manager)
        : processors_(
              Parsers::DecodedRecords<Structures::Type_4>(manager, StructureTypes::ProcessorInformation)),
          caches_(Parsers::DecodedRecords<Structures::Type_7>(manager, StructureTypes::CacheInformation)) {}

    [[nodiscard]] std::vector<Item> Items() const {
        std::vector<Item> items;
        for (const auto& processor : processors_) {
            items.push_back(DescribeSocket(*processor));
        }
        return items;
    }

private:
    [[nodiscard]] Item DescribeSocket(const Type4Struct& processor) const {
        if (!processor.error.empty()) {
            return {"one that cannot be decoded"};
        }
        if (!processor.socketPopulated) {
            return {"empty socket"};
        }
        return {NameOf(processor),
                CoresOf(processor),
                Counted(processor.threadCount, "thread"),
                CacheText("L1 ", processor.l1CacheHandle),
                CacheText("L2 ", processor.l2CacheHandle),
                CacheText("L3 ", processor.l3CacheHandle),
                UnusualStatusOf(processor)};
    }

    static std::string NameOf(const Type4Struct& processor) {
        for (const std::string& name : {processor.processorVersion, processor.processorFamilyName}) {
            if (!name.empty()) {
                return name;
            }
        }
        return "processor without a name";
    }

    static std::string CoresOf(const Type4Struct& processor) {
        std::string text = Counted(processor.coreCount, "core");
        if (!text.empty() && processor.coreEnabled && processor.coreEnabled != processor.coreCount) {
            text += " (" + std::to_string(*processor.coreEnabled) + " enabled)";
        }
        return text;
    }

    static std::string UnusualStatusOf(const Type4Struct& processor) {
        const std::string status = processor.statusText.value_or("");
        return status == "CPU Enabled" ? std::string() : status;
    }

    [[nodiscard]] std::string CacheText(std::string_view level, std::optional<std::uint16_t> handle) const {
        for (const auto& cache : caches_) {
            if (handle && cache->error.empty() && cache->handle == *handle && cache->installedSize) {
                return std::string(level) + ByteSizeText(*cache->installedSize * 1024);
            }
        }
        return {};
    }

    std::vector<std::shared_ptr<Type4Struct>> processors_;
    std::vector<std::shared_ptr<Type7Struct>> caches_;
};

/// The slots of the machine's own memory and what is in them.
class MemorySummary {
public:
    explicit MemorySummary(const SmbiosManager& manager)
        : arrays_(
              Parsers::DecodedRecords<Structures::Type_16>(manager, StructureTypes::PhysicalMemoryArray)) {
        for (const auto& device :
             Parsers::DecodedRecords<Structures::Type_17>(manager, StructureTypes::MemoryDevice)) {
            Add(*device);
        }
    }

    [[nodiscard]] std::vector<Item> Items() const {
        std::vector<Item> items;
        if (slots_ != 0) {
            items.push_back({FillingText(),
                             Remark(slots_ - modules_.size() - undecoded_, " free"),
                             Remark(undecoded_, " cannot be decoded")});
        }
        items.insert(items.end(), modules_.begin(), modules_.end());
        return items;
    }

private:
    void Add(const Type17Struct& device) {
        if (!IsSystemMemory(device)) {
            return;
        }
        ++slots_;
        undecoded_ += device.error.empty() ? 0 : 1;
        if (const auto bytes = MemoryDeviceBytes(device.size, device.rawBytes)) {
            bytes_ += *bytes;
            modules_.push_back(DescribeModule(device, *bytes));
        }
    }

    /// The chip that holds the firmware may be a memory device too, of an array with another use.
    [[nodiscard]] bool IsSystemMemory(const Type17Struct& device) const {
        constexpr std::uint8_t kSystemMemory = 3;
        return std::ranges::none_of(arrays_, [&](const auto& array) {
            return array->error.empty() && array->handle == device.physicalMemoryArrayHandle &&
                   array->use != kSystemMemory;
        });
    }

    static Item DescribeModule(const Type17Struct& device, std::uint64_t bytes) {
        const bool isRunning = device.configuredSpeed.value_or(0) != 0;
        const std::optional<std::uint32_t> speed = isRunning ? device.configuredSpeed : device.speed;
        return {Joined({ByteSizeText(bytes), device.memoryTypeName, device.formFactorName}, " "),
                speed ? std::to_string(*speed) + " MT/s" : std::string()};
    }

    [[nodiscard]] std::string FillingText() const {
        const std::string slots = Counted(std::optional(slots_), "slot");
        return modules_.empty()
                   ? "nothing in " + slots
                   : ByteSizeText(bytes_) + " in " + std::to_string(modules_.size()) + " of " + slots;
    }

    static std::string Remark(std::size_t count, std::string_view text) {
        return count == 0 ? std::string() : std::to_string(count) + std::string(text);
    }

    std::vector<std::shared_ptr<Type16Struct>> arrays_;
    std::vector<Item> modules_;
    std::size_t slots_ = 0;
    std::size_t undecoded_ = 0;
    std::uint64_t bytes_ = 0;
};

/// "types 0, 17", of the structures that could not be decoded.
std::string FailedTypesText(const StructureCount& count) {
    std::vector<std::string> types;
    for (const unsigned type : count.failedTypes) {
        types.push_back(std::to_string(type));
    }
    return (types.size() == 1 ? "type " : "types ") + Joined(types, ", ");
}

}  // namespace

void ReportSummary(const OutputStyle& style, std::ostream& output) {
    SmbiosManager& manager = *SmbiosManager::GetInstance();
    manager.UpdateBiosInfo();
    const StructureCount count = CountStructures(manager);

    Printer printer(style, output);
    printer.Print("Firmware", DescribeAll<Structures::Type_0>(manager, StructureTypes::BiosInformation));
    printer.Print("System", DescribeAll<Structures::Type_1>(manager, StructureTypes::SystemInformation));
    printer.Print("Board", DescribeAll<Structures::Type_2>(manager, StructureTypes::BaseboardInformation));
    printer.Print("Chassis", DescribeAll<Structures::Type_3>(manager, StructureTypes::SystemEnclosure));
    printer.Print("Processors", ProcessorSummary(manager).Items());
    printer.Print("Memory", MemorySummary(manager).Items());
    printer.Print("Table",
                  {{"SMBIOS " + manager.GetVersion(), Counted(std::optional(count.total), "structure")}});
    if (count.failed != 0) {
        printer.PrintWarning(Counted(std::optional(count.failed), "structure") +
                             " with errors: " + FailedTypesText(count));
    }
}

}  // namespace SMBIOS::Inspect
