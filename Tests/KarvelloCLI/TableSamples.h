#pragma once

#include "KarvelloCLI/TextStyle.h"
#include "Platform/Base/Date.h"

#include <cstddef>
#include <cstdint>

/// What the tests of tables and texts share.
namespace KarvelloCLITests {

inline constexpr std::int64_t kMegabyte = 1'048'576;
inline constexpr auto kNow = Platform::Date::fromUnixTime(1'795'000'000);

/// For a person whose home is /home/ada.
inline KarvelloCLI::TextStyle homeStyle(std::size_t columns, bool isVerbose = false)
{
    return {.columns = columns,
        .isVerbose = isVerbose,
        .paths = KarvelloCLI::HomePathAbbreviation(Platform::FileURL::folder("/home/ada"))};
}

} // namespace KarvelloCLITests
