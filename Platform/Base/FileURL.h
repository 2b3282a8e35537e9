#pragma once

#include <compare>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

/// Whether a URL was made for a folder. It decides the trailing slash of the URL's text and nothing else.
enum class DirectoryHint : std::uint8_t { isFile, isFolder };

/// The location of an item of the file system: an absolute path, standardised on construction, and a directory hint.
///
/// Standardising works on the text alone: empty and "." components go, ".." takes its predecessor with it (and stays
/// at the root), a trailing slash goes. Symbolic links are not looked at. The path is a sequence of bytes; it need not
/// be UTF-8, and no component but the root is empty.
class FileURL {
public:
    /// The root folder.
    FileURL() = default;
    /// A relative `path` counts from the root folder: callers that take words from a user make them absolute first.
    explicit FileURL(std::string_view path, DirectoryHint hint = DirectoryHint::isFile);
    static FileURL folder(std::string_view path) { return FileURL(path, DirectoryHint::isFolder); }

    /// Reads the text form, "file://" and a percent-encoded absolute path; a trailing slash makes a folder. Anything
    /// else, a host other than "localhost" and an encoded NUL included, gives nothing.
    static std::optional<FileURL> fromAbsoluteString(std::string_view text);
    /// The text form. Every byte outside the unreserved ASCII characters, "/" and the marks that paths allow is
    /// percent-encoded, so it is ASCII whatever the path holds, and reading it back gives an equal URL.
    [[nodiscard]] std::string absoluteString() const;

    /// Without a trailing slash, but for the root folder "/".
    [[nodiscard]] const std::string& path() const { return m_path; }
    [[nodiscard]] bool hasDirectoryPath() const { return m_hint == DirectoryHint::isFolder; }
    [[nodiscard]] bool isRoot() const { return m_path.size() == 1; }

    /// The same location with another hint; the root folder stays a folder.
    [[nodiscard]] FileURL withHint(DirectoryHint hint) &&;

    /// "/" for the root folder.
    [[nodiscard]] std::string_view lastPathComponent() const;
    /// `pathExtensionOf` the last component.
    [[nodiscard]] std::string_view pathExtension() const;
    /// "/" first, then each component. The views live as long as this URL.
    [[nodiscard]] std::vector<std::string_view> pathComponents() const;
    /// The parent folder; the root folder's is itself.
    [[nodiscard]] FileURL deletingLastPathComponent() const;
    [[nodiscard]] FileURL appending(std::string_view relativePath, DirectoryHint hint = DirectoryHint::isFile) const;
    /// `appending` for the name of an entry as the system gave it: one component, neither empty, "." nor "..".
    [[nodiscard]] FileURL child(std::string_view entryName, DirectoryHint hint) const
    {
        return entry(m_path, entryName, hint);
    }
    /// The entry `entryName` of the folder at `folderPath`, which is standardised.
    static FileURL entry(std::string_view folderPath, std::string_view entryName, DirectoryHint hint);

    friend bool operator==(const FileURL&, const FileURL&) = default;
    friend auto operator<=>(const FileURL&, const FileURL&) = default;

private:
    std::string m_path = "/";
    DirectoryHint m_hint = DirectoryHint::isFolder;
};

/// What follows the last point of a name, without it; empty for none, and for a name that only begins with its point.
[[nodiscard]] std::string_view pathExtensionOf(std::string_view name);

/// True if `path` lies strictly below `parent`: it begins with `parent` and a slash. Both are standardised paths, and
/// the comparison is by bytes. Nothing lies inside "/" by this rule, since the root folder already ends in its slash.
[[nodiscard]] bool isPathInside(std::string_view path, std::string_view parent);

} // namespace Platform

template <>
struct std::hash<Platform::FileURL> {
    std::size_t operator()(const Platform::FileURL& url) const noexcept
    {
        return std::hash<std::string>{}(url.path()) * 2 + (url.hasDirectoryPath() ? 1U : 0U);
    }
};
