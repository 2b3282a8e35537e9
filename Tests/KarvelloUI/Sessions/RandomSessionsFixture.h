#pragma once

#include "KarvelloUI/Sessions/CleanerViewModel.h"
#include "KarvelloUI/Sessions/JobThreads.h"
#include "KarvelloUI/Sessions/MacInsightsViewModel.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxBookmarks.h"
#include "Platform/Linux/LinuxTrash.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/TemporaryTree.h"
#include "Tests/Support/UnsettledTrash.h"

#include <atomic>
#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace SessionTests {

/// Real threads that tell whether any work is left, also of sessions that have gone.
class CountingThreads final : public KarvelloUI::JobExecutor {
public:
    void execute(Work work) override
    {
        ++m_left;
        m_threads.execute([this, work = std::move(work)]() mutable {
            work();
            work = nullptr;
            --m_left;
        });
    }
    [[nodiscard]] bool isIdle() const { return m_left == 0; }

private:
    std::atomic<int> m_left = 0;
    KarvelloUI::JobThreads m_threads;
};

/// What a session was asked for, and what of it took effect.
struct Ledger {
    std::size_t scansBegun = 0;
    /// Cancelled, or replaced by another operation, or gone with the session.
    std::size_t scansDropped = 0;
    std::size_t scansApplied = 0;
    std::size_t changesBegun = 0;
    std::size_t changesDropped = 0;

    Ledger& operator+=(const Ledger& other)
    {
        scansBegun += other.scansBegun;
        scansDropped += other.scansDropped;
        scansApplied += other.scansApplied;
        changesBegun += other.changesBegun;
        changesDropped += other.changesDropped;
        return *this;
    }
};

/// Whether the report on show is of a scan beside which nothing else ran, and all that changed the disk since then was seen
/// to its end.
struct Truth {
    bool isTrue = false;
    bool isTrueOnceApplied = false;
    /// Something that was dropped may still be at work.
    bool hasLeftovers = false;

    void beginScan() { isTrueOnceApplied = !hasLeftovers; }
    void applyScan() { isTrue = isTrueOnceApplied; }
    void loseTrack() { isTrue = isTrueOnceApplied = false; }
};

/// Both sessions over one home, one Trash and one log, with real threads. Every item that is ever made stands in exactly one
/// place: in the home or in the Trash.
class RandomSessions {
public:
    explicit RandomSessions(unsigned seed)
        : m_random(seed)
    {
        makeItems();
        makeCleaner();
        makeInsights();
    }

    /// One step of a user.
    void step();
    /// At any moment.
    void expectSoundSelections() const;
    /// Once nothing is under way.
    void expectDiskSessionAndLogToAgree();

    [[nodiscard]] const Ledger& cleanerLedger() const { return m_cleanerLedger; }
    [[nodiscard]] const Ledger& insightsLedger() const { return m_insightsLedger; }
    [[nodiscard]] std::size_t mostTrashed() const { return m_mostTrashed; }
    [[nodiscard]] std::size_t restoredCount() const { return m_restored; }

    /// How often a report was compared with the disk, item by item.
    [[nodiscard]] std::size_t comparedReports() const { return m_comparedReports; }

    void comeToRest();

private:
    using Cleaner = KarvelloUI::CleanerViewModel;
    using Insights = KarvelloUI::MacInsightsViewModel;

    void makeItems();
    void makeCleaner();
    void makeInsights();
    template <typename Session>
    void follow(Session& session, Ledger& ledger, Truth& truth);
    void stepOfCleaner();
    void stepOfInsights();
    void scanCaches();
    void scanInsights();
    void dropOfCleaner();
    void dropOfInsights();
    void expectLogToTellWhatMoved(std::ptrdiff_t trashed);
    void expectReportsToTellWhatStands() const;

    [[nodiscard]] int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    [[nodiscard]] std::set<std::string> entriesOf(std::string_view folder) const;

    TestSupport::EventLoop m_loop;
    TestSupport::TemporaryTree m_tree{R"(
        config/
        data/
        home/Library/
        home/Caches/
        home/Downloads/
        home/Documents/
    )"};
    Platform::PosixFileManager m_files;
    Platform::LinuxTrash m_linuxTrash{m_files, m_tree.url("data/")};
    TestSupport::UnsettledTrash m_trash{m_linuxTrash};
    Platform::LinuxBookmarks m_bookmarks;
    Platform::Environment m_environment{{{"HOME", m_tree.path("home")}, {"XDG_DATA_HOME", m_tree.path("data")}}};
    Platform::FileUserDefaults m_defaults{m_files, m_tree.url("config/preferences.json")};
    KarvelloUI::CleanupIgnoreStore m_ignoreStore{m_defaults, [] { return KarvelloUI::AppLanguage::english; }};
    CleanerCore::CleanupAuditStore m_log{m_files, m_tree.url("config/log.json")};
    KarvelloUI::SystemMetricHistoryStore m_history{m_defaults};
    CountingThreads m_threads;
    KarvelloUI::SessionServices m_services{.fileManager = m_files,
        .trash = m_trash,
        .bookmarks = m_bookmarks,
        .environment = m_environment,
        .executor = m_threads};
    std::mt19937 m_random;
    std::unique_ptr<Cleaner> m_cleaner;
    std::unique_ptr<Insights> m_insights;
    Ledger m_cleanerLedger;
    Ledger m_insightsLedger;
    Truth m_cleanerTruth;
    Truth m_insightsTruth;
    std::set<std::string> m_made;
    std::size_t m_mostTrashed = 0;
    std::size_t m_restored = 0;
    mutable std::size_t m_comparedReports = 0;
    /// A change of the phase is the user's own doing, not a result.
    bool m_isCalling = false;
    /// In the Trash, and in no entry of the log: what operations moved that were dropped.
    std::ptrdiff_t m_unlogged = 0;
    bool m_mayHaveUnlogged = false;
    /// All that the log ever told, by id.
    std::map<std::string, CleanerCore::CleanupAuditEntry> m_entries;
};

} // namespace SessionTests
