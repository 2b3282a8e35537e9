#include "CleanerCore/Insights/DuplicateSizes.h"

#include "CleanerCore/Insights/ReviewOrder.h"

#include <algorithm>
#include <tuple>

namespace CleanerCore {

namespace {

bool isSameFile(const FileRecord& left, const FileRecord& right)
{
    const bool isNumbered = left.fileNumber != 0 || left.deviceNumber != 0;
    return isNumbered && left.fileNumber == right.fileNumber && left.deviceNumber == right.deviceNumber;
}

bool prefersReview(const FileRecord* left, const FileRecord* right)
{
    return prefersReviewRecord(*left, *right);
}

/// Of several names of one file the first in review order stays.
void dropFurtherNames(std::vector<const FileRecord*>& records)
{
    std::ranges::sort(records, [](const FileRecord* left, const FileRecord* right) {
        const auto numbers = std::tuple(left->deviceNumber, left->fileNumber);
        const auto otherNumbers = std::tuple(right->deviceNumber, right->fileNumber);
        return numbers != otherNumbers ? numbers < otherNumbers : prefersReview(left, right);
    });
    const auto rest = std::ranges::unique(
        records, [](const FileRecord* left, const FileRecord* right) { return isSameFile(*left, *right); });
    records.erase(rest.begin(), rest.end());
}

} // namespace

DuplicateSizes::DuplicateSizes(std::span<const FileRecord> records, const InsightConfiguration& configuration)
    : m_maximumCount(static_cast<std::size_t>(configuration.maximumResultCount))
{
    for (const auto& record : records) {
        if (!record.isDirectory && record.logicalSizeBytes >= configuration.minimumDuplicateFileBytes) {
            m_records.push_back(&record);
        }
    }
    std::ranges::sort(m_records, std::ranges::greater(), &FileRecord::logicalSizeBytes);
}

std::optional<SameSizeFiles> DuplicateSizes::next()
{
    while (m_position < m_records.size()) {
        const auto begin = m_records.begin() + static_cast<std::ptrdiff_t>(m_position);
        const auto size = (*begin)->logicalSizeBytes;
        const auto end = std::find_if(
            begin, m_records.end(), [&](const FileRecord* record) { return record->logicalSizeBytes != size; });
        m_position = static_cast<std::size_t>(end - m_records.begin());
        if (end - begin < 2) {
            continue;
        }
        SameSizeFiles files{.size = size, .records = std::vector(begin, end)};
        dropFurtherNames(files.records);
        if (files.records.size() < 2) {
            continue;
        }
        files.isCutShort = files.records.size() > m_maximumCount;
        const auto kept = std::min(files.records.size(), m_maximumCount);
        std::ranges::partial_sort(
            files.records, files.records.begin() + static_cast<std::ptrdiff_t>(kept), prefersReview);
        files.records.resize(kept);
        files.records.shrink_to_fit();
        return files;
    }
    return std::nullopt;
}

} // namespace CleanerCore
