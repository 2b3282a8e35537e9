#pragma once

#include "KarvelloUI/Sessions/MacInsightsViewModel.h"
#include "Tests/KarvelloUI/Sessions/SessionFixture.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace MacInsightsViewModelTests {

using namespace KarvelloUI;
using CleanerCore::FileInsight;
using Phase = MacInsightsViewModel::Phase;
using enum MacInsightFileSection;

/// A session over a small home with large files, downloads, three groups of duplicates (one of them where nothing may be
/// cleaned) and a security finding.
class MacInsightsViewModelTest : public SessionTests::SessionTest {
protected:
    MacInsightsViewModelTest()
        : SessionTest(R"(
            "home/Library/Application Support/"
                engine.bin size=96K
                first.part size=28K
                second.part size=28K
            home/Documents/
                thesis.pdf size=64K
                disc.img size=72K
                photo.jpg size=40K
            home/Downloads/
                film.mov size=128K
                disc.img size=72K
                photo.jpg size=40K
                note.txt size=4K
                setup.sh size=8K
            home/Pictures/
                copy.jpg size=40K
        )")
    {
        restart();
    }

    void restart()
    {
        session.reset();
        session = std::make_unique<MacInsightsViewModel>(services,
            MacInsightsViewModel::Setup{.homeDirectory = tree.url("home/"),
                .scannerConfiguration = CleanerCore::InsightConfiguration({
                    .minimumLargeFileBytes = 48 << 10,
                    .minimumDuplicateFileBytes = 16 << 10,
                    .minimumReviewFileAge = 0,
                    .maximumVisitedItemsPerRoot = 1000,
                    .maximumResultCount = 100,
                    .maximumRecentReviewSkippedItems = 0,
                    .maximumDuplicateHashFiles = 100,
                    .maximumDuplicateFullHashBytesPerFile = 1 << 20,
                    .maximumDuplicateHashBytes = 1 << 30,
                }),
                .systemSnapshotProvider =
                    [this] {
                        auto snapshot = machine;
                        snapshot.uptime = ++samples;
                        return snapshot;
                    }},
            auditStore, historyStore);
        settle();
    }

    [[nodiscard]] ResolvedHomeAccessBookmark grantOfHome() const
    {
        return {.grantedURL = tree.url("home/"), .effectiveHomeDirectory = tree.url("home/"), .originalBookmark = {}};
    }
    void scan()
    {
        session->scan(std::nullopt);
        settle();
    }
    void clean(MacInsightFileSection section)
    {
        session->cleanSelected(section);
        settle();
    }

    [[nodiscard]] const FileInsight& file(MacInsightFileSection section, std::string_view path) const
    {
        static const FileInsight unknown;
        const auto list = session->files(section);
        const auto found = std::ranges::find(
            list, tree.path("home/" + std::string(path)), [](const auto* file) { return file->url.path(); });
        EXPECT_NE(found, list.end()) << path;
        return found == list.end() ? unknown : **found;
    }
    void select(MacInsightFileSection section, std::string_view path)
    {
        session->setSelected(file(section, path), true);
    }
    /// Below the home.
    [[nodiscard]] std::vector<std::string> paths(const MacInsightsViewModel::Files& files) const
    {
        std::vector<std::string> paths;
        for (const auto* const file : files) {
            paths.push_back(file->url.path().substr(tree.path("home").size() + 1));
        }
        return paths;
    }
    /// The group that holds this file, which has to be there.
    [[nodiscard]] const CleanerCore::DuplicateFileGroup& group(std::string_view path) const
    {
        const auto& groups = session->duplicateGroupsForReview();
        const auto found = std::ranges::find_if(groups, [&](const auto& group) {
            return std::ranges::any_of(
                group.files, [&](const auto& copy) { return copy.url == tree.url("home/" + std::string(path)); });
        });
        EXPECT_NE(found, groups.end()) << path;
        return found == groups.end() ? m_noGroup : *found;
    }
    [[nodiscard]] std::int64_t bytesOfBar(std::string_view folder) const
    {
        const auto& bars = session->report().heatmapItems;
        const auto found = std::ranges::find(
            bars, tree.path("home/" + std::string(folder)), [](const auto& bar) { return bar.url.path(); });
        EXPECT_NE(found, bars.end()) << folder;
        return found == bars.end() ? -1 : found->sizeBytes;
    }

    CleanerCore::SystemResourceSnapshot machine{.physicalMemoryBytes = 100,
        .usedMemoryBytes = 25,
        .memoryPressure = "Normal",
        .normalizedCPULoad = 0.5,
        .activeProcessorCount = 1,
        .thermalState = "Fair"};
    /// The uptime of each sample is its number.
    int samples = 0;
    SystemMetricHistoryStore historyStore{defaults};
    std::unique_ptr<MacInsightsViewModel> session;

private:
    CleanerCore::DuplicateFileGroup m_noGroup;
};

} // namespace MacInsightsViewModelTests
