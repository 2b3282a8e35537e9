#pragma once

#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Stores/SystemMetricHistory.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <qqml.h>

namespace KarvelloUI {

/// A large chart with its figure and what is said beside both.
struct LoadChart {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString pillText MEMBER pillText CONSTANT FINAL)
    Q_PROPERTY(int pillKind MEMBER pillKind CONSTANT FINAL)
    Q_PROPERTY(QString note MEMBER note CONSTANT FINAL)
    Q_PROPERTY(QString figure MEMBER figure CONSTANT FINAL)
    Q_PROPERTY(QString firstLine MEMBER firstLine CONSTANT FINAL)
    Q_PROPERTY(QString secondLine MEMBER secondLine CONSTANT FINAL)
    Q_PROPERTY(QList<double> samples MEMBER samples CONSTANT FINAL)
    Q_PROPERTY(QStringList axisWords MEMBER axisWords CONSTANT FINAL)
    Q_PROPERTY(QString startText MEMBER startText CONSTANT FINAL)
    Q_PROPERTY(QString endText MEMBER endText CONSTANT FINAL)
    Q_PROPERTY(QString emptyText MEMBER emptyText CONSTANT FINAL)
    Q_PROPERTY(QString accessibleValue MEMBER accessibleValue CONSTANT FINAL)

public:
    QString title = {};
    QString pillText = {};
    /// A `KarvelloPillKind`.
    int pillKind = 0;
    QString note = {};
    QString figure = {};
    QString firstLine = {};
    QString secondLine = {};
    QList<double> samples = {};
    QStringList axisWords = {};
    QString startText = {};
    QString endText = {};
    /// In place of the line while there are fewer than two samples.
    QString emptyText = {};
    QString accessibleValue = {};

    /// How the processors work at this moment.
    static LoadChart livePulse(const CleanerCore::SystemResourceSnapshot& snapshot, const SystemMetricHistory& history,
        const DashboardWords& words);
    /// How hard they work, and whether it becomes more.
    static LoadChart cpuLoad(const CleanerCore::SystemResourceSnapshot& snapshot, const SystemMetricHistory& history,
        const DashboardWords& words);
    static LoadChart memoryPressure(const CleanerCore::SystemResourceSnapshot& snapshot,
        const SystemMetricHistory& history, const DashboardWords& words);

    friend bool operator==(const LoadChart&, const LoadChart&) = default;
};

} // namespace KarvelloUI
