#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <vector>

#include "platform/descriptor.h"
#include "platform/remove_on_signal_posix.h"
#include "platform/write_file.h"
#include "support/temporary_folder.h"

namespace SMBIOS::Platform {
namespace {

namespace fs = std::filesystem;

class PosixWriteFileWhole : public testing::Test {
protected:
    PosixWriteFileWhole() : formerMask_(::umask(0)) {}
    ~PosixWriteFileWhole() override { ::umask(formerMask_); }

    [[nodiscard]] fs::path File() const { return folder_.Path() / "file"; }

    [[nodiscard]] struct stat StatusOfFile() const {
        struct stat status {};
        EXPECT_EQ(::lstat(File().c_str(), &status), 0);
        return status;
    }

    [[nodiscard]] std::error_code Write(Existing existing) const {
        return WriteFileWhole(File(), std::vector<std::uint8_t>(10000), existing);
    }

    const Tests::TemporaryFolder folder_;

private:
    mode_t formerMask_;
};

TEST_F(PosixWriteFileWhole, LetsTheOwnerAloneReadANewFile) {
    EXPECT_EQ(Write(Existing::kept), std::error_code());
    EXPECT_EQ(StatusOfFile().st_mode, mode_t{S_IFREG | 0600});
}

TEST_F(PosixWriteFileWhole, GivesOnTheModeOfAReplacedFile) {
    folder_.Write("file", "");
    ::chmod(File().c_str(), 0640);
    EXPECT_EQ(Write(Existing::replaced), std::error_code());
    EXPECT_EQ(StatusOfFile().st_mode, mode_t{S_IFREG | 0640});
}

TEST_F(PosixWriteFileWhole, GivesOnTheOwnerOfAReplacedFile) {
    folder_.Write("file", "");
    if (::chown(File().c_str(), 12, 34) != 0) {
        GTEST_SKIP() << "only root may give files away";
    }
    EXPECT_EQ(Write(Existing::replaced), std::error_code());
    EXPECT_EQ(StatusOfFile().st_uid, 12U);
    EXPECT_EQ(StatusOfFile().st_gid, 34U);
}

TEST_F(PosixWriteFileWhole, KeepsALink) {
    fs::create_symlink("absent", File());
    EXPECT_EQ(Write(Existing::kept), std::errc::file_exists);
    EXPECT_TRUE(S_ISLNK(StatusOfFile().st_mode));
    EXPECT_FALSE(fs::exists(folder_.Path() / "absent"));
}

TEST_F(PosixWriteFileWhole, DoesNotReplaceALink) {
    fs::create_symlink("other", File());
    EXPECT_TRUE(Write(Existing::replaced));
    EXPECT_TRUE(S_ISLNK(StatusOfFile().st_mode));
    EXPECT_FALSE(fs::exists(folder_.Path() / "other"));
}

TEST_F(PosixWriteFileWhole, WritesIntoAFolderThatMayNotBeRead) {
    ::chmod(folder_.Path().c_str(), 0300);
    EXPECT_EQ(Write(Existing::kept), std::error_code());
    ::chmod(folder_.Path().c_str(), 0700);
    EXPECT_EQ(StatusOfFile().st_size, 10000);
}

TEST_F(PosixWriteFileWhole, LeavesTheSignalsAsTheyWere) {
    EXPECT_EQ(Write(Existing::kept), std::error_code());
    for (const int signal : kEndingSignals) {
        struct sigaction action {};
        ::sigaction(signal, nullptr, &action);
        EXPECT_EQ(action.sa_handler, SIG_DFL) << signal;
    }
    sigset_t blocked;
    ::pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
    for (const int signal : kEndingSignals) {
        EXPECT_EQ(::sigismember(&blocked, signal), 0) << signal;
    }
}

/// A file that is to be removed when a signal ends the process.
class RemoveOnSignalDeathTest : public testing::Test {
protected:
    RemoveOnSignalDeathTest() { folder_.Write("file", "text"); }

    [[noreturn]] void RaiseWhileWriting(int signal) const {
        const RemoveOnSignal removal(folderDescriptor_.Number(), "file");
        ::raise(signal);
        ::_exit(0);
    }

    [[noreturn]] void RaiseAfterwards(int signal) const {
        { const RemoveOnSignal removal(folderDescriptor_.Number(), "file"); }
        ::raise(signal);
        ::_exit(0);
    }

    [[noreturn]] void RaiseWhileIgnored(int signal) const {
        ::signal(signal, SIG_IGN);
        RaiseWhileWriting(signal);
    }

    const Tests::TemporaryFolder folder_;
    const fs::path file_ = folder_.Path() / "file";
    const Descriptor folderDescriptor_{::open(folder_.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
};

TEST_F(RemoveOnSignalDeathTest, RemovesTheFileAndEndsTheProcess) {
    for (const int signal : kEndingSignals) {
        folder_.Write("file", "text");
        EXPECT_EXIT(RaiseWhileWriting(signal), testing::KilledBySignal(signal), "");
        EXPECT_FALSE(fs::exists(file_)) << signal;
    }
}

TEST_F(RemoveOnSignalDeathTest, RemovesNothingAfterwards) {
    for (const int signal : kEndingSignals) {
        EXPECT_EXIT(RaiseAfterwards(signal), testing::KilledBySignal(signal), "");
        EXPECT_TRUE(fs::exists(file_)) << signal;
    }
}

TEST_F(RemoveOnSignalDeathTest, LeavesASignalIgnored) {
    for (const int signal : kEndingSignals) {
        EXPECT_EXIT(RaiseWhileIgnored(signal), testing::ExitedWithCode(0), "");
        EXPECT_TRUE(fs::exists(file_)) << signal;
    }
}

}  // namespace
}  // namespace SMBIOS::Platform
