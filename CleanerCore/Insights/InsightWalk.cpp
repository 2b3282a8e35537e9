#include "CleanerCore/Insights/InsightWalk.h"

#include "CleanerCore/Insights/PackageInventory.h"
#include "CleanerCore/Insights/SecurityReview.h"
#include "CleanerCore/Scan/AllocatedSize.h"
#include "Platform/Files/PackageNames.h"

#include <cerrno>
#include <utility>

namespace CleanerCore {

using Platform::FileError;
using Platform::FileURL;
using Platform::ListedType;

InsightWalk::InsightWalk(const WalkRules& rules, const Platform::ItemReference& folder, Start start,
    WalkDelegate* delegate, std::stop_token stop)
    : m_rules(rules)
    , m_delegate(delegate)
    , m_stop(std::move(stop))
    , m_folderRules(rules.plan.rulesOfRoot())
{
    const auto onError = [this](const FileURL& url, const FileError& error) {
        noteError({url, error.localizedDescription()});
        return Platform::EnumerationErrorAnswer::goOn;
    };
    const Platform::EnumerationOptions options{.skipsPackageDescendants = true, .skipsHiddenFiles = true};
    m_items = rules.fileManager.enumerator(folder, options, onError);
    if (!m_items && start == Start::subfolder) {
        m_errorsBehindSubwalks.push_back(openFailure(folder));
    }
}

/// What the walk that found the folder would have said of it.
SkippedItem InsightWalk::openFailure(const Platform::ItemReference& folder) const
{
    auto url = folder.url();
    const auto values = m_rules.fileManager.resourceValues(folder);
    const auto error =
        values ? FileError::fromSystemError(ENOTDIR, Platform::FileOperation::read, url.path()) : values.error();
    return {std::move(url), error.localizedDescription()};
}

/// A listing that breaks off is told before the subfolders that were found until then; anything else behind them.
void InsightWalk::noteError(SkippedItem item)
{
    const bool isOfThisFolder = m_subwalks.empty() || item.url.path() == *m_folderPath;
    if (isOfThisFolder && m_errorsBehindSubwalks.empty()) {
        m_segment->log.addEnumerationError(std::move(item));
    } else {
        m_errorsBehindSubwalks.push_back(std::move(item));
    }
}

bool InsightWalk::advance(WalkSegment& segment, std::size_t maximumVisits, std::int64_t packageVisits)
{
    m_segment = &segment;
    for (auto& error : std::exchange(m_errorsBehindSubwalks, {})) {
        segment.log.addEnumerationError(std::move(error));
    }
    while (segment.log.visits() < maximumVisits && !segment.package) {
        if (!std::exchange(m_hasItem, false)) {
            if (!m_items || m_stop.stop_requested()) {
                return false;
            }
            const bool hasMore = m_items->next();
            const bool endsFolder = !hasMore || m_items->folderContext() != m_folder;
            if (endsFolder && !m_subwalks.empty()) {
                segment.subwalks = std::exchange(m_subwalks, {});
                m_hasItem = hasMore;
                return true;
            }
            if (!hasMore) {
                return false;
            }
        }
        if (m_items->folderContext() != m_folder) {
            beginFolder();
        }
        visit(packageVisits);
    }
    return true;
}

void InsightWalk::beginFolder()
{
    m_folder = m_items->folderContext();
    m_folderPath.reset();
    m_delegatesSubfolders = m_delegate != nullptr && m_delegate->wantsSubfolders();
    if (m_rules.plan.hasFolderRules()) {
        m_folderRules = m_rules.plan.rules(*folderPath());
    }
}

void InsightWalk::visit(std::int64_t packageVisits)
{
    const auto& values = m_items->resourceValues();
    if (!values) {
        m_segment->log.addFailure({m_items->url(), values.error().localizedDescription()});
        if (m_items->listedType() == ListedType::folder && !Platform::isPackageName(m_items->name())) {
            passOnFolder();
        }
    } else if (values->isSymbolicLink.value_or(false)) {
        m_items->skipDescendants();
        m_segment->log.addUncounted();
    } else if (values->isDirectory.value_or(false)) {
        visitFolder(*values, packageVisits);
    } else {
        visitFile(*values);
    }
}

void InsightWalk::visitFile(const Platform::ResourceValues& values)
{
    auto& log = m_segment->log;
    const auto logical = values.fileSize.value_or(0);
    const auto allocated = allocatedSizeOf(values);
    if (!values.isRegularFile.value_or(false) || (logical <= 0 && allocated < 1)) {
        log.addItem(0);
        return;
    }
    const auto mayBeListed = [&] {
        return m_folderRules.keepsEveryFile || allocated >= m_rules.configuration.minimumLargeFileBytes
            || logical >= m_rules.configuration.minimumDuplicateFileBytes
            || SecurityReview::reviewDetail(m_items->name());
    };
    if (!m_folderRules.keepsNothing && mayBeListed()) {
        m_segment->records.push_back({log.visits(), record(values)});
    }
    log.addItem(allocated);
}

void InsightWalk::visitFolder(const Platform::ResourceValues& values, std::int64_t packageVisits)
{
    const bool isFinding = SecurityReview::reviewDetail(m_items->name()).has_value();
    m_segment->log.addItem(0);
    if (!isFinding && !Platform::isPackageName(m_items->name())) {
        passOnFolder();
        return;
    }
    m_items->skipDescendants();
    auto& package = m_segment->package.emplace();
    package.url = m_items->url();
    package.inside = takePackageInventory(m_items->reference(), packageVisits, m_rules.fileManager, m_stop);
    if (isFinding && !m_folderRules.keepsNothing) {
        package.record = record(values);
    }
}

/// The current item is a folder that is entered, by this walk or by another.
void InsightWalk::passOnFolder()
{
    if (m_delegatesSubfolders) {
        m_items->skipDescendants();
        // The way back from an error to its folder must be known before the walk moves on.
        static_cast<void>(folderPath());
        m_subwalks.push_back(m_delegate->addSubfolder(m_items->reference()));
    } else {
        m_items->setContextOfDescendants(++m_lastFolder);
    }
}

FileRecord InsightWalk::record(const Platform::ResourceValues& values)
{
    FileRecord record(folderPath(), m_items->name());
    record.isDirectory = values.isDirectory.value_or(false);
    record.allocatedSizeBytes = allocatedSizeOf(values);
    record.logicalSizeBytes = record.isDirectory ? record.allocatedSizeBytes : values.fileSize.value_or(0);
    record.lastModified = values.contentModificationDate;
    record.fileNumber = values.systemFileNumber.value_or(0);
    record.deviceNumber = values.systemNumber.value_or(0);
    return record;
}

const std::shared_ptr<const std::string>& InsightWalk::folderPath()
{
    if (!m_folderPath) {
        m_folderPath = std::make_shared<const std::string>(m_items->url().deletingLastPathComponent().path());
    }
    return m_folderPath;
}

} // namespace CleanerCore
