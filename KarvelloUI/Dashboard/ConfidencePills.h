#pragma once

#include "CleanerCore/Cleaning/CleanupSelectionPreview.h"
#include "KarvelloUI/Dashboard/DashboardWords.h"

#include <QMetaType>
#include <QString>
#include <QVariantList>
#include <cstdint>

namespace KarvelloUI {

/// How many of some candidates have one level of safety.
struct ConfidencePill {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    Q_PROPERTY(int kind MEMBER kind CONSTANT FINAL)

public:
    QString text = {};
    /// A `KarvelloPillKind`; what there is none of is neutral.
    int kind = 0;
};

enum class PillsOfNone : std::uint8_t { shown, leftOut };

/// List of `ConfidencePill`, in the order of the levels.
[[nodiscard]] QVariantList confidencePills(
    const DashboardWords& words, const CleanerCore::CleanupSafetyBreakdown& counts, PillsOfNone ofNone);

} // namespace KarvelloUI
