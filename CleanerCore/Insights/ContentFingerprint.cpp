#include "CleanerCore/Insights/ContentFingerprint.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fmt/format.h>
#include <vector>

namespace CleanerCore {

namespace {

using Platform::ContentState;
using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileURL;
using Platform::ReadableFile;
using Platform::SHA256;

/// The file must be the one that the walk met, of the size that it had then.
std::expected<void, FileError> requireFileOf(const FileRecord& record, const ContentState& state, const FileURL& url)
{
    const bool isNumbered = record.fileNumber != 0 || record.deviceNumber != 0;
    if (isNumbered && (record.fileNumber != state.fileNumber || record.deviceNumber != state.deviceNumber)) {
        return std::unexpected(readingFailure(FileErrorKind::itemChanged, url));
    }
    if (record.logicalSizeBytes != state.size) {
        return std::unexpected(readingFailure(FileErrorKind::contentsChanged, url));
    }
    return {};
}

/// The contents of small files of one size, side by side: what is equal is hashed once.
class SmallContents {
public:
    explicit SmallContents(std::span<std::byte> buffer)
        : m_free(buffer)
    {
    }

    [[nodiscard]] std::span<std::byte> place(std::size_t length) const { return m_free.first(length); }
    /// The digest of what was read to the place.
    [[nodiscard]] SHA256::Digest digestOfPlaced(std::size_t length)
    {
        const auto placed = m_free.first(length);
        for (const auto& known : m_known) {
            if (std::memcmp(known.contents, placed.data(), length) == 0) {
                return known.digest;
            }
        }
        m_free = m_free.subspan(length);
        m_known.push_back({.contents = placed.data(), .digest = SHA256::of(placed)});
        return m_known.back().digest;
    }

private:
    struct Known {
        const std::byte* contents;
        SHA256::Digest digest;
    };

    std::span<std::byte> m_free;
    std::vector<Known> m_known;
};

/// Nothing after a stop.
std::expected<std::optional<SHA256::Digest>, FileError> fingerprintOfAll(
    ReadableFile& file, const FileURL& url, FileReading& reading, SmallContents& others)
{
    const auto length = static_cast<std::size_t>(file.stateAtOpening().size);
    if (reading.stop.stop_requested()) {
        return std::nullopt;
    }
    if (const auto filled = reading.fill(file, url, 0, others.place(length)); !filled) {
        return std::unexpected(filled.error());
    }
    if (const auto same = requireStillInState(file.stateAtOpening(), file, url); !same) {
        return std::unexpected(same.error());
    }
    return others.digestOfPlaced(length);
}

std::expected<std::optional<SHA256::Digest>, FileError> fingerprintOfSamples(
    ReadableFile& file, const FileURL& url, FileReading& reading, std::span<std::byte> sample)
{
    const auto size = file.stateAtOpening().size;
    SHA256 hash;
    hash.update(fmt::format("size:{}", size));
    for (const auto offset : std::array<std::int64_t, 2>{0, (size - kFingerprintSampleBytes) / 2}) {
        if (reading.stop.stop_requested()) {
            return std::nullopt;
        }
        if (const auto filled = reading.fill(file, url, offset, sample); !filled) {
            return std::unexpected(filled.error());
        }
        hash.update(fmt::format("offset:{}:bytes:{}", offset, sample.size()));
        hash.update(sample);
    }
    return hash.finish();
}

void takeFingerprint(SearchedFile& file, FileReading& reading, SmallContents& others, std::span<std::byte> sample)
{
    if (reading.stop.stop_requested()) {
        return;
    }
    const auto fail = [&](const FileError& error) {
        file.fingerprinting = SearchStep::failed;
        file.failure = error;
    };
    const auto url = file.record->url();
    const auto open = reading.fileManager.openFile(url, Platform::ReadingPlan::samples);
    if (!open) {
        return fail(open.error());
    }
    const auto& state = (*open)->stateAtOpening();
    if (const auto right = requireFileOf(*file.record, state, url); !right) {
        return fail(right.error());
    }
    file.isFingerprintOfAll = state.size <= kFingerprintSampleBytes;
    const auto fingerprint = file.isFingerprintOfAll ? fingerprintOfAll(**open, url, reading, others)
                                                     : fingerprintOfSamples(**open, url, reading, sample);
    if (!fingerprint) {
        return fail(fingerprint.error());
    }
    if (*fingerprint) {
        file.fingerprint = **fingerprint;
        file.state = state;
        file.fingerprinting = SearchStep::done;
    }
}

} // namespace

void takeFingerprints(std::span<SearchedFile> files, FileReading& reading, std::span<std::byte> buffer)
{
    SmallContents smallContents(buffer);
    for (auto& file : files) {
        takeFingerprint(file, reading, smallContents, buffer.first(kFingerprintSampleBytes));
    }
}

} // namespace CleanerCore
