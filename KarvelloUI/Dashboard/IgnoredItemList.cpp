#include "KarvelloUI/Dashboard/IgnoredItemList.h"

#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"
#include "Platform/Base/LocalizedText.h"

#include <utility>

namespace KarvelloUI {

void IgnoredItemList::showItems(
    const std::vector<IgnoredCleanupItem>& items, const Platform::FileURL& home, const DashboardWords& words)
{
    const Platform::HomePathAbbreviation abbreviation(home);
    std::vector<IgnoredItemRow> rows;
    rows.reserve(items.size());
    for (const auto& item : items) {
        const auto expiry =
            item.expiresAt ? Platform::LocalizedText::mediumMoment(*item.expiresAt, words.locale()) : std::string();
        rows.push_back({
            .id = item.id,
            .name = shownText(item.displayName),
            .path = shownText(abbreviation.abbreviate(item.path)),
            .size = shown(words.byteSize(item.sizeBytes)),
            .duration = shown(words.ignoredCandidateDurationDescription(item.duration, expiry)),
        });
    }
    show(std::move(rows));
}

QVariant IgnoredItemList::data(const QModelIndex& index, int role) const
{
    const IgnoredItemRow* const row = rowAt(index);
    if (row == nullptr) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case nameRole:
        return row->name;
    case pathRole:
        return row->path;
    case sizeRole:
        return row->size;
    case durationRole:
        return row->duration;
    default:
        return {};
    }
}

QHash<int, QByteArray> IgnoredItemList::roleNames() const
{
    return {{nameRole, "name"}, {pathRole, "path"}, {sizeRole, "size"}, {durationRole, "duration"}};
}

} // namespace KarvelloUI
