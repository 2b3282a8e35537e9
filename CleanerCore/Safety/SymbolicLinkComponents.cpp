#include "CleanerCore/Safety/SymbolicLinkComponents.h"

#include <string>

namespace CleanerCore {

std::expected<bool, CleaningError> isSymbolicLink(
    const Platform::FileURL& url, const Platform::FileManager& fileManager)
{
    const auto values = fileManager.resourceValues(url);
    if (!values || !values->isSymbolicLink) {
        return std::unexpected(CleaningError{CleaningError::Kind::unreadableAttributes, url.path()});
    }
    return *values->isSymbolicLink;
}

std::expected<void, CleaningError> rejectSymbolicLinkComponents(const Platform::FileURL& url,
    std::optional<std::string_view> parent, const Platform::FileManager& fileManager, NameComparison comparison)
{
    const std::string& path = url.path();
    const auto parentKey = parent ? std::optional(comparisonForm(*parent, comparison)) : std::nullopt;
    if (parentKey && !equalsOrIsInside(comparisonForm(path, comparison), *parentKey)) {
        return std::unexpected(CleaningError{CleaningError::Kind::pathNotAllowed, resolvedPath(url, fileManager)});
    }
    if (url.isRoot()) {
        return {};
    }
    for (std::size_t slash = 0; slash != std::string::npos;) {
        slash = path.find('/', slash + 1);
        const auto prefix = path.substr(0, slash);
        if (parentKey && equalsOrIsInside(*parentKey, comparisonForm(prefix, comparison))) {
            continue;
        }
        const auto values = fileManager.resourceValues(Platform::FileURL(prefix));
        if (!values) {
            return std::unexpected(CleaningError{CleaningError::Kind::unreadableAttributes, prefix});
        }
        if (values->isSymbolicLink.value_or(true)) {
            return std::unexpected(CleaningError{CleaningError::Kind::symbolicLink, prefix});
        }
    }
    return {};
}

} // namespace CleanerCore
