#include "CleanerCore/Insights/SecurityReview.h"
#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Scan/CustomFolderLocation.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "KarvelloUI/Copy/Texts/TextTables.h"
#include "Platform/Files/FileError.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace KarvelloUI {
namespace {

using CleanerCore::CleaningError;
using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileOperation;
using testing::HasSubstr;
using testing::Not;

constexpr KarvelloCopy kEnglish{AppLanguage::english};

/// Texts that are the same in a language as in English, and rightly so: they are words of that language, or names.
const std::set<std::pair<AppLanguage, std::string>>& sameAsEnglish()
{
    using enum AppLanguage;
    static const std::set<std::pair<AppLanguage, std::string>> texts{
        {japanese, "OK"},
        {french, "OK"},
        {german, "OK"},
        {spanish, "Manual 1"},
        {german, "Downloads"},
        {french, "Standard"},
        {german, "Standard"},
        {spanish, "Normal"},
        {french, "Normal"},
        {german, "Normal"},
        {spanish, "Nominal"},
        {french, "Nominal"},
        {korean, "Xcode DerivedData"},
        {simplifiedChinese, "Xcode DerivedData"},
        {traditionalChinese, "Xcode DerivedData"},
        {korean, "Xcode DeviceSupport"},
        {simplifiedChinese, "Xcode DeviceSupport"},
        {traditionalChinese, "Xcode DeviceSupport"},
    };
    return texts;
}

/// Names, figures, and words that nobody knows are the same in every language.
bool isNoWord(const CatalogueSample& sample)
{
    return sample.coverage == SampleCoverage::staysEnglish || sample.coverage == SampleCoverage::onlyKorean
        || sample.name.starts_with("permissionDiagnosticSampleCopyPayload");
}

/// Sentences that the engine and the system hand to the screens and to the command line.
std::vector<std::string> sentencesOfTheEngine()
{
    namespace Reason = CleanerCore::StorageScannerSkipReason;
    std::vector<std::string> sentences;
    for (const auto reason : {Reason::folderDoesNotExist, Reason::symbolicLink, Reason::noTouchPath,
             Reason::noTouchDescendant, Reason::recentlyModified, Reason::emptyItem, Reason::inventoryItemLimitExceeded,
             Reason::duplicateHashBudgetExceeded, Reason::couldNotEnumerateFolder, Reason::couldNotEnumeratePackage,
             Reason::scanRootItself}) {
        sentences.emplace_back(reason);
    }
    // The last kind is of systems without a Trash of their own.
    for (int kind = 0; kind < static_cast<int>(CleaningError::Kind::moveToTrashUnavailable); ++kind) {
        sentences.push_back(CleaningError{static_cast<CleaningError::Kind>(kind), "/h/x"}.errorDescription());
    }
    for (const auto operation : {FileOperation::read, FileOperation::write, FileOperation::trash,
             FileOperation::restore, FileOperation::remove}) {
        for (int kind = 0; kind <= static_cast<int>(FileErrorKind::unknown); ++kind) {
            sentences.push_back(
                FileError{.kind = static_cast<FileErrorKind>(kind), .operation = operation, .path = "/h/x"}
                    .localizedDescription());
        }
    }
    for (const char* const name :
        {"a.mobileconfig", "a.pkg", "a.app", "a.command", "a.sh", "a.workflow", "a.dmg", "a.webloc", "keygen.bin"}) {
        sentences.emplace_back(CleanerCore::SecurityReview::reviewDetail(name).value());
    }
    return sentences;
}

bool isAlphabetic(AppLanguage language)
{
    return language == AppLanguage::spanish || language == AppLanguage::french || language == AppLanguage::german;
}

TEST(EveryLanguage, HasEveryTextOfTheCatalogueOnEveryHost)
{
    std::set<std::pair<AppLanguage, std::string>> same;
    for (const auto& [theme, samples] : catalogueSamples()) {
        for (const CatalogueSample& sample : samples) {
            for (const CopyHost host : {CopyHost::mac, CopyHost::linuxDesktop}) {
                const std::string english = sample.text({{{AppLanguage::english, host}}});
                for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
                    if (language == AppLanguage::english || isNoWord(sample)
                        || (language == AppLanguage::korean && sample.coverage == SampleCoverage::neverKorean)
                        || sample.text({{{language, host}}}) != english) {
                        continue;
                    }
                    same.emplace(language, english);
                    EXPECT_TRUE(sameAsEnglish().contains({language, english}))
                        << sample.name << " is English in " << displayName(language) << ": " << english;
                }
            }
        }
    }
    EXPECT_THAT(same, testing::ContainerEq(sameAsEnglish()));
}

TEST(EveryLanguage, HasEverySentenceOfTheEngine)
{
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        const KarvelloCopy copy{language};
        for (const std::string& sentence : sentencesOfTheEngine()) {
            const std::string text = copy.skippedReason(sentence);
            EXPECT_EQ(text == sentence, language == AppLanguage::english) << sentence;
            EXPECT_THAT(text, Not(HasSubstr("{"))) << sentence;
            if (language != AppLanguage::english) {
                EXPECT_THAT(text, Not(HasSubstr(" because"))) << sentence;
            }
        }
    }
}

TEST(EveryLanguage, HasEveryOwnText)
{
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        const auto texts = Copy::textsIn(language);
        ASSERT_EQ(texts.size(), Copy::kEnglishTexts.size());
        for (std::size_t index = 0; index < texts.size() && language != AppLanguage::english; ++index) {
            const std::string english(Copy::kEnglishTexts[index]);
            // Names of Xcode's are what they are.
            EXPECT_TRUE(texts[index] != english || english.starts_with("Xcode ")) << english;
            if (!isAlphabetic(language)) {
                EXPECT_TRUE(std::ranges::any_of(texts[index], [](char byte) { return (byte & 0x80) != 0; })
                    || english.starts_with("Xcode "))
                    << texts[index];
            }
        }
    }
}

TEST(EveryLanguage, CountsOneInTheSingular)
{
    const auto daysLeft = [](AppLanguage language, std::int64_t days) {
        return KarvelloCopy{language}.cleanupReviewCadenceStatus(CleanupReviewCadenceStatusKind::upcoming, days);
    };
    EXPECT_EQ(daysLeft(AppLanguage::english, 1), "Next review in 1 day.");
    EXPECT_EQ(daysLeft(AppLanguage::english, 0), "Next review in 0 days.");
    EXPECT_EQ(daysLeft(AppLanguage::german, 1), "Nächste Überprüfung in 1 Tag.");
    EXPECT_EQ(daysLeft(AppLanguage::german, 2), "Nächste Überprüfung in 2 Tagen.");
    EXPECT_EQ(daysLeft(AppLanguage::french, 0), "Prochain examen dans 0 jour.");
    EXPECT_EQ(daysLeft(AppLanguage::french, 2), "Prochain examen dans 2 jours.");
}

TEST(EveryLanguage, KeepsNamesThatReadLikeOurSentences)
{
    const KarvelloCopy german{AppLanguage::german};
    const FileError error{
        .kind = FileErrorKind::noPermission, .operation = FileOperation::read, .path = "/h/Disk image"};
    EXPECT_EQ(german.skippedReason(error.localizedDescription()),
        "Die Datei „Disk image“ konnte nicht geöffnet werden: Ihnen fehlt die Berechtigung, sie anzusehen.");
    EXPECT_EQ(german.skippedReason(CleaningError{CleaningError::Kind::criticalPath, "{0} {}"}.errorDescription()),
        "Kritischer Pfad, wird nicht bereinigt: {0} {}");
    EXPECT_EQ(german.smartCleanupOpenSectionCTA("{1}"), "{1} öffnen");
}

} // namespace
} // namespace KarvelloUI
