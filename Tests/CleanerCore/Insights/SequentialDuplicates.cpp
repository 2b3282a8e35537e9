#include "Tests/CleanerCore/Insights/SequentialDuplicates.h"

#include "CleanerCore/Insights/ReviewOrder.h"
#include "Platform/Base/SHA256.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <set>
#include <utility>

namespace CleanerCore {

using Platform::hexDigest;
using Platform::SHA256;

DuplicateSearchResult SequentialDuplicates::find(std::span<const FileRecord> records, std::vector<SkippedItem>& skipped)
{
    DuplicateSearchResult result;
    std::map<std::int64_t, std::vector<const FileRecord*>, std::greater<>> bySize;
    for (const auto& record : records) {
        if (!record.isDirectory && record.logicalSizeBytes >= m_configuration.minimumDuplicateFileBytes) {
            bySize[record.logicalSizeBytes].push_back(&record);
        }
    }
    std::int64_t hashedFiles = 0;
    std::int64_t hashedBytes = 0;
    for (const auto& [size, sameSize] : bySize) {
        bool isLast = false;
        auto sorted = sameSize;
        std::ranges::sort(
            sorted, [](const auto* left, const auto* right) { return prefersReviewRecord(*left, *right); });
        std::vector<const FileRecord*> files;
        std::set<std::pair<std::uint64_t, std::uint64_t>> seen;
        for (const auto* const record : sorted) {
            if (seen.emplace(record->deviceNumber, record->fileNumber).second) {
                files.push_back(record);
            }
        }
        if (files.size() < 2) {
            continue;
        }
        if (files.size() > static_cast<std::size_t>(m_configuration.maximumResultCount)) {
            files.resize(static_cast<std::size_t>(m_configuration.maximumResultCount));
            result.isTruncated = isLast = true;
        }
        std::map<const FileRecord*, std::string> fingerprints;
        std::map<std::string, int> occurrences;
        for (const auto* const record : files) {
            if (const auto found = fingerprint(*record, skipped)) {
                fingerprints[record] = *found;
                ++occurrences[*found];
            }
        }
        std::map<std::string, std::vector<const FileRecord*>> byDigest;
        for (const auto* const record : files) {
            if (!fingerprints.contains(record) || occurrences[fingerprints[record]] < 2) {
                continue;
            }
            if (size > m_configuration.maximumDuplicateFullHashBytesPerFile) {
                skipped.push_back({.url = record->url(), .reason = "Duplicate hash budget exceeded"});
                result.isTruncated = isLast = true;
                continue;
            }
            if (hashedFiles == m_configuration.maximumDuplicateHashFiles
                || hashedBytes + size > m_configuration.maximumDuplicateHashBytes) {
                result.isTruncated = isLast = true;
                break;
            }
            ++hashedFiles;
            hashedBytes += size;
            m_hashedPaths[fingerprints[record]].push_back(record->url().path());
            if (const auto digest = sha256(*record, skipped)) {
                byDigest[*digest].push_back(record);
            }
        }
        for (const auto& [digest, copies] : byDigest) {
            if (copies.size() > 1) {
                result.groups.push_back(group(digest, size, copies));
            }
        }
        if (isLast) {
            break;
        }
    }
    std::ranges::stable_sort(
        result.groups, [](const auto& left, const auto& right) { return left.wastedBytes() > right.wastedBytes(); });
    if (result.groups.size() > static_cast<std::size_t>(m_configuration.maximumResultCount)) {
        result.groups.resize(static_cast<std::size_t>(m_configuration.maximumResultCount));
    }
    return result;
}

std::optional<std::string> SequentialDuplicates::fingerprint(
    const FileRecord& record, std::vector<SkippedItem>& skipped)
{
    const auto size = record.logicalSizeBytes;
    const auto sampleLength = std::min<std::int64_t>(size, 65'536);
    const std::set<std::int64_t> offsets{0, (size - sampleLength) / 2};
    const auto file = m_fileManager.openFile(record.url(), Platform::ReadingPlan::samples);
    if (!file) {
        skipped.push_back({.url = record.url(), .reason = file.error().localizedDescription()});
        return std::nullopt;
    }
    SHA256 hash;
    hash.update("size:" + std::to_string(size));
    std::vector<std::byte> sample(static_cast<std::size_t>(sampleLength));
    for (const auto offset : offsets) {
        const auto count = (*file)->read(offset, sample);
        if (!count) {
            skipped.push_back({.url = record.url(), .reason = count.error().localizedDescription()});
            return std::nullopt;
        }
        hash.update("offset:" + std::to_string(offset) + ":bytes:" + std::to_string(*count));
        hash.update(std::span(sample).first(*count));
    }
    return hexDigest(hash.finish());
}

std::optional<std::string> SequentialDuplicates::sha256(const FileRecord& record, std::vector<SkippedItem>& skipped)
{
    const auto file = m_fileManager.openFile(record.url(), Platform::ReadingPlan::wholeFile);
    if (!file) {
        skipped.push_back({.url = record.url(), .reason = file.error().localizedDescription()});
        return std::nullopt;
    }
    SHA256 hash;
    std::vector<std::byte> chunk(1'048'576);
    for (std::int64_t offset = 0;; offset += std::ssize(chunk)) {
        const auto count = (*file)->read(offset, chunk);
        if (!count) {
            skipped.push_back({.url = record.url(), .reason = count.error().localizedDescription()});
            return std::nullopt;
        }
        hash.update(std::span(chunk).first(*count));
        if (*count < chunk.size()) {
            return hexDigest(hash.finish());
        }
    }
}

DuplicateFileGroup SequentialDuplicates::group(
    const std::string& digest, std::int64_t size, const std::vector<const FileRecord*>& copies)
{
    std::vector<FileInsight> insights;
    for (const auto* const record : copies) {
        insights.emplace_back(FileInsight::Fields{
            .url = record->url(),
            .sizeBytes = record->allocatedSizeBytes,
            .lastModified = record->lastModified,
            .resourceIdentity = FileResourceIdentity::captureIfAvailable(record->url(), m_fileManager),
            .kind = FileInsightKind::duplicate,
            .detail = "Duplicate set · " + std::to_string(copies.size()) + " copies",
            .safety = CleanupSafety::caution,
        });
    }
    return DuplicateFileGroup(digest, size, std::move(insights));
}

} // namespace CleanerCore
