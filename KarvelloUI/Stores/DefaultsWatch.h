#pragma once

#include "Platform/Linux/FileWatch.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Platform/Services/UserDefaults.h"

#include <QObject>
#include <QStringList>

namespace KarvelloUI {

/// Tells the main thread of changed preferences, whoever changed them: this process on any thread, or another one.
class DefaultsWatch final : public QObject {
    Q_OBJECT

public:
    /// `defaults` must outlive this object, which belongs to the main thread.
    explicit DefaultsWatch(Platform::FileUserDefaults& defaults, QObject* parent = nullptr);

Q_SIGNALS:
    /// Emitted from the event loop, never within the call that made a change.
    void keysChanged(const QStringList& keys);

private:
    void readChanges();

    Platform::FileUserDefaults& m_defaults;
    Platform::FileWatch m_file;
    Platform::UserDefaults::Observation m_observation;
};

} // namespace KarvelloUI
