#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

namespace SMBIOS::Platform {

/// Owns an open file descriptor.
class Descriptor {
public:
    Descriptor() noexcept = default;
    explicit Descriptor(int number) noexcept : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(other.Release()) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() {
        if (IsOpen()) {
            ::close(number_);
        }
    }

    [[nodiscard]] bool IsOpen() const noexcept { return number_ >= 0; }
    [[nodiscard]] int Number() const noexcept { return number_; }
    [[nodiscard]] int Release() noexcept { return std::exchange(number_, -1); }

private:
    int number_ = -1;
};

/// `read`, begun anew when a signal interrupts it.
inline ssize_t ReadRetrying(int descriptor, void* buffer, std::size_t size) noexcept {
    ssize_t result = -1;
    do {
        result = ::read(descriptor, buffer, size);
    } while (result < 0 && errno == EINTR);
    return result;
}

}  // namespace SMBIOS::Platform
