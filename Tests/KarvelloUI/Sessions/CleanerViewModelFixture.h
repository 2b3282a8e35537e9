#pragma once

#include "KarvelloUI/Sessions/CleanerViewModel.h"
#include "Tests/KarvelloUI/Sessions/SessionFixture.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <vector>

namespace CleanerViewModelTests {

using namespace KarvelloUI;
using CleanerCore::CleanupCandidate;
using CleanerCore::ScanLocation;
using Phase = CleanerViewModel::Phase;

/// A session over a small home with three caches, of which the user's own work is done by hand.
class CleanerViewModelTest : public SessionTests::SessionTest {
protected:
    CleanerViewModelTest()
        : SessionTest(R"(
            home/Caches/
                large/data size=64K
                middle/data size=32K
                small/data size=8K
            home/Logs/
                old.log size=16K
            home/Empty/
        )")
    {
        restart();
    }

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
    CleanupIgnoreStore ignoreStore{defaults, [] { return AppLanguage::english; }};
    std::vector<CleanerCore::AppCacheRunningApplicationIdentity> runningApplications;
    int runningApplicationQuestions = 0;
    CleanAction cleanAction;
    std::unique_ptr<CleanerViewModel> session;
};

} // namespace CleanerViewModelTests
