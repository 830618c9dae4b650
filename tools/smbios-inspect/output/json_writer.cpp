#include "smbios-inspect/output/json_writer.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

#include "smbios-inspect/output/copy_text.h"
#include "smbios-inspect/output/eight_bytes.h"
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
    const auto arePlain = [](std::uint64_t eight) {
        return ArePrintableAscii(eight) && !HasByte(eight, '"') && !HasByte(eight, '\\');
    };
    const auto isPlain = [](char character) { return kIsPlain[static_cast<std::uint8_t>(character)]; };
    return LengthOfKind(text, arePlain, isPlain);
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

/// To the end of what was put last.
inline void JsonWriter::MoveTo(char* place) {
    place_ = place;
    if (place_ >= buffer_.data() + kKept) {
        HandOver();
    }
}

inline void JsonWriter::PutLine(Lead lead,
                                std::string_view before,
                                std::string_view text,
                                std::string_view behind) {
    if (text.size() > kUsualText || depth_ > kMostCopiedDepth) {
        PutLongLine(lead, before, text, behind);
        return;
    }
    char* place = place_;
    if (lead != Lead::nothing) {
        const std::size_t skipped = lead == Lead::commaAndLine ? 0 : 1;
        std::copy_n(kLine.data() + skipped, kCopied, place);
        place += 2 - skipped + kIndent * depth_;
    }
    MoveTo(CopyText(behind, CopyText(text, CopyText(before, place))));
}

void JsonWriter::Name(std::string_view name) {
    PutLine(std::exchange(lead_, Lead::nothing), "\"", name, "\": ");
}

void JsonWriter::Value(std::string_view text) {
    if (PlainLength(text) == text.size()) {
        PutLine(std::exchange(lead_, Lead::commaAndLine), "\"", text, "\"");
    } else {
        PutEscapedText(text);
    }
}

void JsonWriter::Value(float number) {
    PutElement(nlohmann::json(number).dump());  // whose digits are not always those of std::to_chars
}

void JsonWriter::Hexadecimal(std::span<const std::uint8_t> bytes) {
    PutElement("\"");
    for (const std::uint8_t byte : bytes) {
        place_[0] = kDigits[byte >> 4];
        place_[1] = kDigits[byte & 0x0F];
        MoveTo(place_ + 2);
    }
    Put("\"");
}

void JsonWriter::EndLine() {
    Put("\n");
    HandOver();
}

void JsonWriter::Begin(const char* bracket) {
    PutLine(std::exchange(lead_, Lead::line), "", {bracket, 1}, "");
    ++depth_;
}

void JsonWriter::End(const char* bracket) {
    --depth_;
    const bool isEmpty = std::exchange(lead_, Lead::commaAndLine) == Lead::line;
    PutLine(isEmpty ? Lead::nothing : Lead::line, "", {bracket, 1}, "");
}

void JsonWriter::PutElement(std::string_view text) {
    PutLine(std::exchange(lead_, Lead::commaAndLine), "", text, "");
}

void JsonWriter::PutLongLine(Lead lead,
                             std::string_view before,
                             std::string_view text,
                             std::string_view behind) {
    if (lead != Lead::nothing) {
        Put(lead == Lead::commaAndLine ? ",\n" : "\n");
        for (std::size_t blanks = kIndent * depth_; blanks != 0; --blanks) {
            Put(" ");
        }
    }
    for (const std::string_view part : {before, text, behind}) {
        Put(part);
    }
}

void JsonWriter::PutEscapedText(std::string_view text) {
    PutElement("\"");
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

void JsonWriter::Put(std::string_view text) {
    while (!text.empty()) {
        const std::string_view part = text.substr(0, kUsualText);
        MoveTo(CopyText(part, place_));
        text.remove_prefix(part.size());
    }
}

void JsonWriter::HandOver() {
    output_.write(buffer_.data(), place_ - buffer_.data());
    place_ = buffer_.data();
}

}  // namespace SMBIOS::Inspect
