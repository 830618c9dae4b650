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
        decoder_->Process({structure.bytes.begin(), structure.bytes.end()},
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
                        DepartureVisitor& visitor)
        : structure_(structure),
          library_(library),
          frame_(FrameOf(library.key, library.decoder)),
          fields_(LibraryFieldsOf(library.key, library.decoder)),
          visitor_(visitor) {}

    void CompareAcceptance() {
        const Standard::TypeDescription* type = Standard::DescriptionOf(structure_.Type());
        const bool isWhole =
            type != nullptr && structure_.defect.empty() && structure_.bytes.size() >= type->leastLength;
        if (isWhole) {
            const Value accepted = Standard::Text("accepted");
            Tell(IndexOf("error"), nullptr, &accepted, ReasonOfRefusal());
        }
    }

    void CompareFields(Pairings& pairings) {
        const std::vector<Pair>& pairs = pairings.Of(structure_.Type(), fields_);
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            if (pairs[i].standard.row != nullptr) {
                CompareField(i, pairs[i]);
            }
        }
        CompareBytes();
        if (!pairs[IndexOf("strings")].IsKnown()) {
            CompareStrings();
        }
    }

    [[nodiscard]] bool IsRefused() const { return !frame_.error.empty(); }

private:
    void CompareField(std::size_t index, const Pair& pair) {
        if (AgreeAtOnce(fields_[index].value, pair)) {
            return;
        }
        const std::optional<Value> standard = ReadStandardField(structure_, pair.standard);
        const Comparison comparison{structure_,
                                    library_.decoder,
                                    library_.version,
                                    fields_[index],
                                    pair.standard.row,
                                    standard,
                                    pair.rule.lowBit,
                                    pair.rule.bitCount};
        if (!pair.rule.agree(comparison) && !IsToldInSameLine(index, pair)) {
            Tell(
                index, pair.standard.row, standard ? &*standard : nullptr, ReasonOf(comparison, index, pair));
            told_.push_back({pair.standard.row, fields_[index].label});
        }
    }

    /// What by far the most fields are: a number that both take from the bytes as it stands. The standard's
    /// words for it need not be made then.
    [[nodiscard]] bool AgreeAtOnce(const LibraryValue& value, const Pair& pair) const {
        const auto* const number = std::get_if<std::uint64_t>(&value);
        const StandardField& standard = pair.standard;
        return number != nullptr && pair.rule.agree == AgreeByKind && !standard.isBehindGroup &&
               standard.IsWithin(structure_) && Standard::IsNumberAsItStands(standard.row->form) &&
               Standard::Reading{structure_, *standard.row, 0}.Raw() == *number;
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
        return std::ranges::any_of(told_, [&](const Told& told) {
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
        if (!comparison.standard) {
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
        if (!comparison.HasLibraryValue() && comparison.standard->text == "Other") {
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

    struct Told {
        const Standard::FieldRow* row;
        const char* label;
    };

    const Structure& structure_;
    const LibraryStructure& library_;
    RecordFrame frame_;
    std::vector<LibraryField> fields_;
    std::vector<Told> told_;
    std::optional<NewestReading> newest_;  // made when it is asked for
    DepartureVisitor& visitor_;
};

}  // namespace

void CompareStructure(const Structure& structure,
                      const LibraryStructure& library,
                      Pairings& pairings,
                      DepartureVisitor& visitor) {
    StructureComparison comparison(structure, library, visitor);
    if (comparison.IsRefused()) {
        comparison.CompareAcceptance();
    } else {
        comparison.CompareFields(pairings);
    }
}

}  // namespace SMBIOS::Inspect::Departures
