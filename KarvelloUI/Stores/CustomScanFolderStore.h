#pragma once

#include "KarvelloUI/Stores/CustomScanFolder.h"
#include "KarvelloUI/Stores/PreferenceStore.h"
#include "KarvelloUI/Stores/StoredJSON.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Base/UUID.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Bookmarks.h"

#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// The folders that the user added to the scan.
class CustomScanFolderStore final : public PreferenceStore {
    Q_OBJECT

public:
    static constexpr std::string_view defaultStorageKey = "karvello.customScanFolders.v1";

    /// Loads the list. `defaults` and `bookmarks` must outlive the store.
    CustomScanFolderStore(Platform::UserDefaults& defaults, const Platform::Bookmarks& bookmarks,
        LanguageProvider language, std::string storageKey = std::string(defaultStorageKey), QObject* parent = nullptr);

    Q_PROPERTY(int count READ count NOTIFY foldersChanged)
    /// By name, as of the last one that was added.
    [[nodiscard]] const std::vector<CustomScanFolder>& folders() const { return m_folders.value(); }
    [[nodiscard]] int count() const { return static_cast<int>(folders().size()); }
    Q_SIGNAL void foldersChanged();

    /// Whether the folder is in the list now, instead of any that had its path. Otherwise the list stays, and
    /// `lastErrorMessage` says why.
    bool addFolder(const Platform::FileURL& picked, const Platform::FileManager& fileManager,
        Platform::Date now = Platform::Date::now());
    /// False for a folder that is not in the list, or that could not be taken out. The id may be that of a folder here, and
    /// these may be others before it is looked for.
    bool removeFolder(Platform::UUID id);

    void refresh() override;

private:
    bool replace(std::vector<CustomScanFolder> folders);

    const Platform::Bookmarks& m_bookmarks;
    StoredJSON<std::vector<CustomScanFolder>> m_folders;
};

} // namespace KarvelloUI
