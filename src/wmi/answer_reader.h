#pragma once

#include <string>
#include <string_view>

#include "wmi/property_set.h"
#include "wmi/property_value.h"

namespace SMBIOS::Wmi {

/// Reads what ConvertTo-Json prints, an array for several instances and the bare object for a single one, and
/// files the `properties` of each in `instances`, which is empty, under the text of its `keyProperty`. The
/// first instance of a key stays; one without a key is skipped. Nothing else of the answer is kept, however
/// deep it is nested. Throws nlohmann::json's own exceptions: for text that is not JSON, when nothing is
/// filed, and for a key that is no text, when the instances before that one are.
void ReadAnswer(std::string_view answer,
                const std::string& keyProperty,
                const PropertySet& properties,
                Instances& instances);

}  // namespace SMBIOS::Wmi
