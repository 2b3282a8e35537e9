#include "CleanerCore/Scan/ItemIdentifier.h"

#include "Platform/Base/Text.h"

namespace CleanerCore {

std::string identifyingPath(const Platform::FileURL& url)
{
    const auto& path = url.path();
    return Platform::Text::isValidUTF8(path) ? path : Platform::Text::escapingInvalidUTF8(path, "//x");
}

std::string itemIdentifier(std::string_view prefix, const Platform::FileURL& url)
{
    const auto path = identifyingPath(url);
    std::string id;
    id.reserve(prefix.size() + 1 + path.size());
    id.append(prefix).append(":").append(path);
    return id;
}

} // namespace CleanerCore
