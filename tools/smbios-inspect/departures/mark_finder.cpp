#include "smbios-inspect/departures/mark_finder.h"

#include <utility>

#include "manager/structure_factory.h"

namespace SMBIOS::Inspect::Departures {

using Manager::SmbiosVersionIndex;
using Manager::Types::StructureTypes;
using Standard::TableWalk;
using Structures::StructureFactory;

namespace {

/// Collects the labels of what departs in a structure that the library has.
class LabelCollector final : public DepartureVisitor {
public:
    explicit LabelCollector(std::vector<std::string_view>& labels) noexcept : labels_(labels) {}

    void Visit(const Departure& departure) override {
        if (departure.decoder != nullptr) {
            labels_.emplace_back(departure.label == nullptr ? "" : departure.label);
        }
    }

    [[nodiscard]] bool WantsDetails() const noexcept override { return false; }

private:
    std::vector<std::string_view>& labels_;
};

}  // namespace

MarkFinder::MarkFinder(std::span<const std::uint8_t> rawTable)
    : comparison_(TableWalk(rawTable).Version(),
                  Manager::TableVersion::Of(rawTable, SmbiosVersionIndex::v2_0_0).index) {
    TableWalk walk(rawTable);
    while (auto structure = walk.Next()) {
        const StructureTypes key = StructureFactory::KeyOf(StructureTypes{structure->Type()});
        queues_[key].structures.push_back(std::move(*structure));
    }
}

std::span<const std::string_view> MarkFinder::MarksOf(const Manager::FiledStructure& structure) {
    Queue& queue = queues_[structure.first];
    const bool isThere = queue.next < queue.structures.size();
    const Standard::Structure* const ofStandard = isThere ? &queue.structures[queue.next++] : nullptr;
    labels_.clear();
    LabelCollector collector(labels_);
    comparison_.Compare(ofStandard, structure.first, structure.second.get(), collector);
    return labels_;
}

}  // namespace SMBIOS::Inspect::Departures
