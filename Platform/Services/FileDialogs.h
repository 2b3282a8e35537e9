#pragma once

#include "Platform/Base/FileURL.h"

#include <functional>
#include <optional>
#include <string>

namespace Platform {

/// The desktop's own dialogs for files. The calls return at once; the answer comes later on the calling thread, which runs
/// an event loop, and never after the object is gone. One dialog is open at a time: another request meanwhile is answered
/// with nothing.
class FileDialogs {
public:
    /// What the user picked; nothing if they picked none.
    using Answer = std::function<void(std::optional<FileURL>)>;

    struct FolderRequest {
        /// Says what the folder is for.
        std::string message;
        /// The text of the button that picks.
        std::string prompt;
        /// Where the dialog starts.
        FileURL directory;
    };
    struct SaveRequest {
        std::string message;
        std::string suggestedName;
        FileURL directory;
    };

    FileDialogs() = default;
    FileDialogs(const FileDialogs&) = delete;
    FileDialogs& operator=(const FileDialogs&) = delete;
    virtual ~FileDialogs() = default;

    virtual void chooseFolder(FolderRequest request, Answer answer) = 0;
    /// The dialog has asked whether to replace a file that exists.
    virtual void chooseDestination(SaveRequest request, Answer answer) = 0;
};

} // namespace Platform
