#include "KarvelloUI/Sessions/CandidateSearchKeys.h"

#include "Platform/Base/TextFolding.h"

#include <map>
#include <tuple>
#include <utility>

namespace KarvelloUI {

namespace {

using CleanerCore::AppCacheContext;

struct ContextOrder {
    bool operator()(const AppCacheContext& left, const AppCacheContext& right) const
    {
        const auto fields = [](const AppCacheContext& context) {
            return std::tie(context.containerIdentifier, context.containerKind, context.possibleBundleIdentifier,
                context.matchedRunningBundleIdentifier, context.matchedRunningDisplayName, context.runningState,
                context.identitySource);
        };
        return fields(left) < fields(right);
    }
};

} // namespace

CandidateSearchKeys::CandidateSearchKeys(std::span<const CleanerCore::CleanupCandidate> candidates)
{
    m_starts.reserve(candidates.size() + 1);
    m_contextOf.reserve(candidates.size());
    std::map<AppCacheContext, std::uint32_t, ContextOrder> contexts;
    for (const auto& candidate : candidates) {
        // The folder that it lies in is a part of the path, and so is the usual name: they need no text of their own.
        const auto& path = candidate.url.path();
        m_text += Platform::Text::foldedForSearch(path);
        if (!path.ends_with(candidate.displayName)) {
            // No word that is looked for holds a blank: it cannot begin in the one and end in the other.
            m_text += ' ';
            m_text += Platform::Text::foldedForSearch(candidate.displayName);
        }
        m_starts.push_back(m_text.size());
        if (!candidate.appCacheContext) {
            m_contextOf.push_back(kNoContext);
            continue;
        }
        const auto [found, isNew] =
            contexts.try_emplace(*candidate.appCacheContext, static_cast<std::uint32_t>(m_contexts.size()));
        if (isNew) {
            m_contexts.push_back(found->first);
        }
        m_contextOf.push_back(found->second);
    }
}

} // namespace KarvelloUI
