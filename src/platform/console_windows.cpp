#include "platform/console.h"

#include <fcntl.h>
#include <io.h>
#include <stdio.h>

#include <algorithm>
#include <limits>
#include <memory>

#include "platform/windows_api.h"

#include <shellapi.h>

namespace SMBIOS::Platform {

namespace {

HANDLE StandardOutput() noexcept {
    return ::GetStdHandle(STD_OUTPUT_HANDLE);
}

std::error_code LastError() noexcept {
    const DWORD error = ::GetLastError();
    const bool readerIsGone = error == ERROR_BROKEN_PIPE || error == ERROR_NO_DATA;
    return readerIsGone ? std::make_error_code(std::errc::broken_pipe)
                        : std::error_code(static_cast<int>(error), std::system_category());
}

std::string Utf8(const wchar_t* text) {
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    if (size <= 1) {
        return {};
    }
    std::string converted(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, converted.data(), size, nullptr, nullptr);
    converted.pop_back();  // the NUL
    return converted;
}

struct FreeLocal {
    void operator()(wchar_t** memory) const noexcept { ::LocalFree(memory); }
};

}  // namespace

struct Console::Settings {
    UINT codePage = 0;
    DWORD mode = 0;
    bool hasMode = false;
};

Console::Console() {
    ::_setmode(::_fileno(stdin), _O_BINARY);
    ::_setmode(::_fileno(stdout), _O_BINARY);
    ::_setmode(::_fileno(stderr), _O_BINARY);
    Settings former{.codePage = ::GetConsoleOutputCP()};
    former.hasMode = ::GetConsoleMode(StandardOutput(), &former.mode) != 0;
    former_ = std::make_unique<const Settings>(former);
    ::SetConsoleOutputCP(CP_UTF8);
    takesEscapeSequences_ =
        former.hasMode &&
        ::SetConsoleMode(StandardOutput(), former.mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

Console::~Console() {
    if (former_->hasMode) {
        ::SetConsoleMode(StandardOutput(), former_->mode);
    }
    if (former_->codePage != 0) {
        ::SetConsoleOutputCP(former_->codePage);
    }
}

std::size_t Console::Columns() const noexcept {
    CONSOLE_SCREEN_BUFFER_INFO screen;
    if (::GetConsoleScreenBufferInfo(StandardOutput(), &screen) == 0) {
        return 0;
    }
    return static_cast<std::size_t>(screen.srWindow.Right - screen.srWindow.Left + 1);
}

std::error_code Console::Write(std::string_view text) const noexcept {
    while (!text.empty()) {
        const std::size_t piece = std::min<std::size_t>(text.size(), std::numeric_limits<DWORD>::max());
        DWORD written = 0;
        if (::WriteFile(StandardOutput(), text.data(), static_cast<DWORD>(piece), &written, nullptr) == 0) {
            return LastError();
        }
        text.remove_prefix(written);
    }
    return {};
}

// Those of `main` are in the system's code page, which cannot spell every file name.
std::vector<std::string> ProgramArguments(int, char**) {
    int count = 0;
    const std::unique_ptr<wchar_t*[], FreeLocal> words(::CommandLineToArgvW(::GetCommandLineW(), &count));
    std::vector<std::string> arguments;
    for (int i = 1; words != nullptr && i < count; ++i) {
        arguments.push_back(Utf8(words[static_cast<std::size_t>(i)]));
    }
    return arguments;
}

}  // namespace SMBIOS::Platform
