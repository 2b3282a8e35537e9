#pragma once

#include <QColor>
#include <QMetaType>
#include <QString>
#include <qqml.h>

namespace KarvelloUI {

/// One folder of the size map, as its cell and its row in the table show it.
struct StorageMapArea {
    Q_GADGET
    QML_ANONYMOUS
    /// The position in the report on show.
    Q_PROPERTY(int id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString path MEMBER path CONSTANT FINAL)
    Q_PROPERTY(QString sizeText MEMBER sizeText CONSTANT FINAL)
    /// The number of items with and without its word.
    Q_PROPERTY(QString countText MEMBER countText CONSTANT FINAL)
    Q_PROPERTY(QString shortCountText MEMBER shortCountText CONSTANT FINAL)
    /// Empty where all was counted.
    Q_PROPERTY(QString partialText MEMBER partialText CONSTANT FINAL)
    Q_PROPERTY(QString shareText MEMBER shareText CONSTANT FINAL)
    /// All of it in a line.
    Q_PROPERTY(QString detailText MEMBER detailText CONSTANT FINAL)
    Q_PROPERTY(QColor tint MEMBER tint CONSTANT FINAL)
    /// The place of the cell in the unit square; what has no size has no cell, and only the table has it.
    Q_PROPERTY(double x MEMBER x CONSTANT FINAL)
    Q_PROPERTY(double y MEMBER y CONSTANT FINAL)
    Q_PROPERTY(double width MEMBER width CONSTANT FINAL)
    Q_PROPERTY(double height MEMBER height CONSTANT FINAL)

public:
    int id = 0;
    QString name = {};
    QString path = {};
    QString sizeText = {};
    QString countText = {};
    QString shortCountText = {};
    QString partialText = {};
    QString shareText = {};
    QString detailText = {};
    QColor tint = {};
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

/// What one colour of the map stands for.
struct StorageMapLegendEntry {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QColor tint MEMBER tint CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)

public:
    QColor tint = {};
    QString text = {};
};

} // namespace KarvelloUI
