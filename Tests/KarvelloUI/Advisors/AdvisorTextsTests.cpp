#include "KarvelloUI/Advisors/DeveloperProjectAdvisoryAnalyzer.h"
#include "KarvelloUI/Advisors/StoragePermissionAdvisor.h"
#include "KarvelloUI/Copy/KarvelloCopy.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

using Texts = std::vector<std::string>;

/// Each text is there in every language, and English in English alone.
void expectTextsOfEachLanguage(const std::function<Texts(const KarvelloCopy& copy)>& texts)
{
    const Texts english = texts(KarvelloCopy{AppLanguage::english});
    EXPECT_THAT(english, testing::Each(testing::Not(testing::IsEmpty())));
    int languageCount = 0;
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        SCOPED_TRACE(Platform::rawValue(language));
        ++languageCount;
        const Texts translated = texts(KarvelloCopy{language});
        ASSERT_EQ(translated.size(), english.size());
        for (std::size_t index = 0; index < english.size(); ++index) {
            EXPECT_FALSE(translated[index].empty()) << english[index];
            EXPECT_EQ(translated[index] == english[index], language == AppLanguage::english) << english[index];
        }
    }
    EXPECT_EQ(languageCount, 8);
}

std::vector<CleanerCore::SkippedItem> itemsOfEachKind()
{
    std::vector<CleanerCore::SkippedItem> items;
    for (const char* const reason : {"Full Disk Access", "Files & Folders", "Stale bookmark", "Not authorized",
             "Could not read", "Could not verify file attributes safely: /x"}) {
        items.push_back({Platform::FileURL("/karvello"), reason});
    }
    return items;
}

TEST(AdvisorTexts, TellOfEachDiagnosis)
{
    const auto diagnoses = StoragePermissionAdvisor::diagnoses(itemsOfEachKind());
    ASSERT_EQ(diagnoses.size(), Platform::allCases<StoragePermissionIssueKind>().size());
    expectTextsOfEachLanguage([&](const KarvelloCopy& copy) {
        Texts texts;
        for (const auto& diagnosis : diagnoses) {
            texts.push_back(
                copy.permissionDiagnosticTitle(diagnosis.kind, static_cast<std::int64_t>(diagnosis.items.size())));
            texts.push_back(copy.permissionDiagnosticAction(diagnosis.kind));
        }
        return texts;
    });
}

TEST(AdvisorTexts, TellOfEachStepOfTheGuide)
{
    const auto steps = indexedWizardSteps(
        StoragePermissionAdvisor::wizardSteps(StoragePermissionAdvisor::diagnoses(itemsOfEachKind()), true));
    ASSERT_EQ(steps.size(), 9U);
    expectTextsOfEachLanguage([&](const KarvelloCopy& copy) {
        Texts texts{copy.permissionWizardTitle(), copy.permissionWizardIntro()};
        for (const auto& [index, step] : steps) {
            texts.push_back(copy.permissionWizardStepLabel(index, static_cast<std::int64_t>(steps.size())));
            texts.push_back(copy.permissionWizardStepTitle(step.role));
            texts.push_back(copy.permissionWizardStepBody(step.role, step.issueKind));
            if (!step.samplePaths.empty()) {
                texts.push_back(copy.permissionDiagnosticSamples(step.samplePaths));
            }
        }
        return texts;
    });
}

TEST(AdvisorTexts, TellOfEachOpportunity)
{
    constexpr Platform::Date now{800'000'000};
    std::vector<CleanerCore::CleanupCandidate> candidates;
    for (const char* const name :
        {"node_modules", ".build", ".dart_tool", "Pods", ".next", ".turbo", "build", "dist", "target"}) {
        for (const auto age : {std::optional(100), std::optional(40), std::optional(1), std::optional<int>()}) {
            candidates.emplace_back(
                CleanerCore::CleanupCandidate::Fields{.url = Platform::FileURL("/p").appending(name),
                    .lastModified = age ? std::optional(now.addingSeconds(-86'400.0 * *age)) : std::nullopt});
        }
    }
    const auto summary = DeveloperProjectAdvisoryAnalyzer::summary(candidates, now);
    ASSERT_EQ(summary.opportunities.size(), 36U);
    expectTextsOfEachLanguage([&](const KarvelloCopy& copy) {
        Texts texts;
        for (const auto& opportunity : summary.opportunities) {
            texts.push_back(copy.developerProjectAdvisoryArtifactName(opportunity.artifact));
            texts.push_back(
                copy.developerProjectAdvisoryActivity(opportunity.activityLevel, opportunity.ageInDays.value_or(0)));
            texts.push_back(copy.developerProjectAdvisoryNote(opportunity.artifact));
        }
        return texts;
    });
}

TEST(AdvisorTexts, TellOfEachThingThatDevelopersKeep)
{
    expectTextsOfEachLanguage([](const KarvelloCopy& copy) {
        Texts texts;
        for (const auto kind : Platform::allCases<DeveloperCleanupAdvisoryKind>()) {
            const auto advisory = copy.developerCleanupAdvisory(kind);
            EXPECT_EQ(advisory.id(), kind);
            for (const auto& text : {advisory.title, advisory.summary, advisory.regeneration, advisory.impact,
                     advisory.prerequisite, advisory.action}) {
                texts.push_back(text);
            }
        }
        return texts;
    });
}

} // namespace
} // namespace KarvelloUI
