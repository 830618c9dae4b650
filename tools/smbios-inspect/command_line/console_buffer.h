#pragma once

#include <array>
#include <streambuf>
#include <system_error>

#include "platform/console.h"

namespace SMBIOS::Inspect {

/// Prints what a stream is given, block by block. What follows a failure is dropped.
class ConsoleBuffer final : public std::streambuf {
public:
    explicit ConsoleBuffer(const Platform::Console& console) noexcept;

    /// Prints what is still held. Returns the first failure there was.
    [[nodiscard]] std::error_code Finish() noexcept;

private:
    int_type overflow(int_type character) override;
    int sync() override;

    void Print() noexcept;

    const Platform::Console& console_;
    std::error_code failure_;
    std::array<char, 16384> block_;
};

}  // namespace SMBIOS::Inspect
