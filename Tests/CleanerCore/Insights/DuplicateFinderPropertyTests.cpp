#include "CleanerCore/Insights/ContentComparison.h"
#include "CleanerCore/Insights/DuplicateFinder.h"
#include "Tests/CleanerCore/Insights/FilesInMemory.h"
#include "Tests/CleanerCore/Insights/SequentialDuplicates.h"
#include "Tests/Support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fmt/format.h>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace CleanerCore {
namespace {

using Platform::FileURL;

/// Random files, limits and faults.
class DuplicateFinderProperty : public testing::Test {
protected:
    using Random = std::mt19937;

    static std::int64_t pick(Random& random, std::int64_t low, std::int64_t high)
    {
        return std::uniform_int_distribution<std::int64_t>(low, high)(random);
    }

    static void flip(char& character) { character = static_cast<char>(character ^ 1); }

    static std::int64_t pickSize(Random& random)
    {
        switch (pick(random, 0, 5)) {
        case 0:
            return pick(random, 1, 4'000);
        case 1:
            return 65'536 + pick(random, -1, 1);
        case 2:
            return 1'048'576 + pick(random, -1, 200'000);
        default:
            return pick(random, 65'537, 900'000);
        }
    }

    void makeFiles(Random& random)
    {
        const auto sizes = pick(random, 1, 5);
        for (std::int64_t sizeNumber = 0; sizeNumber < sizes; ++sizeNumber) {
            const auto size = pickSize(random);
            // Some sizes have more files than a result may hold.
            const auto count = size < 4'000 && pick(random, 0, 2) == 0 ? pick(random, 20, 24) : pick(random, 1, 7);
            std::string base(static_cast<std::size_t>(size), 'a');
            for (auto& character : base) {
                character = static_cast<char>(random());
            }
            for (std::int64_t number = 0; number < count; ++number) {
                makeFile(random, base, fmt::format("/{}/{}-{}", pick(random, 0, 3), sizeNumber, number));
            }
        }
        std::ranges::shuffle(m_records, random);
    }

    void makeFile(Random& random, const std::string& base, const std::string& path)
    {
        auto contents = base;
        std::optional<std::uint64_t> number;
        switch (pick(random, 0, 5)) {
        case 0:
            flip(contents.back());
            break;
        case 1:
            flip(contents[static_cast<std::size_t>(pick(random, 0, std::ssize(contents) - 1))]);
            break;
        case 2:
            if (!m_records.empty() && std::cmp_equal(m_records.back().logicalSizeBytes, contents.size())) {
                // A second name.
                contents = m_files.file(m_records.back().url().path()).contents;
                number = m_records.back().fileNumber;
            }
            break;
        default:
            break;
        }
        auto record = m_files.add(path, std::move(contents), number);
        record.allocatedSizeBytes = 4096 * pick(random, 0, 3);
        record.lastModified =
            pick(random, 0, 4) == 0 ? std::nullopt : std::optional(Platform::Date{double(pick(random, 0, 2))});
        const auto size = record.logicalSizeBytes;
        m_records.push_back(std::move(record));
        if (number) {
            // What one name cannot read, the other cannot either.
            const auto twin = std::ranges::find_if(m_records, [&](const auto& other) {
                return other.fileNumber == *number && m_failingOffsets.contains(other.url().path());
            });
            if (twin != m_records.end()) {
                m_failingOffsets[path] = m_failingOffsets[twin->url().path()];
            }
        } else if (pick(random, 0, 5) == 0) {
            m_failingOffsets[path] = pick(random, 0, 3) == 0 ? kNotToBeOpened : pick(random, 0, size - 1);
        }
    }

    static InsightConfiguration limits(Random& random)
    {
        constexpr std::int64_t many = 1'000'000'000;
        return InsightConfiguration({
            .minimumLargeFileBytes = 1,
            .minimumDuplicateFileBytes = pick(random, 0, 1) == 0 ? 1 : pick(random, 1, 100'000),
            .minimumReviewFileAge = 0,
            .maximumVisitedItemsPerRoot = many,
            .maximumResultCount = pick(random, 0, 1) == 0 ? 20 : 22,
            .maximumRecentReviewSkippedItems = 0,
            .maximumDuplicateHashFiles = pick(random, 0, 1) == 0 ? many : pick(random, 1, 12),
            .maximumDuplicateFullHashBytesPerFile = pick(random, 0, 1) == 0 ? many : pick(random, 1'000'000, 1'200'000),
            .maximumDuplicateHashBytes = pick(random, 0, 1) == 0 ? many : pick(random, 1'000'000, 6'000'000),
        });
    }

    [[nodiscard]] TestSupport::WatchedFiles::Hooks faults() const
    {
        return {
            .beforeOpening =
                [this](const FileURL& url) {
                    const auto found = m_failingOffsets.find(url.path());
                    return found != m_failingOffsets.end() && found->second == kNotToBeOpened ? EACCES : 0;
                },
            .beforeReading =
                [this](const FileURL& url, std::int64_t offset, std::size_t length) {
                    const auto found = m_failingOffsets.find(url.path());
                    const bool fails = found != m_failingOffsets.end() && found->second >= offset
                        && found->second < offset + static_cast<std::int64_t>(length);
                    return fails ? EIO : 0;
                },
        };
    }

    /// Where the part starts that the finder reads in one go with `offset`, and whether that is the end, which comes
    /// before the other parts.
    struct Part {
        std::size_t start;
        bool isEnd;
    };
    static Part partAt(std::int64_t offset, const std::string& contents)
    {
        const auto end = contents.size() - ContentComparison::kEndBytes;
        const auto place = static_cast<std::size_t>(offset);
        if (contents.size() > ContentComparison::kPieceBytes && place >= end) {
            return {.start = end, .isEnd = true};
        }
        return {.start = place / ContentComparison::kPieceBytes * ContentComparison::kPieceBytes, .isEnd = false};
    }

    /// Whether the finder comes to the part in which a file that is hashed fails: a companion is needed that is equal in
    /// all that is read before, and has not failed by then.
    [[nodiscard]] bool isFailureMet(const std::string& path, const std::vector<std::string>& companions) const
    {
        const auto& contents = m_files.file(path).contents;
        const auto part = partAt(m_failingOffsets.at(path), contents);
        return std::ranges::any_of(companions, [&](const std::string& other) {
            if (other == path || part.isEnd) {
                return other != path;
            }
            const auto& otherContents = m_files.file(other).contents;
            const auto failing = m_failingOffsets.find(other);
            if (failing != m_failingOffsets.end()) {
                const auto otherPart = partAt(failing->second, otherContents);
                if (otherPart.isEnd || otherPart.start < part.start) {
                    return false;
                }
            }
            const auto end =
                contents.size() > ContentComparison::kPieceBytes ? contents.size() - ContentComparison::kEndBytes : 0;
            return contents.compare(0, part.start, otherContents, 0, part.start) == 0
                && (end == 0 || contents.compare(end, std::string::npos, otherContents, end, std::string::npos) == 0);
        });
    }

    /// What the sequential search tells, without the failures of files behind the place where they are like no other.
    [[nodiscard]] std::vector<SkippedItem> withoutUnreadParts(
        std::vector<SkippedItem> items, const SequentialDuplicates& sequential) const
    {
        for (const auto& [fingerprint, paths] : sequential.hashedPaths()) {
            for (const auto& path : paths) {
                if (m_failingOffsets.contains(path) && !isFailureMet(path, paths)) {
                    std::erase_if(items, [&](const SkippedItem& item) { return item.url.path() == path; });
                }
            }
        }
        return items;
    }

    static constexpr std::int64_t kNotToBeOpened = -1;

    FilesInMemory m_files;
    std::vector<FileRecord> m_records;
    std::map<std::string, std::int64_t> m_failingOffsets;
};

std::string described(const std::vector<SkippedItem>& items)
{
    std::string text;
    for (const auto& item : items) {
        text += item.url.path() + ": " + item.reason + "\n";
    }
    return text;
}

TEST_F(DuplicateFinderProperty, FindsWhatASearchFileByFileFindsWithAnyNumberOfJobs)
{
    std::size_t groups = 0;
    std::size_t skips = 0;
    std::size_t truncations = 0;
    std::size_t unreadFailures = 0;
    for (unsigned seed = 1; seed <= 150; ++seed) {
        Random random(seed);
        m_files.clear();
        m_records.clear();
        m_failingOffsets.clear();
        makeFiles(random);
        const auto configuration = limits(random);
        const TestSupport::WatchedFiles files(m_files, faults());

        SequentialDuplicates sequential(configuration, files);
        std::vector<SkippedItem> allSkips;
        const auto expected = sequential.find(m_records, allSkips);
        const auto expectedSkips = withoutUnreadParts(allSkips, sequential);
        groups += expected.groups.size();
        skips += expectedSkips.size();
        truncations += expected.isTruncated ? 1 : 0;
        unreadFailures += allSkips.size() - expectedSkips.size();
        for (const unsigned jobs : {1U, 2U, 8U}) {
            std::vector<SkippedItem> skipped;
            const auto found = DuplicateFinder(configuration, files, jobs).find(m_records, skipped);
            ASSERT_EQ(described(skipped), described(expectedSkips)) << "seed " << seed << ", jobs " << jobs;
            ASSERT_EQ(found.isTruncated, expected.isTruncated) << "seed " << seed << ", jobs " << jobs;
            ASSERT_TRUE(found.groups == expected.groups) << "seed " << seed << ", jobs " << jobs;
        }
    }
    // The cases are there at all.
    EXPECT_GT(groups, 100U);
    EXPECT_GT(skips, 50U);
    EXPECT_GT(truncations, 20U);
    EXPECT_GT(unreadFailures, 0U);
}

} // namespace
} // namespace CleanerCore
