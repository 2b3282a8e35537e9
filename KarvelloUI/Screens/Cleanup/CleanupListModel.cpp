#include "KarvelloUI/Screens/Cleanup/CleanupListModel.h"

#include "KarvelloUI/Design/KarvelloPill.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <cmath>
#include <utility>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;

QString iconOf(CleanupCategory category)
{
    switch (category) {
    case CleanupCategory::userCaches:
        return QStringLiteral("disk");
    case CleanupCategory::userLogs:
        return QStringLiteral("list");
    case CleanupCategory::xcodeDerivedData:
    case CleanupCategory::simulatorCaches:
    case CleanupCategory::xcodeDeviceSupport:
        return QStringLiteral("code");
    case CleanupCategory::appSandboxCaches:
    case CleanupCategory::appContainerCaches:
    case CleanupCategory::groupContainerCaches:
        return QStringLiteral("application");
    case CleanupCategory::developerToolCaches:
        return QStringLiteral("terminal");
    case CleanupCategory::packageManagerCaches:
    case CleanupCategory::buildArchives:
        return QStringLiteral("archive");
    case CleanupCategory::temporaryFiles:
        return QStringLiteral("clock");
    case CleanupCategory::customFolder:
        return QStringLiteral("folder");
    }
    return QStringLiteral("file");
}

KarvelloPillKind pillOf(CleanupSafety safety)
{
    switch (safety) {
    case CleanupSafety::safe:
        return KarvelloPillKind::safe;
    case CleanupSafety::caution:
        return KarvelloPillKind::caution;
    case CleanupSafety::manualReview:
        return KarvelloPillKind::review;
    }
    return KarvelloPillKind::neutral;
}

} // namespace

CleanupListModel::CleanupListModel(const CandidateSelection& selection, const Platform::FileURL& home, QObject* parent)
    : CandidateListModel(selection, parent, CandidateListHeaders::rows)
    , m_home(home)
{
    setWords(m_words);
}

QVariant CleanupListModel::data(const QModelIndex& index, int role) const
{
    if (role < derivedRole) {
        return CandidateListModel::data(index, role);
    }
    const auto* const candidate = this->candidate(index.row());
    switch (role) {
    case contentRole:
        return candidate == nullptr ? QVariant::fromValue(CleanupRow()) : QVariant::fromValue(content(*candidate));
    case headRole:
        return candidate == nullptr ? headOf(index.row()) : QVariant::fromValue(CleanupSectionHead());
    case spokenRole: {
        if (candidate == nullptr) {
            return QString();
        }
        const auto& context = candidate->appCacheContext;
        const auto advisory = m_words.developerCleanupAdvisory(candidate->category, candidate->url.path());
        return shownText(m_words.cleanupCandidateAccessibilityLabel(*candidate,
            context ? m_words.appCacheContextSummary(*context) : std::string(),
            advisory ? advisory->summary : std::string()));
    }
    case isOpenRole:
        return candidate != nullptr && isOpen(candidate->id);
    default:
        return {};
    }
}

QHash<int, QByteArray> CleanupListModel::roleNames() const
{
    auto names = CandidateListModel::roleNames();
    names.insert(contentRole, "content");
    names.insert(headRole, "head");
    names.insert(spokenRole, "spoken");
    names.insert(isOpenRole, "isOpen");
    return names;
}

void CleanupListModel::showAt(Platform::Date now, std::shared_ptr<const CandidateIndex> index,
    const std::vector<CandidateListSection>& sections, const DashboardWords& words)
{
    m_now = now;
    m_ages.clear();
    if (words.language != m_words.language) {
        setWords(words);
    }
    std::erase_if(m_openIDs, [&index](const std::string& id) { return !index->position(id); });
    show(std::move(index), sections, words);
}

void CleanupListModel::setOpen(const std::string& candidateID, bool isOpen)
{
    const int row = this->row(candidateID);
    const bool isChanged = isOpen ? row >= 0 && m_openIDs.insert(candidateID).second : m_openIDs.erase(candidateID) > 0;
    if (isChanged && row >= 0) {
        const auto changed = index(row);
        Q_EMIT dataChanged(changed, changed, {isOpenRole});
    }
}

QVariant CleanupListModel::headOf(int row) const
{
    const auto* const section = this->section(row);
    return QVariant::fromValue(section == nullptr ? CleanupSectionHead() : head(*section));
}

bool CleanupListModel::isHead(int row) const
{
    const auto* const section = this->section(row);
    return section != nullptr && section->headerRow == row;
}

void CleanupListModel::setWords(const DashboardWords& words)
{
    m_words = words;
    for (const auto category : Platform::allCases<CleanupCategory>()) {
        m_reasons[static_cast<std::size_t>(category)] =
            shown(words.recommendationReason(CleanerCore::recommendationReason(category)));
    }
    for (const auto safety : Platform::allCases<CleanupSafety>()) {
        m_pills[static_cast<std::size_t>(safety)] = shown(words.safetyName(safety));
    }
}

CleanupRow CleanupListModel::content(const CleanupCandidate& candidate) const
{
    return {.name = shownText(candidate.displayName),
        .path = shownText(m_home.abbreviate(candidate.url.path())),
        .reason = m_reasons[static_cast<std::size_t>(candidate.category)],
        .warning = warning(candidate),
        .age = age(candidate.lastModified),
        .size = shown(m_words.byteSize(candidate.sizeBytes)),
        .iconName = iconOf(candidate.category),
        .pillText = m_pills[static_cast<std::size_t>(candidate.safety)],
        .pillKind = static_cast<int>(pillOf(candidate.safety))};
}

CleanupSectionHead CleanupListModel::head(const CandidateListRows::Section& section) const
{
    const auto count = static_cast<std::int64_t>(section.candidates.size());
    const auto note = section.defaultCount == 0 ? m_words.text("자동 선택되지 않음", "Not auto-selected")
        : section.defaultCount == count         ? m_words.text("자동 선택됨", "Auto-selected")
                                                : m_words.say("{} auto-selected", section.defaultCount);
    return {.id = section.id,
        .name = section.title,
        .count = shown(m_words.cleanupPreviewItemCount(count)),
        .note = shown(note),
        .total = shown(m_words.byteSize(section.bytes)),
        .selection = shown(m_words.visibleBulkSelectionAccessibilityValue(section.selectedCount, count)),
        .checkState = section.selectedCount == 0 ? Qt::Unchecked
            : section.selectedCount == count     ? Qt::Checked
                                                 : Qt::PartiallyChecked,
        .isOpen = section.isOpen,
        .openText = shown(section.isOpen ? m_words.text("펼쳐짐", "Expanded") : m_words.text("접힘", "Collapsed")),
        .row = section.headerRow};
}

QString CleanupListModel::age(std::optional<Platform::Date> lastModified) const
{
    if (!lastModified) {
        return {};
    }
    const auto days = static_cast<qint64>(std::floor(m_now.secondsSince(*lastModified) / 86'400));
    auto known = m_ages.find(days);
    if (known == m_ages.end()) {
        known = m_ages.insert(days, shown(m_words.reviewAgeText(*lastModified, m_now)));
    }
    return *known;
}

QString CleanupListModel::warning(const CleanupCandidate& candidate) const
{
    const auto& context = candidate.appCacheContext;
    if (!context || context->runningState != CleanerCore::AppCacheRunningState::running) {
        return {};
    }
    return context->matchedRunningDisplayName
        ? shownText(m_words.say("{} is running", *context->matchedRunningDisplayName))
        : shown(m_words.text("일치하는 앱 실행 중", "matching app is running"));
}

} // namespace KarvelloUI
