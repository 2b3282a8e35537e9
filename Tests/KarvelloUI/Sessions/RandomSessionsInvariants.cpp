#include "Tests/KarvelloUI/Sessions/RandomSessionsFixture.h"

#include <algorithm>
#include <filesystem>

// What holds at any moment, and what holds once nothing is under way.
namespace SessionTests {

using namespace KarvelloUI;
using CleanerCore::CleanupAuditOperation;
using CleanerCore::CleanupAuditSource;

void RandomSessions::expectSoundSelections() const
{
    std::int64_t bytes = 0;
    for (const auto& selected : m_cleaner->review().selection().candidates()) {
        ASSERT_NE(m_cleaner->index()->candidate(selected.id), nullptr);
        bytes += selected.sizeBytes;
    }
    EXPECT_EQ(m_cleaner->selectedBytes(), bytes);

    bytes = 0;
    std::size_t count = 0;
    for (const auto section : {MacInsightFileSection::largeFiles, MacInsightFileSection::downloads,
             MacInsightFileSection::duplicates, MacInsightFileSection::security}) {
        for (const auto* const file : m_insights->selectedFiles(section)) {
            EXPECT_TRUE(m_insights->isSelectable(*file));
            bytes += file->sizeBytes;
            ++count;
        }
    }
    EXPECT_EQ(m_insights->selectedIDs().size(), count);
    EXPECT_EQ(m_insights->selectedBytes(), bytes);
    // What clicks made of the groups is what a look at all of them makes.
    for (const auto& review : m_insights->duplicateReviewGroups()) {
        for (const auto& row : review.rows) {
            EXPECT_EQ(row.isSelected, m_insights->isSelected(*row.file));
            EXPECT_FALSE(!row.isExtra() && row.isSelected);
        }
    }
}

std::set<std::string> RandomSessions::entriesOf(std::string_view folder) const
{
    std::set<std::string> names;
    const std::filesystem::path path = m_tree.path(folder);
    if (std::filesystem::exists(path)) {
        for (const auto& entry : std::filesystem::directory_iterator(path)) {
            names.insert(entry.path().filename());
        }
    }
    return names;
}

void RandomSessions::expectDiskSessionAndLogToAgree()
{
    // Nothing is lost, and nothing is in two places.
    std::set<std::string> found;
    std::size_t count = 0;
    for (const auto* const folder : {"home/Caches", "home/Downloads", "home/Documents", "data/Trash/files"}) {
        const auto names = entriesOf(folder);
        count += names.size();
        found.insert(names.begin(), names.end());
    }
    EXPECT_EQ(found, m_made);
    EXPECT_EQ(count, m_made.size());
    const auto trashed = entriesOf("data/Trash/files").size();
    EXPECT_EQ(entriesOf("data/Trash/info").size(), trashed);
    m_mostTrashed = std::max(m_mostTrashed, trashed);

    expectLogToTellWhatMoved(static_cast<std::ptrdiff_t>(trashed));
    expectReportsToTellWhatStands();
    expectSoundSelections();
}

void RandomSessions::expectLogToTellWhatMoved(std::ptrdiff_t trashed)
{
    for (auto& entry : m_log.loadEntries()) {
        m_entries.insert_or_assign(entry.id.string(), std::move(entry));
    }
    std::ptrdiff_t logged = 0;
    std::size_t ofCleaner = 0;
    std::size_t ofInsights = 0;
    m_restored = 0;
    for (const auto& [id, entry] : m_entries) {
        const bool isRestore = entry.operation == CleanupAuditOperation::restore;
        logged += isRestore ? -entry.succeededItemCount : entry.succeededItemCount;
        m_restored += isRestore ? static_cast<std::size_t>(entry.succeededItemCount) : 0;
        ++(entry.source == CleanupAuditSource::macInsights ? ofInsights : ofCleaner);
    }
    if (std::exchange(m_mayHaveUnlogged, false)) {
        m_unlogged = trashed - logged;
    }
    EXPECT_EQ(logged + m_unlogged, trashed);

    // What was begun and not dropped was applied, and once.
    EXPECT_EQ(ofCleaner, m_cleanerLedger.changesBegun - m_cleanerLedger.changesDropped);
    EXPECT_EQ(ofInsights, m_insightsLedger.changesBegun - m_insightsLedger.changesDropped);
    EXPECT_EQ(m_cleanerLedger.scansApplied, m_cleanerLedger.scansBegun - m_cleanerLedger.scansDropped);
    EXPECT_EQ(m_insightsLedger.scansApplied, m_insightsLedger.scansBegun - m_insightsLedger.scansDropped);

    for (const auto* const shown : {&m_cleaner->auditEntries(), &m_insights->auditEntries()}) {
        std::set<std::string> ids;
        for (const auto& entry : *shown) {
            EXPECT_TRUE(m_entries.contains(entry.id.string()));
            EXPECT_TRUE(ids.insert(entry.id.string()).second);
        }
    }
}

void RandomSessions::expectReportsToTellWhatStands() const
{
    for (const auto* const result : {&m_cleaner->lastCleanResult(), &m_insights->lastCleanResult()}) {
        if (*result) {
            for (const auto& item : (*result)->cleanedItems) {
                ASSERT_TRUE(item.destinationURL.has_value());
                EXPECT_TRUE(std::filesystem::exists(item.destinationURL->path()));
                EXPECT_FALSE(std::filesystem::exists(item.candidate.url.path()));
            }
        }
    }
    if (m_cleaner->lastRestoreResult()) {
        for (const auto& item : m_cleaner->lastRestoreResult()->restoredItems) {
            EXPECT_TRUE(std::filesystem::exists(item.restoredURL.path()));
        }
    }
    if (m_cleanerTruth.isTrue) {
        const auto standing = entriesOf("home/Caches");
        const auto& candidates = m_cleaner->report().candidates;
        EXPECT_EQ(candidates.size() + static_cast<std::size_t>(m_cleaner->ignoredCandidateCount()), standing.size());
        for (const auto& candidate : candidates) {
            EXPECT_TRUE(standing.contains(candidate.displayName));
        }
        ++m_comparedReports;
    }
    if (m_insightsTruth.isTrue) {
        std::set<std::string> shown;
        for (const auto* const file : m_insights->files(MacInsightFileSection::downloads)) {
            shown.insert(file->displayName);
        }
        EXPECT_EQ(shown, entriesOf("home/Downloads"));
        for (const auto* const file : m_insights->files(MacInsightFileSection::duplicates)) {
            EXPECT_TRUE(std::filesystem::exists(file->url.path()));
        }
        ++m_comparedReports;
    }
}

} // namespace SessionTests
