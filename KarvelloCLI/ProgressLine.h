#pragma once

#include "CleanerCore/Cleaning/ItemProgress.h"
#include "CleanerCore/Insights/MacStorageInsightScanner.h"
#include "CleanerCore/Scan/StorageScanProgress.h"
#include "KarvelloCLI/Options.h"
#include "KarvelloCLI/TerminalText.h"
#include "Platform/Services/Environment.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace KarvelloCLI {

/// Shows how far a scan or a move is, on one line. It costs a look at the clock for most reports: nothing is made of a report
/// unless it will be shown. Belongs to the thread that reports.
class ProgressLine {
public:
    enum class Style : std::uint8_t {
        none,
        /// One line of a terminal, written over again.
        rewritten,
        /// A line now and then, for a log.
        appended,
    };
    using Clock = std::chrono::steady_clock;

    static constexpr std::chrono::milliseconds kRewriteInterval{85};
    static constexpr std::chrono::milliseconds kAppendInterval{2000};

    struct Settings {
        /// For standard error, as the options ask for it.
        static Settings of(
            const CommonOptions& options, const Platform::FileURL& home, const Platform::Environment& environment);

        Style style = Style::none;
        /// Absent: the current path is not shown.
        std::optional<HomePathAbbreviation> paths;
        /// Asked before each line, since a window changes its size.
        std::function<std::size_t()> columns;
        std::function<void(std::string_view)> write;
        std::function<Clock::time_point()> now = Clock::now;
    };

    /// The first line comes after one interval, so that a quick scan shows none.
    explicit ProgressLine(Settings settings);
    /// Leaves no line behind.
    ~ProgressLine() { clear(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void report(const CleanerCore::StorageScanProgress& progress);
    void report(const CleanerCore::MacStorageInsightScanner::Progress& progress);
    void report(const CleanerCore::ItemProgress& progress);
    /// Takes a rewritten line off the screen.
    void clear();

    /// The line for a report, at most `columns` wide.
    [[nodiscard]] static std::string line(const CleanerCore::StorageScanProgress& progress, std::size_t columns,
        const std::optional<HomePathAbbreviation>& paths);
    [[nodiscard]] static std::string line(const CleanerCore::MacStorageInsightScanner::Progress& progress,
        std::size_t columns, const std::optional<HomePathAbbreviation>& paths);
    [[nodiscard]] static std::string line(const CleanerCore::ItemProgress& progress, std::size_t columns,
        const std::optional<HomePathAbbreviation>& paths);

private:
    [[nodiscard]] std::chrono::milliseconds interval() const;
    template <typename Progress>
    void show(const Progress& progress);

    Settings m_settings;
    Clock::time_point m_nextDue;
    bool m_isShown = false;
};

} // namespace KarvelloCLI
