#include "Tests/Support/ChildProcess.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>

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

} // namespace

void inChildProcess(const std::function<void()>& part)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    ASSERT_GE(child, 0) << whyNot("start a process");
    if (child == 0) {
        part();
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "the part of the test in a process of its own failed (see above), status " << status;
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
