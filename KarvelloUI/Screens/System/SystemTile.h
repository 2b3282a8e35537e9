#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <qqml.h>

namespace KarvelloUI {

/// A figure of the machine as a tile shows it.
struct SystemTile {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
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
    QString name = {};
    QString pillText = {};
    /// A `KarvelloPillKind`.
    int pillKind = 0;
    QString figure = {};
    QString unit = {};
    QString text = {};
    QList<double> samples = {};
    QString emptyText = {};
    QString accessibleValue = {};
    /// For a tile with a bar, from 0 to 1.
    double fraction = 0;

    friend bool operator==(const SystemTile&, const SystemTile&) = default;
};

/// A line of a table of facts.
struct SystemFact {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString value MEMBER value CONSTANT FINAL)

public:
    QString name = {};
    QString value = {};

    friend bool operator==(const SystemFact&, const SystemFact&) = default;
};

} // namespace KarvelloUI
