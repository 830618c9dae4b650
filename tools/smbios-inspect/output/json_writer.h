#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <span>
#include <string_view>

namespace SMBIOS::Inspect {

/// Writes JSON to a stream as it is told, two spaces an indentation, and keeps nothing but a few kilobytes
/// that the stream has not got yet. Of a text, bytes that are not UTF-8 become U+FFFD; control characters are
/// escaped, those from U+007F to U+009F too. The caller closes what it opens, and names each member of an
/// object. Throws what the stream throws.
class JsonWriter {
public:
    explicit JsonWriter(std::ostream& output) noexcept : output_(output) {}
    JsonWriter(const JsonWriter&) = delete;
    JsonWriter& operator=(const JsonWriter&) = delete;
    ~JsonWriter() = default;

    void BeginObject() { Begin('{'); }
    void EndObject() { End('}'); }
    void BeginArray() { Begin('['); }
    void EndArray() { End(']'); }

    /// The value that follows is the object's member of this name, one of the program's own: no character of
    /// it needs an escape.
    void Name(std::string_view name);

    void Null() { PutElement("null"); }
    void Value(bool value) { PutElement(value ? "true" : "false"); }
    void Value(std::string_view text);
    void Value(const char* text) { Value(std::string_view(text)); }

    /// A text; null for none.
    void TextOrNull(const char* text) { text == nullptr ? Null() : Value(text); }

    template <class Number>
    requires(std::integral<Number> && !std::same_as<Number, bool>) void Value(Number number) {
        std::array<char, 24> digits;
        const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        PutElement({digits.data(), end});
    }

    /// A finite number; one without a fraction keeps its point.
    void Value(float number);

    /// A text of two lower-case hexadecimal digits a byte.
    void Hexadecimal(std::span<const std::uint8_t> bytes);

    /// A value under its name.
    void Member(std::string_view name, const auto& value) {
        Name(name);
        Value(value);
    }

    /// Ends the line behind the outermost value, and hands everything to the stream.
    void EndLine();

private:
    void Begin(char bracket);
    void End(char bracket);
    void PutElement(std::string_view text);
    void BeginDeepLine(std::size_t size, bool hasComma);
    void PutText(std::string_view text);
    void PutEscaped(std::string_view character);
    void PutInParts(std::string_view text);
    void HandOver();

    void BeginElement() {
        if (!isBehindName_) {
            BeginLine(!isFirst_);
        }
        isFirst_ = false;
        isBehindName_ = false;
    }

    void BeginLine(bool hasComma) {
        const std::size_t size = (hasComma ? 2 : 1) + kIndent * depth_;
        if (size > kCopied) {
            BeginDeepLine(size, hasComma);
            return;
        }
        std::copy_n(kLine.data() + (hasComma ? 0 : 1), kCopied, RoomFor(kCopied));
        used_ -= kCopied - size;
    }

    /// Room for so many characters, at most what the buffer holds.
    char* RoomFor(std::size_t count) {
        if (count > buffer_.size() - used_) {
            HandOver();
        }
        used_ += count;
        return buffer_.data() + used_ - count;
    }

    void Put(std::string_view text) {
        if (text.size() > buffer_.size() - used_) {
            PutInParts(text);
            return;
        }
        text.copy(buffer_.data() + used_, text.size());
        used_ += text.size();
    }

    static constexpr std::size_t kIndent = 2;
    static constexpr std::string_view kLine = ",\n                              ";

    /// Of each line's start at least so much is copied: a known length takes no call, and no loop.
    static constexpr std::size_t kCopied = kLine.size() - 1;

    std::ostream& output_;
    std::size_t depth_ = 0;
    bool isFirst_ = true;       // in its object or array
    bool isBehindName_ = true;  // or outermost: the element needs no comma and no line of its own
    std::size_t used_ = 0;
    std::array<char, 4096> buffer_;
};

}  // namespace SMBIOS::Inspect
