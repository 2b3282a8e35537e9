#include "Platform/Base/FileURL.h"

#include "Platform/Base/PercentEncoding.h"

#include <algorithm>
#include <utility>

namespace Platform {

namespace {

bool isStandardised(std::string_view path)
{
    if (path.empty() || path.front() != '/') {
        return false;
    }
    if (path.size() == 1) {
        return true;
    }
    if (path.back() == '/') {
        return false;
    }
    for (std::size_t slash = 0; slash != std::string_view::npos; slash = path.find('/', slash + 1)) {
        const auto rest = path.substr(slash + 1);
        const auto component = rest.substr(0, rest.find('/'));
        if (component.empty() || component == "." || component == "..") {
            return false;
        }
    }
    return true;
}

std::string standardised(std::string_view path)
{
    if (isStandardised(path)) {
        return std::string(path);
    }
    std::string result;
    result.reserve(path.size() + 1);
    while (!path.empty()) {
        const auto slash = path.find('/');
        const auto component = path.substr(0, slash);
        path.remove_prefix(slash == std::string_view::npos ? path.size() : slash + 1);
        if (component.empty() || component == ".") {
            continue;
        }
        if (component == "..") {
            result.resize(result.empty() ? 0 : result.rfind('/'));
            continue;
        }
        result += '/';
        result += component;
    }
    return result.empty() ? "/" : result;
}

} // namespace

FileURL::FileURL(std::string_view path, DirectoryHint hint)
    : m_path(standardised(path))
    , m_hint(m_path.size() == 1 ? DirectoryHint::isFolder : hint)
{
}

std::optional<FileURL> FileURL::fromAbsoluteString(std::string_view text)
{
    constexpr std::string_view scheme = "file://";
    if (!text.starts_with(scheme)) {
        return std::nullopt;
    }
    text.remove_prefix(scheme.size());
    if (text.starts_with("localhost/")) {
        text.remove_prefix(std::string_view("localhost").size());
    }
    if (!text.starts_with('/') || text.find_first_of(std::string_view("?#\0", 3)) != std::string_view::npos) {
        return std::nullopt;
    }
    const auto path = percentDecoded(text);
    if (!path) {
        return std::nullopt;
    }
    return FileURL(*path, text.ends_with('/') ? DirectoryHint::isFolder : DirectoryHint::isFile);
}

std::string FileURL::absoluteString() const
{
    std::string text = "file://" + percentEncoded(m_path);
    if (hasDirectoryPath() && !isRoot()) {
        text += '/';
    }
    return text;
}

FileURL FileURL::withHint(DirectoryHint hint) &&
{
    m_hint = isRoot() ? DirectoryHint::isFolder : hint;
    return std::move(*this);
}

std::string_view FileURL::lastPathComponent() const
{
    return isRoot() ? std::string_view(m_path) : std::string_view(m_path).substr(m_path.rfind('/') + 1);
}

std::string_view FileURL::pathExtension() const
{
    return pathExtensionOf(lastPathComponent());
}

std::vector<std::string_view> FileURL::pathComponents() const
{
    std::vector<std::string_view> components{std::string_view(m_path).substr(0, 1)};
    auto rest = std::string_view(m_path).substr(1);
    while (!rest.empty()) {
        const auto slash = std::min(rest.find('/'), rest.size());
        components.push_back(rest.substr(0, slash));
        rest.remove_prefix(std::min(slash + 1, rest.size()));
    }
    return components;
}

FileURL FileURL::deletingLastPathComponent() const
{
    FileURL parent;
    parent.m_path = m_path.substr(0, std::max<std::size_t>(m_path.rfind('/'), 1));
    return parent;
}

FileURL FileURL::appending(std::string_view relativePath, DirectoryHint hint) const
{
    std::string joined;
    joined.reserve(m_path.size() + 1 + relativePath.size());
    joined.append(m_path).append("/").append(relativePath);
    return FileURL(joined, hint);
}

FileURL FileURL::entry(std::string_view folderPath, std::string_view entryName, DirectoryHint hint)
{
    FileURL url;
    url.m_path.clear();
    url.m_path.reserve(folderPath.size() + 1 + entryName.size());
    if (folderPath.size() > 1) {
        url.m_path.append(folderPath);
    }
    url.m_path.append("/").append(entryName);
    url.m_hint = hint;
    return url;
}

std::string_view pathExtensionOf(std::string_view name)
{
    const auto point = name.rfind('.');
    return point == std::string_view::npos || point == 0 ? std::string_view() : name.substr(point + 1);
}

bool isPathInside(std::string_view path, std::string_view parent)
{
    return path.size() > parent.size() && path.starts_with(parent) && path[parent.size()] == '/';
}

} // namespace Platform
