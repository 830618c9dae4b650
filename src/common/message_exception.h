#pragma once

#include <exception>
#include <string>
#include <utility>

namespace SMBIOS::Common {

/// The library's plain exception: the standard base exception with a text.
class MessageException : public std::exception {
public:
    explicit MessageException(std::string message) : message_(std::move(message)) {}

    [[nodiscard]] const char* what() const noexcept override { return message_.c_str(); }

private:
    std::string message_;
};

}  // namespace SMBIOS::Common
