#include "KarvelloUI/Screens/Home/ReviewLoopModel.h"

#include "KarvelloUI/Dashboard/PickerChoices.h"
#include "Platform/Base/LocalizedText.h"

#include <utility>

namespace KarvelloUI {

namespace {

std::string cadenceName(CleanupReviewCadence cadence, const DashboardWords& words)
{
    switch (cadence) {
    case CleanupReviewCadence::off:
        return words.text("끔", "Off");
    case CleanupReviewCadence::weekly:
        return words.text("매주", "Weekly");
    case CleanupReviewCadence::monthly:
        return words.text("30일마다", "Every 30 days");
    }
    return {};
}

/// The catalogue's tables do not know the days to come.
std::string statusOf(const CleanupReviewCadenceStatus& status, const DashboardWords& words)
{
    const std::int64_t days = status.daysUntilNextReview.value_or(0);
    return status.kind == CleanupReviewCadenceStatusKind::upcoming
        ? words.count(days, "Next review in {} day.", "Next review in {} days.")
        : words.cleanupReviewCadenceStatus(status.kind, days);
}

} // namespace

ReviewLoopModel::ReviewLoopModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_refresh(dashboard, {MacDashboardSection::dashboard, MacDashboardSection::reviewEvidence}, [this] { refresh(); })
{
    const auto request = [this] { m_refresh.request(); };
    const auto& preferences = dashboard.reviewPreferences();
    connect(&preferences, &CleanupReviewPreferencesStore::cadenceChanged, this, request);
    connect(&preferences, &CleanupReviewPreferencesStore::selectedProfileIDChanged, this, request);
    connect(&preferences, &CleanupReviewPreferencesStore::lastReviewedAtChanged, this, request);
    connect(&dashboard.cleaner(), &CleanerViewModel::ignoredItemsChanged, this, request);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, request);
    // A review becomes due while somebody looks, or by the time somebody looks again.
    const auto requestIfTimeTells = [this] {
        if (status() != m_status) {
            m_refresh.request();
        }
    };
    connect(&dashboard.insights(), &MacInsightsViewModel::systemMetricsChanged, this, requestIfTimeTells);
    connect(&dashboard, &MacCleanerDashboardModel::selectedSectionChanged, this, requestIfTimeTells);
    refresh();
}

CleanupReviewCadenceStatus ReviewLoopModel::status() const
{
    const auto& preferences = m_dashboard.reviewPreferences();
    return reviewStatus(preferences.cadence(), preferences.lastReviewedAt(), m_dashboard.services().session.now());
}

ReviewLoopModel::State ReviewLoopModel::made() const
{
    const auto words = m_dashboard.words();
    const auto& preferences = m_dashboard.reviewPreferences();
    const auto& profile = preferences.selectedProfile();
    const auto lastReview = preferences.lastReviewedAt();

    State state{
        .title = shown(words.text("정기 안전 검토", "Recurring Safety Review")),
        .subtitle = shown(words.text("알림만 표시 · 자동 삭제 안 함", "Reminders only · never auto-delete")),
        .statusText = shown(statusOf(m_status, words)),
        .isDue = m_status.kind == CleanupReviewCadenceStatusKind::due,
        .lastReviewText = lastReview
            ? shown(words.say("Last reviewed: {}", Platform::LocalizedText::shortDay(*lastReview, words.locale())))
            : QString(),
        .cadenceTitle = shown(words.text("검토 주기", "Review cadence")),
        .cadences = pickerChoices(Platform::allCases<CleanupReviewCadence>(),
            [&words](CleanupReviewCadence cadence) { return cadenceName(cadence, words); }),
        .cadence = rawText(preferences.cadence()),
        .profileTitle = shown(words.text("정리 프로필", "Cleanup Profiles")),
        .profiles = {},
        .profileIndex = 0,
        .profileSummary = shown(words.cleanupReviewProfileSummary(
            profile.scanMode, profile.categories, std::ssize(m_dashboard.cleaner().ignoredItems()))),
        .guardrail = shown(words.cleanupReviewProfileGuardrail(profile.scanMode)),
        .markReviewedTitle = shown(words.text("검토 완료로 표시", "Mark reviewed")),
        .openReviewTitle = shown(words.smartCleanupTitle(StorageRecommendationKind::cleanupReview)),
        .failureText = m_hasFailed ? shown(words.say("The choice could not be saved.")) : QString(),
    };
    for (const auto& offered : CleanupReviewProfile::builtIn()) {
        if (offered.id == profile.id) {
            state.profileIndex = static_cast<int>(state.profiles.size());
        }
        state.profiles.append(pickerChoice(rawText(offered.id), words.cleanupReviewProfileName(offered.id)));
    }
    return state;
}

void ReviewLoopModel::refresh()
{
    m_status = status();
    State state = made();
    if (state != m_state) {
        m_state = std::move(state);
        Q_EMIT changed();
    }
}

void ReviewLoopModel::noteStored(bool isStored)
{
    m_hasFailed = !isStored;
    refresh();
}

void ReviewLoopModel::chooseCadence(const QString& rawValue)
{
    if (const auto cadence = fromRawText<CleanupReviewCadence>(rawValue)) {
        noteStored(m_dashboard.reviewPreferences().setCadence(*cadence));
    }
}

void ReviewLoopModel::chooseProfile(const QString& rawValue)
{
    if (const auto id = fromRawText<CleanupReviewProfileID>(rawValue)) {
        noteStored(m_dashboard.reviewPreferences().selectProfile(*id));
    }
}

void ReviewLoopModel::markReviewed()
{
    noteStored(m_dashboard.reviewPreferences().markReviewed(m_dashboard.services().session.now()));
}

void ReviewLoopModel::openReview()
{
    m_dashboard.selectSection(MacDashboardSection::cleanup);
}

} // namespace KarvelloUI
