#include "KarvelloUI/Controls/SpokenState.h"

#include <QMetaProperty>
#include <QQmlProperty>
#include <QtQml/qqml.h>

namespace KarvelloUI {

namespace {

constexpr std::array<const char*, 3> kNames{"role", "checkable", "checked"};

} // namespace

SpokenState::SpokenState(QObject* item)
    : QObject(item)
    , m_accessible(QQmlProperty(item, QStringLiteral("Accessible.role"), qmlContext(item)).object())
{
    if (m_accessible == nullptr) {
        return;
    }
    const QMetaObject* const kind = m_accessible->metaObject();
    const QMetaMethod again = metaObject()->method(metaObject()->indexOfMethod("sayAgain()"));
    for (const char* const name : kNames) {
        connect(m_accessible, kind->property(kind->indexOfProperty(name)).notifySignal(), this, again);
    }
}

SpokenState* SpokenState::qmlAttachedProperties(QObject* item)
{
    return new SpokenState(item);
}

void SpokenState::say(Part part, const QVariant& value)
{
    m_said.at(part) = value;
    sayAgain();
}

void SpokenState::sayAgain()
{
    if (m_accessible == nullptr) {
        return;
    }
    for (std::size_t part = 0; part < kParts; ++part) {
        if (m_said.at(part).isValid() && m_accessible->property(kNames.at(part)) != m_said.at(part)) {
            m_accessible->setProperty(kNames.at(part), m_said.at(part));
        }
    }
}

} // namespace KarvelloUI
