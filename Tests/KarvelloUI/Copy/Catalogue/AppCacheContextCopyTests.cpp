#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "Tests/KarvelloUI/Copy/CopyLanguages.h"

#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

using CleanerCore::AppCacheContainerKind;
using CleanerCore::AppCacheContext;
using CleanerCore::AppCacheRunningState;

TEST(AppCacheContextCopy, NamesARunningAppByItsOwnName)
{
    AppCacheContext context = AppCacheContext::seed(AppCacheContainerKind::appContainer, "com.example.notes");
    context.runningState = AppCacheRunningState::running;
    context.matchedRunningBundleIdentifier = "com.example.Notes";
    context.matchedRunningDisplayName = "My Notes";
    EXPECT_EQ(kEnglish.appCacheContextSummary(context),
        "App container My Notes · matched bundle com.example.Notes · My Notes is running");
}

TEST(AppCacheContextCopy, NamesAnotherAppByItsContainer)
{
    AppCacheContext context = AppCacheContext::seed(AppCacheContainerKind::appContainer, "com.example.Notes");
    context.runningState = AppCacheRunningState::notRunning;
    EXPECT_EQ(kEnglish.appCacheContextSummary(context),
        "App container Notes · bundle com.example.Notes · matching app is not running");
    EXPECT_EQ(kEnglish.appCacheContextSummary(AppCacheContext::seed(AppCacheContainerKind::appContainer, "{}")),
        "App container {} · bundle {} · running state unknown");
}

TEST(AppCacheContextCopy, CallsTheOwnerOfAGroupAGuess)
{
    EXPECT_EQ(kEnglish.appCacheContextSummary(
                  AppCacheContext::seed(AppCacheContainerKind::groupContainer, "group.com.example.notes")),
        "Group identifier group.com.example.notes · possible matching bundle com.example.notes · running state "
        "unknown");
    EXPECT_EQ(
        kEnglish.appCacheContextSummary(AppCacheContext::seed(AppCacheContainerKind::groupContainer, "group.notes")),
        "Group identifier group.notes · running state unknown");
}

TEST(AppCacheContextCopy, TranslatesPartByPart)
{
    EXPECT_EQ(KarvelloCopy{AppLanguage::german}.appCacheContextSummary(
                  AppCacheContext::seed(AppCacheContainerKind::groupContainer, "group.notes, one")),
        "Gruppenkennung group.notes, one · unbekannt, ob geöffnet");
}

} // namespace
} // namespace KarvelloUI
