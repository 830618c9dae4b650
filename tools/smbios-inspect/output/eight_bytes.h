#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

// Looks at eight bytes of a text at once, in whatever order the machine takes them.
namespace SMBIOS::Inspect {

/// A word of eight bytes that are all this one.
[[nodiscard]] constexpr std::uint64_t EightTimes(std::uint8_t byte) noexcept {
    return 0x0101010101010101U * byte;
}

/// The bytes from `offset` on, of which the text has eight or more.
[[nodiscard]] inline std::uint64_t EightAt(std::string_view text, std::size_t offset) noexcept {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text.data() + offset, sizeof(eight));
    return eight;
}

/// Whether all are characters of ASCII, but no controls: one below a blank borrows from its highest bit, one
/// above a tilde carries into it.
[[nodiscard]] constexpr bool ArePrintableAscii(std::uint64_t eight) noexcept {
    return ((eight | (eight - EightTimes(' ')) | (eight + EightTimes(1))) & EightTimes(0x80)) == 0;
}

/// Whether one of eight bytes of ASCII is this one: only a zero borrows from a highest bit that is not set.
[[nodiscard]] constexpr bool HasByte(std::uint64_t eight, std::uint8_t byte) noexcept {
    return (((eight ^ EightTimes(byte)) - EightTimes(1)) & EightTimes(0x80)) != 0;
}

/// How many characters at the start of a text are of a kind: `areEight` tells of a word of them, `isOne` of
/// one.
template <class AreEight, class IsOne>
[[nodiscard]] std::size_t LengthOfKind(std::string_view text, AreEight areEight, IsOne isOne) {
    std::size_t length = 0;
    while (text.size() - length >= 8 && areEight(EightAt(text, length))) {
        length += 8;
    }
    const bool isNearEnd = text.size() >= 8 && text.size() - length < 8;
    if (isNearEnd && areEight(EightAt(text, text.size() - 8))) {
        return text.size();
    }
    while (length < text.size() && isOne(text[length])) {
        ++length;
    }
    return length;
}

}  // namespace SMBIOS::Inspect
