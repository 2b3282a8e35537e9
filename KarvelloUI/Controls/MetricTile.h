#pragma once

#include "KarvelloUI/Design/KarvelloPill.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <qqml.h>

namespace KarvelloUI {

/// What a `KarvelloMetricTile` shows: a figure of the machine, what is said of it, and its course. A part that is empty is
/// left out.
struct MetricTile {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString iconName MEMBER iconName CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString note MEMBER note CONSTANT FINAL)
    Q_PROPERTY(QString pillText MEMBER pillText CONSTANT FINAL)
    Q_PROPERTY(int pillKind MEMBER pillKind CONSTANT FINAL)
    Q_PROPERTY(QString figure MEMBER figure CONSTANT FINAL)
    Q_PROPERTY(QString unit MEMBER unit CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    Q_PROPERTY(QList<double> samples MEMBER samples CONSTANT FINAL)
    Q_PROPERTY(QString emptyText MEMBER emptyText CONSTANT FINAL)
    Q_PROPERTY(QString accessibleValue MEMBER accessibleValue CONSTANT FINAL)
    Q_PROPERTY(double fraction MEMBER fraction CONSTANT FINAL)

public:
    QString iconName = {};
    QString name = {};
    /// A word beside the name, where there is room for it.
    QString note = {};
    QString pillText = {};
    /// A `KarvelloPillKind`.
    int pillKind = static_cast<int>(KarvelloPillKind::neutral);
    QString figure = {};
    QString unit = {};
    QString text = {};
    /// From 0 to 1, the oldest first.
    QList<double> samples = {};
    /// In place of a course that has too few samples.
    QString emptyText = {};
    /// The course in words.
    QString accessibleValue = {};
    /// For a tile with a bar, from 0 to 1.
    double fraction = 0;

    friend bool operator==(const MetricTile&, const MetricTile&) = default;
};

} // namespace KarvelloUI
