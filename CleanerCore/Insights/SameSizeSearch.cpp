#include "CleanerCore/Insights/SameSizeSearch.h"

#include "CleanerCore/Insights/FileReading.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <utility>

namespace CleanerCore {

namespace {

using Platform::FileError;
using Platform::FileErrorKind;
using Platform::SHA256;

constexpr std::string_view kBudgetExceeded = "Duplicate hash budget exceeded";

/// The identity of a file that is still what was hashed. What cannot be told is left open.
std::expected<std::optional<FileResourceIdentity>, FileError> identityOfHashed(
    const SearchedFile& file, const Platform::FileURL& url, const Platform::FileManager& fileManager)
{
    const auto readings = fileManager.fingerprintReadings(url);
    if (!readings.attributes && readings.attributes.error().kind == FileErrorKind::noSuchFile) {
        return std::unexpected(readings.attributes.error());
    }
    auto identity = FileResourceIdentity::fromReadings(readings);
    if (!identity) {
        return identity;
    }
    const auto& state = file.state;
    if (identity->systemFileNumber.value_or(state.fileNumber) != state.fileNumber
        || identity->systemNumber.value_or(state.deviceNumber) != state.deviceNumber) {
        return std::unexpected(readingFailure(FileErrorKind::itemChanged, url));
    }
    if (identity->fileSize.value_or(state.size) != state.size
        || identity->modificationDate.value_or(state.modificationDate()) != state.modificationDate()) {
        return std::unexpected(readingFailure(FileErrorKind::contentsChanged, url));
    }
    return identity;
}

SkippedItem skippedItem(const SearchedFile& file)
{
    return {.url = file.record->url(), .reason = file.failure->localizedDescription()};
}

} // namespace

DuplicateHashBudget::DuplicateHashBudget(const InsightConfiguration& configuration)
    : m_filesLeft(configuration.maximumDuplicateHashFiles)
    , m_bytesLeft(configuration.maximumDuplicateHashBytes)
    , m_maximumBytesPerFile(configuration.maximumDuplicateFullHashBytesPerFile)
{
}

bool DuplicateHashBudget::take(std::int64_t size)
{
    if (m_filesLeft == 0 || size > m_bytesLeft) {
        return false;
    }
    --m_filesLeft;
    m_bytesLeft -= size;
    return true;
}

SameSizeSearch::SameSizeSearch(const SameSizeFiles& files)
    : m_size(files.size)
    , m_isTruncated(files.isCutShort)
    , m_isLast(files.isCutShort)
{
    m_files.reserve(files.records.size());
    for (const auto* const record : files.records) {
        m_files.emplace_back().record = record;
    }
}

std::span<const SearchedFile> SameSizeSearch::fingerprintedFiles() const
{
    const auto end = std::ranges::find(m_files, SearchStep::pending, &SearchedFile::fingerprinting);
    return {m_files.begin(), end};
}

void SameSizeSearch::chooseFilesToHash(DuplicateHashBudget& budget)
{
    std::map<SHA256::Digest, std::size_t> occurrences;
    for (const auto& file : m_files) {
        if (file.fingerprinting == SearchStep::pending) {
            return;
        }
        if (file.fingerprinting == SearchStep::done) {
            ++occurrences[file.fingerprint];
        }
    }
    m_exceedsBudget = !budget.allowsFilesOf(m_size);
    for (auto& file : m_files) {
        if (file.fingerprinting != SearchStep::done || occurrences[file.fingerprint] < 2) {
            continue;
        }
        if (m_exceedsBudget) {
            m_isTruncated = m_isLast = true;
        } else if (!budget.take(m_size)) {
            m_isTruncated = m_isLast = true;
            break;
        } else if (file.isFingerprintOfAll) {
            file.digest = file.fingerprint;
            file.hashing = SearchStep::done;
        }
        m_chosen.push_back(&file);
    }
    m_isChosen = true;
}

std::vector<std::vector<SearchedFile*>> SameSizeSearch::setsToCompare()
{
    std::map<SHA256::Digest, std::vector<SearchedFile*>> sets;
    if (!m_exceedsBudget) {
        for (auto* const file : m_chosen) {
            if (file->hashing == SearchStep::pending) {
                sets[file->fingerprint].push_back(file);
            }
        }
    }
    std::vector<std::vector<SearchedFile*>> lists;
    lists.reserve(sets.size());
    for (auto& [fingerprint, files] : sets) {
        lists.push_back(std::move(files));
    }
    return lists;
}

SameSizeSearch::Result SameSizeSearch::result(const Platform::FileManager& fileManager) const
{
    Result result;
    result.isTruncated = m_isTruncated;
    const auto fingerprinted = fingerprintedFiles();
    result.isStopped = !m_isChosen;
    for (const auto& file : fingerprinted) {
        if (file.fingerprinting == SearchStep::failed) {
            result.skipped.push_back(skippedItem(file));
        }
    }
    if (m_exceedsBudget) {
        for (const auto* const file : m_chosen) {
            result.skipped.push_back({.url = file->record->url(), .reason = std::string(kBudgetExceeded)});
        }
        return result;
    }
    std::map<SHA256::Digest, std::vector<const SearchedFile*>> copiesByDigest;
    for (const auto* const file : m_chosen) {
        if (file->hashing == SearchStep::pending) {
            result.isStopped = true;
            break;
        }
        if (file->hashing == SearchStep::failed) {
            result.skipped.push_back(skippedItem(*file));
        } else if (file->digest) {
            copiesByDigest[*file->digest].push_back(file);
        }
    }
    for (const auto& [digest, copies] : copiesByDigest) {
        if (copies.size() > 1) {
            if (auto made = group(digest, copies, fileManager, result.skipped)) {
                result.groups.push_back(*std::move(made));
            }
        }
    }
    return result;
}

std::optional<DuplicateFileGroup> SameSizeSearch::group(const SHA256::Digest& digest,
    std::span<const SearchedFile* const> copies, const Platform::FileManager& fileManager,
    std::vector<SkippedItem>& skipped) const
{
    std::vector<FileInsight::Fields> unchanged;
    for (const auto* const file : copies) {
        auto url = file->record->url();
        auto identity = identityOfHashed(*file, url, fileManager);
        if (!identity) {
            skipped.push_back({.url = std::move(url), .reason = identity.error().localizedDescription()});
            continue;
        }
        unchanged.push_back({
            .url = std::move(url),
            .sizeBytes = file->record->allocatedSizeBytes,
            .lastModified = file->record->lastModified,
            .resourceIdentity = *std::move(identity),
            .kind = FileInsightKind::duplicate,
            .detail = {},
            .safety = safetyOf(FileInsightKind::duplicate),
        });
    }
    if (unchanged.size() < 2) {
        return std::nullopt;
    }
    const auto detail = fmt::format("Duplicate set · {} copies", unchanged.size());
    std::vector<FileInsight> insights;
    insights.reserve(unchanged.size());
    for (auto& fields : unchanged) {
        fields.detail = detail;
        insights.emplace_back(std::move(fields));
    }
    return DuplicateFileGroup(Platform::hexDigest(digest), m_size, std::move(insights));
}

} // namespace CleanerCore
