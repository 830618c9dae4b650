#include "smbios-inspect/output/json_writer.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

#include "smbios-inspect/output/utf8.h"

namespace SMBIOS::Inspect {

namespace {

constexpr char kDigits[] = "0123456789abcdef";

/// The characters that stand for themselves in a text: of ASCII all but controls, quote and backslash.
consteval std::array<bool, 256> PlainBytes() {
    std::array<bool, 256> isPlain{};
    for (std::size_t byte = 0x20; byte < 0x7F; ++byte) {
        isPlain[byte] = byte != '"' && byte != '\\';
    }
    return isPlain;
}

constexpr auto kIsPlain = PlainBytes();

std::size_t PlainLength(std::string_view text) noexcept {
    const auto isPlain = [](char character) { return kIsPlain[static_cast<std::uint8_t>(character)]; };
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isPlain) - text.begin());
}

/// The letter behind the backslash; 0 for a character that has none.
char ShortEscapeFor(char character) noexcept {
    switch (character) {
        case '\b':
            return 'b';
        case '\f':
            return 'f';
        case '\n':
            return 'n';
        case '\r':
            return 'r';
        case '\t':
            return 't';
        case '"':
        case '\\':
            return character;
        default:
            return 0;
    }
}

}  // namespace

void JsonWriter::Name(std::string_view name) {
    BeginElement();
    *RoomFor(1) = '"';
    Put(name);
    std::copy_n("\": ", 3, RoomFor(3));
    isBehindName_ = true;
}

void JsonWriter::Value(std::string_view text) {
    BeginElement();
    PutText(text);
}

void JsonWriter::Value(float number) {
    PutElement(nlohmann::json(number).dump());  // whose digits are not always those of std::to_chars
}

void JsonWriter::Hexadecimal(std::span<const std::uint8_t> bytes) {
    BeginElement();
    Put("\"");
    for (const std::uint8_t byte : bytes) {
        char* const digits = RoomFor(2);
        digits[0] = kDigits[byte >> 4];
        digits[1] = kDigits[byte & 0x0F];
    }
    Put("\"");
}

void JsonWriter::EndLine() {
    Put("\n");
    HandOver();
}

void JsonWriter::Begin(char bracket) {
    PutElement({&bracket, 1});
    ++depth_;
    isFirst_ = true;
}

void JsonWriter::End(char bracket) {
    --depth_;
    if (!isFirst_) {
        BeginLine(false);
    }
    *RoomFor(1) = bracket;
    isFirst_ = false;
}

void JsonWriter::BeginDeepLine(std::size_t size, bool hasComma) {
    Put(hasComma ? ",\n" : "\n");
    for (std::size_t blank = hasComma ? 2 : 1; blank < size; ++blank) {
        *RoomFor(1) = ' ';
    }
}

void JsonWriter::PutElement(std::string_view text) {
    BeginElement();
    Put(text);
}

void JsonWriter::PutText(std::string_view text) {
    Put("\"");
    for (std::size_t plain = PlainLength(text);; plain = PlainLength(text)) {
        Put(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty()) {
            break;
        }
        const auto [length, isWhole] = StartOf(text);
        PutEscaped(isWhole ? text.substr(0, length) : kReplacementCharacter);
        text.remove_prefix(length);
    }
    Put("\"");
}

void JsonWriter::PutEscaped(std::string_view character) {
    if (const char letter = ShortEscapeFor(character.front()); letter != 0) {
        const char escape[] = {'\\', letter};
        Put({escape, std::size(escape)});
    } else if (static_cast<std::uint8_t>(character.front()) < 0x20 || IsDeleteOrC1(character)) {
        const auto code = static_cast<std::uint8_t>(character.back());  // of two bytes the last is the code
        const char escape[] = {'\\', 'u', '0', '0', kDigits[code >> 4], kDigits[code & 0x0F]};
        Put({escape, std::size(escape)});
    } else {
        Put(character);
    }
}

void JsonWriter::PutInParts(std::string_view text) {
    while (!text.empty()) {
        const std::size_t room = std::min(buffer_.size() - used_, text.size());
        text.copy(buffer_.data() + used_, room);
        used_ += room;
        text.remove_prefix(room);
        if (used_ == buffer_.size()) {
            HandOver();
        }
    }
}

void JsonWriter::HandOver() {
    output_.write(buffer_.data(), static_cast<std::streamsize>(used_));
    used_ = 0;
}

}  // namespace SMBIOS::Inspect
