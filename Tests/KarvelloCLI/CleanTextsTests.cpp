#include "KarvelloCLI/CleanTexts.h"

#include "CleanerCore/Safety/CleaningError.h"
#include "KarvelloCLI/CleanCommand.h"
#include "Platform/Files/FileError.h"
#include "Tests/KarvelloCLI/TableSamples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::CleanResult;
using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using KarvelloCLITests::homeStyle;
using KarvelloCLITests::kNow;
using Platform::FileURL;
using testing::HasSubstr;
using testing::Not;

namespace {

CleanupCandidate candidate(const std::string& name, CleanupSafety safety, std::int64_t bytes, CleanupCategory category)
{
    CleanupCandidate::Fields fields;
    fields.url = FileURL("/home/ada/" + name);
    fields.category = category;
    fields.safety = safety;
    fields.sizeBytes = bytes;
    fields.lastModified = kNow.addingSeconds(-3 * 86400.0);
    return CleanupCandidate(fields);
}

std::vector<CleanupCandidate> threeCandidates()
{
    return {candidate(".cache/a", CleanupSafety::safe, 2048, CleanupCategory::userCaches),
        candidate(".cache/b", CleanupSafety::safe, 1024, CleanupCategory::userCaches),
        candidate("Downloads/c\n", CleanupSafety::manualReview, 1024, CleanupCategory::customFolder)};
}

} // namespace

TEST(CleanTexts, ThePreviewShowsHowMuchOfWhatAndEachPath)
{
    EXPECT_EQ(cleanPreview(threeCandidates(), kNow, homeStyle(80)),
        "To the Trash: 3 items, 4 KB\n"
        "  3 KB  User Caches: 2 items\n"
        "  1 KB  Custom Folder: 1 item\n"
        "\n"
        "Safe: 2 items, 3 KB\n"
        "  2 KB  3 d  ~/.cache/a\n"
        "  1 KB  3 d  ~/.cache/b\n"
        "\n"
        "Manual Review: 1 item, 1 KB\n"
        "! 1 KB  3 d  ~/Downloads/c\\n\n"
        "\n"
        "! 1 item needs your own review: only you can tell whether it may go.\n");
    EXPECT_EQ(cleanQuestion(threeCandidates(), homeStyle(80)), "Move 3 items (4 KB) to the Trash?");
}

TEST(CleanTexts, APathIsNeverCut)
{
    const std::string deep = std::string(300, 'x');
    const std::vector all{candidate(deep, CleanupSafety::safe, 1024, CleanupCategory::userCaches)};
    EXPECT_THAT(cleanPreview(all, kNow, homeStyle(80)), HasSubstr("  ~/" + deep + "\n"));
}

TEST(CleanTexts, ThePreviewNamesEveryItem)
{
    std::vector<CleanupCandidate> many;
    for (int number = 0; number < 500; ++number) {
        many.push_back(candidate(
            "i" + std::to_string(number) + "/", CleanupSafety::caution, 1024, CleanupCategory::developerToolCaches));
    }
    const std::string text = cleanPreview(many, kNow, homeStyle(80));
    for (const CleanupCandidate& each : many) {
        EXPECT_THAT(text, HasSubstr("  ~/" + std::string(each.url.lastPathComponent()) + "\n"));
    }
}

TEST(CleanTexts, TheAccountTellsOfEachItem)
{
    const auto all = threeCandidates();
    CleanResult result;
    result.cleanedItems.push_back({.candidate = all[0],
        .destinationURL = FileURL("/home/ada/.local/share/Trash/files/a"),
        .restoreSourceRootURL = {},
        .restoreSourceIdentity = {}});
    result.failedItems.push_back({all[1], "because of \x1b[2J"});
    result.wasCancelled = true;
    const std::string text = cleanAccount(all, result, homeStyle(80));
    EXPECT_EQ(text,
        "Moved to the Trash: 1 item, 2 KB\n"
        "  2 KB  ~/.cache/a\n"
        "\n"
        "Refused or failed: 1 item, 1 KB\n"
        "  1 KB  ~/.cache/b\n"
        "        because of \\x1b[2J\n"
        "\n"
        "Not reached, still in place: 1 item, 1 KB\n"
        "  1 KB  ~/Downloads/c\\n\n"
        "\n"
        "The space returns when the Trash is emptied. Until then, karvello-cli restore\n"
        "puts things back.\n");
    TextStyle verbose = homeStyle(80);
    verbose.isVerbose = true;
    EXPECT_THAT(cleanAccount(all, result, verbose), HasSubstr("        now at ~/.local/share/Trash/files/a\n"));
}

TEST(CleanTexts, AnAccountOfNothingClaimsNothing)
{
    const auto all = threeCandidates();
    CleanResult result;
    result.failedItems.push_back({all[0], "no"});
    const std::string text = cleanAccount(all, result, homeStyle(80));
    EXPECT_THAT(text, HasSubstr("\nNothing was moved to the Trash.\n"));
    EXPECT_THAT(text, Not(HasSubstr("space returns")));
}

TEST(CleanTexts, WhatTheLogDoesNotKeepIsTold)
{
    CleanResult result;
    std::vector<CleanupCandidate> many;
    for (int number = 0; number < 21; ++number) {
        many.push_back(candidate("i" + std::to_string(number), CleanupSafety::safe, 1024, CleanupCategory::userCaches));
        result.cleanedItems.push_back(
            {.candidate = many.back(), .destinationURL = {}, .restoreSourceRootURL = {}, .restoreSourceIdentity = {}});
    }
    const std::string text = cleanAccount(many, result, homeStyle(80));
    EXPECT_THAT(text, HasSubstr("The log keeps the first 20 items of a clean"));
    EXPECT_THAT(text, HasSubstr("and 1 more item; --verbose names each."));
    result.cleanedItems.pop_back();
    EXPECT_THAT(cleanAccount(many, result, homeStyle(80)), Not(HasSubstr("The log keeps")));
}

TEST(CleanCommand, TellsTheShellWhatWasDone)
{
    const auto all = threeCandidates();
    const CleanerCore::CleanedItem moved{
        .candidate = all[0], .destinationURL = {}, .restoreSourceRootURL = {}, .restoreSourceIdentity = {}};
    using Kind = CleanerCore::CleaningError::Kind;
    const std::string& path = all[1].url.path();
    const std::string refused = CleanerCore::CleaningError{Kind::cleanupCandidateChanged, path}.errorDescription();
    const std::string unverified =
        CleanerCore::CleaningError{Kind::cleanupPostOperationVerificationFailed, path}.errorDescription();
    const std::string stranger = Platform::FileError{.kind = Platform::FileErrorKind::movedUnconfirmed,
        .operation = Platform::FileOperation::trash,
        .path = path}
                                     .localizedDescription();

    EXPECT_EQ(exitCodeOf(CleanResult{.cleanedItems = {moved}, .failedItems = {}}), ExitCode::done);
    EXPECT_EQ(exitCodeOf(CleanResult{.cleanedItems = {moved}, .failedItems = {{all[1], refused}}}), ExitCode::partial);
    EXPECT_EQ(exitCodeOf(CleanResult{.cleanedItems = {}, .failedItems = {{all[1], refused}}}), ExitCode::refused);
    EXPECT_EQ(exitCodeOf(CleanResult{.cleanedItems = {}, .failedItems = {{all[1], unverified}}}), ExitCode::partial);
    EXPECT_EQ(exitCodeOf(CleanResult{.cleanedItems = {}, .failedItems = {{all[1], stranger}}}), ExitCode::partial);
    EXPECT_EQ(exitCodeOf(CleanResult{.cleanedItems = {moved}, .failedItems = {}, .wasCancelled = true}),
        ExitCode::interrupted);
}
