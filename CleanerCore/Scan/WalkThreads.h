#pragma once

namespace CleanerCore {

/// The number of processors that this machine may use, at least 1.
[[nodiscard]] unsigned availableProcessors();

/// How many threads shall walk trees so that `jobs` processors are kept busy; 0 where the calling thread walks alone.
[[nodiscard]] unsigned walkThreads(unsigned jobs);

} // namespace CleanerCore
