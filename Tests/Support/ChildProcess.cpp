#include "Tests/Support/ChildProcess.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <tuple>

#include <fmt/format.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace TestSupport {

namespace {

constexpr uid_t kOrdinaryUser = 65534;

std::string whyNot(std::string_view action)
{
    return fmt::format("this system does not let the test {}: {}", action, std::strerror(errno));
}

bool writeLine(const char* path, const std::string& line)
{
    std::ofstream file(path);
    file << line << std::flush;
    return file.good();
}

/// In a namespace of users of its own, every user may make a namespace of mounts.
void enterMountNamespace()
{
    const auto user = geteuid();
    const auto group = getegid();
    ASSERT_EQ(unshare(CLONE_NEWUSER | CLONE_NEWNS), 0) << whyNot("make a namespace of mounts");
    ASSERT_TRUE(writeLine("/proc/self/setgroups", "deny")
        && writeLine("/proc/self/uid_map", fmt::format("{} {} 1", user, user))
        && writeLine("/proc/self/gid_map", fmt::format("{} {} 1", group, group)))
        << whyNot("keep its user in a namespace");
}

/// The number of a process that runs `part`; negative if there is none.
pid_t startChild(const std::function<void()>& part)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        part();
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    return child;
}

void waitFor(pid_t child)
{
    ASSERT_GE(child, 0) << whyNot("start a process");
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "the part of the test in a process of its own failed (see above), status " << status;
}

} // namespace

void inChildProcess(const std::function<void()>& part)
{
    waitFor(startChild(part));
}

void inTwoProcesses(const std::function<void(int number)>& part)
{
    std::array<int, 2> gate{};
    ASSERT_EQ(pipe(gate.data()), 0) << whyNot("make a pipe");
    std::array<pid_t, 2> children{};
    for (const int number : {0, 1}) {
        children.at(static_cast<std::size_t>(number)) = startChild([&] {
            ::close(gate[1]);
            char byte = 0;
            std::ignore = ::read(gate[0], &byte, 1); // Returns when nobody can write any more.
            part(number);
        });
    }
    ::close(gate[0]);
    ::close(gate[1]);
    for (const auto child : children) {
        waitFor(child);
    }
}

void inMountNamespace(const std::function<void()>& part)
{
    inChildProcess([&] {
        enterMountNamespace();
        if (!testing::Test::HasFailure()) {
            part();
        }
    });
}

void asOrdinaryUser(const std::string& tree, const std::function<void()>& part)
{
    const bool isRoot = geteuid() == 0;
    if (isRoot) {
        ASSERT_EQ(lchown(tree.c_str(), kOrdinaryUser, kOrdinaryUser), 0) << whyNot("give a tree away");
        for (const auto& entry : std::filesystem::recursive_directory_iterator(tree)) {
            ASSERT_EQ(lchown(entry.path().c_str(), kOrdinaryUser, kOrdinaryUser), 0) << whyNot("give a tree away");
        }
    }
    inChildProcess([&] {
        ASSERT_TRUE(!isRoot
            || (setgroups(0, nullptr) == 0 && setresgid(kOrdinaryUser, kOrdinaryUser, kOrdinaryUser) == 0
                && setresuid(kOrdinaryUser, kOrdinaryUser, kOrdinaryUser) == 0))
            << whyNot("give up its privileges");
        part();
    });
}

void mountTemporaryFileSystem(const std::string& target, std::string_view options)
{
    ASSERT_EQ(mount("tmpfs", target.c_str(), "tmpfs", 0, std::string(options).c_str()), 0) << whyNot("mount " + target);
}

void bindMount(const std::string& source, const std::string& target)
{
    ASSERT_EQ(mount(source.c_str(), target.c_str(), nullptr, MS_BIND, nullptr), 0) << whyNot("mount " + target);
}

void makeReadOnly(const std::string& mountPoint)
{
    ASSERT_EQ(mount(nullptr, mountPoint.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr), 0)
        << whyNot("make read only " + mountPoint);
}

} // namespace TestSupport
