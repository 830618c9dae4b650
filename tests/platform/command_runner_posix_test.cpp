#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <new>
#include <string>
#include <vector>

#include "platform/command_runner.h"
#include "support/memory_limit_posix.h"
#include "support/temporary_folder.h"

namespace SMBIOS::Platform {
namespace {

using Tests::kMebibyte;
using Tests::kMemoryIsWatched;
using Tests::LimitMemory;

constexpr const char* kMissingProgram = "smbios-no-such-program --version";

std::string OutputOf(const std::string& commandLine) {
    std::string output;
    EXPECT_TRUE(MachineCommandRunner().Run(commandLine, output));
    return output;
}

bool Starts(const std::string& commandLine) {
    std::string output;
    return MachineCommandRunner().Run(commandLine, output);
}

bool HasNoChildren() {
    return ::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD;
}

std::vector<int> DescriptorsWithFlags(int mask, int expected) {
    std::vector<int> result;
    for (int descriptor = 0; descriptor < 1024; ++descriptor) {
        const int flags = ::fcntl(descriptor, F_GETFD);
        if (flags != -1 && (flags & mask) == expected) {
            result.push_back(descriptor);
        }
    }
    return result;
}

std::vector<int> OpenDescriptors() {
    return DescriptorsWithFlags(0, 0);
}

std::vector<int> InheritedDescriptors() {
    return DescriptorsWithFlags(FD_CLOEXEC, 0);
}

TEST(PosixCommandRunner, ReturnsWhatTheProgramPrints) {
    EXPECT_EQ(OutputOf("echo hello"), "hello\n");
}

TEST(PosixCommandRunner, ReturnsALastLineWithoutItsEnd) {
    EXPECT_EQ(OutputOf("printf one\\ntwo"), "one\ntwo");
}

TEST(PosixCommandRunner, ReplacesWhatTheOutputHeldBefore) {
    std::string output = "before";
    ASSERT_TRUE(MachineCommandRunner().Run("true", output));
    EXPECT_EQ(output, "");
}

TEST(PosixCommandRunner, HandsOverArgumentsAsTheWindowsRuntimeSplitsThem) {
    EXPECT_EQ(OutputOf(R"(printf "<%s>" "a b" c\"d "")"), "<a b><c\"d><>");
}

TEST(PosixCommandRunner, UsesNoShell) {
    EXPECT_EQ(OutputOf("echo $HOME * ; exit"), "$HOME * ; exit\n");
}

TEST(PosixCommandRunner, DoesNotLookAtTheExitStatus) {
    EXPECT_EQ(OutputOf(R"(sh -c "echo hello; exit 3")"), "hello\n");
}

TEST(PosixCommandRunner, DoesNotCaptureStandardError) {
    testing::internal::CaptureStderr();
    const std::string output = OutputOf(R"(sh -c "echo lost >&2; echo kept")");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "lost\n");
    EXPECT_EQ(output, "kept\n");
}

/// Reads standard input from a file.
class InputFrom {
public:
    explicit InputFrom(const std::filesystem::path& file) : kept_(::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3)) {
        const int opened = ::open(file.c_str(), O_RDONLY);
        if (opened != STDIN_FILENO) {
            ::dup2(opened, STDIN_FILENO);
            ::close(opened);
        }
    }
    ~InputFrom() {
        if (kept_ < 0) {
            ::close(STDIN_FILENO);
            return;
        }
        ::dup2(kept_, STDIN_FILENO);
        ::close(kept_);
    }

private:
    int kept_;
};

TEST(PosixCommandRunner, LeavesStandardInputToTheProgram) {
    const Tests::TemporaryFolder folder;
    const InputFrom input(folder.Write("input", "typed\n"));
    EXPECT_EQ(OutputOf("cat"), "typed\n");
}

TEST(PosixCommandRunner, ReturnsLinesLongerThanAPiece) {
    const std::string line(300, 'x');
    EXPECT_EQ(OutputOf("echo " + line), line + "\n");
}

TEST(PosixCommandRunner, DropsTheRestOfAPieceAfterANul) {
    EXPECT_EQ(OutputOf(R"(printf "one\0two\nthree\n")"), "onethree\n");
}

TEST(PosixCommandRunner, KeepsWhatStandsInFrontOfANulInALongLine) {
    const std::string start(150, 'x');
    EXPECT_EQ(OutputOf("printf " + start + R"(\0lost\nend)"), start + "end");
}

TEST(PosixCommandRunner, ReturnsAMegabyte) {
    const std::string output = OutputOf(R"(sh -c "head -c 1048576 /dev/zero | tr '\0' x")");
    EXPECT_TRUE(output == std::string(kMebibyte, 'x'));
}

TEST(PosixCommandRunner, RefusesAMissingProgram) {
    std::string output = "before";
    EXPECT_FALSE(MachineCommandRunner().Run(kMissingProgram, output));
    EXPECT_EQ(output, "before");
}

TEST(PosixCommandRunner, RefusesAMissingPath) {
    EXPECT_FALSE(Starts("/no/such/program"));
}

TEST(PosixCommandRunner, RefusesAnEmptyCommandLine) {
    EXPECT_FALSE(Starts(""));
}

/// A program in the working folder, which prints "planted".
class PlantedProgram {
public:
    explicit PlantedProgram(const char* path) : formerFolder_(std::filesystem::current_path()) {
        namespace fs = std::filesystem;
        fs::create_directory(folder_.Path() / "bin");
        for (const char* const name : {"planted", "bin/planted"}) {
            fs::permissions(folder_.Write(name, "#!/bin/sh\necho planted\n"), fs::perms::owner_all);
        }
        fs::current_path(folder_.Path());
        ::setenv("PATH", path, 1);
    }
    ~PlantedProgram() {
        std::filesystem::current_path(formerFolder_);
        ::setenv("PATH", formerPath_.c_str(), 1);
    }

    [[nodiscard]] std::string Folder() const { return folder_.Path(); }

private:
    Tests::TemporaryFolder folder_;
    std::filesystem::path formerFolder_;
    std::string formerPath_ = std::getenv("PATH");
};

TEST(PosixCommandRunner, FindsNothingInTheWorkingFolder) {
    for (const char* const path : {"", ":", "/bin:", "/bin::/usr/bin", ".", "bin", "/bin:./bin"}) {
        const PlantedProgram program(path);
        EXPECT_FALSE(Starts("planted")) << path;
    }
}

TEST(PosixCommandRunner, FindsAProgramBehindFoldersThatLackIt) {
    const PlantedProgram program("/no/such/folder");
    ::setenv("PATH", ("/no/such/folder:" + program.Folder()).c_str(), 1);
    EXPECT_EQ(OutputOf("planted"), "planted\n");
}

TEST(PosixCommandRunner, StartsAProgramWhosePathIsGiven) {
    const PlantedProgram program("");
    EXPECT_EQ(OutputOf("./planted"), "planted\n");
}

TEST(PosixCommandRunner, FindsTheSystemsProgramsWithoutAPath) {
    const PlantedProgram program("");
    ::unsetenv("PATH");
    EXPECT_EQ(OutputOf("echo hello"), "hello\n");
}

TEST(PosixCommandRunner, PrintsNothingAboutAMissingProgram) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    (void)Starts(kMissingProgram);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(PosixCommandRunner, LeavesNoZombie) {
    (void)Starts("echo hello");
    EXPECT_TRUE(HasNoChildren());
}

TEST(PosixCommandRunner, LeavesNoZombieOfAMissingProgram) {
    (void)Starts(kMissingProgram);
    EXPECT_TRUE(HasNoChildren());
}

TEST(PosixCommandRunner, LeavesNoDescriptorOpen) {
    const std::vector<int> before = OpenDescriptors();
    (void)Starts("echo hello");
    EXPECT_EQ(OpenDescriptors(), before);
}

TEST(PosixCommandRunner, LeavesNoDescriptorOpenForAMissingProgram) {
    const std::vector<int> before = OpenDescriptors();
    (void)Starts(kMissingProgram);
    EXPECT_EQ(OpenDescriptors(), before);
}

TEST(PosixCommandRunner, HandsNoDescriptorOfItsOwnToTheProgram) {
    const std::string script =
        "for n in 3 4 5 6 7 8 9; do if { : >&$n; } 2>/dev/null; then echo $n; fi; done";
    std::string expected;
    for (const int descriptor : InheritedDescriptors()) {
        if (descriptor >= 3 && descriptor <= 9) {
            expected += std::to_string(descriptor) + "\n";
        }
    }
    EXPECT_EQ(OutputOf("sh -c \"" + script + "\""), expected);
}

TEST(PosixCommandRunner, OutlivesAProgramThatClosesItsOutputEarly) {
    EXPECT_EQ(OutputOf(R"(sh -c "echo hello; exec >&-; sleep 0.05")"), "hello\n");
    EXPECT_TRUE(HasNoChildren());
}

TEST(PosixCommandRunner, OutlivesAProgramThatIsKilled) {
    EXPECT_EQ(OutputOf(R"(sh -c "echo hello; kill -9 $$")"), "hello\n");
}

TEST(PosixCommandRunner, EndsAProgramWhoseOutputIsNotRead) {
    const auto program =
        MachineCommandRunner().Start(R"(sh -c "trap '' PIPE TERM; echo one; exec sleep 1000")");
    ASSERT_NE(program, nullptr);
    EXPECT_EQ(program->NextPiece(), "one\n");
}

TEST(PosixCommandRunner, LeavesNoZombieOfAProgramWhoseOutputIsNotRead) {
    (void)MachineCommandRunner().Start("echo hello");
    EXPECT_TRUE(HasNoChildren());
}

TEST(PosixCommandRunner, LetsTheProgramDieOfABrokenPipeThatThisProcessIgnores) {
    const auto previous = ::signal(SIGPIPE, SIG_IGN);
    const std::string output = OutputOf(R"(sh -c "kill -PIPE $$; echo survived")");
    ::signal(SIGPIPE, previous);
    EXPECT_EQ(output, "");
}

TEST(PosixCommandRunner, LetsTheProgramDieOfABrokenPipeThatThisThreadBlocks) {
    sigset_t brokenPipe;
    ::sigemptyset(&brokenPipe);
    ::sigaddset(&brokenPipe, SIGPIPE);
    ::pthread_sigmask(SIG_BLOCK, &brokenPipe, nullptr);
    const std::string output = OutputOf(R"(sh -c "kill -PIPE $$; echo survived")");
    ::pthread_sigmask(SIG_UNBLOCK, &brokenPipe, nullptr);
    EXPECT_EQ(output, "");
}

TEST(PosixCommandRunner, WorksWhenTheSystemReapsChildren) {
    const auto previous = ::signal(SIGCHLD, SIG_IGN);
    const std::string output = OutputOf("echo hello");
    ::signal(SIGCHLD, previous);
    EXPECT_EQ(output, "hello\n");
}

/// Interrupts every system call of the process again and again.
class Interruptions {
public:
    Interruptions() {
        struct sigaction action {};
        action.sa_handler = [](int) {};
        ::sigaction(SIGALRM, &action, &previous_);
        SetPeriod(2000);
    }
    ~Interruptions() {
        SetPeriod(0);
        ::sigaction(SIGALRM, &previous_, nullptr);
    }

private:
    static void SetPeriod(suseconds_t microseconds) {
        const itimerval timer{{0, microseconds}, {0, microseconds}};
        ::setitimer(ITIMER_REAL, &timer, nullptr);
    }

    struct sigaction previous_ {};
};

TEST(PosixCommandRunner, LosesNothingWhenSignalsInterruptIt) {
    std::string output;
    {
        const Interruptions interruptions;
        output =
            OutputOf(R"(sh -c "printf o; sleep 0.05; echo ne; sleep 0.05; echo two; exec >&-; sleep 0.05")");
    }
    EXPECT_EQ(output, "one\ntwo\n");
    EXPECT_TRUE(HasNoChildren());
}

// What follows changes the process for good, so each runs in a process of its own, which tells by its exit
// status whether all was well.

[[noreturn]] void EndProcess(bool isGood) {
    ::_exit(isGood ? 0 : 1);
}

/// Every choice of standard streams.
std::vector<std::vector<int>> ChoicesOfStreams() {
    std::vector<std::vector<int>> choices;
    for (unsigned choice = 0; choice < 8; ++choice) {
        std::vector<int>& streams = choices.emplace_back();
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
            if ((choice >> stream & 1U) != 0) {
                streams.push_back(stream);
            }
        }
    }
    return choices;
}

[[noreturn]] void EchoWithoutDescriptors(const std::vector<int>& closed) {
    std::for_each(closed.begin(), closed.end(), ::close);
    const std::vector<int> before = OpenDescriptors();
    EndProcess(OutputOf("echo hello") == "hello\n" && OpenDescriptors() == before);
}

[[noreturn]] void ShowStreamsOfTheProgram() {
    ::close(STDIN_FILENO);
    ::close(STDERR_FILENO);
    EndProcess(OutputOf("readlink /proc/self/fd/0 /proc/self/fd/2") == "/\n/\n");
}

[[noreturn]] void PrintToTheProgramsError() {
    ::close(STDERR_FILENO);
    EndProcess(OutputOf(R"(sh -c "echo lost >&2; echo kept")") == "kept\n");
}

[[noreturn]] void EchoWithRoomFor(rlim_t descriptors, const std::vector<int>& closed) {
    std::for_each(closed.begin(), closed.end(), ::close);
    const rlimit limit{descriptors, descriptors};
    ::setrlimit(RLIMIT_NOFILE, &limit);
    ::alarm(10);
    std::string output = "before";
    const bool starts = MachineCommandRunner().Run("echo hello", output);
    EndProcess(output == (starts ? "hello\n" : "before") && HasNoChildren());
}

[[noreturn]] void EchoWithoutRoomForAPipe() {
    const bool startsAtFirst = Starts("echo hello");
    const rlimit limit{3, 3};
    ::setrlimit(RLIMIT_NOFILE, &limit);
    EndProcess(startsAtFirst && !Starts("echo hello") && HasNoChildren());
}

TEST(PosixCommandRunnerDeathTest, WorksWithoutStandardStreams) {
    for (const std::vector<int>& closed : ChoicesOfStreams()) {
        EXPECT_EXIT(EchoWithoutDescriptors(closed), testing::ExitedWithCode(0), "")
            << testing::PrintToString(closed);
    }
}

TEST(PosixCommandRunnerDeathTest, LetsNoFileOfTheProgramTakeThePlaceOfAClosedStream) {
    EXPECT_EXIT(ShowStreamsOfTheProgram(), testing::ExitedWithCode(0), "");
}

TEST(PosixCommandRunnerDeathTest, CapturesNoStandardErrorWhereThereIsNone) {
    EXPECT_EXIT(PrintToTheProgramsError(), testing::ExitedWithCode(0), "");
}

TEST(PosixCommandRunnerDeathTest, RunsOrRefusesWithLittleRoomForDescriptors) {
    if (kMemoryIsWatched) {
        GTEST_SKIP() << "the sanitizer needs descriptors of its own";
    }
    for (rlim_t descriptors = 3; descriptors < 12; ++descriptors) {
        for (const std::vector<int>& closed : ChoicesOfStreams()) {
            EXPECT_EXIT(EchoWithRoomFor(descriptors, closed), testing::ExitedWithCode(0), "")
                << descriptors << " without " << testing::PrintToString(closed);
        }
    }
}

TEST(PosixCommandRunnerDeathTest, RefusesWhenThereIsNoRoomForAPipe) {
    EXPECT_EXIT(EchoWithoutRoomForAPipe(), testing::ExitedWithCode(0), "");
}

bool RunsOutOfMemory(const std::string& commandLine) {
    std::string output;
    try {
        MachineCommandRunner().Run(commandLine, output);
        return false;
    } catch (const std::bad_alloc&) {
        return true;
    }
}

[[noreturn]] void PrintMoreThanMemoryHolds() {
    const std::vector<int> before = OpenDescriptors();
    LimitMemory();
    const bool isOutOfMemory = RunsOutOfMemory("yes " + std::string(120, 'x'));
    EndProcess(isOutOfMemory && HasNoChildren() && OpenDescriptors() == before);
}

[[noreturn]] void PrintMoreThanMemoryHoldsWithoutListening() {
    ::alarm(10);
    LimitMemory();
    const bool isOutOfMemory = RunsOutOfMemory("sh -c \"trap '' PIPE TERM; while :; do echo " +
                                               std::string(2000, 'x') + "; done 2>/dev/null\"");
    EndProcess(isOutOfMemory && HasNoChildren());
}

TEST(PosixCommandRunnerDeathTest, EndsAProgramThatDoesNotListenWhenMemoryRunsOut) {
    if (kMemoryIsWatched) {
        GTEST_SKIP() << "the sanitizer ends the process when memory runs out";
    }
    EXPECT_EXIT(PrintMoreThanMemoryHoldsWithoutListening(), testing::ExitedWithCode(0), "");
}

TEST(PosixCommandRunnerDeathTest, LeavesNothingBehindWhenMemoryRunsOut) {
    if (kMemoryIsWatched) {
        GTEST_SKIP() << "the sanitizer ends the process when memory runs out";
    }
    EXPECT_EXIT(PrintMoreThanMemoryHolds(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace SMBIOS::Platform
