#include "structures/decoder.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "structures/structure_record.h"
#include "structures/unknown_type.h"
#include "tests/support/decode.h"
#include "tests/support/failing_allocation.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Decoder;
using Structures::ParseRules;
using Structures::StringSetRule;
using Structures::StructureReader;
using Structures::StructureRecord;
using Structures::UnknownType;

struct ProbeRecord : StructureRecord {
    std::uint8_t first = 0;
    std::uint8_t second = 0;
};

/// A decoder whose byte 4 tells what goes wrong between its two fields.
template <StringSetRule rule>
class FailingType final : public Decoder<FailingType<rule>, ProbeRecord> {
    friend Decoder<FailingType<rule>, ProbeRecord>;

public:
    using Decoder<FailingType<rule>, ProbeRecord>::Decoder;

private:
    static constexpr ParseRules kRules = {.strings = rule};
    static void DecodeFieldsInOrder(StructureReader& in, ProbeRecord& record) {
        record.first = in.Byte(0x05);
        if (in.Byte(0x04) == 1) {
            throw std::length_error("too long");
        }
        if (in.Byte(0x04) == 2) {
            throw 42;
        }
        if (in.Byte(0x04) == 3) {
            in.OverwriteByte(0x05, 0x0F);
            in.OverwriteByte(0x06, 0x0F);
        }
        record.second = in.Byte(0x05);
    }
};

using KeepingType = FailingType<StringSetRule::always>;
using SuccessType = FailingType<StringSetRule::onSuccess>;
using PresentType = FailingType<StringSetRule::alwaysIfPresent>;

using Bytes = std::vector<std::uint8_t>;
using Strings = std::vector<std::string>;

const Bytes kGood = {99, 6, 0x34, 0x12, 0, 7};
const Bytes kFailing = {99, 6, 0x34, 0x12, 1, 7};

TEST(Decoder, HasNoHandleBeforeItIsGivenAStructure) {
    EXPECT_EQ(KeepingType(v2_0_0).GetHandle(), 65535);
    EXPECT_EQ(KeepingType(v2_0_0).GetRecord(), nullptr);
}

TEST(Decoder, StoresHandleFieldsStringsAndRawBytes) {
    const auto record = DecodeBytes<KeepingType>(v2_0_0, kGood, {"one", "two"});
    EXPECT_EQ(record->handle, 0x1234);
    EXPECT_EQ(record->second, 7);
    EXPECT_EQ(record->strings, (Strings{"one", "two"}));
    EXPECT_EQ(record->rawBytes, kGood);
    EXPECT_EQ(record->error, "");
}

TEST(Decoder, KeepsTheVeryBytesAndStringsItIsGiven) {
    KeepingType decoder(v2_0_0);
    Bytes bytes = kGood;
    Strings strings = {"one", "a text that is longer than what fits into a string object"};
    const auto* const firstByte = bytes.data();
    const auto* const firstString = strings.data();
    decoder.ProcessAndKeep(std::move(bytes), std::move(strings));
    ASSERT_TRUE(decoder.GetRecord()->strings);
    EXPECT_EQ(decoder.GetRecord()->rawBytes.data(), firstByte);
    EXPECT_EQ(decoder.GetRecord()->strings->data(), firstString);
    EXPECT_EQ(decoder.GetRecord()->second, 7);
}

TEST(Decoder, KeepsOfAFailureWhatItWouldHaveCopied) {
    for (const Strings& strings : {Strings{}, Strings{"text"}}) {
        KeepingType always(v2_0_0);
        always.ProcessAndKeep(Bytes(kFailing), Strings(strings));
        EXPECT_EQ(always.GetRecord()->rawBytes, kFailing);
        EXPECT_EQ(always.GetRecord()->error, "too long");
        EXPECT_EQ(always.GetRecord()->strings,
                  (DecodeBytes<KeepingType>(v2_0_0, kFailing, strings)->strings));

        SuccessType onSuccess(v2_0_0);
        onSuccess.ProcessAndKeep(Bytes(kFailing), Strings(strings));
        EXPECT_FALSE(onSuccess.GetRecord()->strings);
    }
}

TEST(Decoder, AnOverwrittenByteShowsInTheBytesItKeeps) {
    KeepingType decoder(v2_0_0);
    decoder.ProcessAndKeep({99, 6, 0x34, 0x12, 3, 0xFF}, {});
    EXPECT_EQ(decoder.GetRecord()->rawBytes, (Bytes{99, 6, 0x34, 0x12, 3, 0x0F}));
}

TEST(Decoder, GetHandleGivesTheRecordsHandle) {
    KeepingType decoder(v2_0_0);
    decoder.Process(kGood, {});
    EXPECT_EQ(decoder.GetHandle(), 0x1234);
}

TEST(Decoder, AThreeByteAreaIsMalformedWithHandleZero) {
    KeepingType decoder(v2_0_0);
    decoder.Process({99, 3, 0x34}, {});
    EXPECT_EQ(decoder.GetRecord()->error, kMalformed);
    EXPECT_EQ(decoder.GetHandle(), 0);
    EXPECT_FALSE(decoder.GetRecord()->strings);
    EXPECT_EQ(decoder.GetRecord()->rawBytes.size(), 3U);
}

TEST(Decoder, AnEmptyAreaIsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<KeepingType>(v2_0_0, {})->error, kInvalidPointer);
}

TEST(Decoder, ParseThrowsWhatProcessRecords) {
    KeepingType decoder(v2_0_0);
    EXPECT_THROW(decoder.Parse({}), std::runtime_error);
    EXPECT_THROW(decoder.Parse({99, 3, 0x34}), std::exception);
}

TEST(Decoder, ParseMakesAFreshRecordEachTime) {
    KeepingType decoder(v2_0_0);
    decoder.Process(kFailing, {"text"});
    const auto earlier = decoder.GetRecord();
    decoder.Parse(kGood);
    EXPECT_NE(decoder.GetRecord(), earlier);
    EXPECT_EQ(decoder.GetRecord()->error, "");
    EXPECT_EQ(decoder.GetRecord()->handle, 0x1234);
}

TEST(Decoder, AFailureOfAFieldKeepsTheFieldsBeforeIt) {
    const auto record = DecodeBytes<KeepingType>(v2_0_0, kFailing);
    EXPECT_EQ(record->error, "too long");
    EXPECT_EQ(record->handle, 0x1234);
    EXPECT_EQ(record->first, 7);
    EXPECT_EQ(record->second, 0);
    EXPECT_EQ(record->rawBytes, kFailing);
}

TEST(Decoder, AFailureWithoutATextHasTheUnknownErrorText) {
    EXPECT_EQ(DecodeBytes<KeepingType>(v2_0_0, {99, 6, 0x34, 0x12, 2, 7})->error,
              "Unknown error occurred while processing type structure");
}

TEST(Decoder, AnOverwrittenByteShowsInTheRawBytes) {
    EXPECT_EQ(DecodeBytes<KeepingType>(v2_0_0, {99, 6, 0x34, 0x12, 3, 0xFF})->rawBytes,
              (Bytes{99, 6, 0x34, 0x12, 3, 0x0F}));
}

TEST(Decoder, KeepsStringsAfterAFailureUnlessEmpty) {
    EXPECT_EQ(DecodeBytes<KeepingType>(v2_0_0, kFailing, {"text"})->strings, Strings{"text"});
    EXPECT_FALSE(DecodeBytes<KeepingType>(v2_0_0, kFailing, {})->strings);
    EXPECT_EQ(DecodeBytes<KeepingType>(v2_0_0, kGood, {})->strings, Strings{});
}

TEST(Decoder, KeepsStringsOnlyAfterASuccessWhereTheRuleSaysSo) {
    EXPECT_FALSE(DecodeBytes<SuccessType>(v2_0_0, kFailing, {"text"})->strings);
    EXPECT_EQ(DecodeBytes<SuccessType>(v2_0_0, kGood, {})->strings, Strings{});
}

TEST(Decoder, NeverKeepsAnEmptyStringSetWhereTheRuleSaysSo) {
    EXPECT_FALSE(DecodeBytes<PresentType>(v2_0_0, kGood, {})->strings);
    EXPECT_EQ(DecodeBytes<PresentType>(v2_0_0, kGood, {"text"})->strings, Strings{"text"});
    EXPECT_EQ(DecodeBytes<PresentType>(v2_0_0, kFailing, {"text"})->strings, Strings{"text"});
}

/// Reads a text that needs an allocation, and fails to allocate where byte 4 says so.
class TextType final : public Decoder<TextType, StructureRecord> {
    friend Decoder<TextType, StructureRecord>;

public:
    using Decoder<TextType, StructureRecord>::Decoder;
    static inline std::string text;

private:
    static constexpr ParseRules kRules = {};
    static void DecodeFieldsInOrder(StructureReader& in, StructureRecord&) {
        if (in.Byte(0x04) == 1) {
            throw std::bad_alloc();
        }
        const FailAllocation after(in.Byte(0x04) == 2 ? 1 : 2);
        text = in.String(0x05);
    }
};

const Strings kLongText = {"a text that is longer than what fits into a string object"};

TEST(Decoder, AFailedAllocationIsRecordedAndKnown) {
    TextType decoder(v2_0_0);
    decoder.Process({99, 6, 0x34, 0x12, 1, 1}, kLongText);
    EXPECT_EQ(decoder.GetRecord()->error, "std::bad_alloc");
    EXPECT_TRUE(decoder.RanOutOfMemory());
}

TEST(Decoder, ATextThatIsLostToAFailedAllocationIsKnown) {
    TextType decoder(v2_0_0);
    decoder.Process({99, 6, 0x34, 0x12, 2, 1}, kLongText);
    EXPECT_EQ(TextType::text, "");
    EXPECT_EQ(decoder.GetRecord()->error, "");
    EXPECT_TRUE(decoder.RanOutOfMemory());
}

TEST(Decoder, WithoutAFailedAllocationHasNotRunOutOfMemory) {
    TextType decoder(v2_0_0);
    decoder.Process({99, 6, 0x34, 0x12, 0, 1}, kLongText);
    EXPECT_EQ(TextType::text, kLongText.front());
    EXPECT_FALSE(decoder.RanOutOfMemory());
    decoder.Process({99, 3, 0x34}, {});
    EXPECT_FALSE(decoder.RanOutOfMemory());
}

TEST(UnknownType, KeepsTypeHandleStringsAndRawBytes) {
    const auto record = DecodeBytes<UnknownType>(v3_8_0, {200, 5, 0x34, 0x12, 9}, {"text"});
    EXPECT_EQ(record->type, 200);
    EXPECT_EQ(record->handle, 0x1234);
    EXPECT_EQ(record->strings, Strings{"text"});
    EXPECT_EQ(record->rawBytes.size(), 5U);
    EXPECT_EQ(record->error, "");
}

TEST(UnknownType, KeepsTheTypeOfAMalformedStructureAndNoStrings) {
    const auto record = DecodeBytes<UnknownType>(v3_8_0, {200, 3, 0x34}, {"text"});
    EXPECT_EQ(record->type, 200);
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->error, kMalformed);
    EXPECT_FALSE(record->strings);
    EXPECT_EQ(record->rawBytes.size(), 3U);
}

TEST(UnknownType, AnEmptyAreaIsMalformedOfType0) {
    const auto record = DecodeBytes<UnknownType>(v3_8_0, {});
    EXPECT_EQ(record->type, 0);
    EXPECT_EQ(record->error, kMalformed);
}

TEST(UnknownType, HasNoHandleBeforeItIsGivenAStructure) {
    EXPECT_EQ(UnknownType(v2_0_0).GetHandle(), 65535);
}

}  // namespace
}  // namespace SMBIOS::Tests
