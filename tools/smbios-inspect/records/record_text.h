#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "common/dynamic_bitset.h"
#include "smbios-inspect/output/units.h"
#include "smbios-inspect/records/field.h"
#include "structures/hex_text.h"
#include "structures/type_3.h"

namespace SMBIOS::Inspect {

/// Writes a record for people: each field in its form, an absent one not at all.
class RecordText {
public:
    /// The given fields of a record, or of a part of one.
    template <class Fields, class Record>
    [[nodiscard]] static std::vector<FieldText> Of(const Fields& fields, const Record& record) {
        std::vector<FieldText> texts;
        Append(fields, record, texts);
        return texts;
    }

    /// The same behind what `texts` holds already.
    template <class Fields, class Record>
    static void Append(const Fields& fields, const Record& record, std::vector<FieldText>& texts) {
        texts.reserve(texts.size() + std::tuple_size_v<Fields>);
        ForEachField(fields,
                     [&]<class Owner, class Value, class Form>(const Field<Owner, Value, Form>& field) {
                         if (field.label == kShownElsewhere) {
                             return;
                         }
                         Lines lines = InForm(record.*field.value, record, field.form);
                         if (!lines.empty()) {
                             texts.push_back({field.label, std::move(lines), std::is_same_v<Form, Failure>});
                         }
                     });
    }

    [[nodiscard]] static Lines LinesOf(bool value) { return {value ? "yes" : "no"}; }

    template <std::unsigned_integral Number>
    [[nodiscard]] static Lines LinesOf(Number number) {
        return {std::to_string(number)};
    }

    /// Six digits are all that the firmware gives; more would show how the fraction was rounded.
    [[nodiscard]] static Lines LinesOf(float number);

    [[nodiscard]] static Lines LinesOf(std::string_view text) {
        return text.empty() ? Lines() : Lines{std::string(text)};
    }

    [[nodiscard]] static Lines LinesOf(const std::vector<std::uint8_t>& bytes);

    /// The names of the flags that are set.
    [[nodiscard]] static Lines LinesOf(const Common::Dynamic_BitSet& flags, UnnamedBits bits = {});

    /// A line an element within the structure, and one that counts the others.
    [[nodiscard]] static Lines LinesOf(const Structures::Type3::Types::ContainedElements& elements);

    /// The fields of a part of a record, in one line.
    template <Described Part>
    [[nodiscard]] static Lines LinesOf(const Part& part) {
        std::string words;
        for (const FieldText& text : Of(Description<Part>::kFields, part)) {
            words.append(words.empty() ? "" : ", ").append(text.label).append(text.label.empty() ? "" : " ");
            words += text.lines.front();
        }
        return words.empty() ? Lines() : Lines(std::move(words));
    }

    template <class Element>
    [[nodiscard]] static Lines LinesOf(const std::vector<Element>& elements) {
        Lines lines;
        for (const Element& element : elements) {
            if constexpr (std::convertible_to<const Element&, std::string>) {
                lines.push_back(element);
            } else {
                lines.push_back(Joined(LinesOf(element), ", "));
            }
        }
        return lines;
    }

    template <class Value>
    [[nodiscard]] static Lines LinesOf(const std::optional<Value>& value) {
        return value ? LinesOf(*value) : Lines();
    }

private:
    template <class Value, class Record>
    static Lines InForm(const Value& value, const Record&, Plainly) {
        return LinesOf(value);
    }

    template <class Value, class Record>
    static Lines InForm(const Value& value, const Record&, Failure) {
        return LinesOf(value);
    }

    template <class Record>
    static Lines InForm(bool value, const Record&, IfSet flag) {
        return value ? Lines{flag.word} : Lines();
    }

    template <class Value, class Record>
    static Lines InForm(const Value& value, const Record&, InHexadecimal) {
        return HexadecimalLinesOf(value);
    }

    template <class Value, class Record>
    static Lines InForm(const Value& value, const Record&, Numbered) {
        Lines lines = LinesOf(value);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            lines[i].insert(0, std::to_string(i + 1) + (lines[i].empty() ? ":" : ": "));
        }
        return lines;
    }

    template <class Value, class Record>
    static Lines InForm(const Value& value, const Record&, Unit unit) {
        Lines lines = LinesOf(value);
        for (std::string& line : lines) {
            line.append(*unit.name == '\0' ? "" : " ").append(unit.name);
        }
        return lines;
    }

    template <std::unsigned_integral Number, class Record>
    static Lines InForm(const std::optional<Number>& number, const Record& record, UnitUnlessZero unit) {
        return number == Number{0} ? Lines{unit.zero} : InForm(number, record, Unit{unit.name});
    }

    template <class Record>
    static Lines InForm(const std::optional<std::uint16_t>& handle, const Record& record, HandleOr words) {
        return handle == 0xFFFF ? Lines{words.none} : InForm(handle, record, InHexadecimal{});
    }

    template <class Record>
    static Lines InForm(const std::optional<std::uint16_t>& handle, const Record& record, HandleOfError) {
        return handle == 0xFFFE ? Lines{"not provided"} : InForm(handle, record, HandleOr{"no error"});
    }

    template <class Record>
    static Lines InForm(const std::optional<Common::Dynamic_BitSet>& flags, const Record&, UnnamedBits bits) {
        return flags ? LinesOf(*flags, bits) : Lines();
    }

    template <std::unsigned_integral Number, class Record>
    static Lines InForm(const std::optional<Number>& number, const Record&, ByteSize size) {
        return number ? Lines{ByteSizeText(*number * size.unit)} : Lines();
    }

    template <class Value, class Record, class Owner, class Text>
    static Lines InForm(const Value& code, const Record& record, NamedBy<Owner, Text> name) {
        const std::optional<int> number = code;
        std::string_view text = TextIn(record.*name.text);
        if (text.empty() && number) {
            text = WordFor(*number, name.other, name.unknown);
        }
        if (text.empty()) {
            return LinesOf(code);
        }
        return number ? Lines{WithNumber(text, *number)} : Lines{std::string(text)};
    }

    static std::string_view TextIn(std::string_view text) noexcept { return text; }
    template <class Text>
    static std::string_view TextIn(const std::optional<Text>& text) noexcept {
        return text ? std::string_view(*text) : std::string_view();
    }

    template <class Value, class Record, class Owner>
    static Lines InForm(const Value&, const Record& record, Lines (*wording)(const Owner&)) {
        return wording(record);
    }

    template <std::unsigned_integral Number>
    static Lines HexadecimalLinesOf(Number number) {
        return {Structures::PaddedHexText(number, 2 * sizeof(Number))};
    }

    template <class Value>
    static Lines HexadecimalLinesOf(const std::optional<Value>& value) {
        return value ? HexadecimalLinesOf(*value) : Lines();
    }

    template <std::unsigned_integral Number>
    static Lines HexadecimalLinesOf(const std::vector<Number>& numbers) {
        Lines texts;
        for (const Number number : numbers) {
            texts.push_back(HexadecimalLinesOf(number).front());
        }
        return texts.empty() ? Lines() : Lines{Joined(texts, ", ")};
    }

    /// "DDR4 (26)".
    [[nodiscard]] static std::string WithNumber(std::string_view text, int number);

    /// The word for a code or a bit that has no text; empty for any other number.
    [[nodiscard]] static std::string_view WordFor(int number, int other, int unknown) noexcept;

    [[nodiscard]] static std::string Joined(const Lines& texts, const char* separator);
};

}  // namespace SMBIOS::Inspect
