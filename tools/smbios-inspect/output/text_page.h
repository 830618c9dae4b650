#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

#include "smbios-inspect/output/copy_text.h"
#include "smbios-inspect/output/eight_bytes.h"

namespace SMBIOS::Inspect {

/// A text that grows at its end by short pieces, each of which takes no call where there is room for it.
/// Keeps its memory when it is cleared. Throws std::bad_alloc.
class TextPage {
public:
    [[nodiscard]] std::size_t Size() const noexcept { return static_cast<std::size_t>(end_ - memory_.get()); }

    /// Valid until the page grows.
    [[nodiscard]] std::string_view Text() const noexcept { return {memory_.get(), Size()}; }

    void Append(std::string_view text) {
        if (text.size() > Room()) {
            GrowAndAppend(text);
            return;
        }
        end_ = CopyText(text, end_);
    }

    void Append(char character) {
        *RoomFor(1) = character;
        ++end_;
    }

    void AppendBlanks(std::size_t count) {
        constexpr std::string_view kBlanks = "                                ";
        char* place = RoomFor(count + kBlanks.size());
        end_ += count;
        for (; place < end_; place += kBlanks.size()) {
            std::copy_n(kBlanks.data(), kBlanks.size(), place);
        }
    }

    void AppendNumber(std::uint64_t number) {
        constexpr std::size_t kMostDigits = 20;
        char* const place = RoomFor(kMostDigits);
        end_ = std::to_chars(place, place + kMostDigits, number).ptr;
    }

    /// "0x" and the number in upper-case hexadecimal, with so many digits.
    void AppendHexadecimal(std::uint64_t number, std::size_t digits) {
        constexpr char kDigits[] = "0123456789ABCDEF";
        char* const place = RoomFor(2 + digits);
        place[0] = '0';
        place[1] = 'x';
        for (std::size_t i = digits; i != 0; --i, number >>= 4) {
            place[1 + i] = kDigits[number & 0x0F];
        }
        end_ = place + 2 + digits;
    }

    /// Appends the start of a text, as far as it is of printable ASCII. Returns how many characters that are.
    std::size_t AppendPrintableAscii(std::string_view text) {
        char* const place = RoomFor(text.size());
        std::size_t length = 0;
        const auto copiesEight = [&](std::size_t offset) {
            const std::uint64_t eight = EightAt(text, offset);
            std::memcpy(place + offset, &eight, sizeof(eight));
            return ArePrintableAscii(eight);
        };
        while (text.size() - length >= 8 && copiesEight(length)) {
            length += 8;
        }
        if (text.size() >= 8 && text.size() - length < 8 && copiesEight(text.size() - 8)) {
            length = text.size();
        }
        for (; length < text.size() && ' ' <= text[length] && text[length] <= '~'; ++length) {
            place[length] = text[length];
        }
        end_ = place + length;
        return length;
    }

    /// Writes over what stands from `position` on, of which there is as much.
    void Overwrite(std::size_t position, std::string_view text) noexcept {
        (void)CopyText(text, memory_.get() + position);
    }

    /// Takes away what stands behind the first `size` characters.
    void CutTo(std::size_t size) noexcept { end_ = memory_.get() + std::min(size, Size()); }

    void CutTrailingBlanks() noexcept {
        while (end_ != memory_.get() && end_[-1] == ' ') {
            --end_;
        }
    }

    void Clear() noexcept { end_ = memory_.get(); }

private:
    [[nodiscard]] std::size_t Room() const noexcept { return static_cast<std::size_t>(limit_ - end_); }

    [[nodiscard]] char* RoomFor(std::size_t count) {
        if (count > Room()) {
            Grow(count);
        }
        return end_;
    }

    void GrowAndAppend(std::string_view text) {
        Grow(text.size());
        Append(text);
    }

    void Grow(std::size_t count) {
        constexpr std::size_t kLeast = 1024;
        const std::size_t size = Size();
        const std::size_t capacity = std::max(kLeast, 2 * (size + count));
        auto memory = std::make_unique_for_overwrite<char[]>(capacity);
        std::copy_n(memory_.get(), size, memory.get());
        memory_ = std::move(memory);
        end_ = memory_.get() + size;
        limit_ = memory_.get() + capacity;
    }

    std::unique_ptr<char[]> memory_;
    char* end_ = nullptr;
    char* limit_ = nullptr;
};

}  // namespace SMBIOS::Inspect
