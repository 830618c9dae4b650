#include <gtest/gtest.h>

#include "tests/inspect/standard/field_case.h"

// Type 15.
namespace SMBIOS::Tests {
namespace {

const FieldCase kEventLogCases[] = {
    {"logLength",
     15,
     20,
     {{0x04, 2, 50}},
     "/logAreaLength",
     R"json({"value": 50, "unit": "byte"})json",
     "\tArea Length: 50 bytes\n"},
    {"logHeader",
     15,
     20,
     {{0x06, 2, 0x10}, {0x08, 2, 0x30}},
     "/logHeaderLength",
     R"json({"value": 32, "unit": "byte"})json",
     "\tHeader Length: 32 bytes\n"},
    {"logStart",
     15,
     20,
     {{0x08, 2, 0x30}},
     "/logDataStartOffset",
     R"json({"value": 48})json",
     "\tData Start Offset: 0x0030\n"},
    {"logMethod",
     15,
     20,
     {{0x0A, 1, 4}},
     "/accessMethod",
     R"json({"value": 4, "text": "General-purpose non-volatile data functions"})json",
     "\tAccess Method: General-purpose non-volatile data functions\n"},
    {"logMethodOfAnOem",
     15,
     20,
     {{0x0A, 1, 0x80}},
     "/accessMethod",
     R"json({"value": 128, "text": "OEM-specific"})json",
     "\tAccess Method: OEM-specific\n"},
    {"logStatus",
     15,
     20,
     {{0x0B, 1, 3}},
     "/logStatus",
     R"json({"value": 3, "text": "Valid, Full"})json",
     "\tStatus: Valid, Full\n"},
    {"logAddressOfPorts",
     15,
     20,
     {{0x10, 4, 0x00710070}},
     "/accessMethodAddress",
     R"json({"value": 7405680})json",
     "\tAccess Address: Index 0x0070, Data 0x0071\n"},
    {"logAddressInMemory",
     15,
     20,
     {{0x0A, 1, 3}, {0x10, 4, 0xFED00000}},
     "/accessMethodAddress",
     R"json({"value": 4275044352})json",
     "\tAccess Address: 0xFED00000\n"},
    {"logDescriptors",
     15,
     29,
     {{0x15, 1, 2}, {0x16, 1, 3}, {0x17, 1, 8}, {0x18, 1, 4}, {0x1A, 1, 0x16}},
     "/descriptors",
     R"json([{"logType": {"value": 8, "text": "POST error"}, "dataFormatType": {"value": 4, "text": "POST results bitmap"}}, {"logType": {"value": 22, "text": "Log area reset/cleared"}, "dataFormatType": {"value": 0, "text": "None"}}])json",
     "\tDescriptor 1: POST error\n\tData Format 1: POST results bitmap\n\tDescriptor 2: Log area "
     "reset/cleared\n\tData Format 2: None\n"},
};

INSTANTIATE_TEST_SUITE_P(EventLog, StandardField, testing::ValuesIn(kEventLogCases), NameOfCase);

}  // namespace
}  // namespace SMBIOS::Tests
