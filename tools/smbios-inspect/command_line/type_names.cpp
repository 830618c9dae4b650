#include "smbios-inspect/command_line/type_names.h"

namespace SMBIOS::Inspect {

namespace {

// The first nine, and what belongs to each, are those of dmidecode.
constexpr std::uint8_t kBios[] = {0, 13};
constexpr std::uint8_t kSystem[] = {1, 12, 15, 23, 32};
constexpr std::uint8_t kBaseboard[] = {2, 10, 41};
constexpr std::uint8_t kChassis[] = {3};
constexpr std::uint8_t kProcessor[] = {4};
constexpr std::uint8_t kMemory[] = {5, 6, 16, 17};
constexpr std::uint8_t kCache[] = {7};
constexpr std::uint8_t kConnector[] = {8};
constexpr std::uint8_t kSlot[] = {9};
constexpr std::uint8_t kOem[] = {11};
constexpr std::uint8_t kGroup[] = {14};
constexpr std::uint8_t kError[] = {18, 33};
constexpr std::uint8_t kAddress[] = {19, 20};
constexpr std::uint8_t kPointing[] = {21};
constexpr std::uint8_t kBattery[] = {22};
constexpr std::uint8_t kSecurity[] = {24};
constexpr std::uint8_t kPower[] = {22, 25, 39};
constexpr std::uint8_t kProbe[] = {26, 28, 29};
constexpr std::uint8_t kCooling[] = {27};
constexpr std::uint8_t kRemote[] = {30, 31};
constexpr std::uint8_t kManagement[] = {34, 35, 36, 38, 42};
constexpr std::uint8_t kChannel[] = {37};
constexpr std::uint8_t kAdditional[] = {40, 44, 46};
constexpr std::uint8_t kTpm[] = {43};
constexpr std::uint8_t kInventory[] = {45};

constexpr TypeName kTypeNames[] = {
    {"bios", kBios},
    {"system", kSystem},
    {"baseboard", kBaseboard},
    {"chassis", kChassis},
    {"processor", kProcessor},
    {"memory", kMemory},
    {"cache", kCache},
    {"connector", kConnector},
    {"slot", kSlot},
    {"oem", kOem},
    {"group", kGroup},
    {"error", kError},
    {"address", kAddress},
    {"pointing", kPointing},
    {"battery", kBattery},
    {"security", kSecurity},
    {"power", kPower},
    {"probe", kProbe},
    {"cooling", kCooling},
    {"remote", kRemote},
    {"management", kManagement},
    {"channel", kChannel},
    {"additional", kAdditional},
    {"tpm", kTpm},
    {"inventory", kInventory},
};

}  // namespace

std::span<const TypeName> TypeNames() noexcept {
    return kTypeNames;
}

}  // namespace SMBIOS::Inspect
