#pragma once

#include <QMetaType>
#include <QString>
#include <qqml.h>

namespace KarvelloUI {

/// A line of a table, or a figure with its caption.
struct NamedValue {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString value MEMBER value CONSTANT FINAL)

public:
    QString name = {};
    QString value = {};

    friend bool operator==(const NamedValue&, const NamedValue&) = default;
};

} // namespace KarvelloUI
