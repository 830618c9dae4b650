#include "report/delivery.h"

#include <cstdlib>
#include <cstring>
#include <exception>

#include "smbios-inspect/command_line/inspect.h"
#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/output/text_layout.h"

namespace SMBIOS::Report {

namespace {

struct Answer {
    int status;
    std::string text;
};

Answer AnswerOf(const std::function<std::string()>& makeText) {
    try {
        return {Inspect::kSuccess, makeText()};
    } catch (const Inspect::UsageError& error) {
        return {Inspect::kWrongUsage, Inspect::Printable(error.what())};
    } catch (const std::exception& error) {
        return {Inspect::kUnreadable, Inspect::Printable(error.what())};
    } catch (...) {
        return {Inspect::kUnreadable, "unknown error"};
    }
}

char* CopyOf(const std::string& text) noexcept {
    char* const copy = static_cast<char*>(std::malloc(text.size() + 1));
    if (copy != nullptr) {
        std::memcpy(copy, text.c_str(), text.size() + 1);
    }
    return copy;
}

}  // namespace

int Deliver(char*& text, const std::function<std::string()>& makeText) noexcept {
    text = nullptr;
    try {
        const Answer answer = AnswerOf(makeText);
        text = CopyOf(answer.text);
        return text == nullptr ? Inspect::kUnreadable : answer.status;
    } catch (...) {
        return Inspect::kUnreadable;
    }
}

}  // namespace SMBIOS::Report
