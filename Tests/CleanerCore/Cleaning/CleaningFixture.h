#pragma once

#include "CleanerCore/Cleaning/CleaningService.h"
#include "CleanerCore/Cleaning/TrashRestoreService.h"
#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Scan/StorageScanner.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxTrash.h"
#include "Tests/Support/FakeTrash.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace CleaningTests {

using CleanerCore::CleanedItem;
using CleanerCore::CleaningError;
using CleanerCore::CleaningMode;
using CleanerCore::CleaningService;
using CleanerCore::CleanResult;
using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupEligibilityPolicy;
using CleanerCore::FileResourceIdentity;
using CleanerCore::RestoreResult;
using CleanerCore::ScanLocation;
using CleanerCore::TrashRestoreService;
using Platform::FileURL;
using TestSupport::TemporaryTree;
using Kind = CleaningError::Kind;

struct LocationRules {
    bool includesHiddenFiles = false;
    bool includesPackageDescendants = false;
};

/// A home with one root, `Caches`: it is scanned, what was found is cleaned, and what was cleaned is put back. The Trash
/// is that of the desktop, in this home.
class CleaningTest : public testing::Test {
protected:
    static constexpr std::int64_t kMaximumDescendants = 1000;

    [[nodiscard]] FileURL home() const { return m_tree.url("home/"); }
    [[nodiscard]] FileURL item(std::string_view name) const { return m_tree.url("home/Caches/" + std::string(name)); }
    [[nodiscard]] std::string path(std::string_view name) const { return item(name).path(); }
    [[nodiscard]] FileURL trashFolder() const { return m_tree.url("home/.local/share/Trash/files/"); }

    [[nodiscard]] ScanLocation location(std::string_view root, const LocationRules& rules = {}) const
    {
        return ScanLocation({
            .rootURL = m_tree.url(root),
            .category = CleanupCategory::userCaches,
            .isSelectedByDefault = true,
            .safety = CleanerCore::CleanupSafety::safe,
            .includesHiddenFiles = rules.includesHiddenFiles,
            .includesPackageDescendants = rules.includesPackageDescendants,
        });
    }

    /// Scans, and keeps the roots and the policy of the scan, as a session does.
    std::vector<CleanupCandidate> scan() { return scan({location("home/Caches/")}); }
    std::vector<CleanupCandidate> scan(std::vector<ScanLocation> locations)
    {
        m_locations = std::move(locations);
        m_policy.emplace(m_locations, m_posix, kMaximumDescendants, home());
        const CleanerCore::StorageScanner scanner(m_posix, {.jobs = 1});
        auto candidates = scanner.scan(m_locations, m_tree.now(), {}, {}, home()).candidates;
        std::ranges::sort(candidates, {}, &CleanupCandidate::id);
        return candidates;
    }

    [[nodiscard]] CleanResult clean(const std::vector<CleanupCandidate>& candidates,
        CleaningMode mode = CleaningMode::moveToTrash, const std::stop_token& stop = {})
    {
        return CleaningService(*m_fileManager, *m_trash)
            .clean(candidates, m_locations, mode, *m_policy, stop, home(), notingProgress());
    }

    [[nodiscard]] RestoreResult restore(const std::vector<CleanedItem>& items, const std::stop_token& stop = {},
        const std::optional<std::vector<FileURL>>& allowedTrashRoots = std::nullopt)
    {
        return TrashRestoreService(*m_fileManager, *m_trash, allowedTrashRoots)
            .restore(items, m_locations, *m_policy, stop, home(), notingProgress());
    }

    [[nodiscard]] CleanerCore::ItemProgressReport notingProgress()
    {
        return [this](const CleanerCore::ItemProgress& progress) {
            m_progress.emplace_back(progress.doneItems, progress.allItems);
        };
    }

    void useFakeTrash()
    {
        m_tree.add("home/Bin/");
        m_fakeTrash.emplace(m_posix, m_tree.url("home/Bin/"));
        m_trash = &*m_fakeTrash;
    }

    [[nodiscard]] static std::string words(Kind kind, const FileURL& url)
    {
        return CleaningError{kind, url.path()}.errorDescription();
    }

    /// Expects that nothing was cleaned, and that the one candidate was refused for this reason.
    static void expectRefused(const CleanResult& result, Kind kind, const FileURL& url)
    {
        EXPECT_TRUE(result.cleanedItems.empty());
        ASSERT_EQ(result.failedItems.size(), 1U);
        EXPECT_EQ(result.failedItems[0].reason, words(kind, url));
        EXPECT_FALSE(result.wasCancelled);
    }

    static void expectRefused(const RestoreResult& result, Kind kind, const FileURL& url)
    {
        EXPECT_TRUE(result.restoredItems.empty());
        ASSERT_EQ(result.failedItems.size(), 1U);
        EXPECT_EQ(result.failedItems[0].reason, words(kind, url));
    }

    [[nodiscard]] static bool exists(const std::string& path)
    {
        return std::filesystem::symlink_status(path).type() != std::filesystem::file_type::not_found;
    }
    [[nodiscard]] static bool exists(const FileURL& url) { return exists(url.path()); }

    /// The names in a folder, sorted; none for a folder that is not there.
    [[nodiscard]] static std::vector<std::string> names(const FileURL& folder)
    {
        std::vector<std::string> found;
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path(), error)) {
            found.push_back(entry.path().filename());
        }
        std::ranges::sort(found);
        return found;
    }

    /// Each item of the Trash has its record, and each record its item.
    void expectSoundTrash() const
    {
        std::vector<std::string> expected;
        for (const auto& name : names(trashFolder())) {
            expected.push_back(name + ".trashinfo");
        }
        EXPECT_EQ(names(m_tree.url("home/.local/share/Trash/info/")), expected);
    }

    TemporaryTree m_tree{"home/Caches/\nhome/.local/share/"};
    Platform::PosixFileManager m_posix;
    Platform::LinuxTrash m_linuxTrash{m_posix, m_tree.url("home/.local/share/")};
    std::optional<TestSupport::FakeTrash> m_fakeTrash;
    const Platform::FileManager* m_fileManager = &m_posix;
    Platform::Trash* m_trash = &m_linuxTrash;
    std::vector<ScanLocation> m_locations;
    std::optional<CleanupEligibilityPolicy> m_policy;
    /// The items done, and all, of each report.
    std::vector<std::pair<std::size_t, std::size_t>> m_progress;
};

/// With a plain Trash: what the service decides, and what it hands to the Trash.
class CleaningServiceTest : public CleaningTest {
protected:
    static constexpr std::string_view kThreeItems =
        "home/Caches/\n    a size=10\n    b/\n        x size=5000\n    c size=20";

    CleaningServiceTest() { useFakeTrash(); }
};

} // namespace CleaningTests
