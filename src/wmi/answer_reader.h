#pragma once

#include <string>

#include "platform/command_runner.h"
#include "wmi/property_set.h"
#include "wmi/property_value.h"

namespace SMBIOS::Wmi {

/// Reads what ConvertTo-Json prints, an array for several instances and the bare object for a single one, and
/// files the `properties` of each in `instances`, which is empty, under the text of its `keyProperty`. The
/// first instance of a key stays; one without a key is skipped. Nothing else of the answer is kept, however
/// deep it is nested and long it is. Throws nlohmann::json's own exceptions: for text that is not JSON, when
/// nothing is filed and the rest is not read, and for a key that is no text, when the instances before that
/// one are filed. Throws std::length_error, with nothing filed, for 16 MiB within or between two texts or
/// numbers.
void ReadAnswer(Platform::ProgramOutput& answer,
                const std::string& keyProperty,
                const PropertySet& properties,
                Instances& instances);

}  // namespace SMBIOS::Wmi
