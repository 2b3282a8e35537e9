#include "KarvelloUI/Stores/DefaultsWatch.h"

#include <QSocketNotifier>
#include <QString>
#include <span>
#include <string>

namespace KarvelloUI {

DefaultsWatch::DefaultsWatch(Platform::FileUserDefaults& defaults, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_file(defaults.fileURL())
    , m_observation(defaults.observe([this](std::span<const std::string> changed) {
        QStringList keys;
        for (const auto& key : changed) {
            keys.append(QString::fromStdString(key));
        }
        QMetaObject::invokeMethod(this, [this, keys] { Q_EMIT keysChanged(keys); }, Qt::QueuedConnection);
    }))
{
    if (m_file.descriptor() >= 0) {
        auto* const notifier = new QSocketNotifier(m_file.descriptor(), QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, &DefaultsWatch::readChanges);
    }
    // What another process did before the watch began.
    m_defaults.refresh();
}

void DefaultsWatch::readChanges()
{
    if (m_file.takeChanges()) {
        m_defaults.refresh();
    }
}

} // namespace KarvelloUI
