#pragma once

#include <QMetaType>
#include <QString>
#include <cstdint>
#include <qqml.h>

namespace KarvelloUI {

/// How much a figure of the machine asks for a look. The words beside it say the same.
namespace PopoverLevel {
Q_NAMESPACE
QML_ELEMENT

// QML reads only enumerators with a capital letter.
// NOLINTNEXTLINE(readability-identifier-naming)
enum Value : std::uint8_t { Calm, Warning, Critical };
Q_ENUM_NS(Value)
} // namespace PopoverLevel

/// A figure with its bar.
struct PopoverMetric {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString iconName MEMBER iconName CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString value MEMBER value CONSTANT FINAL)
    Q_PROPERTY(double fraction MEMBER fraction CONSTANT FINAL)
    Q_PROPERTY(int level MEMBER level CONSTANT FINAL)

public:
    QString iconName = {};
    QString title = {};
    QString value = {};
    /// From 0 to 1.
    double fraction = 0;
    /// A `PopoverLevel::Value`.
    int level = PopoverLevel::Calm;

    friend bool operator==(const PopoverMetric&, const PopoverMetric&) = default;
};

} // namespace KarvelloUI
