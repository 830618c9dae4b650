#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace SMBIOS::Inspect {

/// What people read of a value, one line an element; none when there is nothing to read. Most values have one
/// line, which is kept without an allocation of its own.
class Lines {
public:
    Lines() = default;
    Lines(std::string line) : one_(std::move(line)), hasOne_(true) {}
    Lines(const char* line) : Lines(std::string(line)) {}

    [[nodiscard]] bool empty() const noexcept { return size() == 0; }
    [[nodiscard]] std::size_t size() const noexcept { return hasOne_ ? 1 : many_.size(); }

    void push_back(std::string line) {
        if (empty()) {
            *this = std::move(line);
            return;
        }
        if (hasOne_) {
            many_.push_back(std::move(one_));
            hasOne_ = false;
        }
        many_.push_back(std::move(line));
    }

    [[nodiscard]] std::string* begin() noexcept { return hasOne_ ? &one_ : many_.data(); }
    [[nodiscard]] const std::string* begin() const noexcept { return hasOne_ ? &one_ : many_.data(); }
    [[nodiscard]] std::string* end() noexcept { return begin() + size(); }
    [[nodiscard]] const std::string* end() const noexcept { return begin() + size(); }
    [[nodiscard]] const std::string& front() const noexcept { return *begin(); }
    [[nodiscard]] std::string& operator[](std::size_t index) noexcept { return begin()[index]; }

private:
    std::string one_;
    bool hasOne_ = false;
    std::vector<std::string> many_;  // two or more, else empty
};

}  // namespace SMBIOS::Inspect
