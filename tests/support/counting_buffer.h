#pragma once

#include <cstddef>
#include <streambuf>

namespace SMBIOS::Tests {

/// Counts the bytes that are written to it, keeps none, and allocates nothing.
class CountingBuffer final : public std::streambuf {
public:
    [[nodiscard]] std::size_t Size() const noexcept { return size_; }

private:
    int_type overflow(int_type character) override {
        ++size_;
        return traits_type::not_eof(character);
    }
    std::streamsize xsputn(const char*, std::streamsize size) override {
        size_ += static_cast<std::size_t>(size);
        return size;
    }

    std::size_t size_ = 0;
};

}  // namespace SMBIOS::Tests
