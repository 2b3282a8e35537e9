#pragma once

#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QtQml/qqmlregistration.h>
#include <array>
#include <cstdint>

namespace KarvelloUI {

/// `KarvelloSpoken.role`, `.checkable` and `.checked`: what an item is for assistants, whatever template it is made of. The
/// templates of Qt Quick write their own kind and state over those that an item declares as `Accessible`, and do so when an
/// assistant comes, not when the item is made; what stands here is written again each time.
class SpokenState : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(KarvelloSpoken)
    QML_ATTACHED(SpokenState)
    QML_UNCREATABLE("It belongs to an item.")

    /// Of `Accessible`.
    Q_PROPERTY(int role READ role WRITE setRole FINAL)
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable FINAL)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked FINAL)

public:
    explicit SpokenState(QObject* item);

    static SpokenState* qmlAttachedProperties(QObject* item);

    [[nodiscard]] int role() const { return m_said[kRole].toInt(); }
    [[nodiscard]] bool isCheckable() const { return m_said[kCheckable].toBool(); }
    [[nodiscard]] bool isChecked() const { return m_said[kChecked].toBool(); }
    void setRole(int role) { say(kRole, role); }
    void setCheckable(bool isCheckable) { say(kCheckable, isCheckable); }
    void setChecked(bool isChecked) { say(kChecked, isChecked); }

private:
    enum Part : std::uint8_t { kRole, kCheckable, kChecked, kParts };

    void say(Part part, const QVariant& value);
    Q_INVOKABLE void sayAgain();

    /// Invalid where the item's own kind and state hold.
    std::array<QVariant, kParts> m_said;
    /// What Qt Quick keeps of the item for assistants.
    QPointer<QObject> m_accessible;
};

} // namespace KarvelloUI
