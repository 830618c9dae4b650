#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>

// The vocabulary in which records are described: one line a field, read by every writer.
namespace SMBIOS::Inspect {

/// The label of a field that people find in the words of another one, or not at all.
inline constexpr std::string_view kShownElsewhere;

/// The label of a field in a part of a record whose words need none.
inline constexpr std::string_view kNoLabel = "";

/// Whether a field with this label has lines of its own.
[[nodiscard]] constexpr bool IsShown(std::string_view label) noexcept {
    return label.data() != nullptr;
}

/// No code and no bit has this number.
inline constexpr int kNoCode = -1;

/// How people read a value. A function that takes the record and returns the words is a form too; there are
/// none in an empty text.
struct Plainly {};
struct InHexadecimal {};
struct Numbered {};  ///< a line an element, with its number from 1 on
struct Failure {};   ///< what went wrong
struct IfSet {       ///< a word for what is true
    const char* word;
};
struct Unit {
    const char* name;
};
struct UnitUnlessZero {  ///< and a word for 0, which is no value
    const char* name;
    const char* zero = "unknown";
};
struct HandleOfError {};  ///< a handle, or a word where there is no structure of an error
struct HandleOr {         ///< a handle, or a word for 0xFFFF, which is none
    const char* none;
};
struct UnnamedBits {  ///< flags, of which two may have no name but a meaning
    int other = kNoCode;
    int unknown = kNoCode;
};
struct ByteSize {
    std::uint64_t unit = 1;  ///< bytes that the value counts
};

/// A code beside the field that holds its text: "DDR4 (26)". The codes that the standard calls so have no
/// text.
template <class Record, class Text>
struct NamedBy {
    Text Record::*text;
    int other = 1;
    int unknown = 2;
};
template <class Record, class Text>
NamedBy(Text Record::*) -> NamedBy<Record, Text>;
template <class Record, class Text>
NamedBy(Text Record::*, int, int) -> NamedBy<Record, Text>;

/// One field of a record: its name in programs, its label for people, where it is and how people read it.
/// Name and label are literals.
template <class Record, class Value, class Form>
struct Field {
    std::string_view name;
    std::string_view label;
    Value Record::*value;
    Form form = {};
};
template <class Record, class Value>
Field(std::string_view, std::string_view, Value Record::*) -> Field<Record, Value, Plainly>;
template <class Record, class Value, class Form>
Field(std::string_view, std::string_view, Value Record::*, Form) -> Field<Record, Value, Form>;

/// Its specialisation for a record has `kFields`: a tuple of the record's own fields in the order in which it
/// declares them.
template <class Record>
struct Description;

template <class Record>
concept Described = requires {
    Description<Record>::kFields;
};

/// Calls `visit` for each of these fields, in order.
template <class Fields, class Visitor>
void ForEachField(const Fields& fields, Visitor visit) {
    std::apply([&](const auto&... field) { (visit(field), ...); }, fields);
}

}  // namespace SMBIOS::Inspect
