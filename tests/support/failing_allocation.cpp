#include "tests/support/failing_allocation.h"

#include <new>

namespace SMBIOS::Tests {

void FailAllocation::BeforeAllocation(std::size_t) {
    ++count_;
    if (count_ == n_ || (count_ > n_ && failing_ == Failing::fromThenOn)) {
        throw std::bad_alloc();
    }
}

}  // namespace SMBIOS::Tests
