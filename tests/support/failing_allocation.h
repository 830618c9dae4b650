#pragma once

#include <cstddef>

#include "tests/support/allocation_hook.h"

namespace SMBIOS::Tests {

/// Which allocations fail: the n-th alone, or all from the n-th on.
enum class Failing { once, fromThenOn };

/// Makes the n-th `new` of this thread fail with std::bad_alloc, counted from 1 since it was made, while it
/// lives: `const FailAllocation after(3);`. Keep nothing but the code under test beside it: the assertions of
/// GoogleTest allocate too.
class FailAllocation final : public AllocationHook {
public:
    explicit FailAllocation(std::size_t n, Failing failing = Failing::once) noexcept
        : n_(n), failing_(failing) {}

    void BeforeAllocation(std::size_t size) override;

    /// Whether an allocation has failed: once it has not, `n` is larger than their number.
    [[nodiscard]] bool HasFailed() const noexcept { return count_ >= n_; }

private:
    const std::size_t n_;
    const Failing failing_;
    std::size_t count_ = 0;
};

}  // namespace SMBIOS::Tests
