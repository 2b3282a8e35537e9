#include "KarvelloUI/Stores/CustomScanFolderStore.h"

#include "KarvelloUI/Stores/StoresCoding.h"

#include <utility>

namespace KarvelloUI {

CustomScanFolderStore::CustomScanFolderStore(Platform::UserDefaults& defaults, const Platform::Bookmarks& bookmarks,
    LanguageProvider language, std::string storageKey, QObject* parent)
    : PreferenceStore(defaults, storageKey, std::move(language), parent)
    , m_bookmarks(bookmarks)
    , m_folders(defaults, std::move(storageKey), MalformedBackup::isReadAgain)
{
    if (const auto reason = m_folders.load()) {
        setLastErrorMessage(copy().customScanFoldersLoadFailedMessage(*reason));
    }
}

bool CustomScanFolderStore::addFolder(
    const Platform::FileURL& picked, const Platform::FileManager& fileManager, Platform::Date now)
{
    auto made = CustomScanFolder::make(picked, fileManager, m_bookmarks, now);
    if (!made) {
        setLastErrorMessage(copy().customScanFoldersSaveFailedMessage(localizedDescription(made.error())));
        return false;
    }
    refresh();
    if (!replace(addingFolder(folders(), *std::move(made)))) {
        return false;
    }
    setLastErrorMessage(std::nullopt);
    return true;
}

bool CustomScanFolderStore::removeFolder(Platform::UUID id)
{
    refresh();
    auto kept = folders();
    return std::erase_if(kept, [&](const CustomScanFolder& folder) { return folder.id == id; }) > 0
        && replace(std::move(kept));
}

void CustomScanFolderStore::refresh()
{
    if (m_folders.update()) {
        Q_EMIT foldersChanged();
    }
}

bool CustomScanFolderStore::replace(std::vector<CustomScanFolder> folders)
{
    if (const auto saved = m_folders.replace(std::move(folders)); !saved) {
        setLastErrorMessage(copy().customScanFoldersSaveFailedMessage(saved.error()));
        return false;
    }
    Q_EMIT foldersChanged();
    return true;
}

} // namespace KarvelloUI
