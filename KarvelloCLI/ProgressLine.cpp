#include "KarvelloCLI/ProgressLine.h"

#include "KarvelloCLI/OutputFile.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/Words.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <tuple>

namespace KarvelloCLI {

namespace {

/// Below this a path tells nothing any more.
constexpr std::size_t kLeastColumnsForPath = 12;

/// The facts that fit, and the place behind them if there is room for it.
std::string lineOf(std::string_view facts, std::string_view brief, const Platform::FileURL* place, std::size_t columns,
    const std::optional<HomePathAbbreviation>& paths)
{
    const bool showsPath = place != nullptr && paths;
    const std::size_t leastForPath = showsPath ? 2 + kLeastColumnsForPath : 0;
    std::string text(columnsOf(facts) + leastForPath <= columns ? facts : brief);
    if (showsPath && columnsOf(text) + leastForPath <= columns) {
        const TerminalText path(paths->abbreviate(place->path()));
        return text + "  " + path.elidedInMiddle(columns - columnsOf(text) - 2).string();
    }
    return TerminalText(text, TerminalText::Kind::sentence).wrapped(std::max<std::size_t>(columns, 1)).front().string();
}

} // namespace

ProgressLine::Settings ProgressLine::Settings::of(
    const CommonOptions& options, const Platform::FileURL& home, const Platform::Environment& environment)
{
    const Terminal terminal = Terminal::of(STDERR_FILENO, environment);
    ProgressLine::Settings settings;
    if (options.progress != When::never) {
        if (terminal.understandsEscapes) {
            settings.style = ProgressLine::Style::rewritten;
        } else if (options.progress == When::always) {
            settings.style = ProgressLine::Style::appended;
        }
    }
    if (!options.isRedacted) {
        settings.paths.emplace(home);
    }
    settings.columns = [&environment] { return terminalColumns(STDERR_FILENO, environment); };
    settings.write = [](std::string_view text) { std::ignore = writeWholly(STDERR_FILENO, text); };
    return settings;
}

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

template <typename Progress>
void ProgressLine::show(const Progress& progress)
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

void ProgressLine::report(const CleanerCore::StorageScanProgress& progress)
{
    show(progress);
}

void ProgressLine::report(const CleanerCore::MacStorageInsightScanner::Progress& progress)
{
    show(progress);
}

void ProgressLine::report(const CleanerCore::ItemProgress& progress)
{
    show(progress);
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
    const std::string percentage = fmt::format("{:3}%  ", progress.percentage());
    const std::string facts = percentage
        + say("{} looked at, {} found, {} skipped", itemCount(static_cast<std::size_t>(progress.completedItems)),
            progress.foundCandidates, progress.skippedItems);
    const std::string brief = percentage + say("{} found", progress.foundCandidates);

    return lineOf(facts, brief, progress.currentURL ? &*progress.currentURL : nullptr, columns, paths);
}

std::string ProgressLine::line(const CleanerCore::MacStorageInsightScanner::Progress& progress, std::size_t columns,
    const std::optional<HomePathAbbreviation>& paths)
{
    const std::string brief = say("{} looked at", itemCount(static_cast<std::size_t>(progress.visitedItems)));
    if (progress.readBytes > 0) {
        const std::string read = say("comparing files, {} read", sizeWords(progress.readBytes));
        return lineOf(say("{}, {}", brief, read), read, nullptr, columns, paths);
    }
    const std::string facts = say(
        "folder {} of {}, {}", std::min(progress.completedRoots + 1, progress.totalRoots), progress.totalRoots, brief);
    return lineOf(facts, brief, &progress.root, columns, paths);
}

std::string ProgressLine::line(
    const CleanerCore::ItemProgress& progress, std::size_t columns, const std::optional<HomePathAbbreviation>& paths)
{
    const std::size_t percentage = progress.doneItems * 100 / std::max<std::size_t>(progress.allItems, 1);
    const std::string brief = fmt::format("{:3}%", percentage);
    const std::string facts =
        fmt::format("{}  {}", brief, say("{} of {}", progress.doneItems, itemCount(progress.allItems)));
    return lineOf(facts, brief, nullptr, columns, paths);
}

} // namespace KarvelloCLI
