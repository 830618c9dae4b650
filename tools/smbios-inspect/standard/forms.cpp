#include "smbios-inspect/standard/forms.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>
#include <vector>

#include "smbios-inspect/output/units.h"
#include "smbios-inspect/standard/words_types.h"
#include "structures/hex_text.h"

namespace SMBIOS::Inspect::Standard {

namespace {

constexpr std::uint64_t kFirstOemCode = 0x80;
constexpr std::uint64_t kUnknownWord = 0x8000;

}  // namespace

std::uint64_t Reading::Raw() const noexcept {
    const std::uint64_t value = NumberAt(structure, Offset(), row.width) >> row.form.lowBit;
    return row.form.bitCount < 64 ? value & ((std::uint64_t{1} << row.form.bitCount) - 1) : value;
}

Value ReadString(const Reading& reading) {
    return StringNumber(reading.structure, reading.Raw());
}

Value ReadNumber(const Reading& reading) {
    const std::uint64_t number = reading.Raw();
    const Form& form = reading.row.form;
    if (const auto words = form.words.Find(number)) {
        return Nothing(*words);
    }
    return Number(number, std::to_string(number).append(form.mark));
}

Value ReadFraction(const Reading& reading) {
    const std::uint64_t number = reading.Raw();
    const Form& form = reading.row.form;
    if (number == kUnknownWord) {
        return Nothing(kUnknown);
    }
    return Number(number, DecimalText(static_cast<std::int64_t>(number), form.digits).append(form.mark));
}

Value ReadSigned(const Reading& reading) {
    const std::uint64_t raw = reading.Raw();
    const Form& form = reading.row.form;
    if (raw == kUnknownWord) {
        return Nothing(kUnknown);
    }
    const auto number = static_cast<std::int16_t>(raw);
    return SignedNumber(number, DecimalText(number, form.digits).append(form.mark));
}

Value ReadHex(const Reading& reading) {
    const std::uint64_t number = reading.Raw();
    if (const auto words = reading.row.form.words.Find(number)) {
        return Nothing(*words);
    }
    return Number(number, HexText(number, 2 * reading.row.width));
}

Value ReadHandle(const Reading& reading) {
    return ReadHex(reading);
}

Value ReadCode(const Reading& reading) {
    const std::uint64_t code = reading.Raw();
    return Words(code, WordsFor(reading.row.form.words, code));
}

Value ReadCodeOrOem(const Reading& reading) {
    const std::uint64_t code = reading.Raw();
    const auto words = reading.row.form.words.Find(code);
    return Words(code, words.value_or(code < kFirstOemCode ? kOutOfSpec : "OEM-specific"));
}

Value ReadFlags(const Reading& reading) {
    const std::uint64_t bits = reading.Raw();
    std::vector<Item> names = NamesOfBits(reading.row.form.words, bits);
    const char* const text = names.empty() ? "None" : "";
    return List(bits, text, std::move(names));
}

Value ReadFlagsInLine(const Reading& reading) {
    Value flags = ReadFlags(reading);
    flags.isInLine = true;
    if (!flags.items.empty()) {
        flags.text = InOneLine(flags.items);
    }
    return flags;
}

/// The first three parts are little-endian since version 2.6 of the standard; they were read big-endian
/// before.
Value ReadUuid(const Reading& reading) {
    auto bytes = reading.structure.Area().Bytes<16>(reading.Offset());
    const auto isAll = [&](std::uint8_t value) {
        return std::ranges::all_of(bytes, [=](std::uint8_t byte) { return byte == value; });
    };
    if (isAll(0xFF)) {
        return Nothing("Not Present");
    }
    if (isAll(0x00)) {
        return Nothing("Not Settable");
    }
    if (reading.structure.version.IsAtLeast(2, 6)) {
        std::reverse(bytes.begin(), bytes.begin() + 4);
        std::reverse(bytes.begin() + 4, bytes.begin() + 6);
        std::reverse(bytes.begin() + 6, bytes.begin() + 8);
    }
    std::string text = HexadecimalText(bytes);
    for (const std::size_t position : {20U, 16U, 12U, 8U}) {
        text.insert(position, 1, '-');
    }
    return Text(std::move(text));
}

Value ReadBytes(const Reading& reading) {
    return Text(BytesText(reading.structure.bytes.subspan(reading.Offset(), reading.row.width)));
}

Value ReadHandleList(const Reading& reading) {
    const std::uint64_t count = reading.Raw();
    return List(count,
                std::to_string(count),
                HandlesAt(reading.structure, reading.Offset() + reading.row.width, count));
}

Value ReadByteSize(const Reading& reading) {
    const std::uint64_t bytes = reading.Raw();
    if (bytes == 0) {
        return Words(bytes, "None");
    }
    if (const auto words = reading.row.form.words.Find(bytes)) {
        return Nothing(*words);
    }
    return SizeInBytes(bytes);
}

Value ReadRelease(const Reading& reading) {
    const std::uint64_t release = reading.Raw();
    if (release == 0xFFFF) {
        return Nothing(kNotSpecified);
    }
    return Text(std::to_string(release & 0xFF) + "." + std::to_string(release >> 8));
}

Value ReadBusAddress(const Reading& reading) {
    const std::uint64_t parts = reading.Raw();
    const auto segment = static_cast<unsigned>(parts & 0xFFFF);
    const auto bus = static_cast<unsigned>(parts >> 16 & 0xFF);
    const auto deviceFunction = static_cast<unsigned>(parts >> 24 & 0xFF);
    if (segment == 0xFFFF && bus == 0xFF && deviceFunction == 0xFF) {
        return Nothing("Not Applicable");
    }
    return Text(BusAddressText(segment, bus, deviceFunction));
}

bool IsNumberAsItStands(const Form& form) noexcept {
    constexpr Value (*kReaders[])(const Reading&) = {
        ReadNumber, ReadHex, ReadHandle, ReadCode, ReadCodeOrOem, ReadFlags, ReadFlagsInLine};
    return std::ranges::find(kReaders, form.read) != std::end(kReaders);
}

Value StringNumber(const Structure& structure, std::size_t number) {
    if (number == 0) {
        return Nothing(kNotSpecified);
    }
    if (number > structure.strings.size()) {
        return Nothing("<BAD INDEX>");
    }
    return Text(structure.strings[number - 1]);
}

std::string_view WordsFor(WordList words, std::uint64_t code) {
    return words.Find(code).value_or(kOutOfSpec);
}

std::string_view TypeWords(std::uint8_t type) {
    return type < kFirstOemCode ? WordsFor(kTypeWords, type) : "OEM-specific";
}

std::vector<Item> NamesOfBits(WordList names, std::uint64_t bits) {
    std::vector<Item> items;
    items.reserve(static_cast<std::size_t>(std::popcount(bits)));
    for (const auto& [bit, name] : names) {
        if ((bits >> bit & 1U) != 0) {
            items.push_back({.text = name});
        }
    }
    return items;
}

std::string InOneLine(const std::vector<Item>& items) {
    std::string line;
    for (const Item& item : items) {
        line += line.empty() ? "" : " ";
        line += item.text;
    }
    return line;
}

std::string KibibytesText(std::uint64_t kibibytes) {
    constexpr const char* kUnits[] = {" KiB", " MiB", " GiB", " TiB", " PiB", " EiB", " ZiB"};
    std::size_t unit = 0;
    while (kibibytes != 0 && kibibytes % 1024 == 0 && unit + 1 < std::size(kUnits)) {
        kibibytes /= 1024;
        ++unit;
    }
    return std::to_string(kibibytes) + kUnits[unit];
}

Value SizeInBytes(std::uint64_t bytes) {
    std::string text =
        bytes % 1024 == 0 && bytes != 0 ? KibibytesText(bytes / 1024) : std::to_string(bytes) + " bytes";
    return Number(bytes, std::move(text));
}

Value SizeInKibibytes(std::uint64_t kibibytes) {
    return Number(kibibytes * 1024, KibibytesText(kibibytes));
}

std::string BytesText(std::span<const std::uint8_t> bytes) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += text.empty() ? "" : " ";
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0x0F];
    }
    return text;
}

std::string HexText(std::uint64_t number, std::size_t digits) {
    return Structures::PaddedHexText(number, digits);
}

std::vector<Item> HandlesAt(const Structure& structure, std::size_t offset, std::size_t count) {
    const Structures::FormattedArea area = structure.Area();
    std::vector<Item> handles;
    for (std::size_t i = 0; i < count && offset + kWord * (i + 1) <= area.Size(); ++i) {
        const std::size_t at = offset + kWord * i;
        const std::uint16_t handle = area.Word(at);
        handles.push_back({std::uint64_t{handle}, HexText(handle, 4), at});
    }
    return handles;
}

std::string DecimalText(std::int64_t number, unsigned digits) {
    std::string text = std::to_string(number < 0 ? -number : number);
    if (text.size() <= digits) {
        text.insert(0, digits + 1 - text.size(), '0');
    }
    if (digits != 0) {
        text.insert(text.size() - digits, 1, '.');
    }
    return (number < 0 ? "-" : "") + text;
}

std::string BusAddressText(unsigned segment, unsigned bus, unsigned deviceFunction) {
    const auto byte = [](unsigned value) {
        return HexadecimalText(std::array{static_cast<std::uint8_t>(value)});
    };
    return byte(segment >> 8) + byte(segment & 0xFF) + ":" + byte(bus) + ":" + byte(deviceFunction >> 3) +
           "." + std::to_string(deviceFunction & 0x07);
}

}  // namespace SMBIOS::Inspect::Standard
