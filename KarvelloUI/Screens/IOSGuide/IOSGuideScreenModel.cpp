#include "KarvelloUI/Screens/IOSGuide/IOSGuideScreenModel.h"

#include "KarvelloUI/Dashboard/PickerChoices.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace KarvelloUI {

namespace {

constexpr auto kSteps = Platform::allCases<IOSStorageChecklistStepID>().size();

} // namespace

IOSGuideScreenModel::IOSGuideScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_store(dashboard.services().defaults)
    , m_steps(this)
{
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, [this] {
        refresh();
        Q_EMIT wordsChanged();
        Q_EMIT backChanged();
        Q_EMIT progressChanged();
        Q_EMIT failureChanged();
    });
    connect(&dashboard, &MacCleanerDashboardModel::selectedSectionChanged, this, &IOSGuideScreenModel::followSection);
    followSection();
    refresh();
}

QString IOSGuideScreenModel::title() const
{
    return shown(m_dashboard.words().macDashboardSectionTitle(MacDashboardSection::iosGuide));
}

QString IOSGuideScreenModel::subtitle() const
{
    return shown(m_dashboard.words().iOSStorageChecklistTitle());
}

QString IOSGuideScreenModel::notice() const
{
    const auto words = m_dashboard.words();
    return shownLines(
        words.text("iOS 샌드박스 때문에 다른 앱의 캐시나 시스템 데이터를 직접 삭제할 수 없습니다. 대신 Apple이 "
                   "지원하는 경로를 따르세요.",
            "iOS sandboxing prevents direct deletion of other apps' caches or System Data. Follow Apple's "
            "supported paths instead.")
        + "\n" + words.iOSStorageChecklistSubtitle());
}

QString IOSGuideScreenModel::storageNote() const
{
    return shown(m_dashboard.words().iOSStorageChecklistStatusAccessibilityHint());
}

QString IOSGuideScreenModel::resetTitle() const
{
    return shown(m_dashboard.words().iOSStorageChecklistReset());
}

QString IOSGuideScreenModel::backTitle() const
{
    return shown(m_dashboard.words().say("Back"));
}

QString IOSGuideScreenModel::backName() const
{
    const auto words = m_dashboard.words();
    return shown(words.say("Back to {}", words.macDashboardSectionTitle(m_lastSection)));
}

QVariantList IOSGuideScreenModel::statuses() const
{
    const auto words = m_dashboard.words();
    return pickerChoices(Platform::allCases<IOSStorageChecklistStatus>(),
        [&words](IOSStorageChecklistStatus status) { return words.iOSStorageChecklistStatusName(status); });
}

QString IOSGuideScreenModel::progressText() const
{
    return shown(m_dashboard.words().iOSStorageChecklistProgress(m_reviewedCount, kSteps));
}

double IOSGuideScreenModel::progress() const
{
    return static_cast<double>(m_reviewedCount) / static_cast<double>(kSteps);
}

QString IOSGuideScreenModel::failureText() const
{
    return m_hasFailed ? shown(m_dashboard.words().say("The status of the step could not be saved.")) : QString();
}

void IOSGuideScreenModel::setStatus(const QString& step, const QString& status)
{
    const auto id = fromRawText<IOSStorageChecklistStepID>(step);
    const auto wanted = fromRawText<IOSStorageChecklistStatus>(status);
    if (id && wanted) {
        noteStored(m_store.setStatus(*wanted, *id).has_value());
    }
}

void IOSGuideScreenModel::reset()
{
    noteStored(m_store.reset().has_value());
}

void IOSGuideScreenModel::goBack()
{
    m_dashboard.selectSection(m_lastSection);
}

void IOSGuideScreenModel::noteStored(bool isStored)
{
    m_hasFailed = !isStored;
    Q_EMIT failureChanged();
    refresh();
}

void IOSGuideScreenModel::refresh()
{
    const auto words = m_dashboard.words();
    const auto statuses = m_store.statuses();
    std::vector<IOSGuideStepList::Row> rows;
    for (auto& step :
        words.iOSStorageChecklistSteps([&statuses](IOSStorageChecklistStepID id) { return statuses.at(id); })) {
        IOSGuideStepList::Row row{.step = std::move(step), .actor = {}, .pickerName = {}};
        row.actor = shown(words.iOSStorageChecklistActorName(row.step.actor));
        row.pickerName = shown(words.iOSStorageChecklistStatusPickerLabel(row.step.title));
        rows.push_back(std::move(row));
    }
    m_steps.show(std::move(rows));

    const auto reviewed = static_cast<int>(std::ranges::count_if(
        statuses, [](const auto& step) { return step.second != IOSStorageChecklistStatus::notStarted; }));
    if (std::exchange(m_reviewedCount, reviewed) != reviewed) {
        Q_EMIT progressChanged();
    }
}

void IOSGuideScreenModel::followSection()
{
    const auto section = m_dashboard.selectedSection();
    if (section == MacDashboardSection::iosGuide) {
        // Another window of the application may have stored something since.
        refresh();
    } else if (std::exchange(m_lastSection, section) != section) {
        Q_EMIT backChanged();
    }
}

} // namespace KarvelloUI
