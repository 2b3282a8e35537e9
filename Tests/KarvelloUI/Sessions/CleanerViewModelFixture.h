#pragma once

#include "KarvelloUI/Sessions/CleanerViewModel.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxBookmarks.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FailingUserDefaults.h"
#include "Tests/Support/FakeTrash.h"
#include "Tests/Support/ManualExecutor.h"
#include "Tests/Support/TemporaryTree.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace CleanerViewModelTests {

using namespace KarvelloUI;
using CleanerCore::CleanupCandidate;
using CleanerCore::ScanLocation;
using Phase = CleanerViewModel::Phase;

/// A session over a small home with three caches, of which the user's own work is done by hand.
class CleanerViewModelTest : public testing::Test {
protected:
    CleanerViewModelTest() { restart(); }

    void restart()
    {
        session.reset();
        session = std::make_unique<CleanerViewModel>(
            services, auditStore, ignoreStore,
            [this] {
                ++runningApplicationQuestions;
                return runningApplications;
            },
            cleanAction);
        session->setObjectName(QStringLiteral("session"));
        settle();
    }

    /// All background work, and what comes back of it.
    void settle()
    {
        do {
            executor.runAll();
            loop.handleEvents();
        } while (executor.waitingCount() > 0);
    }

    [[nodiscard]] ScanLocation location(std::string_view folder,
        CleanerCore::CleanupCategory category = CleanerCore::CleanupCategory::userCaches,
        CleanerCore::CleanupSafety safety = CleanerCore::CleanupSafety::safe) const
    {
        return ScanLocation(ScanLocation::Fields{
            .rootURL = tree.url(folder),
            .category = category,
            .displayName = std::string(folder),
            .depth = CleanerCore::ScanDepth::immediateChildren,
            .isSelectedByDefault = safety == CleanerCore::CleanupSafety::safe,
            .safety = safety,
            .minimumModificationAge = 0,
            .includesHiddenFiles = false,
            .includesPackageDescendants = false,
            .appCacheContext = std::nullopt,
        });
    }

    void scan(std::vector<ScanLocation> locations)
    {
        session->scan(std::move(locations));
        settle();
    }
    /// The three caches, all of them selected.
    void scanCaches() { scan({location("home/Caches/")}); }

    [[nodiscard]] const CleanupCandidate& candidate(std::string_view name) const
    {
        const auto& candidates = session->report().candidates;
        const auto found = std::ranges::find(candidates, name, &CleanupCandidate::displayName);
        EXPECT_NE(found, candidates.end()) << name;
        return *found;
    }
    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        for (const auto& candidate : session->report().candidates) {
            names.push_back(candidate.displayName);
        }
        return names;
    }
    [[nodiscard]] bool stands(std::string_view path) const { return std::filesystem::exists(tree.path(path)); }
    [[nodiscard]] std::size_t trashedCount() const
    {
        std::size_t count = 0;
        for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(tree.path("Trash"))) {
            ++count;
        }
        return count;
    }

    TestSupport::EventLoop loop;
    TestSupport::TemporaryTree tree{R"(
        config/
        Trash/
        home/Caches/
            large/data size=64K
            middle/data size=32K
            small/data size=8K
        home/Logs/
            old.log size=16K
        home/Empty/
    )"};
    Platform::PosixFileManager files;
    TestSupport::FakeTrash trash{files, tree.url("Trash/")};
    Platform::LinuxBookmarks bookmarks;
    Platform::Environment environment{{{"HOME", tree.path("home")}, {"TMPDIR", tree.path("home")}}};
    TestSupport::ManualExecutor executor;
    Platform::Date now = tree.now();
    SessionServices services{.fileManager = files,
        .trash = trash,
        .bookmarks = bookmarks,
        .environment = environment,
        .executor = executor,
        .now = [this] { return now; }};
    Platform::FileUserDefaults stored{files, tree.url("config/preferences.json")};
    TestSupport::FailingUserDefaults defaults{stored};
    CleanupIgnoreStore ignoreStore{defaults, [] { return AppLanguage::english; }};
    CleanerCore::CleanupAuditStore auditStore{files, tree.url("home/data/Karvello/log.json")};
    std::vector<CleanerCore::AppCacheRunningApplicationIdentity> runningApplications;
    int runningApplicationQuestions = 0;
    CleanAction cleanAction;
    std::unique_ptr<CleanerViewModel> session;
};

} // namespace CleanerViewModelTests
