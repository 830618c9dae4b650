#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "common/dynamic_bitset.h"
#include "smbios-inspect/output/field_texts.h"
#include "smbios-inspect/output/units.h"
#include "smbios-inspect/records/field.h"
#include "structures/type_3.h"

namespace SMBIOS::Inspect {

/// Writes a record for people: each field in its form, an absent one not at all.
class RecordText {
public:
    /// The given fields of a record, or of a part of one.
    template <class Fields, class Record>
    static void Append(const Fields& fields, const Record& record, FieldTexts& texts) {
        ForEachField(fields,
                     [&]<class Owner, class Value, class Form>(const Field<Owner, Value, Form>& field) {
                         if (IsShown(field.label)) {
                             texts.BeginField(field.label, std::is_same_v<Form, Failure>);
                             AppendInForm(record.*field.value, record, field.form, texts);
                         }
                     });
    }

    /// The lines of a value that has no other form.
    template <class Value>
    static void AppendLines(const Value& value, FieldTexts& texts) {
        AppendWords(value, texts.BeginLine());
        texts.EndLine();
    }

    template <class Value>
    static void AppendLines(const std::optional<Value>& value, FieldTexts& texts) {
        if (value) {
            AppendLines(*value, texts);
        }
    }

    template <class Element>
    requires(!std::same_as<Element, std::uint8_t>)  // bytes are one value
        static void AppendLines(const std::vector<Element>& elements, FieldTexts& texts) {
        for (const Element& element : elements) {
            AppendWords(element, texts.BeginLine());
        }
    }

    /// A line an element within the structure, and one that counts the others.
    static void AppendLines(const Structures::Type3::Types::ContainedElements& elements, FieldTexts& texts);

private:
    // The words of a value, at the end of a line.

    static void AppendWords(bool value, TextPage& line) { line.Append(value ? "yes" : "no"); }

    template <std::unsigned_integral Number>
    static void AppendWords(Number number, TextPage& line) {
        line.AppendNumber(number);
    }

    /// Six digits are all that the firmware gives; more would show how the fraction was rounded.
    static void AppendWords(float number, TextPage& line);

    static void AppendWords(std::string_view text, TextPage& line) { line.Append(text); }

    static void AppendWords(const std::vector<std::uint8_t>& bytes, TextPage& line) {
        line.Append(HexadecimalText(bytes, " "));
    }

    static void AppendWords(const Common::Dynamic_BitSet& flags, TextPage& line) {
        AppendNames(flags, {}, line);
    }

    /// The fields of a part of a record.
    template <Described Part>
    static void AppendWords(const Part& part, TextPage& line) {
        FieldTexts texts;
        Append(Description<Part>::kFields, part, texts);
        AppendFields(texts, line);
    }

    // What a field's form makes of its value.

    template <class Value, class Record>
    static void AppendInForm(const Value& value, const Record&, Plainly, FieldTexts& texts) {
        AppendLines(value, texts);
    }

    template <class Value, class Record>
    static void AppendInForm(const Value& value, const Record&, Failure, FieldTexts& texts) {
        AppendLines(value, texts);
    }

    template <class Record>
    static void AppendInForm(bool value, const Record&, IfSet flag, FieldTexts& texts) {
        if (value) {
            texts.AddLine(flag.word);
        }
    }

    template <class Value, class Record>
    static void AppendInForm(const Value& value, const Record&, InHexadecimal, FieldTexts& texts) {
        AppendHexadecimal(value, texts);
    }

    template <class Element, class Record>
    static void AppendInForm(const std::optional<std::vector<Element>>& elements,
                             const Record&,
                             Numbered,
                             FieldTexts& texts) {
        for (std::size_t i = 0; elements && i < elements->size(); ++i) {
            TextPage& line = texts.BeginLine();
            line.AppendNumber(i + 1);
            line.Append(": ");
            const std::size_t start = line.Size();
            AppendWords((*elements)[i], line);
            line.CutTo(line.Size() == start ? start - 1 : line.Size());
        }
    }

    template <class Value, class Record>
    static void AppendInForm(const Value& value, const Record&, Unit unit, FieldTexts& texts) {
        AppendLines(value, texts);
        if (texts.HasLine()) {
            texts.LastLine().Append(*unit.name == '\0' ? "" : " ");
            texts.LastLine().Append(unit.name);
        }
    }

    template <std::unsigned_integral Number, class Record>
    static void AppendInForm(const std::optional<Number>& number,
                             const Record& record,
                             UnitUnlessZero unit,
                             FieldTexts& texts) {
        if (number == Number{0}) {
            texts.AddLine(unit.zero);
        } else {
            AppendInForm(number, record, Unit{unit.name}, texts);
        }
    }

    template <class Record>
    static void AppendInForm(const std::optional<std::uint16_t>& handle,
                             const Record&,
                             HandleOr words,
                             FieldTexts& texts) {
        if (handle == 0xFFFF) {
            texts.AddLine(words.none);
        } else {
            AppendHexadecimal(handle, texts);
        }
    }

    template <class Record>
    static void AppendInForm(const std::optional<std::uint16_t>& handle,
                             const Record& record,
                             HandleOfError,
                             FieldTexts& texts) {
        if (handle == 0xFFFE) {
            texts.AddLine("not provided");
        } else {
            AppendInForm(handle, record, HandleOr{"no error"}, texts);
        }
    }

    template <class Record>
    static void AppendInForm(const std::optional<Common::Dynamic_BitSet>& flags,
                             const Record&,
                             UnnamedBits bits,
                             FieldTexts& texts) {
        if (flags) {
            AppendNames(*flags, bits, texts.BeginLine());
        }
    }

    template <std::unsigned_integral Number, class Record>
    static void AppendInForm(const std::optional<Number>& number,
                             const Record&,
                             ByteSize size,
                             FieldTexts& texts) {
        if (number) {
            texts.AddLine(ByteSizeText(*number * size.unit));
        }
    }

    template <class Value, class Record, class Owner, class Text>
    static void AppendInForm(const Value& code,
                             const Record& record,
                             NamedBy<Owner, Text> name,
                             FieldTexts& texts) {
        const std::optional<unsigned> number = code;
        std::string_view text = TextIn(record.*name.text);
        if (text.empty() && number) {
            text = WordFor(*number, name.other, name.unknown);
        }
        if (text.empty()) {
            AppendLines(code, texts);
        } else {
            AppendWithCode(text, number, texts.BeginLine());
        }
    }

    template <class Value, class Record, class Owner>
    static void AppendInForm(const Value&,
                             const Record& record,
                             std::string (*wording)(const Owner&),
                             FieldTexts& texts) {
        texts.AddLine(wording(record));
        texts.EndLine();
    }

    static std::string_view TextIn(std::string_view text) noexcept { return text; }
    template <class Text>
    static std::string_view TextIn(const std::optional<Text>& text) noexcept {
        return text ? std::string_view(*text) : std::string_view();
    }

    template <std::unsigned_integral Number>
    static void AppendHexadecimal(Number number, FieldTexts& texts) {
        texts.BeginLine().AppendHexadecimal(number, 2 * sizeof(Number));
    }

    template <class Value>
    static void AppendHexadecimal(const std::optional<Value>& value, FieldTexts& texts) {
        if (value) {
            AppendHexadecimal(*value, texts);
        }
    }

    /// All in one line.
    template <std::unsigned_integral Number>
    static void AppendHexadecimal(const std::vector<Number>& numbers, FieldTexts& texts) {
        TextPage& line = texts.BeginLine();
        for (const Number& number : numbers) {
            line.Append(&number == numbers.data() ? "" : ", ");
            line.AppendHexadecimal(number, 2 * sizeof(Number));
        }
        texts.EndLine();
    }

    /// The names of the flags that are set.
    static void AppendNames(const Common::Dynamic_BitSet& flags, UnnamedBits bits, TextPage& line);

    /// "DDR4 (26)".
    static void AppendWithCode(std::string_view text, std::optional<unsigned> code, TextPage& line);

    /// The word for a code or a bit that has no text; empty for any other number.
    [[nodiscard]] static std::string_view WordFor(std::size_t number, int other, int unknown) noexcept;

    static void AppendFields(const FieldTexts& texts, TextPage& line);
};

}  // namespace SMBIOS::Inspect
