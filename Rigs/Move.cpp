// One clean or restore in a process of its own, for rigs that kill it or make its system calls fail. Usage:
//     karvello-rig-move HOME clean|restore [--mover product|naive]       through the services, with the log
//     karvello-rig-move HOME trash|putback [--mover product|naive]       the mover alone; putback reads HOME/moved
//     karvello-rig-move HOME trash-item PATH | putback-item PLACE PATH   the mover alone, one item
//     karvello-rig-move HOME start                                       opens the Trash and the log as a start does
// HOME/Caches holds the items, HOME/data the application's data. A line per item tells "moved", "back" or "failed", with
// paths in the text form of URLs. What is to be attacked happens between two calls of getppid(2). The exit code is 0 if
// all went well, 3 if an item was refused.

#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "CleanerCore/Cleaning/CleaningService.h"
#include "CleanerCore/Cleaning/MoveAnchors.h"
#include "CleanerCore/Cleaning/TrashRestoreService.h"
#include "CleanerCore/Scan/StorageScanner.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxTrash.h"
#include "Rigs/NaiveTrash.h"
#include "Rigs/RigFolder.h"

#include <algorithm>
#include <fmt/format.h>
#include <fstream>
#include <unistd.h>

namespace {

using namespace CleanerCore;
using Platform::FileURL;

/// Tells the rig, which watches the system calls, that what it is to attack begins or ends here.
void mark()
{
    std::ignore = getppid();
}

class Session {
public:
    Session(FileURL home, Rigs::Mover mover)
        : m_home(std::move(home))
        , m_product(m_fileManager, m_home.appending("data"))
        , m_naive(m_fileManager, m_home.appending("data"))
        , m_trash(mover == Rigs::Mover::naive ? static_cast<Platform::Trash&>(m_naive) : m_product)
        , m_store(m_fileManager, m_home.appending("data/Karvello/cleanup-audit-log.json"))
    {
    }

    int clean()
    {
        const auto locations = this->locations();
        const StorageScanner scanner(m_fileManager, {.jobs = 1});
        const auto report = scanner.scan(locations, Platform::Date::now(), {}, {}, m_home);
        const CleanupEligibilityPolicy policy(locations, m_fileManager, 100'000, m_home);
        mark();
        const auto result = CleaningService(m_fileManager, m_trash)
                                .clean(report.candidates, locations, CleaningMode::moveToTrash, policy, {}, m_home);
        m_store.append(CleanupAuditEntry::clean(result, CleaningMode::moveToTrash, report.candidates,
            CleanupAuditSource::cleanupDashboard, Platform::Date::now()));
        mark();
        for (const auto& item : result.cleanedItems) {
            fmt::print("moved\t{}\t{}\n", item.candidate.url.absoluteString(), item.destinationURL->absoluteString());
        }
        for (const auto& item : result.failedItems) {
            fmt::print("failed\t{}\t{}\n", item.candidate.url.absoluteString(), item.reason);
        }
        for (const auto& item : report.skippedItems) {
            fmt::print("skipped\t{}\t{}\n", item.url.absoluteString(), item.reason);
        }
        return result.failedItems.empty() && !result.cleanedItems.empty() ? 0 : 3;
    }

    int restore()
    {
        const auto locations = this->locations();
        const CleanupEligibilityPolicy policy(locations, m_fileManager, 100'000, m_home);
        std::vector<CleanedItem> items;
        for (const auto& entry : m_store.loadEntries()) {
            items.insert(items.end(), entry.cleanedItems.begin(), entry.cleanedItems.end());
        }
        mark();
        const auto result =
            TrashRestoreService(m_fileManager, m_trash).restore(items, locations, policy, {}, m_home);
        m_store.append(
            CleanupAuditEntry::restore(result, items, CleanupAuditSource::cleanupDashboard, Platform::Date::now()));
        mark();
        for (const auto& item : result.restoredItems) {
            fmt::print("back\t{}\n", item.restoredURL.absoluteString());
        }
        for (const auto& item : result.failedItems) {
            fmt::print("failed\t{}\t{}\n", item.cleanedItem.candidate.url.absoluteString(), item.reason);
        }
        return result.failedItems.empty() && !result.restoredItems.empty() ? 0 : 3;
    }

    int trash()
    {
        std::vector<FileURL> items;
        if (auto contents = m_fileManager.contentsOfDirectory(m_home.appending("Caches"))) {
            items = *std::move(contents);
        }
        std::vector<Platform::ItemAnchor> anchors;
        for (const auto& item : items) {
            anchors.push_back(anchor(item));
        }
        std::vector<std::expected<std::optional<FileURL>, Platform::FileError>> results;
        mark();
        for (const auto& anchor : anchors) {
            results.push_back(m_trash.trashItem(anchor));
        }
        const bool isSettled = m_trash.settle().has_value();
        mark();
        std::ofstream list(m_home.path() + "/moved");
        bool isDone = !anchors.empty() && isSettled;
        for (std::size_t index = 0; index < anchors.size(); ++index) {
            const auto item = anchors[index].item.absoluteString();
            if (results[index] && *results[index]) {
                fmt::print("moved\t{}\t{}\n", item, (**results[index]).absoluteString());
                list << (**results[index]).absoluteString() << '\n' << item << '\n';
            } else {
                fmt::print("failed\t{}\t{}\n", item, results[index].error().localizedDescription());
                isDone = false;
            }
        }
        return isDone ? 0 : 3;
    }

    int putBack()
    {
        std::vector<Platform::RestoreAnchor> anchors;
        std::ifstream list(m_home.path() + "/moved");
        std::string place;
        std::string item;
        while (std::getline(list, place) && std::getline(list, item)) {
            anchors.push_back(restoring(*FileURL::fromAbsoluteString(place), *FileURL::fromAbsoluteString(item)));
        }
        std::vector<std::expected<void, Platform::FileError>> results;
        mark();
        for (const auto& anchor : anchors) {
            results.push_back(m_trash.restoreItem(anchor));
        }
        const bool isSettled = m_trash.settle().has_value();
        mark();
        bool isDone = !anchors.empty() && isSettled;
        for (std::size_t index = 0; index < anchors.size(); ++index) {
            isDone = tellRestored(anchors[index], results[index]) && isDone;
        }
        return isDone ? 0 : 3;
    }

    int trashItem(const FileURL& item)
    {
        const auto result = m_trash.trashItem(anchor(item));
        if (result && *result) {
            fmt::print("moved\t{}\t{}\n", item.absoluteString(), (**result).absoluteString());
            return 0;
        }
        fmt::print("failed\t{}\t{}\n", item.absoluteString(), result.error().localizedDescription());
        return 3;
    }

    int putBackItem(const FileURL& place, const FileURL& item)
    {
        const auto anchor = restoring(place, item);
        return tellRestored(anchor, m_trash.restoreItem(anchor)) ? 0 : 3;
    }

    int start()
    {
        std::ignore = m_trash.trashDirectories(m_home.appending("Caches/x"));
        std::ignore = m_store.loadEntries();
        return 0;
    }

private:
    [[nodiscard]] std::vector<ScanLocation> locations() const
    {
        return {ScanLocation({.rootURL = m_home.appending("Caches", Platform::DirectoryHint::isFolder),
            .category = CleanupCategory::userCaches,
            .displayName = std::nullopt,
            .depth = ScanDepth::immediateChildren,
            .isSelectedByDefault = true,
            .safety = CleanupSafety::safe,
            .minimumModificationAge = 0,
            .includesHiddenFiles = true,
            .includesPackageDescendants = true,
            .appCacheContext = std::nullopt})};
    }

    [[nodiscard]] Platform::FolderAnchor root() const
    {
        const auto url = m_home.appending("Caches", Platform::DirectoryHint::isFolder);
        const auto attributes = m_fileManager.attributes(url);
        if (!attributes) {
            Rigs::fail("cannot look at " + url.path());
        }
        return {.url = url, .systemNumber = *attributes->systemNumber, .systemFileNumber = *attributes->systemFileNumber};
    }

    [[nodiscard]] Platform::ItemTest confirming(const FileURL& url) const
    {
        return isItem(FileResourceIdentity::captureIfAvailable(url, m_fileManager).value_or(FileResourceIdentity{}));
    }

    [[nodiscard]] Platform::ItemAnchor anchor(const FileURL& item) const
    {
        return {.root = root(), .item = item, .isConfirmed = confirming(item)};
    }

    [[nodiscard]] Platform::RestoreAnchor restoring(const FileURL& place, const FileURL& item) const
    {
        return {.trashedItem = place, .isConfirmed = confirming(place), .root = root(), .destination = item};
    }

    static bool tellRestored(const Platform::RestoreAnchor& anchor, const std::expected<void, Platform::FileError>& result)
    {
        if (result) {
            fmt::print("back\t{}\n", anchor.destination.absoluteString());
            return true;
        }
        fmt::print("failed\t{}\t{}\n", anchor.destination.absoluteString(), result.error().localizedDescription());
        return false;
    }

    Platform::PosixFileManager m_fileManager;
    FileURL m_home;
    Platform::LinuxTrash m_product;
    Rigs::NaiveTrash m_naive;
    Platform::Trash& m_trash;
    CleanupAuditStore m_store;
};

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> words(argv + 1, argv + argc);
    const auto mover =
        Rigs::option(argc, argv, "mover").value_or("product") == "naive" ? Rigs::Mover::naive : Rigs::Mover::product;
    if (words.size() >= 2) {
        Session session(FileURL::folder(words[0]), mover);
        const auto& action = words[1];
        if (action == "clean") {
            return session.clean();
        }
        if (action == "restore") {
            return session.restore();
        }
        if (action == "trash") {
            return session.trash();
        }
        if (action == "putback") {
            return session.putBack();
        }
        if (action == "start") {
            return session.start();
        }
        if (action == "trash-item" && words.size() >= 3) {
            return session.trashItem(FileURL(words[2]));
        }
        if (action == "putback-item" && words.size() >= 4) {
            return session.putBackItem(FileURL(words[2]), FileURL(words[3]));
        }
    }
    fmt::print(stderr, "usage: karvello-rig-move HOME clean|restore|trash|putback|start|trash-item|putback-item\n");
    return 2;
}
