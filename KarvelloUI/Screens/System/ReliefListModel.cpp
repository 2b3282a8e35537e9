#include "KarvelloUI/Screens/System/ReliefListModel.h"

#include "KarvelloUI/Screens/System/SystemFigures.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <algorithm>
#include <cmath>

namespace KarvelloUI {

using CleanerCore::ResourceReliefCandidate;

ReliefListModel::ReliefListModel(ResourceReliefMetric metric, QObject* parent)
    : KeyedListModel(parent)
    , m_metric(metric)
{
}

QVariant ReliefListModel::data(const QModelIndex& index, int role) const
{
    const ReliefListRow* const row = rowAt(index);
    if (row == nullptr) {
        return {};
    }
    const DashboardWords words(row->language);
    const auto& candidate = row->candidate;
    const double fraction = fractionOf(candidate).value_or(0);
    switch (role) {
    case idRole:
        return shownText(candidate.id.rawValue);
    case Qt::DisplayRole:
    case nameRole:
        return shownText(candidate.displayName);
    case identifierRole:
        return shownText(candidate.bundleIdentifier.value_or(std::string()));
    case lockReasonRole:
        return candidate.eligibility.reason ? shown(words.resourceReliefProtectionReason(*candidate.eligibility.reason))
                                            : QString();
    case isSelectableRole:
        return candidate.eligibility.isActionable;
    case isSelectedRole:
        return row->isSelected;
    case fractionRole:
        return std::isfinite(fraction) ? std::clamp(fraction, 0.0, 1.0) : 0.0;
    case isHeavyRole:
        return fraction >= kHeavyFraction;
    case percentTextRole:
        return shown(words.resourceReliefPercent(fractionOf(candidate)));
    case sizeTextRole:
        return m_metric == ResourceReliefMetric::memory && candidate.usage.residentMemoryBytes
            ? shown(SystemFigures::byteSize(*candidate.usage.residentMemoryBytes, words))
            : QString();
    case accessibleNameRole:
        return accessibleName(*row, words);
    default:
        return {};
    }
}

QHash<int, QByteArray> ReliefListModel::roleNames() const
{
    return {
        {idRole, "candidateID"},
        {nameRole, "name"},
        {identifierRole, "identifier"},
        {lockReasonRole, "lockReason"},
        {isSelectableRole, "isSelectable"},
        {isSelectedRole, "isSelected"},
        {fractionRole, "fraction"},
        {isHeavyRole, "isHeavy"},
        {percentTextRole, "percentText"},
        {sizeTextRole, "sizeText"},
        {accessibleNameRole, "accessibleName"},
    };
}

std::optional<double> ReliefListModel::fractionOf(const ResourceReliefCandidate& candidate) const
{
    return m_metric == ResourceReliefMetric::cpu ? candidate.usage.cpuFractionOfTotalCapacity
                                                 : candidate.usage.memoryFractionOfPhysicalMemory;
}

QString ReliefListModel::accessibleName(const ReliefListRow& row, const DashboardWords& words) const
{
    const auto& candidate = row.candidate;
    const std::string use =
        words.resourceReliefMetricAccessibility(candidate.displayName, m_metric, fractionOf(candidate));
    const std::string detail = words.resourceReliefCandidateDetail(candidate);
    return shownText(detail.empty() ? use : use + ", " + detail);
}

} // namespace KarvelloUI
