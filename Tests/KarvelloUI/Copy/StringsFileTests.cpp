#include "KarvelloUI/Copy/StringsFile.h"

#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

TEST(StringsFile, ReadsEntriesBetweenComments)
{
    EXPECT_EQ(
        readStringsFile("\xEF\xBB\xBF/* one; \"two\" */ \"a.b\" = \"한국어 100%\";\r\n// \"c\" = \"d\";\n\"e\"=\"\" ;"),
        (StringsEntries{{"a.b", "한국어 100%"}, {"e", ""}}));
    EXPECT_EQ(readStringsFile(""), StringsEntries{});
    EXPECT_EQ(readStringsFile("// the end"), StringsEntries{});
}

TEST(StringsFile, ReadsEscapes)
{
    EXPECT_EQ(readStringsFile(R"("a" = "\"\\\n\t";)"), (StringsEntries{{"a", "\"\\\n\t"}}));
}

TEST(StringsFile, TakesTheLastOfTwoEntries)
{
    EXPECT_EQ(readStringsFile(R"("a" = "1"; "a" = "2";)"), (StringsEntries{{"a", "2"}}));
}

TEST(StringsFile, ReadsNothingThatIsBrokenAnywhere)
{
    for (const char* broken : {"\"a\"", "\"a\" =", "\"a\" = \"b\"", "\"a\" = \"b;", "\"a\" \"b\";", "a = \"b\";",
             "\"a\" = b;", "\"a\" = \"b\"; /* no end", "/*", "\"a\" = \"\\", "\"a\" = \"\\x\";", "\"a\" = \"b\"; }",
             "\"a\" = \"\xFF\";", "\"a\" = \"b\";;"}) {
        EXPECT_EQ(readStringsFile(broken), std::nullopt) << broken;
    }
}

} // namespace
} // namespace KarvelloUI
