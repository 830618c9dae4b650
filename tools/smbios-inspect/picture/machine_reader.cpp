#include "smbios-inspect/picture/machine_reader.h"

#include <optional>
#include <string>
#include <utility>

#include "smbios-inspect/picture/fields.h"
#include "smbios-inspect/picture/memory_collector.h"
#include "smbios-inspect/picture/processor_collector.h"
#include "smbios-inspect/picture/things.h"
#include "smbios-inspect/picture/words.h"
#include "smbios-inspect/reports/table_end.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Picture {

using Standard::Structure;

namespace {

/// Adds a thing with its tooltip, which is made of those alone that are drawn.
template <class Thing>
void AddTo(Kept<Thing>& kept, Thing thing, const Structure& structure) {
    if (kept.HasRoom()) {
        thing.tooltip = TooltipOf(structure);
    }
    kept.Add(std::move(thing));
}

class MachineReader {
public:
    void Add(Structure structure) {
        ++structures_;
        switch (structure.Type()) {
            case 0:
                return Take(firmware_, FirmwareNote, structure);
            case 1:
                return Take(system_, SystemNote, structure);
            case 2:
                return Take(board_, BoardNote, structure);
            case 3:
                return Take(chassis_, ChassisNote, structure);
            case 4:
                return processors_.AddProcessor(structure);
            case 7:
                return processors_.AddCache(std::move(structure));
            case 8:
                return AddPart(machine_.connectors, ConnectorOf, structure);
            case 9:
                return AddSlot(structure);
            case 10:
                return AddFormerOnBoardDevices(structure);
            case 16:
                return memory_.AddArray(structure);
            case 17:
                return memory_.AddDevice(structure);
            case 27:
                return AddPart(machine_.sensors, CoolingDeviceOf, structure);
            case 28:
                return AddPart(machine_.sensors, TemperatureProbeOf, structure);
            case 41:
                return AddPart(machine_.onBoard, OnBoardDeviceOf, structure);
            default:
                return;
        }
    }

    [[nodiscard]] Machine Finish(Standard::TableVersion version, bool mayBeCutShort) {
        processors_.Finish();
        memory_.Finish();
        if (machine_.onBoard.items.empty()) {
            machine_.onBoard = std::move(formerOnBoard_);
        }
        machine_.title = system_.value_or(Note{.tooltip = "The table has no structure of the system."});
        machine_.title.name = FirstSaid({machine_.title.name, "Machine without a name"});
        for (std::optional<Note>* const note : {&firmware_, &board_, &chassis_}) {
            if (*note) {
                machine_.notes.push_back(std::move(**note));
            }
        }
        machine_.notes.push_back(TableNote(version, mayBeCutShort));
        return std::move(machine_);
    }

private:
    /// There should be one structure of its type; the first counts.
    static void Take(std::optional<Note>& note, Note (*make)(const Fields&), const Structure& structure) {
        if (!note) {
            note = make(FieldsOf(structure).own);
            note->tooltip = TooltipOf(structure);
        }
    }

    static void AddPart(Kept<Part>& parts, Part (*make)(const Fields&), const Structure& structure) {
        AddTo(parts, make(FieldsOf(structure).own), structure);
    }

    void AddSlot(const Structure& structure) {
        Slot slot = SlotOf(FieldsOf(structure).own);
        machine_.slotsFree += slot.usage == Usage::free ? 1 : 0;
        AddTo(machine_.slots, std::move(slot), structure);
    }

    void AddFormerOnBoardDevices(const Structure& structure) {
        const std::string tooltip = formerOnBoard_.HasRoom() ? TooltipOf(structure) : std::string();
        for (const Fields& fields : FieldsOf(structure).objects) {
            Part device = OnBoardDeviceOf(fields);
            device.tooltip = tooltip;
            formerOnBoard_.Add(std::move(device));
        }
    }

    [[nodiscard]] Note TableNote(Standard::TableVersion version, bool mayBeCutShort) const {
        const std::string name = "SMBIOS " + Standard::VersionText(version);
        const std::string count = Counted(structures_, "structure");
        return {.kind = "Table",
                .name = name,
                .details = {count, mayBeCutShort ? "may be cut short" : ""},
                .tooltip = name + "\n" + count + (mayBeCutShort ? "\n" + std::string(kCutShortText) : "")};
    }

    Machine machine_;
    ProcessorCollector processors_{machine_};
    MemoryCollector memory_{machine_};
    std::optional<Note> firmware_;
    std::optional<Note> system_;
    std::optional<Note> board_;
    std::optional<Note> chassis_;
    Kept<Part> formerOnBoard_;  // by the type that the standard has replaced; firmware has the same in both
    std::size_t structures_ = 0;
};

}  // namespace

Machine ReadMachine(std::span<const std::uint8_t> rawTable) {
    MachineReader reader;
    Standard::TableWalk walk(rawTable);
    while (auto structure = walk.Next()) {
        reader.Add(std::move(*structure));
    }
    return reader.Finish(walk.Version(), MayBeCutShort(rawTable));
}

}  // namespace SMBIOS::Inspect::Picture
