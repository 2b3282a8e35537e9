#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

using CleanerCore::AppCacheContainerKind;
using CleanerCore::AppCacheContext;
using CleanerCore::AppCacheRunningState;

AppCacheContext appContainer(AppCacheRunningState state)
{
    AppCacheContext context = AppCacheContext::seed(AppCacheContainerKind::appContainer, "com.example.Karvello");
    context.runningState = state;
    return context;
}

AppCacheContext runningApp()
{
    AppCacheContext context = appContainer(AppCacheRunningState::running);
    context.matchedRunningBundleIdentifier = "com.example.Karvello";
    context.matchedRunningDisplayName = "Karvello";
    return context;
}

AppCacheContext groupContainer()
{
    return AppCacheContext::seed(AppCacheContainerKind::groupContainer, "group.com.example.Karvello");
}

const CatalogueTheme kAppCacheContext("AppCacheContext",
    {
        {"appCacheContextSummary running",
            [](const KarvelloCopy& copy) { return copy.appCacheContextSummary(runningApp()); },
            SampleCoverage::assembled},
        {"appCacheContextSummary running without a name",
            [](const KarvelloCopy& copy) {
                return copy.appCacheContextSummary(appContainer(AppCacheRunningState::running));
            },
            SampleCoverage::assembled},
        {"appCacheContextSummary not running",
            [](const KarvelloCopy& copy) {
                return copy.appCacheContextSummary(appContainer(AppCacheRunningState::notRunning));
            },
            SampleCoverage::assembled},
        {"appCacheContextSummary group",
            [](const KarvelloCopy& copy) { return copy.appCacheContextSummary(groupContainer()); },
            SampleCoverage::assembled},
        {"koreanAppCacheContextSummary",
            [](const KarvelloCopy& copy) { return copy.koreanAppCacheContextSummary(groupContainer()); },
            SampleCoverage::onlyKorean},
        {"englishAppCacheContextSummary",
            [](const KarvelloCopy& copy) { return copy.englishAppCacheContextSummary(runningApp()); },
            SampleCoverage::neverKorean},
    });

} // namespace
} // namespace KarvelloUI
