#include "CleanerCore/Export/CSVWriter.h"

#include <array>
#include <gtest/gtest.h>

namespace CleanerCore {

namespace {

constexpr std::array<std::string_view, 2> kColumns{"first", "second"};

/// The one cell of a file whose column is named "c".
std::string cell(std::string_view value)
{
    constexpr std::array<std::string_view, 1> column{"c"};
    CSVWriter writer(column, ReportExportPrivacyMode::full);
    writer.addRow(std::array{value});
    const auto text = std::move(writer).finish();
    EXPECT_TRUE(text.starts_with("c\n"));
    EXPECT_TRUE(text.ends_with("\n"));
    return text.substr(2, text.size() - 3);
}

} // namespace

TEST(CSVWriter, EndsEachRowWithALineFeed)
{
    CSVWriter writer(kColumns, ReportExportPrivacyMode::full);
    writer.addRow(std::array<std::string_view, 2>{"a", ""});
    writer.addRow(std::array<std::string_view, 2>{"", "b"});
    EXPECT_EQ(std::move(writer).finish(), "first,second\na,\n,b\n");
}

TEST(CSVWriter, MarksARedactedFileWithAShorterFirstRow)
{
    CSVWriter writer(kColumns, ReportExportPrivacyMode::redacted);
    EXPECT_EQ(std::move(writer).finish(), "privacy_mode,redacted\nfirst,second\n");
}

TEST(CSVWriter, QuotesOnlyWhatAsksForIt)
{
    EXPECT_EQ(cell("plain text; 'single' \t"), "plain text; 'single' \t");
    EXPECT_EQ(cell("a,b"), "\"a,b\"");
    EXPECT_EQ(cell("say \"x\""), "\"say \"\"x\"\"\"");
    EXPECT_EQ(cell("a\nb"), "\"a\nb\"");
    EXPECT_EQ(cell("a\rb"), "\"a\rb\"");
    EXPECT_EQ(cell("\""), "\"\"\"\"");
}

TEST(CSVWriter, GuardsBeforeItQuotes)
{
    EXPECT_EQ(cell("=SUM(A1)"), "'=SUM(A1)");
    EXPECT_EQ(cell("=A,B"), "\"'=A,B\"");
    EXPECT_EQ(cell("@\"x\""), "\"'@\"\"x\"\"\"");
}

TEST(SpreadsheetSafeValue, GuardsWhatASpreadsheetTakesForAFormula)
{
    for (const std::string_view value : {"=1", "+1", "-1", "@x", "  -5", "\t=1", "\n\r+x", "\u00A0=1", "\u3000@",
             "\x01=1", "\x7F-", "\u0085+", "\x1B \t="}) {
        EXPECT_EQ(spreadsheetSafeValue(value), "'" + std::string(value));
    }
}

TEST(SpreadsheetSafeValue, LeavesEveryOtherValueAsItIs)
{
    for (const std::string_view value :
        {"", " ", "\t\n", "a-b", "1+1", "<path:file-1>", "'=1", "\u200B=1", "\uFEFF=1", "−5", "é=", "0"}) {
        EXPECT_EQ(spreadsheetSafeValue(value), value);
    }
}

} // namespace CleanerCore
