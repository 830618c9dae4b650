#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <string>
#include <thread>

#include "platform/console.h"

namespace SMBIOS::Platform {
namespace {

constexpr std::size_t kMoreThanAPipeHolds = 1'048'576;

/// Makes standard output a non-blocking pipe.
class OutputToPipe {
public:
    OutputToPipe() : kept_(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3)) {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) == 0) {
            readEnd_ = ends[0];
            ::dup2(ends[1], STDOUT_FILENO);
            ::close(ends[1]);
            ::fcntl(readEnd_, F_SETFL, 0);
        }
    }
    ~OutputToPipe() {
        Restore();
        CloseReader();
    }

    /// Everything that comes until standard output is restored.
    [[nodiscard]] std::string ReadAll() const {
        std::string text;
        std::array<char, 4096> piece{};
        ssize_t size = 0;
        while ((size = ::read(readEnd_, piece.data(), piece.size())) > 0) {
            text.append(piece.data(), static_cast<std::size_t>(size));
        }
        return text;
    }

    void CloseReader() {
        if (readEnd_ >= 0) {
            ::close(readEnd_);
            readEnd_ = -1;
        }
    }

    void Restore() {
        if (kept_ >= 0) {
            ::dup2(kept_, STDOUT_FILENO);
            ::close(kept_);
            kept_ = -1;
        }
    }

private:
    int kept_;
    int readEnd_ = -1;
};

[[noreturn]] void CloseStreamsAndOpenAFile() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        ::close(stream);
    }
    const Console console;
    const bool fails = console.Write("text") == std::errc::bad_file_descriptor;
    char character = 0;
    const bool hasNoInput = ::read(STDIN_FILENO, &character, 1) == -1 && errno == EBADF;
    ::_exit(fails && hasNoInput && ::open("/dev/null", O_RDWR) > STDERR_FILENO ? 0 : 1);
}

TEST(PosixConsoleDeathTest, LetsNoFileTakeThePlaceOfAClosedStream) {
    EXPECT_EXIT(CloseStreamsAndOpenAFile(), testing::ExitedWithCode(0), "");
}

TEST(PosixConsole, WaitsForRoomInANonBlockingPipe) {
    const std::string text(kMoreThanAPipeHolds, 'x');
    OutputToPipe pipe;
    std::string received;
    std::thread reader([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        received = pipe.ReadAll();
    });
    const std::error_code failure = Console().Write(text);
    pipe.Restore();
    reader.join();
    EXPECT_FALSE(failure) << failure.message();
    EXPECT_TRUE(received == text);
}

TEST(PosixConsole, DoesNotWaitForAReaderThatGoesAway) {
    OutputToPipe pipe;
    const auto previous = ::signal(SIGPIPE, SIG_IGN);
    std::thread reader([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        pipe.CloseReader();
    });
    const std::error_code failure = Console().Write(std::string(kMoreThanAPipeHolds, 'x'));
    reader.join();
    ::signal(SIGPIPE, previous);
    pipe.Restore();
    EXPECT_EQ(failure, std::errc::broken_pipe);
}

}  // namespace
}  // namespace SMBIOS::Platform
