#include "smbios-inspect/reports/summary_report.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "manager/decoded_records.h"
#include "manager/decoded_table.h"
#include "manager/raw_table.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/output/units.h"
#include "smbios-inspect/records/filed_structure.h"
#include "smbios-inspect/records/memory_size.h"
#include "smbios-inspect/reports/table_end.h"
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

using Manager::DecodedRecords;
using Manager::DecodedTable;
using Structures::StructureRecord;
using Structures::Type0::Types::Type0Struct;
using Structures::Type17::Types::Type17Struct;
using Structures::Type3::Types::Type3Struct;
using Structures::Type4::Types::Type4Struct;

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

/// Items that are equal.
struct Group {
    const Item* item;
    std::size_t count;
};

/// The groups of items in the order in which each turns up first.
std::vector<Group> Grouped(const std::vector<Item>& items) {
    std::vector<Group> groups;
    std::unordered_map<std::string, std::size_t> places;
    for (const Item& item : items) {
        std::string identity;
        for (const std::string& part : item) {
            identity.append(part).push_back('\0');
        }
        const auto [place, isNew] = places.try_emplace(std::move(identity), groups.size());
        if (isNew) {
            groups.push_back({&item, 0});
        }
        ++groups[place->second].count;
    }
    return groups;
}

/// Prints labels with their items beside them. Equal items share a line.
class Printer {
public:
    Printer(const OutputStyle& style, std::ostream& output) : style_(style), output_(output) {}

    void Print(std::string_view label, const std::vector<Item>& items) {
        label_ = label;
        for (const Group& group : Grouped(items)) {
            PrintItem(*group.item, group.count);
        }
        if (items.empty()) {
            PrintLine("not reported");
        }
    }

    /// Prints a line of its own below what was printed last.
    void PrintRemark(const std::string& text) { PrintEmphasised(text, Emphasis::none); }
    void PrintWarning(const std::string& text) { PrintEmphasised(text, Emphasis::warning); }

private:
    static constexpr std::size_t kLabelWidth = 12;
    static constexpr std::string_view kContinuation = "  ";

    void PrintEmphasised(const std::string& text, Emphasis emphasis) {
        for (const std::string& line : Lines({text})) {
            PrintLine(Emphasised(line, emphasis, style_));
        }
    }

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
            if (HasRoomFurtherLeftOnly(line)) {
                PrintBelowLabel(line);
            } else {
                PrintLine(std::string(indent) + line);
            }
            indent = kContinuation;
        }
    }

    /// A word that fits the terminal is not broken for want of room beside the labels.
    [[nodiscard]] bool HasRoomFurtherLeftOnly(const std::string& line) const {
        const std::size_t width = DisplayWidth(line);
        return style_.width != 0 && width > ValueWidth() && width <= style_.width;
    }

    void PrintBelowLabel(const std::string& line) {
        if (!label_.empty()) {
            output_ << Emphasised(label_, Emphasis::heading, style_) << '\n';
            label_ = {};
        }
        const std::size_t room = style_.width - DisplayWidth(line);
        output_ << std::string(std::min(room, kLabelWidth), ' ') << line << '\n';
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

/// An item for each structure of a `Type`.
template <class Type>
std::vector<Item> DescribeAll(const DecodedTable& table) {
    std::vector<Item> items;
    for (const auto& record : DecodedRecords<Type>(table)) {
        items.push_back(Describe(*record));
    }
    return items;
}

/// The processors with their caches, which have structures of their own.
class ProcessorSummary {
public:
    explicit ProcessorSummary(const DecodedTable& table)
        : processors_(DecodedRecords<Structures::Type_4>(table)) {
        for (const auto& cache : DecodedRecords<Structures::Type_7>(table)) {
            if (cache->error.empty() && cache->installedSize) {
                cacheSizes_.try_emplace(cache->handle, *cache->installedSize);
            }
        }
    }

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
        const auto size = handle ? cacheSizes_.find(*handle) : cacheSizes_.end();
        return size == cacheSizes_.end() ? std::string()
                                         : std::string(level) + ByteSizeText(size->second * 1024);
    }

    std::vector<std::shared_ptr<Type4Struct>> processors_;
    std::unordered_map<std::uint16_t, std::uint64_t> cacheSizes_;  // installed, in kilobytes, by handle
};

/// The slots of the machine's own memory and what is in them.
class MemorySummary {
public:
    explicit MemorySummary(const DecodedTable& table) {
        constexpr std::uint8_t kSystemMemory = 3;
        for (const auto& array : DecodedRecords<Structures::Type_16>(table)) {
            if (array->error.empty() && array->use != kSystemMemory) {
                otherArrays_.insert(array->handle);
            }
        }
        for (const auto& device : DecodedRecords<Structures::Type_17>(table)) {
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
        return !device.physicalMemoryArrayHandle || !otherArrays_.contains(*device.physicalMemoryArrayHandle);
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

    std::unordered_set<std::uint16_t> otherArrays_;  // handles
    std::vector<Item> modules_;
    std::size_t slots_ = 0;
    std::size_t undecoded_ = 0;
    std::uint64_t bytes_ = 0;
};

/// Structures of a table that have something in common.
struct StructureCount {
    std::size_t count = 0;
    std::set<std::uint8_t> types;

    void Add(const FiledStructure& structure) {
        ++count;
        types.insert(TypeOf(structure));
    }
};

/// The structures of a table without values: a sound one may be of a version that the library does not
/// decode.
struct UndecodedStructures {
    StructureCount refused;
    StructureCount damaged;

    explicit UndecodedStructures(const DecodedTable& table) {
        for (const FiledStructure& structure : table.structures) {
            if (!ErrorOf(structure).empty()) {
                (IsDamaged(structure) ? damaged : refused).Add(structure);
            }
        }
    }
};

/// "types 0, 17".
std::string TypesText(const StructureCount& count) {
    std::vector<std::string> types;
    for (const unsigned type : count.types) {
        types.push_back(std::to_string(type));
    }
    return (types.size() == 1 ? "type " : "types ") + Joined(types, ", ");
}

}  // namespace

void ReportSummary(const OutputStyle& style, std::ostream& output) {
    const std::vector<std::uint8_t> rawTable = Manager::ReadRawTable();
    const DecodedTable table = Manager::DecodeTable(rawTable);
    const auto [refused, damaged] = UndecodedStructures(table);

    Printer printer(style, output);
    printer.Print("Firmware", DescribeAll<Structures::Type_0>(table));
    printer.Print("System", DescribeAll<Structures::Type_1>(table));
    printer.Print("Board", DescribeAll<Structures::Type_2>(table));
    printer.Print("Chassis", DescribeAll<Structures::Type_3>(table));
    printer.Print("Processors", ProcessorSummary(table).Items());
    printer.Print("Memory", MemorySummary(table).Items());
    printer.Print(
        "Table",
        {{"SMBIOS " + table.version.text, Counted(std::optional(table.structures.size()), "structure")}});
    if (refused.count != 0) {
        printer.PrintRemark(Counted(std::optional(refused.count), "structure") +
                            " that this library does not decode (" + TypesText(refused) + ")");
    }
    if (damaged.count != 0) {
        printer.PrintWarning(Counted(std::optional(damaged.count), "structure") +
                             " with errors: " + TypesText(damaged));
    }
    if (MayBeCutShort(rawTable)) {
        printer.PrintWarning(kCutShortText);
    }
}

}  // namespace SMBIOS::Inspect
