#include "wmi/answer_reader.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <type_traits>
#include <utility>

namespace SMBIOS::Wmi {

namespace {

/// The JSON library holds all characters since the last text or number. Far above any property's value; keeps
/// an endless one from filling the memory.
constexpr std::size_t kMostCharactersHeld = std::size_t{16} * 1024 * 1024;

/// The characters of an answer, of which no more than a piece is held.
class Characters {
public:
    explicit Characters(Platform::ProgramOutput& answer) : answer_(answer) { ReadPiece(); }

    [[nodiscard]] bool AtEnd() const noexcept { return piece_.empty(); }
    [[nodiscard]] char Front() const noexcept { return piece_.front(); }

    /// Throws std::length_error when the reader holds too many characters.
    void RemoveFront() {
        if (++held_ > kMostCharactersHeld) {
            throw std::length_error("a part of PowerShell's answer is too long");
        }
        piece_.remove_prefix(1);
        if (piece_.empty()) {
            ReadPiece();
        }
    }

    /// Tells that the reader holds no character any more.
    void Release() noexcept { held_ = 0; }

private:
    /// Reads the next piece that holds something; at the end there is none.
    void ReadPiece() {
        std::optional<std::string_view> piece;
        do {
            piece = answer_.NextPiece();
        } while (piece && piece->empty());
        piece_ = piece.value_or(std::string_view());
    }

    Platform::ProgramOutput& answer_;
    std::string_view piece_;
    std::size_t held_ = 0;
};

/// Goes once through characters, as the JSON library wants them.
class CharacterIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = char;

    CharacterIterator() = default;  // the end of any characters
    explicit CharacterIterator(Characters* characters) noexcept : characters_(characters) {}

    [[nodiscard]] char operator*() const noexcept { return characters_->Front(); }
    CharacterIterator& operator++() {
        characters_->RemoveFront();
        return *this;
    }
    void operator++(int) { characters_->RemoveFront(); }

    [[nodiscard]] friend bool operator==(const CharacterIterator& left,
                                         const CharacterIterator& right) noexcept {
        return left.AtEnd() == right.AtEnd();
    }

private:
    [[nodiscard]] bool AtEnd() const noexcept { return characters_ == nullptr || characters_->AtEnd(); }

    Characters* characters_ = nullptr;
};

/// Ends with the JSON library's own complaint about a value that is no text.
void RefuseAsText(const PropertyValue& value) {
    const auto json = std::visit(
        [](const auto& content) -> nlohmann::json {
            if constexpr (std::is_same_v<std::remove_cvref_t<decltype(content)>, Container>) {
                return content == Container::array ? nlohmann::json::array() : nlohmann::json::object();
            } else {
                return content;
            }
        },
        value);
    (void)json.get<std::string>();
}

/// Makes instances of what the JSON library reports of an answer while it reads it; the operations in its
/// manner are those that it calls. Of a member that is repeated the last one counts.
class InstanceCollector {
public:
    InstanceCollector(Characters& characters, const std::string& keyProperty, const PropertySet& properties)
        : characters_(characters), keyProperty_(keyProperty), properties_(properties) {}

    /// The key at which filing ended, as it is no text.
    [[nodiscard]] const std::optional<PropertyValue>& RefusedKey() const noexcept { return refusedKey_; }

    [[nodiscard]] Instances TakeInstances() noexcept { return std::move(instances_); }

    bool null() { return Take(nullptr); }
    bool boolean(bool value) { return Take(value); }
    bool number_integer(std::int64_t value) { return TakeToken(value); }
    bool number_unsigned(std::uint64_t value) { return TakeToken(value); }
    bool number_float(double value, const std::string&) { return TakeToken(value); }
    bool string(std::string& value) { return TakeToken(std::move(value)); }
    bool binary(const nlohmann::json::binary_t&) { return false; }  // no JSON text holds any

    bool start_array(std::size_t) {
        Take(Container::array);
        answerIsArray_ = answerIsArray_ || depth_ == 0;
        ++depth_;
        return true;
    }

    bool end_array() {
        --depth_;
        return true;
    }

    bool start_object(std::size_t) {
        Take(Container::object);
        const bool isInstance = depth_ == (answerIsArray_ ? 1 : 0);
        ++depth_;
        if (isInstance) {
            instanceDepth_ = depth_;
            key_.reset();
            instance_.clear();
        }
        return true;
    }

    bool key(const std::string& name) {
        characters_.Release();
        if (IsAtMember()) {
            const auto property = properties_.find(name);
            property_ = property != properties_.end() ? &*property : nullptr;
            isKey_ = name == keyProperty_;
        }
        return true;
    }

    bool end_object() {
        if (IsAtMember()) {
            FileInstance();
            instanceDepth_ = 0;
        }
        --depth_;
        return true;
    }

    template <class Failure>
    bool parse_error(std::size_t, const std::string&, const Failure& failure) {
        throw failure;
    }

private:
    /// Whether the next value, or the end, is one of an instance itself and not of something in it.
    [[nodiscard]] bool IsAtMember() const noexcept { return depth_ != 0 && depth_ == instanceDepth_; }

    template <class Value>
    bool Take(Value&& value) {
        if (IsAtMember() && isKey_) {
            key_ = value;
        }
        if (IsAtMember() && property_ != nullptr) {
            instance_.insert_or_assign(*property_, std::forward<Value>(value));
        }
        return true;
    }

    /// Takes a text or a number.
    template <class Value>
    bool TakeToken(Value&& value) {
        characters_.Release();
        return Take(std::forward<Value>(value));
    }

    void FileInstance() {
        if (!key_ || refusedKey_) {
            return;
        }
        if (std::string* const text = std::get_if<std::string>(&*key_)) {
            instances_.try_emplace(std::move(*text), std::move(instance_));
        } else {
            refusedKey_ = std::move(key_);
        }
    }

    Characters& characters_;
    const std::string& keyProperty_;
    const PropertySet& properties_;
    Instances instances_;
    std::optional<PropertyValue> refusedKey_;

    std::size_t depth_ = 0;  ///< number of arrays and objects that are open
    bool answerIsArray_ = false;
    std::size_t instanceDepth_ = 0;  ///< the depth within the instance being read; 0 outside
    std::optional<PropertyValue> key_;
    Instance instance_;
    const std::string* property_ = nullptr;  ///< that of the value to come; nullptr for one not asked for
    bool isKey_ = false;
};

}  // namespace

void ReadAnswer(Platform::ProgramOutput& answer,
                const std::string& keyProperty,
                const PropertySet& properties,
                Instances& instances) {
    Characters characters(answer);
    InstanceCollector collector(characters, keyProperty, properties);
    nlohmann::json::sax_parse(CharacterIterator(&characters), CharacterIterator(), &collector);
    instances = collector.TakeInstances();
    if (collector.RefusedKey()) {
        RefuseAsText(*collector.RefusedKey());
    }
}

}  // namespace SMBIOS::Wmi
