#include "wmi/property_value.h"

#include <stdexcept>

namespace SMBIOS::Wmi {

namespace {

constexpr double kTwoToThe63 = 9223372036854775808.0;
constexpr double kTwoToThe64 = 2 * kTwoToThe63;

std::uint64_t WholeNumberOf(double number) {
    if (number >= -kTwoToThe63 && number < 0) {
        return static_cast<std::uint64_t>(static_cast<std::int64_t>(number));
    }
    if (number >= 0 && number < kTwoToThe64) {
        return static_cast<std::uint64_t>(number);
    }
    throw std::out_of_range("the number does not fit into 64 bits");
}

}  // namespace

bool TruthOf(const PropertyValue& value) {
    return std::get<bool>(value);
}

const std::string& TextOf(const PropertyValue& value) {
    return std::get<std::string>(value);
}

std::uint64_t NumberOf(const PropertyValue& value) {
    if (const double* const number = std::get_if<double>(&value)) {
        return WholeNumberOf(*number);
    }
    if (const std::int64_t* const number = std::get_if<std::int64_t>(&value)) {
        return static_cast<std::uint64_t>(*number);
    }
    return std::get<std::uint64_t>(value);
}

}  // namespace SMBIOS::Wmi
