#include "Tests/KarvelloUI/Sessions/MacInsightsViewModelFixture.h"
#include "Tests/KarvelloUI/Sessions/PhaseTable.h"

#include <filesystem>
#include <functional>
#include <map>

namespace MacInsightsViewModelTests {

namespace {

// I idle, S scanning, R ready, C cleaning, F finished. What a state is, and what an event does, is said by the functions of
// the same name below.
constexpr std::string_view kTable = R"(scan cancel clear clean settle selectAll deselect sample flush
    idle             SR   II     II    II    II     II        II       II     II
    scanningFirst    SR   II     II    SR    RR     SR        SR       SR     SR
    scannedFirst     SR   II     II    SR    RR     SR        SR       SR     SR
    scanningAgain    SR   RR     II    SR    RR     SR        SR       SR     SR
    ready            SR   RR     II    CF    RR     RR        RR       RR     RR
    readyEmpty       SR   RR     II    RR    RR     RR        RR       RR     RR
    scanningEmpty    SR   II     II    SR    RR     SR        SR       SR     SR
    cleaning         SR   CR     II    CF    FF     CF        CF       CF     CF
    cleaned          SR   CR     II    CF    FF     CF        CF       CF     CF
    cleaningNothing  SR   CR     II    CR    RR     CR        CR       CR     CR
    finished         SR   FF     II    CF    FF     FF        FF       FF     FF
    finishedBare     SR   FF     II    FF    FF     FF        FF       FF     FF
)";

/// A session that a test takes into any state.
class Stage final : public MacInsightsViewModelTest {
public:
    void reach(const std::string& state) { m_states.at(state)(); }
    void meet(const std::string& event) { m_events.at(event)(); }
    void comeToRest() { settle(); }
    void TestBody() override {}

    [[nodiscard]] char phase() const { return "ISRCF"[static_cast<std::size_t>(session->phase())]; }
    [[nodiscard]] std::size_t loggedCount() const { return session->auditEntries().size(); }

    /// A clean of nothing is none.
    static bool writesDown(char running, const SessionTests::PhaseTable::Cell& cell)
    {
        return running == 'C' && cell.state != "cleaningNothing";
    }

    /// What holds in any session with nothing under way.
    void expectRest() const
    {
        EXPECT_FALSE(session->isBusy());
        EXPECT_EQ(executor.waitingCount(), 0U);
        std::int64_t count = 0;
        std::int64_t bytes = 0;
        for (const auto section : {largeFiles, downloads, duplicates, security}) {
            for (const auto* const file : session->selectedFiles(section)) {
                EXPECT_TRUE(session->isSelectable(*file));
                ++count;
                bytes += file->sizeBytes;
            }
        }
        EXPECT_EQ(session->selectedCount(), count);
        EXPECT_EQ(session->selectedBytes(), bytes);
    }

private:
    void finish()
    {
        scan();
        select(downloads, "Downloads/note.txt");
        clean(downloads);
    }
    void removeTheFolders()
    {
        for (const auto* const folder : {"home/Library", "home/Documents", "home/Downloads", "home/Pictures"}) {
            tree.remove(folder);
        }
    }

    const std::map<std::string, std::function<void()>, std::less<>> m_states{
        {"idle", [] {}},
        {"scanningFirst", [this] { session->scan(std::nullopt); }},
        {"scannedFirst",
            [this] {
                session->scan(std::nullopt);
                executor.runOne();
            }},
        {"scanningAgain",
            [this] {
                scan();
                session->scan(std::nullopt);
            }},
        {"ready",
            [this] {
                scan();
                session->selectAll(downloads);
            }},
        {"readyEmpty",
            [this] {
                removeTheFolders();
                scan();
            }},
        {"scanningEmpty",
            [this] {
                removeTheFolders();
                scan();
                session->scan(std::nullopt);
            }},
        {"cleaning",
            [this] {
                scan();
                session->selectAll(downloads);
                session->cleanSelected(downloads);
            }},
        {"cleaned",
            [this] {
                scan();
                session->selectAll(downloads);
                session->cleanSelected(downloads);
                executor.runOne();
            }},
        {"cleaningNothing",
            [this] {
                scan();
                session->selectAll(downloads);
                session->cleanSelected(downloads);
                std::filesystem::rename(tree.path("home/Downloads"), tree.path("home/Aside"));
            }},
        {"finished",
            [this] {
                finish();
                session->selectAll(downloads);
            }},
        {"finishedBare", [this] { finish(); }},
    };
    const std::map<std::string, std::function<void()>, std::less<>> m_events{
        {"scan", [this] { session->scan(std::nullopt); }},
        {"cancel", [this] { session->cancelCurrentOperation(); }},
        {"clear", [this] { session->clearScanResults(); }},
        {"clean", [this] { session->cleanSelected(downloads); }},
        {"settle", [this] { settle(); }},
        {"selectAll", [this] { session->selectAll(downloads); }},
        {"deselect", [this] { session->clearSelection(downloads); }},
        {"sample", [this] { session->refreshSystemSnapshot(); }},
        {"flush", [this] { session->flushSystemMetricHistory(); }},
    };
};

} // namespace

TEST(MacInsightsViewModelPhases, AreThoseOfTheTableForEveryEventInEveryState)
{
    const SessionTests::PhaseTable table(kTable);
    ASSERT_EQ(table.cells().size(), 108U);
    SessionTests::expectPhases<Stage>(table);
}

} // namespace MacInsightsViewModelTests
