#include <algorithm>
#include <string>

#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_processor.h"

// A block of a processor's own, whose layout its architecture defines.
namespace SMBIOS::Inspect::Standard {

namespace {

constexpr std::size_t kBlock = 0x06;
constexpr std::size_t kData = 0x08;

/// What is specific to the processor, as long as the block says.
Value ReadProcessorData(const Reading& reading) {
    const Structures::FormattedArea area = reading.structure.Area();
    const std::size_t end = std::min(kData + area.Byte(kBlock), area.Size());
    return Text(BytesText(reading.structure.bytes.subspan(kData, end - kData)));
}

/// Sixteen bytes, the last of them first.
Value ReadWideHex(const Reading& reading) {
    const Structures::FormattedArea area = reading.structure.Area();
    const std::uint64_t high = area.Qword(reading.Offset() + kQword);
    return Text(HexText(high, 16) + HexText(area.Qword(reading.Offset()), 16).substr(2));
}

Value ReadRiscvRevision(const Reading& reading) {
    const std::uint64_t revision = reading.Raw();
    return Text(std::to_string(revision >> 8) + "." + std::to_string(revision & 0xFF));
}

/// Bit 0 stands for extension A, bit 25 for Z.
Value ReadInstructionSets(const Reading& reading) {
    const std::uint64_t bits = reading.Raw();
    std::string letters;
    for (unsigned bit = 0; bit < 26; ++bit) {
        if ((bits >> bit & 1U) != 0) {
            letters += static_cast<char>('A' + bit);
        }
    }
    return Words(bits, letters.empty() ? "None" : letters);
}

constexpr FieldRow kProcessorAdditionalRows[] = {
    {0x04, kWord, "referencedHandle", "Referenced Handle", Handle()},
    {0x06, kByte, "blockLength", "Block Length", Measure("byte", " bytes")},
    {0x07, kByte, "processorType", "Processor Type", Code(kProcessorArchitectures)},
    {0x08, kByte, "processorSpecificData", "Processor-Specific Data", TextBy(ReadProcessorData)},
};

/// RISC-V, at its data.
constexpr FieldRow kRiscvRows[] = {
    {0x00, kWord, "riscvRevision", "Revision", TextBy(ReadRiscvRevision)},
    {0x02, kByte, "riscvStructureLength", "", Measure("byte", " bytes")},
    {0x03, 16, "hartId", "Hart ID", TextBy(ReadWideHex)},
    {0x13, kByte, "bootHart", "Boot Hart", Code(kRiscvBootHart)},
    {0x14, 16, "machineVendorId", "Machine Vendor ID", TextBy(ReadWideHex)},
    {0x24, 16, "machineArchitectureId", "Machine Architecture ID", TextBy(ReadWideHex)},
    {0x34, 16, "machineImplementationId", "Machine Implementation ID", TextBy(ReadWideHex)},
    {0x44, kDword, "instructionSetSupported", "Instruction Set Supported", CodeBy(ReadInstructionSets)},
    {0x48, kByte, "privilegeLevelSupported", "Privilege Levels Supported", Flags(kRiscvPrivilegeLevels)},
    {0x49, 16, "machineExceptionTrapDelegation", "Machine Exception Trap Delegation", TextBy(ReadWideHex)},
    {0x59, 16, "machineInterruptTrapDelegation", "Machine Interrupt Trap Delegation", TextBy(ReadWideHex)},
    {0x69, kByte, "registerWidth", "Register Width", Code(kRiscvWidths)},
    {0x6A, kByte, "machineModeWidth", "Machine Mode Width", Code(kRiscvWidths)},
    {0x6C, kByte, "supervisorModeWidth", "Supervisor Mode Width", Code(kRiscvWidths)},
    {0x6D, kByte, "userModeWidth", "User Mode Width", Code(kRiscvWidths)},
};

constexpr GroupTable kProcessorAdditionalGroups[] = {
    {.group = "", .rows = kRiscvRows},
};

void VisitProcessorData(RowVisitor& visitor) {
    constexpr std::uint8_t kFirstRiscv = 6;
    constexpr std::uint8_t kLastRiscv = 8;
    const std::uint8_t type = visitor.Area().Byte(0x07);
    if (kFirstRiscv <= type && type <= kLastRiscv) {
        visitor.VisitRows(kRiscvRows, kData);
    }
}

}  // namespace

constexpr TypeDescription kProcessorAdditional = {
    44, 0x08, kProcessorAdditionalRows, kProcessorAdditionalGroups, VisitProcessorData};

}  // namespace SMBIOS::Inspect::Standard
