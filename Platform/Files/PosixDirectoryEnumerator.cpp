#include "Platform/Files/PosixDirectoryEnumerator.h"

#include "Platform/Files/PackageNames.h"
#include "Platform/Files/PosixResourceValues.h"

#include <utility>

namespace Platform {

PosixDirectoryEnumerator::PosixDirectoryEnumerator(
    std::shared_ptr<const FolderHandle> root, EnumerationOptions options, EnumerationErrorHandler onError)
    : m_trail(std::move(root))
    , m_options(options)
    , m_onError(std::move(onError))
{
    m_listing.start(m_trail->descriptor());
}

PosixDirectoryEnumerator::PosixDirectoryEnumerator(FileError failure, EnumerationErrorHandler onError)
    : m_onError(std::move(onError))
    , m_failure(std::move(failure))
{
}

bool PosixDirectoryEnumerator::next()
{
    if (m_failure) {
        if (m_onError) {
            m_onError(FileURL::folder(m_failure->path), *m_failure);
        }
        m_failure.reset();
    }
    if (!m_trail) {
        return false;
    }
    rememberCurrentFolder();
    while (true) {
        const auto entry = m_listing.next();
        if (entry && *entry) {
            if (m_options.skipsHiddenFiles && isHiddenName((*entry)->name)) {
                continue;
            }
            m_entry = **entry;
            m_hasEntry = true;
            m_skipsDescendants = false;
            m_contextOfDescendants = 0;
            m_values.reset();
            return true;
        }
        if (!entry && !report(FileURL::folder(m_trail->path()), entry.error())) {
            return end();
        }
        if (!enterNextFolder()) {
            return end();
        }
    }
}

/// Puts the item that is being left among the folders to enter, if it is one.
void PosixDirectoryEnumerator::rememberCurrentFolder()
{
    if (!std::exchange(m_hasEntry, false) || m_skipsDescendants || m_options.skipsSubdirectoryDescendants) {
        return;
    }
    if (!currentIsFolder() || (m_options.skipsPackageDescendants && isPackageName(m_entry.name))) {
        return;
    }
    m_trail->remember(m_entry.name, m_contextOfDescendants);
}

bool PosixDirectoryEnumerator::currentIsFolder()
{
    if (m_entry.type != ListedType::unknown) {
        return m_entry.type == ListedType::folder;
    }
    const auto& values = resourceValues();
    return values && values->isDirectory.value_or(false);
}

bool PosixDirectoryEnumerator::enterNextFolder()
{
    while (true) {
        const auto entered = m_trail->enterNext();
        if (entered) {
            if (*entered) {
                m_listing.start(m_trail->descriptor());
            }
            return *entered;
        }
        if (!report(entered.error().url, entered.error().systemError)) {
            return false;
        }
    }
}

bool PosixDirectoryEnumerator::report(const FileURL& url, int systemError)
{
    if (!m_onError) {
        return true;
    }
    const auto error = FileError::fromSystemError(systemError, FileOperation::read, url.path());
    return m_onError(url, error) == EnumerationErrorAnswer::goOn;
}

bool PosixDirectoryEnumerator::end()
{
    m_trail.reset();
    return false;
}

const std::expected<ResourceValues, FileError>& PosixDirectoryEnumerator::resourceValues()
{
    if (!m_values) {
        if (const auto status = readItemStatus(m_trail->descriptor(), m_entry.name.data(), StatusDetail::walk)) {
            m_values.emplace(resourceValuesOf(*status, &m_trail->rootStatus()));
        } else {
            m_values.emplace(
                std::unexpected(FileError::fromSystemError(status.error(), FileOperation::read, url().path())));
        }
    }
    return *m_values;
}

FileURL PosixDirectoryEnumerator::url() const
{
    return FileURL::entry(m_trail->path(), m_entry.name, hint());
}

ItemReference PosixDirectoryEnumerator::reference() const
{
    return {m_trail->sharedFolder(), m_entry.name, hint()};
}

} // namespace Platform
