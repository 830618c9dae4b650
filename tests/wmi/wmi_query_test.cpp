#include "wmi/wmi_query.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <variant>

#include "tests/support/fake_platform.h"

namespace SMBIOS::Tests {
namespace {

using nlohmann::json;
using Wmi::Container;
using Wmi::Instances;
using Wmi::PropertySet;
using Wmi::PropertyValue;
using Wmi::WmiQuery;

constexpr std::size_t kLongest = 16'777'216;

WmiQuery MemoryQuery(const PropertySet& properties) {
    WmiQuery query;
    query.wmiNamespace = "root\\cimv2";
    query.Select(properties, "Win32_PhysicalMemory");
    return query;
}

json JsonOf(const PropertyValue& value) {
    return std::visit(
        [](const auto& content) -> json {
            if constexpr (std::is_same_v<std::remove_cvref_t<decltype(content)>, Container>) {
                return content == Container::array ? json::array() : json::object();
            } else {
                return content;
            }
        },
        value);
}

json JsonOf(const Instances& instances) {
    json result;
    for (const auto& [key, instance] : instances) {
        result[key] = json::object();
        for (const auto& [property, value] : instance) {
            result[key][property] = JsonOf(value);
        }
    }
    return result;
}

/// What FetchByKey makes of PowerShell's `output`; null for nothing.
json Fetched(const std::string& output, const PropertySet& properties = {"Capacity", "SerialNumber"}) {
    FakeCommandRunner powershell;
    powershell.Answer(output);
    Instances result{{"left over", {}}};
    MemoryQuery(properties).FetchByKey(result, "SerialNumber", properties);
    return JsonOf(result);
}

template <class Exception>
std::string TextOfFailure(const std::string& output) {
    try {
        Fetched(output);
    } catch (const Exception& failure) {
        return failure.what();
    }
    return "nothing thrown";
}

// Clauses

TEST(WmiQuery, SelectNamesOneProperty) {
    EXPECT_EQ(MemoryQuery({"SerialNumber"}).selectClause, "SELECT SerialNumber FROM Win32_PhysicalMemory");
}

TEST(WmiQuery, SelectNamesPropertiesInSetOrder) {
    EXPECT_EQ(MemoryQuery({"SerialNumber", "Capacity"}).selectClause,
              "SELECT Capacity, SerialNumber FROM Win32_PhysicalMemory");
}

TEST(WmiQuery, SelectReplacesTheEarlierClause) {
    WmiQuery query = MemoryQuery({"Tag"});
    query.Select({"Name"}, "Win32_Processor");
    EXPECT_EQ(query.selectClause, "SELECT Name FROM Win32_Processor");
}

TEST(WmiQuery, WhereFiltersOnOneValue) {
    WmiQuery query;
    query.Where("SerialNumber", {"1A2B3C4D"});
    EXPECT_EQ(query.whereClause, " WHERE SerialNumber = '1A2B3C4D'");
}

TEST(WmiQuery, WhereJoinsValuesWithOr) {
    WmiQuery query;
    query.Where("SerialNumber", {"1A2B3C4D", "5E6F7A8B"});
    EXPECT_EQ(query.whereClause, " WHERE SerialNumber = '1A2B3C4D' OR SerialNumber = '5E6F7A8B'");
}

TEST(WmiQuery, WhereReplacesTheEarlierFilter) {
    WmiQuery query;
    query.Where("SerialNumber", {"1A2B3C4D"});
    query.Where("ProcessorId", {"5E6F7A8B"});
    EXPECT_EQ(query.whereClause, " WHERE ProcessorId = '5E6F7A8B'");
}

TEST(WmiQuery, ThreeValuesNeedTwoSeparators) {
    WmiQuery query;
    query.Where("P", {"c", "a", "b"});
    EXPECT_EQ(query.whereClause, " WHERE P = 'c' OR P = 'a' OR P = 'b'");
}

TEST(WmiQuery, AQuoteInAValueIsPassedThrough) {
    WmiQuery query;
    query.Where("P", {"it's"});
    EXPECT_EQ(query.whereClause, " WHERE P = 'it's'");
}

// Command line

TEST(WmiQuery, CommandLineOfAFilteredQuery) {
    WmiQuery query = MemoryQuery({"Capacity", "SerialNumber"});
    query.Where("SerialNumber", {"1A2B3C4D"});
    EXPECT_EQ(
        query.CommandLine(),
        R"(powershell.exe -ExecutionPolicy Unrestricted -Command "Get-WmiObject -Namespace 'root\cimv2' )"
        R"(-Query \"SELECT Capacity, SerialNumber FROM Win32_PhysicalMemory )"
        R"(WHERE SerialNumber = '1A2B3C4D'\" | ConvertTo-Json")");
}

TEST(WmiQuery, CommandLineWithoutAFilterHasNoWhere) {
    EXPECT_EQ(
        MemoryQuery({"SerialNumber"}).CommandLine(),
        R"(powershell.exe -ExecutionPolicy Unrestricted -Command "Get-WmiObject -Namespace 'root\cimv2' )"
        R"(-Query \"SELECT SerialNumber FROM Win32_PhysicalMemory\" | ConvertTo-Json")");
}

TEST(WmiQuery, RunPowerShellGivesWhatItPrints) {
    FakeCommandRunner powershell;
    powershell.Answer("text");
    std::string output;
    EXPECT_TRUE(MemoryQuery({"Tag"}).RunPowerShell(output));
    EXPECT_EQ(output, "text");
    EXPECT_EQ(powershell.CommandLines(), std::vector<std::string>{MemoryQuery({"Tag"}).CommandLine()});
}

TEST(WmiQuery, RunPowerShellLeavesTheOutputWhenItCannotStart) {
    FakeCommandRunner powershell;
    powershell.FailToStart();
    std::string output = "left over";
    EXPECT_FALSE(MemoryQuery({"Tag"}).RunPowerShell(output));
    EXPECT_EQ(output, "left over");
}

// Answers

TEST(WmiQuery, AnArrayIsFiledByKey) {
    EXPECT_EQ(
        Fetched(R"([{"SerialNumber":"B","Capacity":2},{"SerialNumber":"A","Capacity":1}])"),
        json::parse(R"({"A":{"SerialNumber":"A","Capacity":1},"B":{"SerialNumber":"B","Capacity":2}})"));
}

TEST(WmiQuery, ASingleObjectIsFiledLikeOneElement) {
    EXPECT_EQ(Fetched(R"({"SerialNumber":"A","Capacity":1})"),
              json::parse(R"({"A":{"SerialNumber":"A","Capacity":1}})"));
}

TEST(WmiQuery, OnlyRequestedPropertiesAreKept) {
    EXPECT_EQ(Fetched(R"({"SerialNumber":"A","Capacity":1,"__PATH":"x"})"),
              json::parse(R"({"A":{"SerialNumber":"A","Capacity":1}})"));
}

TEST(WmiQuery, PropertiesTheInstanceLacksAreAbsent) {
    EXPECT_EQ(Fetched(R"({"SerialNumber":"A"})"), json::parse(R"({"A":{"SerialNumber":"A"}})"));
}

TEST(WmiQuery, ARequestedNullIsKept) {
    EXPECT_EQ(Fetched(R"({"SerialNumber":"A","Capacity":null})"),
              json::parse(R"({"A":{"SerialNumber":"A","Capacity":null}})"));
}

TEST(WmiQuery, TheFirstInstanceOfAKeyStays) {
    EXPECT_EQ(Fetched(R"([{"SerialNumber":"A","Capacity":1},{"SerialNumber":"A","Capacity":2}])"),
              json::parse(R"({"A":{"SerialNumber":"A","Capacity":1}})"));
}

TEST(WmiQuery, KeysThatDifferInCaseAreDifferent) {
    EXPECT_EQ(
        Fetched(R"([{"SerialNumber":"ab","Capacity":1},{"SerialNumber":"AB","Capacity":2}])"),
        json::parse(R"({"ab":{"SerialNumber":"ab","Capacity":1},"AB":{"SerialNumber":"AB","Capacity":2}})"));
}

TEST(WmiQuery, InstancesWithoutTheKeyAreSkipped) {
    EXPECT_EQ(Fetched(R"([{"Capacity":1},{"SerialNumber":"A"}])"),
              json::parse(R"({"A":{"SerialNumber":"A"}})"));
}

TEST(WmiQuery, ElementsThatAreNoObjectsAreSkipped) {
    EXPECT_EQ(Fetched(R"([1,"SerialNumber",null,["SerialNumber"]])"), json());
}

TEST(WmiQuery, OfAMemberThatHoldsOthersTheKindIsKept) {
    EXPECT_EQ(
        Fetched(R"([{"SerialNumber":"A","Capacity":[1,{"SerialNumber":"Z"},[2]]},
                          {"SerialNumber":"B","Capacity":{"Capacity":3,"SerialNumber":"Z"}}])"),
        json::parse(R"({"A":{"SerialNumber":"A","Capacity":[]},"B":{"SerialNumber":"B","Capacity":{}}})"));
}

TEST(WmiQuery, WhatFollowsAMemberThatHoldsOthersIsKept) {
    EXPECT_EQ(Fetched(R"({"Tag":{"a":[{"Capacity":9}]},"Capacity":1,"Name":[[]],"SerialNumber":"A"})"),
              json::parse(R"({"A":{"SerialNumber":"A","Capacity":1}})"));
}

TEST(WmiQuery, EveryKindOfValueIsKept) {
    EXPECT_EQ(Fetched(R"({"SerialNumber":"A","a":null,"b":true,"c":7,"d":-7,"e":1.5,"f":"t\u00e9xt"})",
                      {"a", "b", "c", "d", "e", "f"}),
              json::parse(R"({"A":{"a":null,"b":true,"c":7,"d":-7,"e":1.5,"f":"t\u00e9xt"}})"));
}

TEST(WmiQuery, ObjectsWithinInnerArraysAreNoInstances) {
    EXPECT_EQ(Fetched(R"([[{"SerialNumber":"A"}],{"SerialNumber":"B"}])"),
              json::parse(R"({"B":{"SerialNumber":"B"}})"));
}

TEST(WmiQuery, OfARepeatedMemberTheLastCounts) {
    EXPECT_EQ(Fetched(R"({"Capacity":1,"SerialNumber":"A","Capacity":[2],"Capacity":3})"),
              json::parse(R"({"A":{"SerialNumber":"A","Capacity":3}})"));
    EXPECT_EQ(Fetched(R"({"Capacity":1,"SerialNumber":"A","Capacity":[2]})"),
              json::parse(R"({"A":{"SerialNumber":"A","Capacity":[]}})"));
}

TEST(WmiQuery, OfARepeatedKeyTheLastCounts) {
    EXPECT_EQ(Fetched(R"({"SerialNumber":7,"SerialNumber":"A","Capacity":1})"),
              json::parse(R"({"A":{"SerialNumber":"A","Capacity":1}})"));
    EXPECT_NE(TextOfFailure<json::type_error>(R"({"SerialNumber":"A","SerialNumber":{}})")
                  .find("type must be string, but is object"),
              std::string::npos);
}

TEST(WmiQuery, AnEmptyArrayGivesNull) {
    EXPECT_EQ(Fetched("[]"), json());
}

TEST(WmiQuery, ABareValueGivesNull) {
    EXPECT_EQ(Fetched("42"), json());
}

TEST(WmiQuery, WindowsLineEndsAreAccepted) {
    EXPECT_EQ(Fetched("{\r\n  \"SerialNumber\": \"A\"\r\n}\r\n"),
              json::parse(R"({"A":{"SerialNumber":"A"}})"));
}

TEST(WmiQuery, TheKeyMayBeAnEmptyText) {
    EXPECT_EQ(Fetched(R"({"SerialNumber":""})"), json::parse(R"({"":{"SerialNumber":""}})"));
}

// Failures

TEST(WmiQuery, AStartFailureGivesNull) {
    FakeCommandRunner powershell;
    powershell.FailToStart();
    Instances result{{"left over", {}}};
    MemoryQuery({"Tag"}).FetchByKey(result, "SerialNumber", {"Tag"});
    EXPECT_TRUE(result.empty());
}

TEST(WmiQuery, AnEmptyOutputIsAParseError) {
    EXPECT_NE(
        TextOfFailure<json::parse_error>("").find("attempting to parse an empty input; check that your input "
                                                  "string or stream contains the expected JSON"),
        std::string::npos);
}

TEST(WmiQuery, TextThatIsNotJsonIsAParseError) {
    EXPECT_NE(TextOfFailure<json::parse_error>("Get-WmiObject : Invalid class"), "nothing thrown");
}

TEST(WmiQuery, HalfADocumentIsAParseError) {
    EXPECT_NE(TextOfFailure<json::parse_error>(R"([{"SerialNumber":"A"},)"), "nothing thrown");
}

TEST(WmiQuery, ANullKeyIsATypeError) {
    EXPECT_NE(
        TextOfFailure<json::type_error>(R"({"SerialNumber":null})").find("type must be string, but is null"),
        std::string::npos);
}

TEST(WmiQuery, ANumericKeyIsATypeError) {
    EXPECT_NE(
        TextOfFailure<json::type_error>(R"({"SerialNumber":7})").find("type must be string, but is number"),
        std::string::npos);
}

TEST(WmiQuery, AKeyThatHoldsOthersIsATypeError) {
    EXPECT_NE(TextOfFailure<json::type_error>(R"({"SerialNumber":["A"]})")
                  .find("type must be string, but is array"),
              std::string::npos);
}

TEST(WmiQuery, TextBehindTheDocumentIsAParseError) {
    EXPECT_NE(TextOfFailure<json::parse_error>(R"({"SerialNumber":"A"} x)"), "nothing thrown");
}

TEST(WmiQuery, TextThatIsNotJsonCountsMoreThanAKeyBeforeIt) {
    EXPECT_NE(TextOfFailure<json::parse_error>(R"([{"SerialNumber":7},)"), "nothing thrown");
}

TEST(WmiQuery, NothingIsKeptOfTextThatIsNotJson) {
    FakeCommandRunner powershell;
    powershell.Answer(R"([{"SerialNumber":"A"},)");
    Instances result;
    EXPECT_THROW(MemoryQuery({"Tag"}).FetchByKey(result, "SerialNumber", {"Tag"}), json::parse_error);
    EXPECT_TRUE(result.empty());
}

TEST(WmiQuery, NothingIsFiledBehindAKeyThatIsNoText) {
    FakeCommandRunner powershell;
    powershell.Answer(R"([{"SerialNumber":7},{"SerialNumber":"A"}])");
    Instances result;
    EXPECT_THROW(MemoryQuery({"Tag"}).FetchByKey(result, "SerialNumber", {"Tag"}), json::type_error);
    EXPECT_TRUE(result.empty());
}

TEST(WmiQuery, ATextMayBeLong) {
    const std::string text(kLongest - 10, 'x');
    EXPECT_TRUE(Fetched(R"({"SerialNumber":"A","Capacity":")" + text + R"("})")["A"]["Capacity"] == text);
}

TEST(WmiQuery, AnAnswerMayBeLongerThanItsLongestText) {
    std::string answer = "[";
    while (answer.size() <= kLongest) {
        answer += R"({"SerialNumber":"A","Capacity":1,"Other":[null,{}]},)";
    }
    EXPECT_EQ(Fetched(answer + R"({"SerialNumber":"A"}])"),
              json::parse(R"({"A":{"SerialNumber":"A","Capacity":1}})"));
}

TEST(WmiQuery, AnEndlessTextIsRefused) {
    EXPECT_EQ(TextOfFailure<std::length_error>(R"([{"SerialNumber":")" + std::string(kLongest, 'x')),
              "a part of PowerShell's answer is too long");
}

TEST(WmiQuery, AnEndlessStretchWithoutTextIsRefused) {
    for (const char character : {' ', '['}) {
        EXPECT_EQ(TextOfFailure<std::length_error>(std::string(kLongest + 1, character)),
                  "a part of PowerShell's answer is too long");
    }
}

TEST(WmiQuery, InstancesBeforeAFailureStayInTheResult) {
    FakeCommandRunner powershell;
    powershell.Answer(R"([{"SerialNumber":"A"},{"SerialNumber":7}])");
    Instances result;
    EXPECT_THROW(MemoryQuery({"Tag"}).FetchByKey(result, "SerialNumber", {"SerialNumber"}), json::type_error);
    EXPECT_EQ(JsonOf(result), json::parse(R"({"A":{"SerialNumber":"A"}})"));
}

}  // namespace
}  // namespace SMBIOS::Tests
