#pragma once

#include "KarvelloUI/Copy/AppLanguage.h"
#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "Platform/Services/UserDefaults.h"

#include <QObject>
#include <functional>
#include <optional>
#include <string>

namespace KarvelloUI {

/// The language that the application speaks at the moment.
using LanguageProvider = std::function<AppLanguage()>;

/// What the stores over the stored preferences share: the last failure, and the wish to hear of what somebody else, in
/// this process or another, stores under the key. Main thread only.
class PreferenceStore : public QObject {
    Q_OBJECT

public:
    [[nodiscard]] const std::optional<std::string>& lastErrorMessage() const { return m_lastErrorMessage; }
    Q_SIGNAL void lastErrorMessageChanged();
    void clearError();

    /// Takes over what somebody else has stored. It is called for each change that the preferences tell of, and by the
    /// stores before they change anything, so that no change is lost to an older list.
    virtual void refresh() = 0;

protected:
    /// `defaults` must outlive the store.
    PreferenceStore(Platform::UserDefaults& defaults, std::string key, LanguageProvider language, QObject* parent);

    /// In the language of this moment.
    [[nodiscard]] KarvelloCopy copy() const { return {{{m_language(), CopyHost::linuxDesktop}}}; }
    void setLastErrorMessage(std::optional<std::string> message);

private:
    LanguageProvider m_language;
    std::optional<std::string> m_lastErrorMessage;
    Platform::UserDefaults::Observation m_observation;
};

} // namespace KarvelloUI
