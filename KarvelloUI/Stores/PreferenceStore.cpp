#include "KarvelloUI/Stores/PreferenceStore.h"

#include <QMetaObject>
#include <algorithm>
#include <span>
#include <utility>

namespace KarvelloUI {

PreferenceStore::PreferenceStore(
    Platform::UserDefaults& defaults, std::string key, LanguageProvider language, QObject* parent)
    : QObject(parent)
    , m_language(std::move(language))
{
    // The observer may be called on any thread.
    m_observation = defaults.observe([this, key = std::move(key)](std::span<const std::string> keys) {
        if (std::find(keys.begin(), keys.end(), key) != keys.end()) {
            QMetaObject::invokeMethod(this, [this] { refresh(); }, Qt::QueuedConnection);
        }
    });
}

void PreferenceStore::clearError()
{
    setLastErrorMessage(std::nullopt);
}

void PreferenceStore::setLastErrorMessage(std::optional<std::string> message)
{
    if (message != m_lastErrorMessage) {
        m_lastErrorMessage = std::move(message);
        Q_EMIT lastErrorMessageChanged();
    }
}

} // namespace KarvelloUI
