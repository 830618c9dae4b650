#include "smbios-inspect/records/decode_each.h"

#include <map>
#include <new>
#include <vector>

#include "manager/structure_factory.h"
#include "manager/structure_walk.h"
#include "platform/raw_table_header.h"

namespace SMBIOS::Inspect {

using Manager::StructureView;
using Manager::Types::StructureTypes;

void DecodeEach(std::span<const std::uint8_t> rawTable,
                const std::function<bool(StructureTypes)>& isWanted,
                const std::function<void(const FiledStructure&)>& visit) {
    std::map<StructureTypes, std::vector<StructureView>> structures;
    Manager::StructureWalk walk(Platform::RawTableHeader::StructuresOf(rawTable));
    while (const auto structure = walk.Next()) {
        const auto key = Structures::StructureFactory::KeyOf(StructureTypes{structure->type});
        if (isWanted(key)) {
            structures[key].push_back(*structure);
        }
    }
    const auto version = Manager::TableVersion::Of(rawTable, Manager::SmbiosVersionIndex::v2_0_0).index;
    Manager::StructureDecoder decoder(version);
    for (const auto& [key, views] : structures) {
        for (const StructureView& view : views) {
            const FiledStructure decoded = decoder.Decode(view);
            if (decoded.second->RanOutOfMemory()) {
                throw std::bad_alloc();
            }
            visit(decoded);
        }
    }
}

}  // namespace SMBIOS::Inspect
