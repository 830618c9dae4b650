#include "smbios-inspect/departures/compare_structure.h"

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "manager/structure_factory.h"
#include "smbios-inspect/output/units.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/types.h"

namespace SMBIOS::Inspect::Departures {

using Manager::SmbiosVersionIndex;
using Standard::Structure;
using Standard::Value;
using Structures::BaseStructure;

namespace {

/// The structure as the library decodes it in a table of the newest version: whether a value is missing for
/// the table's version.
class NewestReading {
public:
    NewestReading(const Structure& structure, Manager::Types::StructureTypes key)
        : decoder_(Structures::StructureFactory::CreateTablePtr(key, SmbiosVersionIndex::v3_8_0).second),
          key_(key) {
        decoder_->ProcessAndKeep({structure.bytes.begin(), structure.bytes.end()},
                                 {structure.strings.begin(), structure.strings.end()});
        if (decoder_->RanOutOfMemory()) {
            throw std::bad_alloc();
        }
        fields_ = LibraryFieldsOf(key_, *decoder_);
    }

    [[nodiscard]] bool IsAccepted() const { return FrameOf(key_, *decoder_).error.empty(); }

    [[nodiscard]] bool HasValue(std::size_t index) const { return !IsNone(fields_[index].value); }

private:
    std::shared_ptr<BaseStructure> decoder_;
    Manager::Types::StructureTypes key_;
    std::vector<LibraryField> fields_;
};

/// Compares one structure, field by field.
class StructureComparison {
public:
    StructureComparison(const Structure& structure,
                        const LibraryStructure& library,
                        ComparisonMemory& memory,
                        DepartureVisitor& visitor)
        : structure_(structure),
          library_(library),
          frame_(FrameOf(library.key, library.decoder)),
          fields_(memory.fields),
          pairings_(memory.pairings),
          told_(memory.told),
          visitor_(visitor) {
        ReadLibraryFields(library.key, library.decoder, fields_);
        told_.clear();
    }

    void CompareAcceptance() {
        const Standard::TypeDescription* type = Standard::DescriptionOf(structure_.Type());
        const bool isWhole =
            type != nullptr && structure_.defect.empty() && structure_.bytes.size() >= type->leastLength;
        if (isWhole) {
            const Value accepted = Standard::Text("accepted");
            const bool wantsDetails = visitor_.WantsDetails();
            Tell(IndexOf("error"),
                 nullptr,
                 &accepted,
                 wantsDetails ? ReasonOfRefusal() : ReasonId::unexplained);
        }
    }

    void CompareFields() {
        const RecordPairs& record = pairings_.Of(structure_.Type(), fields_);
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            const Pair& pair = record.pairs[i];
            if (pair.standard.row != nullptr && !AgreeAtOnce(fields_[i].value, pair)) {
                CompareField(i, pair);
            }
        }
        CompareBytes();
        if (!record.hasStrings) {
            CompareStrings();
        }
    }

    [[nodiscard]] bool IsRefused() const { return !frame_.error.empty(); }

private:
    void CompareField(std::size_t index, const Pair& pair) {
        const Comparison comparison(structure_,
                                    library_.decoder,
                                    library_.version,
                                    fields_[index],
                                    pair.standard,
                                    pair.rule.lowBit,
                                    pair.rule.bitCount);
        if (pair.rule.agree(comparison) || IsToldInSameLine(index, pair)) {
            return;
        }
        told_.push_back({pair.standard.row, fields_[index].label});
        if (!visitor_.WantsDetails()) {
            Tell(index, pair.standard.row, nullptr, ReasonId::unexplained);
            return;
        }
        Tell(index, pair.standard.row, comparison.StandardValue(), ReasonOf(comparison, index, pair));
    }

    [[nodiscard]] bool AgreeAtOnce(const LibraryValue& value, const Pair& pair) const {
        if (pair.glance == nullptr) {
            return false;
        }
        return pair.standard.IsWithin(structure_) ? pair.glance(value, {structure_, *pair.standard.row, 0})
                                                  : IsNone(value);
    }

    /// The raw bytes are the structure's.
    void CompareBytes() {
        if (!std::ranges::equal(frame_.rawBytes, structure_.bytes)) {
            const Value bytes = Standard::Text(HexadecimalText(structure_.bytes));
            Tell(IndexOf("rawBytes"), nullptr, &bytes, ReasonId::processorVoltage);
        }
    }

    void CompareStrings() {
        if (HasOtherStrings()) {
            std::vector<Standard::Item> items;
            for (const std::string_view text : structure_.strings) {
                items.push_back({text, text});
            }
            const Value strings = Standard::List(items.size(), "", std::move(items));
            Tell(IndexOf("strings"), nullptr, &strings, ReasonId::cutting);
        }
    }

    [[nodiscard]] bool HasOtherStrings() const {
        return frame_.strings ? !std::ranges::equal(*frame_.strings, structure_.strings)
                              : !structure_.strings.empty();
    }

    [[nodiscard]] bool IsToldInSameLine(std::size_t index, const Pair& pair) const {
        return std::ranges::any_of(told_, [&](const ComparisonMemory::Told& told) {
            return told.row == pair.standard.row && told.label != nullptr &&
                   told.label == fields_[index].label;
        });
    }

    [[nodiscard]] ReasonId ReasonOf(const Comparison& comparison, std::size_t index, const Pair& pair) {
        for (const Cause& cause : pair.causes) {
            if (cause.applies != nullptr && cause.applies(comparison)) {
                return cause.reason;
            }
        }
        if (!comparison.HasStandardValue()) {
            return ReasonId::missingBytes;
        }
        if (!comparison.HasLibraryValue() && Newest().HasValue(index)) {
            return library_.isVersionListed ? ReasonId::newerField : ReasonId::unlistedVersion;
        }
        for (const Cause& cause : pair.causes) {
            if (cause.applies == nullptr && cause.reason != ReasonId::unexplained) {
                return cause.reason;
            }
        }
        if (!comparison.HasLibraryValue() && comparison.StandardValue()->text == "Other") {
            return ReasonId::otherText;
        }
        return HasOtherStrings() && comparison.library.isText ? ReasonId::cutting : ReasonId::unexplained;
    }

    [[nodiscard]] ReasonId ReasonOfRefusal() {
        if (!library_.isVersionListed && Newest().IsAccepted()) {
            return ReasonId::unlistedVersion;
        }
        const TypeJoins* joins = JoinsOf(structure_.Type());
        const auto length = static_cast<std::uint8_t>(structure_.bytes.size());
        for (const Refusal& refusal : joins == nullptr ? std::span<const Refusal>() : joins->refusals) {
            if (refusal.lengths.Contains(length) && refusal.versions.Contains(library_.version)) {
                return refusal.reason;
            }
        }
        return ReasonId::newerStructure;
    }

    [[nodiscard]] const NewestReading& Newest() {
        return newest_ ? *newest_ : newest_.emplace(structure_, library_.key);
    }

    [[nodiscard]] std::size_t IndexOf(std::string_view name) const {
        const auto field = std::ranges::find(
            fields_, name, [](const LibraryField& each) { return std::string_view(each.name); });
        return static_cast<std::size_t>(field - fields_.begin());
    }

    void Tell(std::size_t index, const Standard::FieldRow* row, const Value* standard, ReasonId reason) {
        visitor_.Visit({structure_,
                        fields_[index].name,
                        fields_[index].label,
                        row,
                        standard,
                        library_.key,
                        &library_.decoder,
                        index,
                        reason});
    }

    const Structure& structure_;
    const LibraryStructure& library_;
    RecordFrame frame_;
    std::vector<LibraryField>& fields_;
    Pairings& pairings_;
    std::vector<ComparisonMemory::Told>& told_;
    std::optional<NewestReading> newest_;  // made when it is asked for
    DepartureVisitor& visitor_;
};

}  // namespace

void CompareStructure(const Structure& structure,
                      const LibraryStructure& library,
                      ComparisonMemory& memory,
                      DepartureVisitor& visitor) {
    StructureComparison comparison(structure, library, memory, visitor);
    if (comparison.IsRefused()) {
        comparison.CompareAcceptance();
    } else {
        comparison.CompareFields();
    }
}

}  // namespace SMBIOS::Inspect::Departures
