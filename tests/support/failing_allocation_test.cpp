#include "tests/support/failing_allocation.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <new>
#include <thread>

namespace SMBIOS::Tests {
namespace {

using Successes = std::array<bool, 4>;

constexpr Successes kAll = {true, true, true, true};

bool Allocates() noexcept {
    void* const memory = ::operator new(1, std::nothrow);
    ::operator delete(memory);
    return memory != nullptr;
}

/// Which of four allocations succeed.
Successes FourAllocations() noexcept {
    Successes successes;
    for (bool& success : successes) {
        success = Allocates();
    }
    return successes;
}

Successes FourAllocationsFailing(std::size_t n, Failing failing) {
    const FailAllocation after(n, failing);
    return FourAllocations();
}

TEST(FailAllocation, FailsTheNthAllocationOnce) {
    EXPECT_EQ(FourAllocationsFailing(2, Failing::once), (Successes{true, false, true, true}));
}

TEST(FailAllocation, FailsFromTheNthAllocationOn) {
    EXPECT_EQ(FourAllocationsFailing(2, Failing::fromThenOn), (Successes{true, false, false, false}));
}

TEST(FailAllocation, EndsWithItsLife) {
    FourAllocationsFailing(1, Failing::fromThenOn);
    EXPECT_EQ(FourAllocations(), kAll);
}

TEST(FailAllocation, ThrowsBadAlloc) {
    const auto allocate = [] {
        const FailAllocation after(1);
        ::operator delete(::operator new(1));
    };
    EXPECT_THROW(allocate(), std::bad_alloc);
}

TEST(FailAllocation, FailsArraysToo) {
    const auto allocate = [] {
        const FailAllocation after(1);
        ::operator delete[](::operator new[](1));
    };
    EXPECT_THROW(allocate(), std::bad_alloc);
}

TEST(FailAllocation, TellsWhetherItFailedOne) {
    std::array<bool, 2> hasFailed;
    {
        const FailAllocation after(2);
        (void)Allocates();
        hasFailed[0] = after.HasFailed();
        (void)Allocates();
        hasFailed[1] = after.HasFailed();
    }
    EXPECT_EQ(hasFailed, (std::array{false, true}));
}

TEST(FailAllocation, LeavesOtherThreadsAlone) {
    std::atomic<bool> isFailing = false;
    Successes successes = {};
    std::thread other([&] {
        while (!isFailing) {
            std::this_thread::yield();
        }
        successes = FourAllocations();
    });
    {
        const FailAllocation after(1, Failing::fromThenOn);
        isFailing = true;
        other.join();
    }
    EXPECT_EQ(successes, kAll);
}

}  // namespace
}  // namespace SMBIOS::Tests
