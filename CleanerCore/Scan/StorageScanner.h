#pragma once

#include "CleanerCore/Scan/ScanLocation.h"
#include "CleanerCore/Scan/ScanReport.h"
#include "CleanerCore/Scan/StorageScanProgress.h"
#include "Platform/Base/Date.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <stop_token>

namespace CleanerCore {

/// Turns scan locations into a report. Each child of a root becomes one candidate or one skipped item; a folder is
/// counted whole by walking its tree. Any sign that an item is in use, protected, too large to judge or unreadable
/// keeps it out of the candidates. Nothing on disk is changed. Immutable: one scanner may serve several threads.
class StorageScanner {
public:
    struct Configuration {
        /// An item with more descendants than this is not judged. At least 1.
        std::int64_t maximumInventoryItemsPerCandidate = 100'000;
        /// How many descendants lie between two reports on a folder's walk. At least 1.
        std::int64_t inventoryProgressItemInterval = 128;
        /// How many processors the walk may keep busy; 0 for all of them. With 1 the scanning thread does all the
        /// work itself. The report and the sequence of progress calls are the same for every value.
        unsigned jobs = 0;

        static Configuration standard() { return {}; }
        [[nodiscard]] Configuration normalized() const;
    };

    using ProgressHandler = std::function<void(const StorageScanProgress&)>;

    /// `fileManager` must outlive the scanner.
    explicit StorageScanner(
        const Platform::FileManager& fileManager, Configuration configuration = Configuration::standard());

    /// Never fails: every problem becomes a skipped item. `now` is the reference of all ages. The handler is called on
    /// the calling thread. After a stop the report holds what was found until then; the caller tells it by its token.
    /// Roots are judged against `homeDirectory`, or without one against the person's real home.
    [[nodiscard]] ScanReport scan(std::span<const ScanLocation> locations, Platform::Date now,
        const ProgressHandler& progressHandler = {}, const std::stop_token& stop = {},
        const std::optional<Platform::FileURL>& homeDirectory = std::nullopt) const;

private:
    const Platform::FileManager& m_fileManager;
    Configuration m_configuration;
};

} // namespace CleanerCore
