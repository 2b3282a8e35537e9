#pragma once

#include "CleanerCore/Scan/ScanLocation.h"
#include "CleanerCore/Scan/XDGBaseDirectories.h"
#include "CleanerCore/Scan/XDGLocationTable.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <functional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// The lists of `StorageProfiles::xdgLocations`, one after the other. Holds references to its arguments: an object of
/// one call.
class XDGLocations {
public:
    XDGLocations(const Platform::FileURL& homeDirectory, const Platform::FileManager& fileManager,
        const Platform::Environment& environment, const std::stop_token& stop);

    [[nodiscard]] std::vector<ScanLocation> standard() const;
    [[nodiscard]] std::vector<ScanLocation> aggressive() const;
    [[nodiscard]] std::vector<ScanLocation> direct() const;

private:
    /// A root that a row's path leads to, and what its name adds to the row's.
    struct Root {
        Platform::FileURL url;
        std::string displayName;
        std::string matchedFolder;
    };
    using RootVisitor = std::function<void(const Root&)>;

    void addRows(XDGLevel level, std::vector<ScanLocation>& locations) const;
    void addContainers(std::vector<ScanLocation>& locations) const;
    void visitRoots(const Root& root, std::string_view rest, const RootVisitor& visit) const;
    [[nodiscard]] bool mayBeListed(const Platform::FileURL& url, const std::vector<ScanLocation>& listed) const;

    const Platform::FileManager& m_fileManager;
    const Platform::Environment& m_environment;
    const std::stop_token& m_stop;
    XDGBaseDirectories m_directories;
};

} // namespace CleanerCore
