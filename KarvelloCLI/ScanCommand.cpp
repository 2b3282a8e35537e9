#include "KarvelloCLI/ScanCommand.h"

#include "CleanerCore/Export/ScanResultExporter.h"
#include "CleanerCore/Scan/StorageScanner.h"
#include "KarvelloCLI/Interruption.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/OutputFile.h"
#include "KarvelloCLI/ProgressLine.h"
#include "KarvelloCLI/SkipKind.h"
#include "KarvelloCLI/Words.h"
#include "Platform/Services/HomeDirectory.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <expected>
#include <filesystem>
#include <optional>
#include <system_error>
#include <tuple>
#include <unordered_set>

namespace KarvelloCLI {

namespace {

using CleanerCore::ScanReport;
using CleanerCore::SkippedItem;
using Platform::FileURL;

std::optional<FileURL> workingDirectory()
{
    std::error_code error;
    const std::filesystem::path path = std::filesystem::current_path(error);
    return error ? std::nullopt : std::optional(FileURL::folder(path.native()));
}

bool hasRelativePath(const ScanOptions& options)
{
    const auto isRelative = [](const std::string& path) { return !path.starts_with('/'); };
    return (options.home && isRelative(*options.home)) || (options.common.output && isRelative(*options.common.output))
        || std::ranges::any_of(options.folders, isRelative) || std::ranges::any_of(options.roots, isRelative);
}

std::string absolutePath(const std::string& path, const FileURL& base)
{
    return path.starts_with('/') ? path : base.path() + "/" + path;
}

ProgressLine::Settings progressSettings(
    const CommonOptions& options, const FileURL& home, const Platform::Environment& environment)
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

std::string tableOf(const ScanReport& report, const ScanSubject& subject, const CommonOptions& options,
    const OutputFile& output, const Platform::Environment& environment)
{
    const int descriptor = output.descriptor();
    return ScanTable(report, subject,
        {
            .columns = terminalColumns(descriptor, environment),
            .usesColor = usesColor(options.color, Terminal::of(descriptor, environment), environment),
            .isVerbose = options.isVerbose,
            .isRedacted = options.isRedacted,
            .language = options.language,
        })
        .text();
}

std::expected<std::string, CleanerCore::ExportError> exportOf(const ScanReport& report, const CommonOptions& options)
{
    std::unordered_set<std::string> selected;
    for (const CleanerCore::CleanupCandidate& candidate : report.candidates) {
        if (candidate.isSelectedByDefault) {
            selected.insert(candidate.id);
        }
    }
    using namespace CleanerCore;
    return ScanResultExporter::data(report, selected,
        options.format == OutputFormat::json ? ScanResultExportFormat::json : ScanResultExportFormat::csv,
        options.isRedacted ? ReportExportPrivacyMode::redacted : ReportExportPrivacyMode::full, Platform::Date::now());
}

std::string wordsOf(const Platform::FileError& error)
{
    return error.systemError != 0 ? std::generic_category().message(error.systemError) : error.localizedDescription();
}

/// The reason, with the path where it does not name it itself.
std::string sentenceOn(const SkippedItem& item)
{
    const std::string reason = TerminalText(item.reason, TerminalText::Kind::sentence).string();
    const std::string path = TerminalText(item.url.path()).string();
    return item.reason.ends_with(item.url.path()) ? reason : fmt::format("{}: {}", reason, path);
}

/// A refused folder often is one that the user reaches through a link, where the folder itself would do.
std::optional<std::string> hintForLink(const FileURL& folder, const Platform::FileManager& fileManager)
{
    const FileURL real = fileManager.resolvingSymbolicLinks(folder);
    if (real.path() == folder.path() || !fileManager.directoryExists(real)) {
        return std::nullopt;
    }
    return fmt::format("Its path leads through a symbolic link, and none is followed; the folder itself is {}",
        TerminalText(real.path()).string());
}

} // namespace

ScanJudgement ScanJudgement::of(const ScanReport& report, const ScanPlan& plan)
{
    ScanJudgement judgement;
    judgement.refusals = plan.refusedFolders;
    for (const SkippedItem& item : report.skippedItems) {
        switch (skipKind(item.reason)) {
        case SkipKind::protection:
            break;
        case SkipKind::refusal:
            if (std::ranges::find(plan.roots, item.url.path(), &FileURL::path) != plan.roots.end()) {
                judgement.refusals.push_back(item);
            }
            break;
        case SkipKind::failure:
            ++judgement.failures;
            break;
        }
    }
    const bool nothingElse = !plan.subject.mode;
    if (nothingElse && !judgement.refusals.empty() && judgement.refusals.size() == plan.subject.folders.size()) {
        judgement.exitCode = ExitCode::refused;
    } else if (!judgement.refusals.empty() || judgement.failures > 0) {
        judgement.exitCode = ExitCode::partial;
    }
    return judgement;
}

ScanCommand::ScanCommand(const Platform::FileManager& fileManager, const Platform::Environment& environment)
    : m_fileManager(fileManager)
    , m_environment(environment)
{
}

ExitCode ScanCommand::run(const ScanOptions& options) const
{
    const CommonOptions& common = options.common;
    const std::optional<FileURL> here = workingDirectory();
    if (!here && hasRelativePath(options)) {
        printMessage("The working directory does not exist any more; give absolute paths.");
        return ExitCode::wrongUsage;
    }
    const FileURL base = here.value_or(FileURL());

    OutputFile output = OutputFile::standardOutput();
    if (common.output) {
        auto named = OutputFile::named(absolutePath(*common.output, base), m_fileManager);
        if (!named) {
            printMessage(fmt::format("--output: {}.", named.error()));
            return ExitCode::wrongUsage;
        }
        output = *std::move(named);
    }

    std::optional<Interruption> interruption(std::in_place);
    const std::stop_token stop = interruption->token();
    auto plan =
        ScanPlan::make(options, base, Platform::homeDirectoryForCurrentUser(), m_environment, m_fileManager, stop);
    if (!plan) {
        printMessage(plan.error());
        return ExitCode::refused;
    }
    for (const std::string& sentence : plan->overlaps()) {
        printMessage(sentence);
    }

    ScanReport report = [&] {
        ProgressLine progress(progressSettings(common, plan->subject.home, m_environment));
        const CleanerCore::StorageScanner scanner(m_fileManager, {.jobs = common.jobs});
        return scanner.scan(
            plan->locations, Platform::Date::now(), [&](const auto& step) { progress.report(step); }, stop,
            plan->subject.home);
    }();
    plan->subject.isIncomplete = stop.stop_requested();
    const ScanJudgement judgement = ScanJudgement::of(report, *plan);
    plan->subject.isRefused = judgement.exitCode == ExitCode::refused;
    report.skippedItems.insert(report.skippedItems.begin(), plan->refusedFolders.begin(), plan->refusedFolders.end());

    if (!output.isReplacedAtomically()) {
        // A reader may be slow; from here on a signal simply ends the program.
        interruption.reset();
    }
    const auto data = common.format == OutputFormat::table
        ? tableOf(report, plan->subject, common, output, m_environment)
        : exportOf(report, common);
    if (!data) {
        printMessage(data.error().localizedDescription());
        return ExitCode::partial;
    }
    if (const auto written = output.write(*data, m_fileManager); !written) {
        printMessage(fmt::format("{} could not be written: {}.", output.name(), wordsOf(written.error())));
        return ExitCode::partial;
    }
    return concluded(judgement, *plan);
}

ExitCode ScanCommand::concluded(const ScanJudgement& judgement, const ScanPlan& plan) const
{
    for (const SkippedItem& refusal : judgement.refusals) {
        printMessage(fmt::format("Not scanned: {}", sentenceOn(refusal)));
        if (const auto hint = hintForLink(refusal.url, m_fileManager)) {
            printMessage(*hint);
        }
    }
    if (judgement.failures > 0) {
        printMessage(counted(judgement.failures, "item") + " could not be read, which the skipped items tell of.");
    }
    if (plan.subject.isIncomplete) {
        printMessage("Interrupted: the result is incomplete.");
        return ExitCode::interrupted;
    }
    return judgement.exitCode;
}

} // namespace KarvelloCLI
