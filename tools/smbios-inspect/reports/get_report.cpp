#include "smbios-inspect/reports/get_report.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "manager/raw_table.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/reports/value_keys.h"
#include "smbios-inspect/standard/field_values.h"

namespace SMBIOS::Inspect {

using Standard::FieldValues;
using Standard::Structure;
using Standard::TableWalk;

namespace {

/// The values of keys in one table.
class TableValues {
public:
    explicit TableValues(std::span<const std::uint8_t> rawTable) : machine_(MachineFactsOf(rawTable)) {
        TableWalk walk(rawTable);
        while (const auto structure = walk.Next()) {
            Keep(*structure);
        }
    }

    [[nodiscard]] std::string ValueOf(const ValueKey& key) const {
        if (key.compute != nullptr) {
            return key.compute(machine_);
        }
        const auto first = first_.find(key.type);
        return first == first_.end() ? std::string() : first->second.TextOf(key.field);
    }

private:
    /// An empty socket is no processor.
    static bool Counts(const Structure& structure) {
        constexpr std::uint8_t kProcessor = 4;
        return structure.Type() != kProcessor || IsPopulatedSocket(FieldValues(structure));
    }

    static bool HasKeys(std::uint8_t type) {
        return std::ranges::any_of(
            ValueKeys(), [=](const ValueKey& key) { return key.compute == nullptr && key.type == type; });
    }

    void Keep(const Structure& structure) {
        const std::uint8_t type = structure.Type();
        if (!first_.contains(type) && HasKeys(type) && Counts(structure)) {
            first_.emplace(type, structure);
        }
    }

    MachineFacts machine_;
    std::map<std::uint8_t, FieldValues> first_;  // by type
};

void PrintAll(const TableValues& values, std::ostream& output) {
    const std::string_view longest =
        std::ranges::max(ValueKeys(), {}, [](const ValueKey& key) { return key.name.size(); }).name;
    for (const ValueKey& key : ValueKeys()) {
        const std::string value = Printable(values.ValueOf(key));
        const std::size_t gap = value.empty() ? 0 : longest.size() - key.name.size() + 2;
        output << key.name << std::string(gap, ' ') << value << '\n';
    }
}

}  // namespace

void ReportValues(const Request& request, std::ostream& output) {
    const std::vector<std::uint8_t> rawTable = Manager::ReadRawTable();
    const TableValues values(rawTable);
    if (request.keys.empty()) {
        PrintAll(values, output);
    }
    for (const ValueKey* const key : request.keys) {
        output << Printable(values.ValueOf(*key)) << '\n';
    }
}

}  // namespace SMBIOS::Inspect
