#include "CleanerCore/Export/ReportExportRedactionContext.h"

#include <gtest/gtest.h>

namespace CleanerCore {

namespace {

using Context = ReportExportRedactionContext;

} // namespace

TEST(ReportExportRedactionContext, HasATokenOfItsOwnForEachKind)
{
    Context context;
    EXPECT_EQ(context.path("/a", "file"), "<path:file-1>");
    EXPECT_EQ(context.name("/a", "heatmap"), "<name:heatmap-1>");
    EXPECT_EQ(context.identifier("/a", "duplicate-group"), "<id:duplicate-group-1>");
    EXPECT_EQ(context.freeText("/a", "skipped-reason"), "<text:skipped-reason-1>");
}

TEST(ReportExportRedactionContext, CountsOnAcrossTheLabelsOfAKind)
{
    Context context;
    EXPECT_EQ(context.path("/a", "file"), "<path:file-1>");
    EXPECT_EQ(context.path("/b", "heatmap"), "<path:heatmap-2>");
    EXPECT_EQ(context.path("/c", "file"), "<path:file-3>");
    EXPECT_EQ(context.name("c", "file"), "<name:file-1>");
}

TEST(ReportExportRedactionContext, KeepsTheLabelThatAValueWasFirstSeenWith)
{
    Context context;
    EXPECT_EQ(context.path("/a", "file"), "<path:file-1>");
    EXPECT_EQ(context.path("/a", "skipped"), "<path:file-1>");
    EXPECT_EQ(context.path("/b", "skipped"), "<path:skipped-2>");
}

TEST(ReportExportRedactionContext, SpendsNoNumberOnAnEmptyValue)
{
    Context context;
    EXPECT_EQ(context.path("", "file"), "");
    EXPECT_EQ(context.name("", "file"), "");
    EXPECT_EQ(context.identifier("", "file"), "");
    EXPECT_EQ(context.freeText("", "file"), "");
    EXPECT_EQ(context.path("/a", "file"), "<path:file-1>");
}

TEST(ReportExportRedactionContext, TellsValuesApartByTheirBytes)
{
    Context context;
    EXPECT_EQ(context.path("/a", "x"), "<path:x-1>");
    EXPECT_EQ(context.path("/A", "x"), "<path:x-2>");
    EXPECT_EQ(context.path("/\xFF", "x"), "<path:x-3>");
    EXPECT_EQ(context.path("/\xFE", "x"), "<path:x-4>");
}

TEST(ReportExportRedactionContext, BeginsAnewInEachContext)
{
    Context first;
    EXPECT_EQ(first.path("/a", "x"), "<path:x-1>");
    Context second;
    EXPECT_EQ(second.path("/b", "x"), "<path:x-1>");
}

TEST(ReportExportRedactionContext, SanitisesLabels)
{
    EXPECT_EQ(Context::sanitizedLabel("Large Files!"), "large-files");
    EXPECT_EQ(Context::sanitizedLabel("largeFiles"), "largefiles");
    EXPECT_EQ(Context::sanitizedLabel("--a__b  c--"), "a-b-c");
    EXPECT_EQ(Context::sanitizedLabel("ÄÖ ß9"), "äö-ß9");
    EXPECT_EQ(Context::sanitizedLabel("!?-"), "item");
    EXPECT_EQ(Context::sanitizedLabel(""), "item");
    // Each scalar by itself: no final sigma.
    EXPECT_EQ(Context::sanitizedLabel("ΟΣ"), "οσ");
    EXPECT_EQ(Context().path("/a", "Large Files!"), "<path:large-files-1>");
}

TEST(ReportExportRedactionContext, LeavesAFreeTextWithoutAPathAsItIs)
{
    for (const std::string_view text :
        {"Recently modified", "Could not read a.txt", "and/or", "1/2", "/", "~", "a~/b", "ends with ~/", "~/ ", "~name",
            "~na me/x", "C:\\x", "a/b/c", "x / y", "//", "/ x", "://", "~/~", "a ~!/x", "https//x", "é/x"}) {
        Context context;
        EXPECT_EQ(context.freeText(text, "r"), text);
    }
}

TEST(ReportExportRedactionContext, HidesAFreeTextWithAPathWhole)
{
    for (const std::string_view text :
        {"/Users/a/x.txt", "failed: /tmp/x", "file='/var/log'", "~/Documents", "see ~alice/notes",
            "Could not read ~/Documents/a.txt", "FILE://x", "file:// ", "xfile://", "(/a", "[/a", "{/a", "<.a:/b",
            "a,/b", "a:/b", "a;/b", "a=/b", "a\"/b", "a'/b", "a`/b", "“/b", "”/b", "‘/b", "’/b", "a\n/b", "a\u3000/b",
            "/.hidden", "/_", "/-", "/é", "a/b /c", "~ ~/x", "~a.b-c_d/", "~é/", "/home/a b/c"}) {
        Context context;
        EXPECT_EQ(context.freeText(text, "r"), "<text:r-1>") << text;
    }
}

TEST(ReportExportRedactionContext, LeavesATokenAloneInASecondPass)
{
    Context context;
    const auto token = context.freeText("Could not move ~/Documents/report.pdf", "audit-failure-reason");
    EXPECT_EQ(token, "<text:audit-failure-reason-1>");
    EXPECT_EQ(context.freeText(token, "failure-reason"), token);
}

TEST(ReportExportRedactionContext, GivesTheSameFreeTextTheSameToken)
{
    Context context;
    EXPECT_EQ(context.freeText("at /a", "r"), "<text:r-1>");
    EXPECT_EQ(context.freeText("plain", "r"), "plain");
    EXPECT_EQ(context.freeText("at /b", "r"), "<text:r-2>");
    EXPECT_EQ(context.freeText("at /a", "s"), "<text:r-1>");
}

} // namespace CleanerCore
