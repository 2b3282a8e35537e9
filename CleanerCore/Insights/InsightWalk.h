#pragma once

#include "CleanerCore/Insights/FileRecord.h"
#include "CleanerCore/Insights/InsightConfiguration.h"
#include "CleanerCore/Insights/RootPlan.h"
#include "CleanerCore/Insights/WalkSegment.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Files/FileManager.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace CleanerCore {

/// What all walks of one root share; immutable, and it outlives them.
struct WalkRules {
    const Platform::FileManager& fileManager;
    const InsightConfiguration& configuration;
    const RootPlan& plan;
};

/// Whom a walk may leave folders to.
class WalkDelegate {
public:
    virtual ~WalkDelegate() = default;
    /// Asked as the listing of a folder begins: shall its subfolders be walks of their own?
    [[nodiscard]] virtual bool wantsSubfolders() = 0;
    [[nodiscard]] virtual std::shared_ptr<WalkTask> addSubfolder(Platform::ItemReference folder) = 0;

protected:
    WalkDelegate() = default;
    WalkDelegate(const WalkDelegate&) = default;
    WalkDelegate& operator=(const WalkDelegate&) = default;
};

/// The walk of a root, or of a folder below it, in segments. Folders are judged by their names and either entered or
/// counted as one package; files are counted, and kept if they may get onto a list. It applies no budget of its own. For
/// one thread at a time.
class InsightWalk {
public:
    /// Decides what is said of a folder that cannot be opened: a root says nothing itself.
    enum class Start : std::uint8_t { root, subfolder };

    /// `rules` and `delegate` outlive the walk; without a delegate it enters every folder itself.
    InsightWalk(const WalkRules& rules, const Platform::ItemReference& folder, Start start, WalkDelegate* delegate,
        std::stop_token stop);
    ~InsightWalk() = default;
    InsightWalk(const InsightWalk&) = delete;
    InsightWalk& operator=(const InsightWalk&) = delete;

    [[nodiscard]] bool couldEnumerate() const { return m_items != nullptr; }

    /// Fills a new segment with at most `maximumVisits`; the walk inside a package is bounded by `packageVisits`. False
    /// for the last segment, which may hold something, too.
    [[nodiscard]] bool advance(WalkSegment& segment, std::size_t maximumVisits, std::int64_t packageVisits);

private:
    [[nodiscard]] SkippedItem openFailure(const Platform::ItemReference& folder) const;
    void noteError(SkippedItem item);
    void beginFolder();
    void visit(std::int64_t packageVisits);
    void visitFile(const Platform::ResourceValues& values);
    void visitFolder(const Platform::ResourceValues& values, std::int64_t packageVisits);
    void passOnFolder();
    [[nodiscard]] FileRecord record(const Platform::ResourceValues& values);
    [[nodiscard]] const std::shared_ptr<const std::string>& folderPath();

    static constexpr std::uint64_t kNoFolder = UINT64_MAX;

    const WalkRules& m_rules;
    WalkDelegate* m_delegate;
    std::stop_token m_stop;
    std::unique_ptr<Platform::DirectoryEnumerator> m_items;

    WalkSegment* m_segment = nullptr;
    /// `m_items` stands at an item that has not been visited.
    bool m_hasItem = false;
    /// The folder that is being listed, by the number that it was given when it was met; the walk's own is 0.
    std::uint64_t m_folder = kNoFolder;
    std::uint64_t m_lastFolder = 0;
    std::shared_ptr<const std::string> m_folderPath;
    RootPlan::FolderRules m_folderRules;
    bool m_delegatesSubfolders = false;
    /// The walks of the subfolders of the folder that is being listed.
    std::vector<std::shared_ptr<WalkTask>> m_subwalks;
    std::vector<SkippedItem> m_errorsBehindSubwalks;
};

} // namespace CleanerCore
