#pragma once

#include <atomic>

namespace SMBIOS::Tests {

/// Where two threads meet in code that only one of them should be in: each would wait there for the other.
class MeetingPoint {
public:
    /// Waits for a second arrival; gives up when the other thread has had its chance.
    void Arrive();

    [[nodiscard]] int Arrivals() const noexcept { return arrivals_; }

    /// Waits until somebody has arrived.
    void AwaitFirstArrival() const;

private:
    std::atomic<int> arrivals_ = 0;
};

}  // namespace SMBIOS::Tests
