#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "wmi/property_set.h"
#include "wmi/property_value.h"

namespace SMBIOS::Wmi {

/// One query over the instances of a WMI class, run by PowerShell and answered as JSON. A plain value; set
/// `wmiNamespace`, call `Select`, then `Where` if there is something to filter on, then `FetchByKey`.
struct WmiQuery {
    std::string selectClause;
    std::string whereClause;  ///< begins with " WHERE "; empty for no filter
    std::string wmiNamespace;

    /// Replaces the select clause.
    void Select(const PropertySet& properties, std::string_view className);

    /// Replaces the filter: `property` equal to any of `values`, which are inserted as they are. `values`
    /// must not be empty.
    void Where(std::string_view property, const std::vector<std::string>& values);

    /// The command line that runs the query.
    [[nodiscard]] std::string CommandLine() const;

    /// Runs the query; `output` becomes everything PowerShell printed. Returns false, leaving `output`
    /// untouched, when PowerShell cannot be started.
    [[nodiscard]] bool RunPowerShell(std::string& output) const;

    /// Runs the query and files the requested properties of every instance under the text of its
    /// `keyProperty`; the first instance of a key stays. `result` is empty when nothing was found or
    /// PowerShell cannot be started. Throws nlohmann::json's own exceptions for text that is not JSON and for
    /// a key that is not text; then the instances before that one stay in `result`. Throws std::length_error
    /// for an answer with a text of 16 MiB or more.
    void FetchByKey(Instances& result, const std::string& keyProperty, const PropertySet& properties) const;
};

}  // namespace SMBIOS::Wmi
