#include "tests/support/harmless_text.h"

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>

namespace SMBIOS::Tests {

namespace {

constexpr char32_t kNoCharacter = 0xFFFFFFFF;

std::size_t FollowingBytes(unsigned first) noexcept {
    return first < 0x80 ? 0 : first >> 5 == 6 ? 1 : first >> 4 == 14 ? 2 : 3;
}

/// Removes one UTF-8 character from the front; `kNoCharacter` when there is none.
char32_t TakeCharacter(std::string_view& text) noexcept {
    constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned first = byte(0);
    const std::size_t following = FollowingBytes(first);
    if (text.size() <= following || (following == 3 && first >> 3 != 30)) {
        return kNoCharacter;
    }
    char32_t code = following == 0 ? first : first & (0x3FU >> following);
    for (std::size_t i = 1; i <= following; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) {
            return kNoCharacter;
        }
        code = code << 6 | (byte(i) & 0x3FU);
    }
    text.remove_prefix(following + 1);
    const bool isSurrogate = 0xD800 <= code && code <= 0xDFFF;
    return code >= kLeast[following] && code <= 0x10FFFF && !isSurrogate ? code : kNoCharacter;
}

bool IsControl(char32_t code) noexcept {
    return code < 0x20 || (0x7F <= code && code <= 0x9F);
}

bool IsLayoutControl(char32_t code) noexcept {
    return (0x2028 <= code && code <= 0x202E) || (0x2066 <= code && code <= 0x2069);
}

}  // namespace

bool IsHarmlessText(std::string_view text) {
    while (!text.empty()) {
        const char32_t code = TakeCharacter(text);
        const bool isLineEndOrTab = code == '\n' || code == '\t';
        if (code == kNoCharacter || (IsControl(code) && !isLineEndOrTab) || IsLayoutControl(code)) {
            return false;
        }
    }
    return true;
}

bool IsJson(std::string_view text) {
    return nlohmann::json::accept(text);
}

bool IsHarmlessJson(std::string_view text) {
    for (std::string_view rest = text; !rest.empty();) {
        const char32_t code = TakeCharacter(rest);
        if (code == kNoCharacter || (IsControl(code) && code != '\n')) {
            return false;
        }
    }
    return IsJson(text);
}

}  // namespace SMBIOS::Tests
