#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <sys/types.h>

namespace TestSupport {

/// Runs `part` in a process of its own and waits for it. An expectation that fails there, and an end before its time,
/// fails the running test. Nothing that `part` changes in memory is seen here.
void inChildProcess(const std::function<void()>& part);

/// Runs `part` in two processes at once, which begin together, each with its number (0 or 1), and waits for both.
void inTwoProcesses(const std::function<void(int number)>& part);

/// `inChildProcess` in a process that may mount what only it sees. A system that lets nobody do so fails the test.
void inMountNamespace(const std::function<void()>& part);

/// `inChildProcess` without the privileges of root, if the test runs with them; `tree` belongs to that user then.
void asOrdinaryUser(const std::string& tree, const std::function<void()>& part);

/// Mounts an empty file system of memory; for `inMountNamespace`.
void mountTemporaryFileSystem(const std::string& target, std::string_view options = {});
void bindMount(const std::string& source, const std::string& target);
void makeReadOnly(const std::string& mountPoint);

} // namespace TestSupport
