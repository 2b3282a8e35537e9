#pragma once

#include <string>

namespace TestSupport {

/// Takes `name` in the open folder `base` away, a folder with all that it holds. It goes down and up by handles, so
/// neither the depth nor the length of a path sets a limit, and makes each folder accessible before it enters it.
/// Nothing is there afterwards, or the result is the system's error (errno); 0 for success.
[[nodiscard]] int removeTree(int base, const std::string& name);

} // namespace TestSupport
