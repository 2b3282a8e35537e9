#include "KarvelloCLI/DuplicateLines.h"

#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TableLayout.h"
#include "Platform/Base/CheckedMath.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace KarvelloCLI {

namespace {

using CleanerCore::DuplicateFileGroup;
using CleanerCore::DuplicateKeeperRecommendationReason;

constexpr std::size_t kCopyIndent = 4;

std::string clause(DuplicateKeeperRecommendationReason reason)
{
    switch (reason) {
    case DuplicateKeeperRecommendationReason::preferredLocation:
        return say("it lies in the better place");
    case DuplicateKeeperRecommendationReason::olderModificationDate:
        return say("it is older than a copy in as good a place");
    case DuplicateKeeperRecommendationReason::deterministicPathTieBreak:
        break;
    }
    return say("its path comes first, where nothing else decides");
}

/// A size in its column, then words that go on below themselves.
std::string sizedWords(std::int64_t bytes, std::string_view words, std::size_t sizeWidth, const TextStyle& style)
{
    const std::size_t indent = kMarkWidth + sizeWidth + kColumnGap.size();
    std::string text = style.paragraph(words, indent);
    text.replace(0, indent, "  " + TerminalText(style.size(bytes)).paddedLeft(sizeWidth) + "  ");
    return text;
}

std::string copies(
    const DuplicateFileGroup& group, std::span<const CandidateRow> rows, std::size_t ageWidth, const TextStyle& style)
{
    const TerminalText keep(say("keep"));
    const TerminalText extra(say("extra"));
    const std::size_t markWidth = std::max(keep.columns(), extra.columns());
    const std::size_t indent = kCopyIndent + markWidth + kColumnGap.size() + ageWidth + kColumnGap.size();
    const std::size_t room = style.columns > indent ? style.columns - indent : 1;
    std::string text;
    for (const CandidateRow& row : rows) {
        const bool isKeeper = &row == &rows.front();
        text += fmt::format("{:{}}{}  {}  {}\n", "", kCopyIndent,
            isKeeper ? style.painter(Ink::safe, keep.paddedRight(markWidth)) : extra.paddedRight(markWidth),
            row.age.paddedLeft(ageWidth), row.path.elidedInMiddle(room).string());
        const auto recommendation = isKeeper ? group.keeperRecommendation() : std::nullopt;
        if (recommendation) {
            text += style.paragraph(say("because {}", keeperReasons(*recommendation)), indent, Ink::quiet);
        }
    }
    if (const std::size_t more = group.files.size() - rows.size(); more > 0) {
        text += style.paragraph(counted(more, "and {} more copy", "and {} more copies"), indent, Ink::quiet);
    }
    return text;
}

} // namespace

std::string keeperReasons(const CleanerCore::DuplicateKeeperRecommendation& recommendation)
{
    std::string text;
    for (const auto reason : recommendation.reasons) {
        text = text.empty() ? clause(reason) : say("{}, and {}", text, clause(reason));
    }
    return text;
}

std::string duplicateLines(
    std::span<const DuplicateFileGroup> groups, std::span<const std::vector<CandidateRow>> rows, const TextStyle& style)
{
    std::int64_t moreBytes = 0;
    for (const DuplicateFileGroup& group : groups.subspan(rows.size())) {
        moreBytes = Platform::saturatingAdd(moreBytes, group.wastedBytes());
    }
    std::size_t sizeWidth = rows.size() < groups.size() ? columnsOf(style.size(moreBytes)) : 0;
    std::size_t ageWidth = 0;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        sizeWidth = std::max(sizeWidth, columnsOf(style.size(groups[index].wastedBytes())));
        for (const CandidateRow& row : rows[index]) {
            ageWidth = std::max(ageWidth, row.age.columns());
        }
    }
    std::string text;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const DuplicateFileGroup& group = groups[index];
        const std::size_t extras = group.extraCopies().size();
        text += sizedWords(group.wastedBytes(),
            counted(extras, "in {} extra copy of a file of {}", "in {} extra copies of a file of {}",
                style.size(group.sizeBytes)),
            sizeWidth, style);
        text += copies(group, rows[index], ageWidth, style);
    }
    if (rows.size() < groups.size()) {
        text += sizedWords(moreBytes,
            counted(groups.size() - rows.size(), "in the extra copies of {} more set",
                "in the extra copies of {} more sets"),
            sizeWidth, style);
    }
    return text;
}

} // namespace KarvelloCLI
