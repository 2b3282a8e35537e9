#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

#include <array>
#include <fmt/ranges.h>
#include <utility>

namespace KarvelloUI {
namespace {

std::vector<CatalogueSample> steps()
{
    constexpr std::array<std::pair<std::string_view, std::string IOSStorageChecklistStep::*>, 4> kFields{
        {{"title", &IOSStorageChecklistStep::title}, {"detail", &IOSStorageChecklistStep::detail},
            {"path", &IOSStorageChecklistStep::path}, {"safetyNote", &IOSStorageChecklistStep::safetyNote}}};
    std::vector<CatalogueSample> samples;
    for (const auto id : Platform::allCases<IOSStorageChecklistStepID>()) {
        for (const auto& [name, field] : kFields) {
            samples.push_back({fmt::format("iOSStorageChecklistStep {} {}", Platform::rawValue(id), name),
                [id, field](const KarvelloCopy& copy) {
                    return copy.iOSStorageChecklistStep(id, IOSStorageChecklistStatus::done).*field;
                }});
        }
    }
    return samples;
}

/// The titles of all steps, a line each.
std::string titles(const KarvelloCopy& copy)
{
    std::vector<std::string> titles;
    for (const IOSStorageChecklistStep& step :
        copy.iOSStorageChecklistSteps([](auto) { return IOSStorageChecklistStatus::notStarted; })) {
        titles.push_back(step.title);
    }
    return fmt::format("{}", fmt::join(titles, "\n"));
}

constexpr auto kStep = IOSStorageChecklistStepID::photosReview;

const CatalogueTheme kChecklist("IOSStorageChecklist",
    {
        {"iOSStorageChecklistTitle", &KarvelloCopy::iOSStorageChecklistTitle},
        {"iOSStorageChecklistSubtitle", &KarvelloCopy::iOSStorageChecklistSubtitle},
        {"iOSStorageChecklistReset", &KarvelloCopy::iOSStorageChecklistReset},
        {"iOSStorageChecklistStatusAccessibilityHint", &KarvelloCopy::iOSStorageChecklistStatusAccessibilityHint},
        {"iOSStorageChecklistProgress",
            [](const KarvelloCopy& copy) { return copy.iOSStorageChecklistProgress(2, 7); }},
        {"iOSStorageChecklistStatusPickerLabel",
            [](const KarvelloCopy& copy) { return copy.iOSStorageChecklistStatusPickerLabel("Karvello"); }},
        {"iOSStorageChecklistSteps", titles, SampleCoverage::assembled},
        {"koreanIOSStorageChecklistStep",
            [](const KarvelloCopy& copy) {
                return copy.koreanIOSStorageChecklistStep(kStep, IOSStorageChecklistStatus::done).title;
            },
            SampleCoverage::onlyKorean},
        {"englishIOSStorageChecklistStep",
            [](const KarvelloCopy& copy) {
                return copy.englishIOSStorageChecklistStep(kStep, IOSStorageChecklistStatus::done).title;
            },
            SampleCoverage::neverKorean},
    });
const CatalogueTheme kActors("IOSStorageChecklist",
    samplesOfEachCase<IOSStorageChecklistActor>(
        "iOSStorageChecklistActorName", &KarvelloCopy::iOSStorageChecklistActorName));
const CatalogueTheme kStatuses("IOSStorageChecklist",
    samplesOfEachCase<IOSStorageChecklistStatus>(
        "iOSStorageChecklistStatusName", &KarvelloCopy::iOSStorageChecklistStatusName));
const CatalogueTheme kSteps("IOSStorageChecklist", steps());

} // namespace
} // namespace KarvelloUI
