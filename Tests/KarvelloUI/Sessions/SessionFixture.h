#pragma once

#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "KarvelloUI/Sessions/SessionServices.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxBookmarks.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FailingUserDefaults.h"
#include "Tests/Support/FakeTrash.h"
#include "Tests/Support/ManualExecutor.h"
#include "Tests/Support/TemporaryTree.h"

#include <cstddef>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <string_view>

namespace SessionTests {

/// What a session stands on, over the folder "home" of a tree, with "Trash" and "config" beside it. The background work is
/// done by hand.
class SessionTest : public testing::Test {
protected:
    explicit SessionTest(std::string_view layoutOfHome)
    {
        tree.add("config/\nTrash/\nhome/");
        tree.add(layoutOfHome);
    }

    /// All background work, and what comes back of it.
    void settle()
    {
        do {
            executor.runAll();
            loop.handleEvents();
        } while (executor.waitingCount() > 0);
    }

    /// From now on a folder that cannot be opened is out of reach.
    void enterSandbox()
    {
        environment = Platform::Environment({{"HOME", tree.path("home")}, {"APP_SANDBOX_CONTAINER_ID", "x"}});
    }

    /// `services` with other bookmarks, which must outlive it.
    [[nodiscard]] KarvelloUI::SessionServices servicesWith(const Platform::Bookmarks& others)
    {
        return {.fileManager = fileManager,
            .trash = trash,
            .bookmarks = others,
            .environment = environment,
            .executor = executor,
            .now = [this] { return now; }};
    }

    [[nodiscard]] bool stands(std::string_view path) const { return std::filesystem::exists(tree.path(path)); }
    [[nodiscard]] std::ptrdiff_t trashedCount() const
    {
        return std::distance(std::filesystem::directory_iterator(tree.path("Trash")), {});
    }

    TestSupport::EventLoop loop;
    TestSupport::TemporaryTree tree;
    Platform::PosixFileManager fileManager;
    TestSupport::FakeTrash trash{fileManager, tree.url("Trash/")};
    Platform::LinuxBookmarks bookmarks;
    Platform::Environment environment{{{"HOME", tree.path("home")}, {"TMPDIR", tree.path("home")}}};
    TestSupport::ManualExecutor executor;
    Platform::Date now = tree.now();
    KarvelloUI::SessionServices services = servicesWith(bookmarks);
    Platform::FileUserDefaults stored{fileManager, tree.url("config/preferences.json")};
    TestSupport::FailingUserDefaults defaults{stored};
    CleanerCore::CleanupAuditStore auditStore{fileManager, tree.url("home/data/Karvello/log.json")};
};

} // namespace SessionTests
