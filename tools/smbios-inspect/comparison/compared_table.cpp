#include "smbios-inspect/comparison/compared_table.h"

#include <algorithm>
#include <tuple>

#include "smbios-inspect/comparison/match_rules.h"
#include "smbios-inspect/standard/types.h"

namespace SMBIOS::Inspect::Comparing {

using Standard::FieldRow;
using Standard::Structure;

namespace {

constexpr std::size_t kHandles = 0x10000;
constexpr std::size_t kHeaderSize = 4;
constexpr std::uint8_t kProcessor = 4;
constexpr std::uint8_t kCache = 7;

/// The string that a structure has in the field of this name; empty for none.
std::string_view StringIn(const Structure& structure, std::string_view field) {
    const Standard::TypeDescription* const description = Standard::DescriptionOf(structure.Type());
    if (field.empty() || description == nullptr) {
        return {};
    }
    const auto row = std::ranges::find(description->rows, field, &FieldRow::name);
    const std::size_t number = row == description->rows.end() ? 0 : structure.Area().Byte(row->offset);
    return number == 0 || number > structure.strings.size() ? std::string_view()
                                                            : structure.strings[number - 1];
}

/// Which of a processor's three caches a handle at this offset is of; 0 for another handle.
std::uint8_t CacheLevelAt(std::size_t offset) noexcept {
    constexpr std::size_t kFirst = 0x1A;
    constexpr std::size_t kLast = 0x1E;
    const bool isOfCache = kFirst <= offset && offset <= kLast;
    return isOfCache ? static_cast<std::uint8_t>((offset - kFirst) / Standard::kWord + 1) : std::uint8_t{0};
}

}  // namespace

ComparedTable::ComparedTable(std::span<const std::uint8_t> rawTable)
    : rawTable_(rawTable), byHandle_(kHandles, kNoStructure) {
    Standard::TableWalk walk(rawTable);
    version_ = walk.Version();
    while (const auto structure = walk.Next()) {
        Append(*structure);
    }
    NameCachesAfterProcessors();
}

Structure ComparedTable::At(Index index) const {
    return *Standard::TableWalk(version_, rawTable_.subspan(entries_[index].offset)).Next();
}

std::span<const Reference> ComparedTable::ReferencesOf(Index index) const noexcept {
    const std::size_t begin = entries_[index].firstReference;
    const std::size_t end = index + 1 < Size() ? entries_[index + 1].firstReference : references_.size();
    return std::span(references_).subspan(begin, end - begin);
}

NameParts ComparedTable::NameOf(Index index, std::size_t limit) const noexcept {
    const Entry& entry = entries_[index];
    return {{TextAt(entry.name[0], limit), TextAt(entry.name[1], limit)}, entry.cacheLevel};
}

void ComparedTable::Append(const Structure& structure) {
    const MatchRule rule = RuleFor(structure.Type());
    if (structure.bytes.size() >= kHeaderSize && byHandle_[structure.Handle()] == kNoStructure) {
        byHandle_[structure.Handle()] = Size();
    }
    entries_.push_back({.offset = static_cast<std::uint32_t>(structure.bytes.data() - rawTable_.data()),
                        .firstReference = static_cast<std::uint32_t>(references_.size()),
                        .name = {OffsetOf(StringIn(structure, rule.firstName)),
                                 OffsetOf(StringIn(structure, rule.secondName))},
                        .handle = structure.Handle(),
                        .type = structure.Type(),
                        .cacheLevel = 0});
    AppendReferences(structure, references_);
}

ComparedTable::TextOffset ComparedTable::OffsetOf(std::string_view text) const noexcept {
    const char* const begin = reinterpret_cast<const char*>(rawTable_.data());
    return text.empty() ? 0 : static_cast<TextOffset>(text.data() - begin);
}

std::string_view ComparedTable::TextAt(TextOffset offset, std::size_t limit) const noexcept {
    if (offset == 0) {
        return {};
    }
    const std::span<const std::uint8_t> rest = rawTable_.subspan(offset);
    const std::string_view text(reinterpret_cast<const char*>(rest.data()), std::min(rest.size(), limit));
    return text.substr(0, text.find('\0'));
}

void ComparedTable::NameCachesAfterProcessors() {
    for (Index index = 0; index < Size(); ++index) {
        if (TypeOf(index) == kProcessor) {
            for (const Reference& reference : ReferencesOf(index)) {
                NameCacheAfter(entries_[index], reference);
            }
        }
    }
}

void ComparedTable::NameCacheAfter(const Entry& processor, const Reference& reference) {
    const Index target = Find(reference.handle);
    const std::uint8_t level = CacheLevelAt(reference.offset);
    if (target == kNoStructure || TypeOf(target) != kCache || level == 0) {
        return;
    }
    Entry& cache = entries_[target];
    if (!IsNamedBefore(cache, processor, level)) {
        cache.name = {processor.name[0], 0};
        cache.cacheLevel = level;
    }
}

/// Of several processors that share a cache the one whose name is the least has it, so that their order does
/// not matter. Names that agree for long are taken for equal: comparing them costs no more than that.
bool ComparedTable::IsNamedBefore(const Entry& cache, const Entry& processor, std::uint8_t level) const {
    constexpr std::size_t kLimit = 256;
    if (cache.cacheLevel == 0) {
        return false;
    }
    return std::tuple(TextAt(cache.name[0], kLimit), cache.cacheLevel) <=
           std::tuple(TextAt(processor.name[0], kLimit), level);
}

}  // namespace SMBIOS::Inspect::Comparing
