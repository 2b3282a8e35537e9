#include "CleanerCore/Insights/SecurityFindings.h"

#include "CleanerCore/Insights/BoundedTopN.h"
#include "CleanerCore/Insights/SecurityReview.h"

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>

namespace CleanerCore {

namespace {

struct SecurityFindingCandidate {
    const FileRecord* record = nullptr;
    std::string_view detail;
    int priority = 0;
    std::int64_t sizeBytes = 0;
};

struct PrefersCandidate {
    bool operator()(const SecurityFindingCandidate& candidate, const SecurityFindingCandidate& other) const
    {
        return candidate.priority != other.priority ? candidate.priority > other.priority
                                                    : candidate.sizeBytes > other.sizeBytes;
    }
};

} // namespace

std::vector<FileInsight> securityFindings(
    std::span<const FileRecord> records, std::int64_t limit, const InsightMaker& maker)
{
    BoundedTopN<SecurityFindingCandidate, PrefersCandidate> best(limit);
    for (const auto& record : records) {
        if (const auto detail = SecurityReview::reviewDetail(record.name)) {
            best.insert({
                .record = &record,
                .detail = *detail,
                .priority = SecurityReview::reviewPriority(record.name),
                .sizeBytes = record.allocatedSizeBytes,
            });
        }
    }
    std::vector<FileInsight> findings;
    for (const auto& candidate : std::move(best).takeSorted()) {
        findings.push_back(
            maker.insight(*candidate.record, FileInsightKind::securitySignal, std::string(candidate.detail)));
    }
    std::ranges::stable_sort(findings, std::ranges::greater(), &FileInsight::sizeBytes);
    return findings;
}

} // namespace CleanerCore
