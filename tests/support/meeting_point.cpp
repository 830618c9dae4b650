#include "tests/support/meeting_point.h"

#include <chrono>
#include <thread>

namespace SMBIOS::Tests {

// By polling: a std::latch of g++ 12 for Windows now and then wakes nobody.

void MeetingPoint::Arrive() {
    constexpr auto kPatience = std::chrono::milliseconds(500);
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    ++arrivals_;
    while (arrivals_ < 2 && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

void MeetingPoint::AwaitFirstArrival() const {
    while (arrivals_ == 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

}  // namespace SMBIOS::Tests
