#include <gtest/gtest.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <new>
#include <typeinfo>

#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "tests/windows/process_usage.h"
#include "tests/windows/windows_headers.h"

namespace SMBIOS::Tests {
namespace {

using Parsers::EBOOL;
using Parsers::MEMORY_TYPE_DETAILS;
using Parsers::MemoryInfo;
using Parsers::PROCESSOR_CHARACTERISTICS;
using Parsers::ProcessorInfo;

static_assert(sizeof(EBOOL) == 2);
static_assert(offsetof(EBOOL, value) == 0);
static_assert(offsetof(EBOOL, isSet) == 1);

static_assert(sizeof(PROCESSOR_CHARACTERISTICS) == 17);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, characteristicsLow) == 0);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, capable64bit) == 1);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, multiCore) == 3);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, hardwareThread) == 5);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, executeProtection) == 7);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, enhacedVirtualization) == 9);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, powerPerformanceControl) == 11);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, capable128bit) == 13);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, arm64SoC_ID) == 15);

static_assert(sizeof(MEMORY_TYPE_DETAILS) == 26);
static_assert(offsetof(MEMORY_TYPE_DETAILS, typeDetailWord) == 0);
static_assert(offsetof(MEMORY_TYPE_DETAILS, fastPaged) == 2);
static_assert(offsetof(MEMORY_TYPE_DETAILS, staticColumn) == 4);
static_assert(offsetof(MEMORY_TYPE_DETAILS, pseudoStatic) == 6);
static_assert(offsetof(MEMORY_TYPE_DETAILS, rambus) == 8);
static_assert(offsetof(MEMORY_TYPE_DETAILS, synchronous) == 10);
static_assert(offsetof(MEMORY_TYPE_DETAILS, cmos) == 12);
static_assert(offsetof(MEMORY_TYPE_DETAILS, edo) == 14);
static_assert(offsetof(MEMORY_TYPE_DETAILS, windowDram) == 16);
static_assert(offsetof(MEMORY_TYPE_DETAILS, cacheDram) == 18);
static_assert(offsetof(MEMORY_TYPE_DETAILS, nonVolatile) == 20);
static_assert(offsetof(MEMORY_TYPE_DETAILS, registered) == 22);
static_assert(offsetof(MEMORY_TYPE_DETAILS, unbuffered) == 24);

static_assert(sizeof(MemoryInfo) == 2 * sizeof(void*));
static_assert(sizeof(ProcessorInfo) == 2 * sizeof(void*));

using Destructor = void (*)(void*);

/// The slots of the object's virtual table. In g++'s, a virtual destructor has two: 0 destroys the object, 1
/// also frees it; ahead of them, at -1, stands the type information.
const Destructor* SlotsOf(const void* object) {
    return *static_cast<const Destructor* const*>(object);
}

/// Address of what the library exports under this name.
Destructor Exported(const char* name) {
    const HMODULE library = ::GetModuleHandleW(L"vantor-shared-smbios-v2.dll");
    return std::bit_cast<Destructor>(::GetProcAddress(library, name));
}

/// Names of a class's two destructors and its type information.
template <class Info>
struct Names;
template <>
struct Names<MemoryInfo> {
    static constexpr const char* destroys = "_ZN6SMBIOS7Parsers10MemoryInfoD1Ev";
    static constexpr const char* frees = "_ZN6SMBIOS7Parsers10MemoryInfoD0Ev";
    static constexpr const char* typeInformation = "_ZTIN6SMBIOS7Parsers10MemoryInfoE";
};
template <>
struct Names<ProcessorInfo> {
    static constexpr const char* destroys = "_ZN6SMBIOS7Parsers13ProcessorInfoD1Ev";
    static constexpr const char* frees = "_ZN6SMBIOS7Parsers13ProcessorInfoD0Ev";
    static constexpr const char* typeInformation = "_ZTIN6SMBIOS7Parsers13ProcessorInfoE";
};

template <class Info>
class Layout : public testing::Test {};
using Classes = testing::Types<MemoryInfo, ProcessorInfo>;
TYPED_TEST_SUITE(Layout, Classes);

TYPED_TEST(Layout, BeginsTheVirtualTableWithTheDestructor) {
    const TypeParam info;
    EXPECT_EQ(SlotsOf(&info)[0], Exported(Names<TypeParam>::destroys));
    EXPECT_EQ(SlotsOf(&info)[1], Exported(Names<TypeParam>::frees));
    EXPECT_EQ(SlotsOf(&info)[-1], Exported(Names<TypeParam>::typeInformation));
}

TYPED_TEST(Layout, DestroysThroughTheFirstSlot) {
    const std::size_t before = HeapBytesInUse();
    alignas(TypeParam) std::byte place[sizeof(TypeParam)];
    void* const object = ::new (static_cast<void*>(place)) TypeParam;
    EXPECT_GT(HeapBytesInUse(), before);
    SlotsOf(object)[0](object);
    EXPECT_EQ(HeapBytesInUse(), before);
}

TYPED_TEST(Layout, FreesThroughTheSecondSlot) {
    const std::size_t before = HeapBytesInUse();
    void* const object = new TypeParam;
    SlotsOf(object)[1](object);
    EXPECT_EQ(HeapBytesInUse(), before);
}

// The program has type information of its own; the two are compared by their names.
TYPED_TEST(Layout, NamesTheClass) {
    const TypeParam info;
    EXPECT_TRUE(typeid(info) == typeid(TypeParam));
}

/// The bytes of a flag, the first one in the low half.
unsigned BytesOf(const EBOOL& flag) {
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(&flag);
    return bytes[0] | static_cast<unsigned>(bytes[1]) << 8;
}

TEST(FlagLayout, IsValueAndMark) {
    EBOOL flag;
    EXPECT_EQ(BytesOf(flag), 0x0000U);
    flag = true;
    EXPECT_EQ(BytesOf(flag), 0x0101U);
    flag = false;
    EXPECT_EQ(BytesOf(flag), 0x0100U);
}

}  // namespace
}  // namespace SMBIOS::Tests
