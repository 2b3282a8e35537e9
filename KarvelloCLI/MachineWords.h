#pragma once

#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "KarvelloCLI/TextStyle.h"

#include <string>

namespace KarvelloCLI {

/// A machine's state in some words: "5.1 GB of 15.6 GB memory used (normal), load 0.52 on 2 processors, up 3 d".
[[nodiscard]] std::string machineWords(const CleanerCore::SystemResourceSnapshot& snapshot, const TextStyle& style);

} // namespace KarvelloCLI
