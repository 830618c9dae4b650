#include "smbios-inspect/comparison/references.h"

#include <algorithm>
#include <cstddef>

#include "smbios-inspect/standard/decode.h"
#include "smbios-inspect/standard/types.h"

namespace SMBIOS::Inspect::Comparing {

using Standard::Field;
using Standard::FieldRow;
using Standard::GroupTable;
using Standard::Plain;
using Standard::Structure;
using Standard::TypeDescription;
using Standard::ValueKind;

namespace {

constexpr std::size_t kOwnHandle = 0x02;

bool IsReference(ValueKind kind) noexcept {
    return kind == ValueKind::handle || kind == ValueKind::handleList;
}

/// Most types have no handle, and what does not is not walked through.
bool MayHaveReferences(std::uint8_t type) {
    const auto isReference = [](const FieldRow& row) { return IsReference(row.form.kind); };
    const auto hasReference = [&](const GroupTable& group) {
        return std::ranges::any_of(group.rows, isReference);
    };
    const TypeDescription* const description = Standard::DescriptionOf(type);
    return description != nullptr && (std::ranges::any_of(description->rows, isReference) ||
                                      std::ranges::any_of(description->groups, hasReference));
}

class ReferenceVisitor final : public Standard::FieldVisitor {
public:
    explicit ReferenceVisitor(std::vector<Reference>& references) noexcept : references_(references) {}

    [[nodiscard]] bool Wants(ValueKind kind) const noexcept override { return IsReference(kind); }

    void Visit(const Field& field) override {
        if (field.kind == ValueKind::handle) {
            Append(field.offset, field.value.plain);
        } else {
            for (const Standard::Item& item : field.value.items) {
                Append(item.offset, item.plain);
            }
        }
    }

private:
    void Append(std::size_t offset, const Plain& plain) {
        if (const auto handle = plain.Number()) {
            references_.push_back({static_cast<std::uint16_t>(offset), static_cast<std::uint16_t>(*handle)});
        }
    }

    std::vector<Reference>& references_;
};

void BlankHandle(std::vector<std::uint8_t>& bytes, std::size_t offset) {
    for (std::size_t i = offset; i < offset + Standard::kWord && i < bytes.size(); ++i) {
        bytes[i] = 0;
    }
}

}  // namespace

void AppendReferences(const Structure& structure, std::vector<Reference>& references) {
    if (MayHaveReferences(structure.Type())) {
        ReferenceVisitor visitor(references);
        Standard::VisitFields(structure, visitor);
    }
}

std::vector<std::uint8_t> BytesWithoutHandles(const Structure& structure,
                                              std::span<const Reference> references) {
    std::vector<std::uint8_t> bytes(structure.bytes.begin(), structure.bytes.end());
    BlankHandle(bytes, kOwnHandle);
    for (const Reference& reference : references) {
        BlankHandle(bytes, reference.offset);
    }
    return bytes;
}

}  // namespace SMBIOS::Inspect::Comparing
