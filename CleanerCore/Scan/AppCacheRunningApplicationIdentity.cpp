#include "CleanerCore/Scan/AppCacheRunningApplicationIdentity.h"

#include "CleanerCore/Scan/BlankText.h"

namespace CleanerCore {

AppCacheRunningApplicationIdentity::AppCacheRunningApplicationIdentity(const Fields& fields)
    : displayName(trimmedUnlessBlank(fields.displayName))
    , bundleIdentifier(trimmedUnlessBlank(fields.bundleIdentifier))
    , processIdentifier(fields.processIdentifier)
    , isFrontmost(fields.isFrontmost)
    , isTerminated(fields.isTerminated)
    , isUserVisible(fields.isUserVisible)
{
}

} // namespace CleanerCore
