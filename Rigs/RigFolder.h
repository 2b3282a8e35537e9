#pragma once

#include "Platform/Files/FileDescriptor.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Files/Trash.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>

namespace Rigs {

enum class Mover { product, naive };

/// A home of its own in a folder for the rigs, gone at the end: application data in `data`, items in `Caches`.
/// Everything that goes wrong while it is prepared ends the program with a message: a rig that could not set its scene
/// must not be counted.
class RigFolder {
public:
    explicit RigFolder(const std::string& below);
    ~RigFolder();
    RigFolder(const RigFolder&) = delete;
    RigFolder& operator=(const RigFolder&) = delete;

    [[nodiscard]] std::string path(std::string_view relativePath) const { return m_path + "/" + std::string(relativePath); }
    [[nodiscard]] Platform::FileURL url(std::string_view relativePath) const { return Platform::FileURL(path(relativePath)); }

    void makeFolder(std::string_view relativePath) const;
    void makeFile(std::string_view relativePath, std::string_view text) const;
    [[nodiscard]] Platform::FileDescriptor open(std::string_view relativePath) const;
    [[nodiscard]] Platform::FolderAnchor anchor(std::string_view relativePath) const;
    /// Accepts only what stands at the path now, by its whole identity.
    [[nodiscard]] Platform::ItemTest confirming(std::string_view relativePath) const;
    [[nodiscard]] std::unique_ptr<Platform::Trash> trash(Mover mover) const;

private:
    std::string m_path;
    Platform::PosixFileManager m_fileManager;
};

/// The number of the file that stands under the name, 0 for none.
[[nodiscard]] ino_t fileNumber(int folder, const char* name);

[[noreturn]] void fail(const std::string& message);

/// The word behind `--name` on the command line.
[[nodiscard]] std::optional<std::string> option(int count, char** words, std::string_view name);

} // namespace Rigs
