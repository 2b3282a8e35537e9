#include "KarvelloCLI/OutputFile.h"

#include "Platform/Files/FileDescriptor.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/FileContents.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>

using KarvelloCLI::OutputFile;
using KarvelloCLI::writeWholly;
using Platform::FileDescriptor;
using TestSupport::contentsOf;
using TestSupport::TemporaryTree;

namespace {

struct Pipe {
    Pipe()
    {
        std::array<int, 2> ends{-1, -1};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        reader = FileDescriptor(ends[0]);
        writer = FileDescriptor(ends[1]);
    }

    std::string readAll()
    {
        writer.reset();
        std::string text;
        std::array<char, 4096> buffer{};
        for (ssize_t count = 0; (count = read(reader.get(), buffer.data(), buffer.size())) > 0;) {
            text.append(buffer.data(), static_cast<std::size_t>(count));
        }
        return text;
    }

    FileDescriptor reader;
    FileDescriptor writer;
};

const Platform::PosixFileManager kFiles;

} // namespace

TEST(OutputFile, ReplacesAFileWholly)
{
    const TemporaryTree tree("old.json text=\"something longer than the new text\"");
    const auto output = OutputFile::named(tree.path("old.json"), kFiles);
    ASSERT_TRUE(output);
    EXPECT_TRUE(output->isReplacedAtomically());
    EXPECT_EQ(output->descriptor(), -1);
    ASSERT_TRUE(output->write("new", kFiles));
    EXPECT_EQ(contentsOf(tree.path("old.json")), "new");
}

TEST(OutputFile, MakesAFileThatIsNotThere)
{
    const TemporaryTree tree;
    const auto output = OutputFile::named(tree.path("new.csv"), kFiles);
    ASSERT_TRUE(output);
    ASSERT_TRUE(output->write("a,b\n", kFiles));
    EXPECT_EQ(contentsOf(tree.path("new.csv")), "a,b\n");
}

TEST(OutputFile, AFailureLeavesTheOldFile)
{
    const TemporaryTree tree("old text=kept");
    TestSupport::FaultyFileManager faulty(kFiles);
    faulty.fail({.call = TestSupport::FileManagerCall::writeAtomically, .systemError = ENOSPC});
    const auto output = OutputFile::named(tree.path("old"), faulty);
    ASSERT_TRUE(output);
    const auto written = output->write("new", faulty);
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().systemError, ENOSPC);
    EXPECT_EQ(contentsOf(tree.path("old")), "kept");
}

TEST(OutputFile, WritesBehindALinkAndKeepsIt)
{
    const TemporaryTree tree("there/\n    real text=old\nlink -> there/real");
    const auto output = OutputFile::named(tree.path("link"), kFiles);
    ASSERT_TRUE(output);
    ASSERT_TRUE(output->write("new", kFiles));
    EXPECT_TRUE(std::filesystem::is_symlink(tree.path("link")));
    EXPECT_EQ(contentsOf(tree.path("there/real")), "new");
}

TEST(OutputFile, ADeviceIsWrittenToAndNeverReplaced)
{
    const auto null = OutputFile::named("/dev/null", kFiles);
    ASSERT_TRUE(null);
    EXPECT_FALSE(null->isReplacedAtomically());
    ASSERT_TRUE(null->write("gone", kFiles));
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));

    const auto full = OutputFile::named("/dev/full", kFiles);
    ASSERT_TRUE(full);
    const auto written = full->write("too much", kFiles);
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().systemError, ENOSPC);
}

TEST(OutputFile, ANamedPipeIsWrittenTo)
{
    const TemporaryTree tree("pipe fifo");
    const auto output = OutputFile::named(tree.path("pipe"), kFiles);
    ASSERT_TRUE(output);
    EXPECT_FALSE(output->isReplacedAtomically());
    std::string received;
    std::thread reader([&] { received = contentsOf(tree.path("pipe")); });
    EXPECT_TRUE(output->write("through", kFiles));
    reader.join();
    EXPECT_EQ(received, "through");
    EXPECT_TRUE(std::filesystem::is_fifo(tree.path("pipe")));
}

TEST(OutputFile, ADescriptorIsWrittenToWhateverLiesBehindIt)
{
    const TemporaryTree tree("log text=before,");
    const FileDescriptor log(open(tree.path("log").c_str(), O_WRONLY | O_APPEND | O_CLOEXEC));
    const auto output = OutputFile::named("/dev/fd/" + std::to_string(log.get()), kFiles);
    ASSERT_TRUE(output);
    EXPECT_EQ(output->descriptor(), log.get());
    EXPECT_FALSE(output->isReplacedAtomically());
    ASSERT_TRUE(output->write("after", kFiles));
    EXPECT_EQ(contentsOf(tree.path("log")), "before,after");
    EXPECT_EQ(OutputFile::named("/dev/stdout", kFiles)->descriptor(), STDOUT_FILENO);
    EXPECT_EQ(OutputFile::named("/dev/stderr", kFiles)->descriptor(), STDERR_FILENO);
}

TEST(OutputFile, WhatCannotBeWrittenIsKnownBeforeTheWork)
{
    const TemporaryTree tree("folder/\nfile size=1");
    EXPECT_FALSE(OutputFile::named(tree.path("folder"), kFiles));
    EXPECT_FALSE(OutputFile::named(tree.path("missing/x.json"), kFiles));
    EXPECT_FALSE(OutputFile::named(tree.path("file/x.json"), kFiles));
    EXPECT_FALSE(OutputFile::named(tree.path("new") + "/", kFiles));
}

TEST(OutputFile, AReaderThatLeftIsAnError)
{
    std::signal(SIGPIPE, SIG_IGN);
    Pipe pipe;
    pipe.reader.reset();
    EXPECT_EQ(writeWholly(pipe.writer.get(), "x"), EPIPE);
    std::signal(SIGPIPE, SIG_DFL);
}

TEST(OutputFile, WaitsForASlowReaderOfANonBlockingPipe)
{
    Pipe pipe;
    ASSERT_EQ(fcntl(pipe.writer.get(), F_SETFL, O_NONBLOCK), 0);
    const std::string text(1'000'000, 'x');
    int error = -1;
    std::thread writer([&] {
        error = writeWholly(pipe.writer.get(), text);
        pipe.writer.reset();
    });
    std::string received;
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = read(pipe.reader.get(), buffer.data(), buffer.size())) > 0;) {
        received.append(buffer.data(), static_cast<std::size_t>(count));
    }
    writer.join();
    EXPECT_EQ(error, 0);
    EXPECT_EQ(received, text);
}
