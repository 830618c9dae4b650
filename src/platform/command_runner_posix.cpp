#include <fcntl.h>
#include <paths.h>
#include <signal.h>
#include <spawn.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <utility>
#include <vector>

#include "platform/command_line.h"
#include "platform/command_runner.h"
#include "platform/descriptor.h"
#include "platform/program_search_posix.h"
#include "platform/read_pieces.h"

extern char** environ;

namespace SMBIOS::Platform {

namespace {

struct Pipe {
    Descriptor readEnd;
    Descriptor writeEnd;
};

/// Kills a program whose output is no longer wanted: it may never notice that nobody reads it.
void Kill(pid_t program) noexcept {
    siginfo_t ignored;
    const bool isOurs =
        ::waitid(P_PID, static_cast<id_t>(program), &ignored, WEXITED | WNOHANG | WNOWAIT) == 0;
    if (isOurs) {  // or the number may be another program's by now
        ::kill(program, SIGKILL);
    }
}

/// Closes the stream first, so that a program that still prints ends as well, and waits for the program.
struct EndProgram {
    void operator()(FILE* stream) const noexcept {
        const bool isReadToItsEnd = ::feof(stream) != 0;
        ::fclose(stream);
        if (program <= 0) {
            return;
        }
        if (!isReadToItsEnd) {
            Kill(program);
        }
        while (::waitpid(program, nullptr, 0) < 0 && errno == EINTR) {
        }
    }

    pid_t program = 0;
};

using ProgramStream = std::unique_ptr<FILE, EndProgram>;

/// The same under a number that no standard stream has, which would be in the way of the program's own.
Descriptor BeyondStandardStreams(Descriptor descriptor) noexcept {
    return descriptor.Number() > STDERR_FILENO
               ? std::move(descriptor)
               : Descriptor(::fcntl(descriptor.Number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

/// Both ends are open, or neither.
Pipe OpenPipe() noexcept {
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        return {};
    }
    Descriptor readEnd = BeyondStandardStreams(Descriptor(ends[0]));
    Descriptor writeEnd = BeyondStandardStreams(Descriptor(ends[1]));
    return readEnd.IsOpen() && writeEnd.IsOpen() ? Pipe{std::move(readEnd), std::move(writeEnd)} : Pipe{};
}

ssize_t ReadCookie(void* cookie, char* buffer, size_t size) noexcept {
    return ReadRetrying(static_cast<const Descriptor*>(cookie)->Number(), buffer, size);
}

int CloseCookie(void* cookie) noexcept {
    delete static_cast<Descriptor*>(cookie);
    return 0;
}

/// A stream that, unlike one of fdopen, loses nothing when a signal interrupts it.
ProgramStream OpenStream(Descriptor descriptor) {
    auto cookie = std::make_unique<Descriptor>(std::move(descriptor));
    ProgramStream stream(::fopencookie(cookie.get(), "r", {ReadCookie, nullptr, nullptr, CloseCookie}));
    if (stream != nullptr) {
        (void)cookie.release();
    }
    return stream;
}

/// A program's standard streams: its output goes into a pipe, the others are this process's. One that is
/// closed in this process cannot be read from or printed to, but its number is taken: a file that the program
/// opens must not get it.
class Streams {
public:
    explicit Streams(int output) noexcept
        : isReady_(::posix_spawn_file_actions_init(&actions_) == 0),
          isComplete_(isReady_ && ::posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO) == 0 &&
                      Hold(STDIN_FILENO) && Hold(STDERR_FILENO)) {}
    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;
    ~Streams() {
        if (isReady_) {
            ::posix_spawn_file_actions_destroy(&actions_);
        }
    }

    [[nodiscard]] bool IsComplete() const noexcept { return isComplete_; }
    [[nodiscard]] const posix_spawn_file_actions_t* Actions() const noexcept { return &actions_; }

private:
    bool Hold(int stream) noexcept {
        const bool isOpen = ::fcntl(stream, F_GETFD) >= 0;
        return isOpen || ::posix_spawn_file_actions_addopen(&actions_, stream, "/", O_PATH, 0) == 0;
    }

    posix_spawn_file_actions_t actions_;
    bool isReady_;
    bool isComplete_;
};

/// How a program takes signals: as this process does, but it dies of a pipe that nobody reads, even where
/// this process does not.
class SignalAttributes {
public:
    SignalAttributes() noexcept : isReady_(::posix_spawnattr_init(&attributes_) == 0) {
        sigset_t brokenPipe;
        ::sigemptyset(&brokenPipe);
        ::sigaddset(&brokenPipe, SIGPIPE);
        sigset_t blocked;
        ::pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
        ::sigdelset(&blocked, SIGPIPE);
        isComplete_ =
            isReady_ && ::posix_spawnattr_setsigdefault(&attributes_, &brokenPipe) == 0 &&
            ::posix_spawnattr_setsigmask(&attributes_, &blocked) == 0 &&
            ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK) == 0;
    }
    SignalAttributes(const SignalAttributes&) = delete;
    SignalAttributes& operator=(const SignalAttributes&) = delete;
    ~SignalAttributes() {
        if (isReady_) {
            ::posix_spawnattr_destroy(&attributes_);
        }
    }

    [[nodiscard]] bool IsComplete() const noexcept { return isComplete_; }
    [[nodiscard]] const posix_spawnattr_t* Attributes() const noexcept { return &attributes_; }

private:
    posix_spawnattr_t attributes_;
    bool isReady_;
    bool isComplete_ = false;
};

std::vector<std::string> FilesOf(const std::string& program) {
    const char* const path = ::secure_getenv("PATH");
    return ProgramCandidates(program, path != nullptr ? path : _PATH_DEFPATH);
}

std::vector<char*> ArgumentsOf(std::vector<std::string>& elements) {
    std::vector<char*> arguments;
    arguments.reserve(elements.size() + 1);
    for (std::string& element : elements) {
        arguments.push_back(element.data());
    }
    arguments.push_back(nullptr);
    return arguments;
}

/// Returns the program's process id, or 0 when it cannot be started.
pid_t Spawn(std::vector<std::string>& elements, int output) {
    const std::vector<char*> arguments = ArgumentsOf(elements);
    const Streams streams(output);
    const SignalAttributes signals;
    if (!streams.IsComplete() || !signals.IsComplete()) {
        return 0;
    }
    for (const std::string& file : FilesOf(elements.front())) {
        pid_t program = 0;
        if (::posix_spawn(
                &program, file.c_str(), streams.Actions(), signals.Attributes(), arguments.data(), environ) ==
            0) {
            return program;
        }
    }
    return 0;
}

ProgramStream StartProgram(const std::string& commandLine) {
    std::vector<std::string> elements = SplitCommandLine(commandLine.c_str());
    Pipe pipe = OpenPipe();
    if (!pipe.readEnd.IsOpen()) {
        return nullptr;
    }
    ProgramStream stream = OpenStream(std::move(pipe.readEnd));
    if (stream == nullptr) {
        return nullptr;
    }
    stream.get_deleter().program = Spawn(elements, pipe.writeEnd.Number());
    return stream.get_deleter().program != 0 ? std::move(stream) : nullptr;
}

class PosixProgramOutput final : public ProgramOutput {
public:
    explicit PosixProgramOutput(ProgramStream stream) noexcept : stream_(std::move(stream)) {}

    [[nodiscard]] std::optional<std::string_view> NextPiece() override { return pieces_.Next(stream_.get()); }

private:
    ProgramStream stream_;
    PieceReader pieces_;
};

class PosixCommandRunner final : public CommandRunner {
public:
    [[nodiscard]] std::unique_ptr<ProgramOutput> Start(const std::string& commandLine) override {
        ProgramStream stream = StartProgram(commandLine);
        return stream != nullptr ? std::make_unique<PosixProgramOutput>(std::move(stream)) : nullptr;
    }
};

constinit PosixCommandRunner machineCommandRunner;

}  // namespace

CommandRunner& MachineCommandRunner() noexcept {
    return machineCommandRunner;
}

}  // namespace SMBIOS::Platform
