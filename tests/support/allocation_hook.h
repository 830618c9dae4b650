#pragma once

#include <cstddef>

namespace SMBIOS::Tests {

/// Runs before every `new` of the thread that made it, while it lives; of several the latest. The test
/// program has a `new` of its own for it, which also fills fresh memory with rubbish. Over-aligned memory
/// passes by.
class AllocationHook {
public:
    AllocationHook(const AllocationHook&) = delete;
    AllocationHook& operator=(const AllocationHook&) = delete;

    /// Makes the allocation of `size` bytes fail by throwing std::bad_alloc. What it allocates itself passes
    /// by.
    virtual void BeforeAllocation(std::size_t size) = 0;

protected:
    AllocationHook() noexcept;
    ~AllocationHook();

private:
    AllocationHook* const former_;
};

}  // namespace SMBIOS::Tests
