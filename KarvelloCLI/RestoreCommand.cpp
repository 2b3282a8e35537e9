#include "KarvelloCLI/RestoreCommand.h"

#include "CleanerCore/Cleaning/TrashRestoreService.h"
#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"
#include "KarvelloCLI/AuditLog.h"
#include "KarvelloCLI/CommandOutput.h"
#include "KarvelloCLI/Errand.h"
#include "KarvelloCLI/ErrandOutcome.h"
#include "KarvelloCLI/Interruption.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/RestoreCatalog.h"
#include "KarvelloCLI/RestoreLocations.h"
#include "KarvelloCLI/RestoreRehearsal.h"
#include "KarvelloCLI/RestoreTexts.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/ScanPlan.h"
#include "KarvelloCLI/WorkingDirectory.h"
#include "Platform/Files/FileError.h"
#include "Platform/Services/HomeDirectory.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace KarvelloCLI {

namespace {

using CleanerCore::CleanedItem;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::RestoreResult;
using CleanerCore::ScanLocation;
using Platform::FileURL;

/// The places that every mode knows.
std::vector<ScanLocation> knownLocations(
    const FileURL& home, const Platform::Environment& environment, const Platform::FileManager& fileManager)
{
    std::vector<ScanLocation> known;
    for (const auto mode : Platform::allCases<CleanerCore::CleanupScanMode>()) {
        const auto locations =
            homeLocations(mode, home, Platform::homeDirectoryForCurrentUser(), environment, fileManager);
        known.insert(known.end(), locations.begin(), locations.end());
    }
    return known;
}

/// Where items may go back to, as it is found now.
struct RestorePlaces {
    std::vector<ScanLocation> locations;
    CleanerCore::CleanupEligibilityPolicy eligibility;
    FileURL home;

    RestorePlaces(std::span<const CleanedItem> items, std::span<const ScanLocation> known, const FileURL& homeFolder,
        const Platform::FileManager& fileManager)
        : locations(restoreLocations(items, known))
        // Nothing is looked through on the way back; the policy only wants a number.
        , eligibility(locations, fileManager, kMostValidatedDescendants, homeFolder)
        , home(homeFolder)
    {
    }

    [[nodiscard]] RestoreResult restore(std::span<const CleanedItem> items, const Platform::FileManager& fileManager,
        Platform::Trash& trash, const std::stop_token& stop = {},
        const CleanerCore::ItemProgressReport& report = {}) const
    {
        return CleanerCore::TrashRestoreService(fileManager, trash)
            .restore(items, locations, eligibility, stop, home, report);
    }
};

/// Of an item that did not go back as it should, whether something was put there all the same.
bool mayHaveGoneBack(const CleanerCore::FailedRestoreItem& item)
{
    const Platform::FileError stranger{.kind = Platform::FileErrorKind::restoredUnconfirmed,
        .operation = Platform::FileOperation::restore,
        .path = item.cleanedItem.candidate.url.path()};
    return item.reason == stranger.localizedDescription();
}

/// The way back of the selected items.
class RestoreErrand final : public Errand {
public:
    /// All must outlive the errand.
    RestoreErrand(std::span<const CleanedItem> items, std::int64_t bytes, const RestorePlaces& places,
        const Platform::FileManager& fileManager, Platform::Trash& trash)
        : m_items(items)
        , m_bytes(bytes)
        , m_places(places)
        , m_fileManager(fileManager)
        , m_trash(trash)
    {
    }

    ErrandKind kind() const override { return ErrandKind::restore; }
    std::string preview(const TextStyle& style) const override { return restorePreview(m_items, m_bytes, style); }
    std::string question(const TextStyle& style) const override { return restoreQuestion(m_items, m_bytes, style); }
    CleanupAuditEntry perform(const std::stop_token& stop, const CleanerCore::ItemProgressReport& report) override
    {
        m_result = m_places.restore(m_items, m_fileManager, m_trash, stop, report);
        return CleanupAuditEntry::restore(
            m_result, m_items, CleanerCore::CleanupAuditSource::cleanupDashboard, Platform::Date::now());
    }
    std::string account(const TextStyle& style) const override { return restoreAccount(m_items, m_result, style); }
    ExitCode exitCode() const override { return exitCodeOf(m_result); }

private:
    std::span<const CleanedItem> m_items;
    std::int64_t m_bytes;
    const RestorePlaces& m_places;
    const Platform::FileManager& m_fileManager;
    Platform::Trash& m_trash;
    RestoreResult m_result;
};

} // namespace

ExitCode exitCodeOf(const RestoreResult& result)
{
    return exitCodeOfMoves(result, result.restoredItems, mayHaveGoneBack);
}

ExitCode RestoreCommand::run(const RestoreOptions& options) const
{
    const CommonOptions& common = options.common;
    std::vector<std::string> paths;
    for (const auto& path : {options.home, common.output}) {
        if (path) {
            paths.push_back(*path);
        }
    }
    const auto opened = openPlaces(paths, common, m_fileManager);
    if (!opened) {
        return ExitCode::wrongUsage;
    }
    const OutputFile& output = opened->output;
    const bool isListing = options.selection == RestoreSelection::none;
    if (!isListing && !mayBeAgreedTo(options.isConfirmed, ErrandKind::restore)) {
        return ExitCode::refused;
    }

    AuditLogReading log = AuditLogReading::of(m_log, m_fileManager);
    if (log.complaint) {
        printMessage(*log.complaint);
    }
    if (options.entry) {
        std::erase_if(log.entries, [&](const CleanupAuditEntry& entry) { return entry.id != *options.entry; });
        if (log.entries.empty()) {
            printMessage(say("The log has no entry {}.", options.entry->string()));
            return ExitCode::refused;
        }
    }

    const FileURL namedHome = options.home ? absoluteFolder(*options.home, opened->workingDirectory)
                                           : Platform::homeDirectoryForCurrentUser();
    const FileURL home = FileURL::folder(m_fileManager.resolvingSymbolicLinks(namedHome).path());
    const auto known = knownLocations(home, m_environment, m_fileManager);
    const RestoreCatalog catalog(log.entries, [&](std::span<const CleanedItem> items) {
        RestoreRehearsal rehearsal(m_fileManager, m_trash);
        return RestorePlaces(items, known, home, m_fileManager).restore(items, m_fileManager, rehearsal);
    });
    const ExitCode codeOfLog = log.complaint ? ExitCode::partial : ExitCode::done;

    if (isListing) {
        std::erase_if(log.entries, [](const CleanupAuditEntry& each) { return each.cleanedItems.empty(); });
        const auto style = TextStyle::of(common, output.descriptor(), home, m_environment);
        const Delivery delivery = common.format == OutputFormat::table
            ? deliver(restoreList(catalog, m_fileManager, style), output, m_fileManager)
            : deliverAuditExport(log.entries, common, output, m_fileManager);
        return delivery == Delivery::written ? codeOfLog : ExitCode::partial;
    }

    const auto selection =
        options.selection == RestoreSelection::all ? catalog.everything() : catalog.named(options.ids);
    const auto& items = selection.items;
    for (const std::string& complaint : selection.complaints) {
        printMessage(withFullStop(complaint));
    }
    const auto bytes = totalBytes(items);
    if (items.empty() || !bytes) {
        printMessage(items.empty() ? say("Nothing was put back: there is nothing that can be.")
                                   : say("Nothing was put back: the sizes in the log are no sizes of files."));
        return options.selection == RestoreSelection::all && bytes ? codeOfLog : ExitCode::refused;
    }
    // Now, so that a folder that is put in the place of another one while the question waits is found out.
    const RestorePlaces places(items, known, home, m_fileManager);

    std::optional<Interruption> interruption(std::in_place);
    RestoreErrand errand(items, *bytes, places, m_fileManager, m_trash);
    const ExitCode code = runErrand(errand,
        {.common = common,
            .isConfirmed = options.isConfirmed,
            .home = home,
            .output = output,
            .fileManager = m_fileManager,
            .log = m_log,
            .environment = m_environment},
        interruption);
    const bool isAllThatWasAsked = selection.complaints.empty() && !log.complaint;
    return code == ExitCode::done && !isAllThatWasAsked ? ExitCode::partial : code;
}

} // namespace KarvelloCLI
