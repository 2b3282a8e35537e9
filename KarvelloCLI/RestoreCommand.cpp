#include "KarvelloCLI/RestoreCommand.h"

#include "CleanerCore/Cleaning/TrashRestoreService.h"
#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"
#include "KarvelloCLI/AuditLog.h"
#include "KarvelloCLI/CommandOutput.h"
#include "KarvelloCLI/Conversation.h"
#include "KarvelloCLI/Interruption.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/RestoreCatalog.h"
#include "KarvelloCLI/RestoreLocations.h"
#include "KarvelloCLI/RestoreRehearsal.h"
#include "KarvelloCLI/RestoreTexts.h"
#include "KarvelloCLI/ScanPlan.h"
#include "KarvelloCLI/WorkingDirectory.h"
#include "Platform/Files/FileError.h"
#include "Platform/Services/HomeDirectory.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <span>
#include <tuple>
#include <vector>

namespace KarvelloCLI {

namespace {

using CleanerCore::CleanedItem;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::RestoreResult;
using CleanerCore::ScanLocation;
using Platform::FileURL;

/// Nothing is looked through on the way back; the policy only wants a number.
constexpr std::int64_t kMostValidatedDescendants = 100'000;

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
        , eligibility(locations, fileManager, kMostValidatedDescendants, homeFolder)
        , home(homeFolder)
    {
    }

    [[nodiscard]] RestoreResult restore(std::span<const CleanedItem> items, const Platform::FileManager& fileManager,
        Platform::Trash& trash, const std::stop_token& stop = {}) const
    {
        return CleanerCore::TrashRestoreService(fileManager, trash).restore(items, locations, eligibility, stop, home);
    }
};

/// Of an item that did not go back as it should, whether something was put there all the same.
bool mayHaveMoved(const CleanerCore::FailedRestoreItem& item)
{
    const Platform::FileError stranger{.kind = Platform::FileErrorKind::restoredUnconfirmed,
        .operation = Platform::FileOperation::restore,
        .path = item.cleanedItem.candidate.url.path()};
    return item.reason == stranger.localizedDescription();
}

} // namespace

ExitCode exitCodeOf(const RestoreResult& result)
{
    if (result.wasCancelled) {
        return ExitCode::interrupted;
    }
    if (result.failedItems.empty()) {
        return ExitCode::done;
    }
    const bool somethingMoved = !result.restoredItems.empty() || std::ranges::any_of(result.failedItems, mayHaveMoved);
    return somethingMoved ? ExitCode::partial : ExitCode::refused;
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
    const auto here = workingDirectoryFor(paths);
    if (!here) {
        printMessage(here.error());
        return ExitCode::wrongUsage;
    }
    const auto output = openOutput(common, *here, m_fileManager);
    if (!output) {
        return ExitCode::wrongUsage;
    }
    const bool isListing = options.selection == RestoreSelection::none;
    if (!isListing && !options.isConfirmed && !Conversation::isPossible()) {
        printMessage("There is no terminal to ask on, so nothing was put back; --yes agrees beforehand.");
        return ExitCode::refused;
    }

    AuditLogReading log = AuditLogReading::of(m_log, m_fileManager);
    if (log.complaint) {
        printMessage(*log.complaint + ".");
    }
    if (options.entry) {
        std::erase_if(log.entries, [&](const CleanupAuditEntry& entry) { return entry.id != *options.entry; });
        if (log.entries.empty()) {
            printMessage(fmt::format("The log has no entry {}.", options.entry->string()));
            return ExitCode::refused;
        }
    }

    const FileURL namedHome =
        options.home ? absoluteFolder(*options.home, *here) : Platform::homeDirectoryForCurrentUser();
    const FileURL home = FileURL::folder(m_fileManager.resolvingSymbolicLinks(namedHome).path());
    const auto known = knownLocations(home, m_environment, m_fileManager);
    const RestoreCatalog catalog(log.entries, [&](std::span<const CleanedItem> items) {
        RestoreRehearsal rehearsal(m_fileManager, m_trash);
        return RestorePlaces(items, known, home, m_fileManager).restore(items, m_fileManager, rehearsal);
    });
    const ExitCode codeOfLog = log.complaint ? ExitCode::partial : ExitCode::done;

    if (isListing) {
        std::erase_if(log.entries, [](const CleanupAuditEntry& each) { return each.cleanedItems.empty(); });
        const auto style = TextStyle::of(common, output->descriptor(), home, m_environment);
        const Delivery delivery = common.format == OutputFormat::table
            ? deliver(restoreList(catalog, m_fileManager, style), *output, m_fileManager)
            : deliverAuditExport(log.entries, common, *output, m_fileManager);
        return delivery == Delivery::written ? codeOfLog : ExitCode::partial;
    }

    const auto selection =
        options.selection == RestoreSelection::all ? catalog.everything() : catalog.named(options.ids);
    const auto& items = selection.items;
    for (const std::string& complaint : selection.complaints) {
        printMessage(complaint + ".");
    }
    const auto bytes = totalBytes(items);
    if (items.empty() || !bytes) {
        printMessage(items.empty() ? "Nothing was put back: there is nothing that can be."
                                   : "Nothing was put back: the sizes in the log are no sizes of files.");
        return options.selection == RestoreSelection::all && bytes ? codeOfLog : ExitCode::refused;
    }
    // Now, so that a folder that is put in the place of another one while the question waits is found out.
    const RestorePlaces places(items, known, home, m_fileManager);

    std::optional<Interruption> interruption(std::in_place);
    const std::stop_token stop = interruption->token();
    const Conversation conversation(common,
        options.isConfirmed ? Conversation::Consent::isGiven : Conversation::Consent::isAsked, home, m_environment);
    const TextStyle& style = conversation.style();
    if (!conversation.say(restorePreview(items, *bytes, style) + "\n")) {
        printMessage("What would go back could not be shown, so nothing was put back.");
        return ExitCode::refused;
    }
    switch (conversation.ask(restoreQuestion(items, *bytes, style), stop)) {
    case Answer::yes:
        break;
    case Answer::no:
        printMessage("Nothing was put back.");
        return ExitCode::refused;
    case Answer::interrupted:
        printMessage("Interrupted: nothing was put back.");
        return ExitCode::interrupted;
    }

    interruption->insistOnAnEnd();
    const RestoreResult result = places.restore(items, m_fileManager, m_trash, stop);
    const auto entry = CleanupAuditEntry::restore(
        result, items, CleanerCore::CleanupAuditSource::cleanupDashboard, Platform::Date::now());
    const Logged logged = appendToAuditLog(m_log, entry, m_fileManager);
    if (!output->isReplacedAtomically()) {
        interruption.reset();
    }

    Delivery delivery = Delivery::written;
    if (common.format == OutputFormat::table) {
        const auto outputStyle = TextStyle::of(common, output->descriptor(), home, m_environment);
        delivery = deliver(restoreAccount(items, result, outputStyle), *output, m_fileManager);
    } else {
        std::ignore = conversation.say(restoreAccount(items, result, style));
        delivery = deliverAuditExport(std::span(&entry, 1), common, *output, m_fileManager);
    }
    if (result.wasCancelled) {
        printMessage(
            logged == Logged::yes ? "Interrupted: what was put back until then has been logged." : "Interrupted.");
    }
    const bool isWhole = logged == Logged::yes && delivery == Delivery::written && selection.complaints.empty();
    const ExitCode code = exitCodeOf(result);
    return code == ExitCode::done && !isWhole ? ExitCode::partial : code;
}

} // namespace KarvelloCLI
