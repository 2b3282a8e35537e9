#pragma once

#include "Platform/Base/Date.h"

#include <QDateTime>
#include <optional>

namespace KarvelloUI {

/// For the properties of stores and sessions. Not valid for no date; beyond what any calendar reaches, the last or the
/// first day that one does.
[[nodiscard]] QDateTime toQDateTime(std::optional<Platform::Date> date);

} // namespace KarvelloUI
