#pragma once

#include <cstddef>

#include "tests/support/allocation_hook.h"

namespace SMBIOS::Tests {

/// Counts each `new` of this thread while it lives, and the bytes asked for, freed again or not.
class CountedAllocations final : public AllocationHook {
public:
    void BeforeAllocation(std::size_t size) override {
        ++count_;
        bytes_ += size;
    }

    [[nodiscard]] std::size_t Count() const noexcept { return count_; }
    [[nodiscard]] std::size_t Bytes() const noexcept { return bytes_; }

private:
    std::size_t count_ = 0;
    std::size_t bytes_ = 0;
};

}  // namespace SMBIOS::Tests
