#include "KarvelloCLI/ProgressLine.h"

#include "KarvelloCLI/Words.h"

#include <fmt/format.h>

namespace KarvelloCLI {

namespace {

/// Below this a path tells nothing any more.
constexpr std::size_t kLeastColumnsForPath = 12;
constexpr std::string_view kEraseLine = "\r\x1b[K";

} // namespace

ProgressLine::ProgressLine(Settings settings)
    : m_settings(std::move(settings))
{
    if (m_settings.style != Style::none) {
        m_nextDue = m_settings.now() + interval();
    }
}

std::chrono::milliseconds ProgressLine::interval() const
{
    return m_settings.style == Style::appended ? kAppendInterval : kRewriteInterval;
}

void ProgressLine::report(const CleanerCore::StorageScanProgress& progress)
{
    if (m_settings.style == Style::none) {
        return;
    }
    const Clock::time_point now = m_settings.now();
    if (now < m_nextDue) {
        return;
    }
    m_nextDue = now + interval();
    const std::size_t columns = m_settings.columns();
    if (m_settings.style == Style::appended) {
        m_settings.write(line(progress, columns, m_settings.paths) + "\n");
        return;
    }
    // The last column stays free: a terminal that wraps there would make two lines of one.
    m_settings.write(std::string(kEraseLine) + line(progress, columns - 1, m_settings.paths));
    m_isShown = true;
}

void ProgressLine::clear()
{
    if (m_isShown) {
        m_settings.write(kEraseLine);
        m_isShown = false;
    }
}

std::string ProgressLine::line(const CleanerCore::StorageScanProgress& progress, std::size_t columns,
    const std::optional<HomePathAbbreviation>& paths)
{
    const std::string facts = fmt::format("{:3}%  {} looked at, {} found, {} skipped", progress.percentage(),
        counted(static_cast<std::size_t>(progress.completedItems), "item"), progress.foundCandidates,
        progress.skippedItems);
    const std::string brief = fmt::format("{:3}%  {} found", progress.percentage(), progress.foundCandidates);

    const bool showsPath = progress.currentURL && paths;
    const std::size_t leastForPath = showsPath ? 2 + kLeastColumnsForPath : 0;
    std::string text = facts.size() + leastForPath <= columns ? facts : brief;
    if (showsPath && text.size() + leastForPath <= columns) {
        const TerminalText path(paths->abbreviate(progress.currentURL->path()));
        text += "  " + path.elidedInMiddle(columns - text.size() - 2).string();
    }
    return TerminalText(text).columns() <= columns ? text : text.substr(0, columns);
}

} // namespace KarvelloCLI
