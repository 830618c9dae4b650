#include "smbios-inspect/command_line/console_buffer.h"

#include <string_view>

namespace SMBIOS::Inspect {

ConsoleBuffer::ConsoleBuffer(const Platform::Console& console) noexcept : console_(console) {
    setp(block_.data(), block_.data() + block_.size());
}

std::error_code ConsoleBuffer::Finish() noexcept {
    Print();
    return failure_;
}

ConsoleBuffer::int_type ConsoleBuffer::overflow(int_type character) {
    Print();
    if (failure_) {
        return traits_type::eof();
    }
    return traits_type::eq_int_type(character, traits_type::eof())
               ? traits_type::not_eof(character)
               : sputc(traits_type::to_char_type(character));
}

int ConsoleBuffer::sync() {
    Print();
    return failure_ ? -1 : 0;
}

void ConsoleBuffer::Print() noexcept {
    const std::string_view text(pbase(), pptr());
    if (!failure_ && !text.empty()) {
        failure_ = console_.Write(text);
    }
    setp(block_.data(), block_.data() + block_.size());
}

}  // namespace SMBIOS::Inspect
