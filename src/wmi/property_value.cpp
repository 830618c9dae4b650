#include "wmi/property_value.h"

namespace SMBIOS::Wmi {

bool TruthOf(const PropertyValue& value) {
    return std::get<bool>(value);
}

const std::string& TextOf(const PropertyValue& value) {
    return std::get<std::string>(value);
}

std::uint64_t NumberOf(const PropertyValue& value) {
    if (const double* const number = std::get_if<double>(&value)) {
        return static_cast<std::uint64_t>(static_cast<std::int64_t>(*number));
    }
    if (const std::int64_t* const number = std::get_if<std::int64_t>(&value)) {
        return static_cast<std::uint64_t>(*number);
    }
    return std::get<std::uint64_t>(value);
}

}  // namespace SMBIOS::Wmi
