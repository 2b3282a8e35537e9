#pragma once

#include "Platform/Base/JSONError.h"
#include "Platform/Files/FileError.h"

#include <string>
#include <variant>

namespace CleanerCore {

/// Why there is no export file: its content has no JSON form, or it could not be written.
struct ExportError {
    std::variant<Platform::JSONError, Platform::FileError> cause;

    [[nodiscard]] std::string localizedDescription() const;

    friend bool operator==(const ExportError&, const ExportError&) = default;
};

} // namespace CleanerCore
