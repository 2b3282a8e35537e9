#pragma once

#include "CleanerCore/Insights/ContentComparison.h"
#include "CleanerCore/Insights/DuplicateFinder.h"
#include "Tests/CleanerCore/Insights/DuplicateTestLimits.h"
#include "Tests/CleanerCore/Insights/FilesInMemory.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What the tests of the search for duplicates share.
namespace CleanerCore::DuplicateTests {

using Platform::FileURL;

inline constexpr std::int64_t kMebibyte = 1'048'576;
inline constexpr std::size_t kPiece = ContentComparison::kPieceBytes;
// Behind the first sample.
inline constexpr std::size_t kFingerprintEnd = 65'536;

inline std::string bytes(std::size_t count, unsigned seed = 0)
{
    std::string text(count, '\0');
    auto value = seed * 2'654'435'761U + 1;
    for (auto& character : text) {
        value = value * 1'664'525U + 1'013'904'223U;
        character = static_cast<char>(value >> 24U);
    }
    return text;
}

inline std::string changedAt(std::string contents, std::size_t offset)
{
    contents[offset] = static_cast<char>(contents[offset] ^ 1);
    return contents;
}

class DuplicateFinderTest : public testing::Test {
protected:
    void add(std::string_view path, std::string contents)
    {
        m_records.push_back(m_files.add(path, std::move(contents)));
    }

    DuplicateSearchResult find(const Platform::FileManager& files, unsigned jobs = 2, const std::stop_token& stop = {})
    {
        return DuplicateFinder(m_limits, files, jobs).find(m_records, m_skipped, stop);
    }
    DuplicateSearchResult find() { return find(m_files); }

    static std::vector<std::string> pathsOf(const DuplicateFileGroup& group)
    {
        std::vector<std::string> paths;
        for (const auto& file : group.files) {
            paths.push_back(file.url.path());
        }
        return paths;
    }
    [[nodiscard]] std::vector<std::string> skips() const
    {
        std::vector<std::string> lines;
        for (const auto& item : m_skipped) {
            lines.push_back(item.url.path() + ": " + item.reason);
        }
        return lines;
    }

    FilesInMemory m_files;
    std::vector<FileRecord> m_records;
    std::vector<SkippedItem> m_skipped;
    InsightConfiguration m_limits = duplicateTestLimits();
};

} // namespace CleanerCore::DuplicateTests
