#include "tests/inspect/departures/reason_case.h"

namespace SMBIOS::Tests {

std::span<const ReasonCase> EverywhereReasonCases() {
    static const ReasonCase kCases[] = {
        // A board of 13 bytes ends before its type at 0x0D.
        {ReasonId::missingBytes,
         "missingBytes",
         {2, 3},
         2,
         0x0D,
         {},
         "boardTypeValue",
         "boardTypeValue",
         "null",
         "0"},
        // The rank came with 2.6.0.
        {ReasonId::newerField,
         "newerField",
         {2, 4},
         17,
         0x1C,
         {{0x1B, 1, 2}},
         "rank",
         "rank",
         R"({"value": 2})",
         "null"},
        {ReasonId::newerStructure,
         "newerStructure",
         {2, 0},
         3,
         0x0A,
         {},
         "error",
         "error",
         kAccepted,
         R"("v2.1.0 structure or later in a v2.0.0 BIOS")"},
        // Enabled, and of the type "Other".
        {ReasonId::otherText,
         "otherText",
         {3, 8},
         41,
         0x0B,
         {{0x05, 1, 0x81}},
         "deviceType",
         "deviceType",
         R"({"value": 1, "text": "Other"})",
         "\"\""},
        // 3.9.0 is taken for 2.0.0, which has no wake-up type.
        {ReasonId::unlistedVersion,
         "unlistedVersion",
         {3, 9},
         1,
         0x19,
         {},
         "error",
         "error",
         kAccepted,
         R"("v2.1.0 structure or later in a v2.0.0 BIOS")"},
        {ReasonId::cutting,
         "cutting",
         {3, 8},
         41,
         0x0B,
         {},
         "error",
         "error",
         "null",
         R"("Invalid structure format pointer")",
         {0, 0}},
    };
    return kCases;
}

}  // namespace SMBIOS::Tests
