// Every section in the whole window. With KARVELLO_PHOTOGRAPHS=FOLDER in the environment, each is written there as a picture.

#include "KarvelloUI/Shell/DashboardScreens.h"
#include "Tests/KarvelloUI/Controls/Tidiness.h"
#include "Tests/KarvelloUI/Dashboard/ScreenWindow.h"
#include "Tests/KarvelloUI/Dashboard/SmallFileInsights.h"

#include <QUrl>
#include <cstdint>
#include <memory>
#include <string>

namespace DashboardTests {

namespace {

using Section = MacDashboardSection;

/// Names of all lengths, and of those that nobody should have given.
constexpr std::string_view kHome = R"(
home/.cache/mozilla/firefox/x7k2p9ab.default-release/cache2/entries size=742K age=3d
home/.cache/thumbnails/large/a size=61K age=33d
home/.cache/"two\nlines"/a size=9K age=90d
home/.cache/pypoetry/cache/"A package index with a very long name, which somebody has mirrored for all"/a size=96K age=45d
home/.cache/go-build/0f size=588K age=12d
home/.cache/mesa_shader_cache/a size=88K age=33d
home/.cargo/registry/cache/index.crates.io-6f17d22bba15001f/a size=364K age=74d
home/.gradle/caches/modules-2/a size=640K age=52d
home/.npm/_cacache/content-v2 size=1210K age=41d
home/.config/Code/logs/20260902T101512/window1 size=30K age=80d
home/Documents/photo.jpg size=40K age=200d
home/Documents/"A report that somebody sent with a name which goes on and on, and then on again (final) (2).pdf" size=64K age=400d
home/Downloads/film.mov size=128K age=40d
home/Downloads/photo.jpg size=40K age=60d
home/Downloads/setup.sh size=8K age=60d
home/Downloads/tool_1.2_amd64.deb size=88K age=220d
home/Pictures/copy.jpg size=40K age=100d
home/Projects/atlas/node_modules/lib.js size=300K age=143d
home/Videos/"\xE5\xA4\x8F\xE4\xBC\x91\xE3\x81\xBF.mov" size=72K age=90d
)";

CleanerCore::ResourceReliefProcessSnapshot application(std::string name, std::int32_t process, double share)
{
    return {.displayName = std::move(name),
        .bundleIdentifier = "org.example.app" + std::to_string(process),
        .processIdentifier = process,
        .isUserVisible = true,
        .usage = {.cpuFractionOfTotalCapacity = share,
            .residentMemoryBytes = std::uint64_t{2} << 30,
            .memoryFractionOfPhysicalMemory = share}};
}

} // namespace

class WindowLayout : public ScreenWindowTest {
protected:
    WindowLayout()
        : ScreenWindowTest(kHome)
    {
        insightConfiguration = DashboardTests::insightsOfSmallFiles();
        systemSnapshot = {.capturedAt = now,
            .physicalMemoryBytes = 16ULL << 30,
            .usedMemoryBytes = 9ULL << 30,
            .memoryPressure = "Moderate",
            .cpuLoadAverage = 1.42,
            .normalizedCPULoad = 0.18,
            .processorCount = 16,
            .activeProcessorCount = 16,
            .thermalState = "Fair",
            .uptime = 273'540};
        capability = CleanerCore::ResourceReliefCapability::supported();
        applications = {application("Krita", 12, 0.31),
            application("An application with a name that takes a good deal of room", 13, 0.21)};
    }
    ~WindowLayout() override { m_window.reset(); }

    void open(int width, int height)
    {
        restart();
        dashboard->dashboardLifecycle();
        settle();
        m_screens = std::make_unique<DashboardScreens>(*dashboard);
        QQmlComponent component(&m_engine, QUrl(QStringLiteral("qrc:/qt/qml/Karvello/Shell/DashboardWindow.qml")));
        ASSERT_TRUE(component.isReady()) << component.errorString().toStdString();
        m_window.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(
            {{QStringLiteral("screens"), QVariant::fromValue(m_screens.get())}, {QStringLiteral("width"), width},
                {QStringLiteral("height"), height}, {QStringLiteral("visible"), true}})));
        ASSERT_TRUE(m_window);
        layOut();
    }
    void openAfterTheFirstRun(int width, int height)
    {
        open(width, height);
        ASSERT_TRUE(preferences->completeOnboarding());
        ASSERT_TRUE(preferences->setScanMode(CleanerCore::CleanupScanMode::direct));
    }

    /// Something of everything: findings, a clean, its history, and findings again.
    void fill()
    {
        for (int sample = 0; sample < 8; ++sample) {
            now = now.addingSeconds(1);
            systemSnapshot.capturedAt = now;
            dashboard->insights().refreshSystemSnapshot();
        }
        scanForCleanup();
        dashboard->scanInsights();
        dashboard->resourceRelief().refreshCandidates();
        settle();
        m_screens->cleanup()->setGrouping(QStringLiteral("safety"));
        m_screens->cleanup()->toggle(1);
        dashboard->requestCleanSelected();
        dashboard->cleanSelected();
        settle();
        m_screens->cleanup()->setOpen(1, true);
        m_screens->cleanup()->selectAll();
    }

    void expectTidy(const std::string& name)
    {
        photograph(name);
        EXPECT_GT(Tidiness::countTexts(*m_window->contentItem()), 5U);
        for (const auto& fault : Tidiness::faultsOf(*m_window->contentItem())) {
            ADD_FAILURE() << fault;
        }
    }

    /// In every language; the rows of one language make way for those of the next while all sections are there.
    void expectTidySections(KarvelloTextScale scale, const char* name)
    {
        setScale(scale);
        for (const auto language : Platform::allCases<AppLanguage>()) {
            setLanguage(language);
            for (const auto section : Platform::allCases<Section>()) {
                SCOPED_TRACE(
                    std::string(Platform::rawValue(language)) + " " + std::string(Platform::rawValue(section)));
                dashboard->showSection(section);
                expectTidy(std::string(name) + "-" + std::string(Platform::rawValue(language)) + "-"
                    + std::string(Platform::rawValue(section)));
            }
        }
    }

    std::unique_ptr<DashboardScreens> m_screens;
};

TEST_F(WindowLayout, IsTidyAtTheMinimumSizeInEveryLanguage)
{
    openAfterTheFirstRun(1180, 780);
    fill();
    expectTidySections(KarvelloTextScale::standard, "minimum");
}

TEST_F(WindowLayout, IsTidyWithExtraLargeTextsInEveryLanguage)
{
    openAfterTheFirstRun(1180, 780);
    fill();
    expectTidySections(KarvelloTextScale::extraLarge, "extraLarge");
}

// What is below the end of the least window.
TEST_F(WindowLayout, IsTidyToItsEndInEveryLanguage)
{
    openAfterTheFirstRun(1180, 3200);
    fill();
    expectTidySections(KarvelloTextScale::extraLarge, "tall");
}

TEST_F(WindowLayout, IsTidyBeforeTheFirstScanInEveryLanguage)
{
    openAfterTheFirstRun(1180, 780);
    expectTidySections(KarvelloTextScale::extraLarge, "first");
}

TEST_F(WindowLayout, IsTidyWithoutAccessInEveryLanguage)
{
    isDirectDistribution = false;
    openAfterTheFirstRun(1180, 780);
    expectTidySections(KarvelloTextScale::standard, "denied");
}

TEST_F(WindowLayout, IsTidyInTheFirstRunInEveryLanguage)
{
    open(1180, 780);
    for (const auto scale : {KarvelloTextScale::standard, KarvelloTextScale::extraLarge}) {
        setScale(scale);
        for (const auto language : Platform::allCases<AppLanguage>()) {
            SCOPED_TRACE(Platform::rawValue(language));
            setLanguage(language);
            expectTidy("first-run-" + std::string(Platform::rawValue(language)) + "-"
                + std::string(Platform::rawValue(scale)));
        }
    }
}

} // namespace DashboardTests
