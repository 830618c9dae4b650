#include "smbios-inspect/departures/library_fields.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "common/dynamic_bitset.h"
#include "smbios-inspect/records/record_fields.h"
#include "smbios-inspect/records/record_fields_board.h"
#include "smbios-inspect/records/record_fields_memory.h"
#include "smbios-inspect/records/record_fields_power.h"
#include "smbios-inspect/records/record_fields_processor.h"
#include "smbios-inspect/records/record_fields_system.h"
#include "smbios-inspect/records/record_json.h"
#include "smbios-inspect/records/record_of.h"
#include "smbios-inspect/records/record_text.h"
#include "structures/decoded_types.h"

namespace SMBIOS::Inspect::Departures {

using Manager::Types::StructureTypes;
using Structures::BaseStructure;

namespace {

template <std::integral Number>
LibraryValue ValueOf(Number number) {
    return std::uint64_t{number};
}

LibraryValue ValueOf(float number) {
    return double{number};
}

LibraryValue ValueOf(std::string_view text) {
    return text.empty() ? LibraryValue() : text;
}

LibraryValue ValueOf(const Common::Dynamic_BitSet& flags) {
    return WordOf(flags);
}

template <class Part>
requires(!std::convertible_to<const Part&, std::string_view> && !std::is_arithmetic_v<Part>) LibraryValue
    ValueOf(const Part&) {
    return Composite();
}

template <class Value>
LibraryValue ValueOf(const std::optional<Value>& value) {
    return value ? ValueOf(*value) : LibraryValue();
}

template <class Value>
inline constexpr bool kIsText =
    std::is_same_v<Value, std::string> || std::is_same_v<Value, std::optional<std::string>>;

/// A text of a record that a field of it shows beside its own code, and that field's label.
template <class Record>
struct ShownText {
    std::string_view label;
    std::string Record::*text = nullptr;
    std::optional<std::string> Record::*optionalText = nullptr;

    [[nodiscard]] constexpr bool Is(std::string Record::*other) const noexcept { return text == other; }
    [[nodiscard]] constexpr bool Is(std::optional<std::string> Record::*other) const noexcept {
        return optionalText == other;
    }
    template <class Value, class Owner>
    [[nodiscard]] constexpr bool Is(Value Owner::*) const noexcept {
        return false;
    }
};

template <class Record, class Field>
constexpr ShownText<Record> TextShownBy(const Field& field) {
    ShownText<Record> shown{.label = field.label};
    if constexpr (requires { shown.text = field.form.text; }) {
        shown.text = field.form.text;
    } else if constexpr (requires { shown.optionalText = field.form.text; }) {
        shown.optionalText = field.form.text;
    }
    return shown;
}

/// What there is to ask of the record of one decoder.
template <class Decoder>
struct RecordReader {
    using Record = std::remove_cvref_t<decltype(*std::declval<const Decoder&>().GetRecord())>;
    static constexpr auto kFields = AllFieldsOf<Record>();
    static constexpr std::array kShownTexts =
        std::apply([](const auto&... field) { return std::array{TextShownBy<Record>(field)...}; }, kFields);

    template <class Field>
    static constexpr std::string_view LabelOf(const Field& field) {
        if (IsShown(field.label)) {
            return field.label;
        }
        const auto shown =
            std::ranges::find_if(kShownTexts, [&](const auto& each) { return each.Is(field.value); });
        return shown == kShownTexts.end() ? kShownElsewhere : shown->label;
    }

    /// Of each field, in their order; literals, which end with a NUL.
    static constexpr auto Labels() {
        return std::apply([](const auto&... field) { return std::array{LabelOf(field).data()...}; }, kFields);
    }

    static RecordFrame Frame(const BaseStructure& decoder) {
        const Record& record = RecordOf<Decoder>(decoder);
        return {record.handle, record.rawBytes, record.strings, record.error};
    }

    static void ReadFields(const BaseStructure& decoder, std::vector<LibraryField>& fields) {
        static constexpr auto kLabels = Labels();
        const Record& record = RecordOf<Decoder>(decoder);
        fields.resize(kLabels.size());
        ForEachField(kFields, [&, i = std::size_t{0}](const auto& field) mutable {
            const auto& value = record.*field.value;
            constexpr bool kIsTextField = kIsText<std::remove_cvref_t<decltype(value)>>;
            fields[i] = {field.name.data(), kLabels[i], kIsTextField, ValueOf(value)};
            ++i;
        });
    }

    /// As in the line where people find it, or by itself when there is none.
    static std::vector<std::string> LinesAt(const BaseStructure& decoder, std::size_t index) {
        const Record& record = RecordOf<Decoder>(decoder);
        const std::string_view label = LabelAt(index);
        FieldTexts texts;
        ForEachField(kFields, [&, i = std::size_t{0}](const auto& field) mutable {
            const bool isItsLine = IsShown(field.label) && field.label == label;
            if (isItsLine || (i == index && label.empty())) {
                AppendLines(field, record, isItsLine, texts);
            }
            ++i;
        });
        std::vector<std::string> lines;
        for (std::size_t i = 0; i < texts.Lines().size(); ++i) {
            lines.emplace_back(texts.Words(i));
        }
        return lines;
    }

    static std::string_view LabelAt(std::size_t index) {
        std::string_view found;
        ForEachField(kFields, [&, i = std::size_t{0}](const auto& field) mutable {
            found = i++ == index ? LabelOf(field) : found;
        });
        return found;
    }

    template <class Field>
    static void AppendLines(const Field& field, const Record& record, bool isShown, FieldTexts& texts) {
        texts.BeginField("");
        if (isShown) {
            RecordText::Append(std::tuple(field), record, texts);
        }
        if (!texts.HasLine()) {
            RecordText::AppendLines(record.*field.value, texts);
        }
    }

    static void WriteAt(const BaseStructure& decoder, std::size_t index, const char* name, JsonWriter& json) {
        const Record& record = RecordOf<Decoder>(decoder);
        ForEachField(kFields, [&, i = std::size_t{0}](const auto& field) mutable {
            if (i++ == index) {
                RecordJson::WriteMember(json, name, record.*field.value);
            }
        });
    }
};

struct Row {
    RecordFrame (*frame)(const BaseStructure& decoder);
    void (*readFields)(const BaseStructure& decoder, std::vector<LibraryField>& fields);
    std::vector<std::string> (*lines)(const BaseStructure& decoder, std::size_t index);
    void (*write)(const BaseStructure& decoder, std::size_t index, const char* name, JsonWriter& json);
};

template <class... Decoders>
consteval std::array<Row, sizeof...(Decoders)> RowsOf(Structures::TypeList<Decoders...>) {
    return {{{RecordReader<Decoders>::Frame,
              RecordReader<Decoders>::ReadFields,
              RecordReader<Decoders>::LinesAt,
              RecordReader<Decoders>::WriteAt}...}};
}

constexpr auto kRows = RowsOf(Structures::AllDecoders());

const Row& RowOf(StructureTypes key) {
    return kRows[Structures::DecoderIndexOf(key)];
}

}  // namespace

RecordFrame FrameOf(StructureTypes key, const BaseStructure& decoder) {
    return RowOf(key).frame(decoder);
}

void ReadLibraryFields(StructureTypes key, const BaseStructure& decoder, std::vector<LibraryField>& fields) {
    RowOf(key).readFields(decoder, fields);
}

std::vector<std::string> LinesOfField(StructureTypes key, const BaseStructure& decoder, std::size_t index) {
    return RowOf(key).lines(decoder, index);
}

void WriteField(
    StructureTypes key, const BaseStructure& decoder, std::size_t index, const char* name, JsonWriter& json) {
    RowOf(key).write(decoder, index, name, json);
}

}  // namespace SMBIOS::Inspect::Departures
