#pragma once

#include "Platform/Base/FileURL.h"

#include <functional>

namespace Platform {

/// The desktop's file manager. The calls return at once; an answer comes later on the calling thread, which runs an event
/// loop, and never after the viewer is gone.
class FileViewer {
public:
    /// Whether the desktop took the request.
    using Answer = std::function<void(bool)>;

    FileViewer() = default;
    FileViewer(const FileViewer&) = delete;
    FileViewer& operator=(const FileViewer&) = delete;
    virtual ~FileViewer() = default;

    /// Shows the item in its folder, marked. The item itself is never opened.
    virtual void select(const FileURL& item, Answer answer) = 0;
    /// Shows what the folder contains.
    virtual void open(const FileURL& folder, Answer answer) = 0;
};

} // namespace Platform
