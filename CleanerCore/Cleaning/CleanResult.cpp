#include "CleanerCore/Cleaning/CleanResult.h"

#include "Platform/Base/CheckedMath.h"

namespace CleanerCore {

std::int64_t CleanResult::reclaimedBytes() const
{
    std::int64_t sum = 0;
    for (const auto& item : cleanedItems) {
        sum = Platform::checkedAdd(sum, item.candidate.sizeBytes);
    }
    return sum;
}

} // namespace CleanerCore
