#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <sys/types.h>

namespace TestSupport {

/// Runs `part` in a process of its own and waits for it. An expectation that fails there, and an end before its time,
/// fails the running test. Nothing that `part` changes in memory is seen here.
void inChildProcess(const std::function<void()>& part);

/// The same in a process that may mount what only it sees. A system that lets nobody do so fails the test.
void inMountNamespace(const std::function<void()>& part);

/// The same without the privileges of root, if the test runs with them; `tree` belongs to that user then.
void asOrdinaryUser(const std::string& tree, const std::function<void()>& part);

/// Mounts an empty file system of memory; for `inMountNamespace`.
void mountTemporaryFileSystem(const std::string& target, std::string_view options = {});
void bindMount(const std::string& source, const std::string& target);
void makeReadOnly(const std::string& mountPoint);

} // namespace TestSupport
