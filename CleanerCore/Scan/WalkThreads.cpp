#include "CleanerCore/Scan/WalkThreads.h"

#include <algorithm>
#include <thread>

namespace CleanerCore {

namespace {

// A walk waits for the disk more than it computes: with nothing cached, several walks for each processor keep the disk
// busy (on two processors and a solid-state disk, 16 took a third of the time of 2), and with everything cached the
// surplus costs nothing. Each walk may hold some 17 folders open, which bounds their number.
constexpr unsigned kWalksPerProcessor = 8;
constexpr unsigned kMaximumSurplusWalks = 32;

} // namespace

unsigned availableProcessors()
{
    return std::max(std::thread::hardware_concurrency(), 1U);
}

unsigned walkThreads(unsigned jobs)
{
    return jobs > 1 ? std::max(std::min(jobs * kWalksPerProcessor, kMaximumSurplusWalks), jobs) : 0;
}

} // namespace CleanerCore
