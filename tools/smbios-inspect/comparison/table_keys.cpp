#include "smbios-inspect/comparison/table_keys.h"

namespace SMBIOS::Inspect::Comparing {

using Standard::Structure;

namespace {

/// Of all handles that no structure has.
constexpr Key kNowhere = 1;

Key NameKey(const ComparedTable& table, Index index) {
    const NameParts name = table.NameOf(index);
    Key key = Mixed(Mixed(Key{0}, std::uint64_t{table.TypeOf(index)}), std::uint64_t{name.cacheLevel});
    for (const std::string_view text : name.texts) {
        key = Mixed(key, text);
    }
    return key;
}

Key ContentKey(const ComparedTable& table, Index index, Key name) {
    const Structure structure = table.At(index);
    Key key = Mixed(name, BytesWithoutHandles(structure, table.ReferencesOf(index)));
    for (const std::string_view text : structure.strings) {
        key = Mixed(key, text);
    }
    return Mixed(key, structure.defect);
}

/// What has a handle of a structure has no order: its keys are added up.
void AddContexts(const ComparedTable& table, std::vector<Keys>& keys) {
    for (Index index = 0; index < table.Size(); ++index) {
        Key references = keys[index].content;
        for (const Reference& reference : table.ReferencesOf(index)) {
            const Index target = table.Find(reference.handle);
            references = Mixed(references, target == kNoStructure ? kNowhere : keys[target].name);
            if (target != kNoStructure) {
                keys[target].context += Mixed(keys[index].name, std::uint64_t{reference.offset});
            }
        }
        keys[index].context += references;
    }
}

}  // namespace

std::vector<Keys> KeysOf(const ComparedTable& table) {
    std::vector<Keys> keys(table.Size());
    for (Index index = 0; index < table.Size(); ++index) {
        keys[index].name = NameKey(table, index);
        keys[index].content = ContentKey(table, index, keys[index].name);
    }
    AddContexts(table, keys);
    return keys;
}

Key PlacementOf(const ComparedTable& table, const std::vector<Keys>& keys, Index index) {
    Key placement = keys[index].context;
    for (const Reference& reference : table.ReferencesOf(index)) {
        const Index target = table.Find(reference.handle);
        placement = Mixed(placement, target == kNoStructure ? kNowhere : keys[target].context);
    }
    return placement;
}

}  // namespace SMBIOS::Inspect::Comparing
