#pragma once

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

    void BeginObject() { Begin("{"); }
    void EndObject() { End("}"); }
    void BeginArray() { Begin("["); }
    void EndArray() { End("]"); }

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
    /// What comes in front of an element.
    enum class Lead : std::uint8_t { nothing, line, commaAndLine };

    void Begin(const char* bracket);
    void End(const char* bracket);
    void PutElement(std::string_view text);
    void PutLine(Lead lead, std::string_view before, std::string_view text, std::string_view behind);
    void PutLongLine(Lead lead, std::string_view before, std::string_view text, std::string_view behind);
    void PutEscapedText(std::string_view text);
    void PutEscaped(std::string_view character);
    void Put(std::string_view text);
    void MoveTo(char* place);
    void HandOver();

    static constexpr std::size_t kIndent = 2;
    static constexpr std::string_view kLine = ",\n                              ";

    /// Of each line's start at least so much is copied: a known length takes no call, and no loop.
    static constexpr std::size_t kCopied = kLine.size() - 1;
    static constexpr std::size_t kMostCopiedDepth = (kCopied - 2) / kIndent;

    /// A longer text is put in parts.
    static constexpr std::size_t kUsualText = 128;

    /// Behind what is kept there is always room for a usual line: it need not be looked for.
    static constexpr std::size_t kKept = 4096;
    static constexpr std::size_t kUsualLine = kCopied + kUsualText + 8;

    std::ostream& output_;
    std::size_t depth_ = 0;
    Lead lead_ = Lead::nothing;  // of the next element
    std::array<char, kKept + kUsualLine> buffer_;
    char* place_ = buffer_.data();  // behind what is kept
};

}  // namespace SMBIOS::Inspect
