#pragma once

#include "Platform/Base/FileURL.h"

#include <cstdint>
#include <optional>

namespace Platform {

/// The room on a volume, in bytes.
struct VolumeCapacity {
    std::int64_t total = 0;
    /// What the user may still fill; the system keeps some more for itself.
    std::int64_t available = 0;

    /// Of the volume that holds `folder`; nothing if that cannot be told. May wait for a volume behind a network.
    static std::optional<VolumeCapacity> of(const FileURL& folder);

    friend bool operator==(const VolumeCapacity&, const VolumeCapacity&) = default;
};

} // namespace Platform
