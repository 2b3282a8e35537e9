#include "Tests/KarvelloUI/Sessions/CleanerViewModelFixture.h"
#include "Tests/KarvelloUI/Sessions/PhaseTable.h"

#include <functional>
#include <map>
#include <set>

namespace CleanerViewModelTests {

namespace {

// I idle, S scanning, R ready, C cleaning, U restoring, F finished. What a state is, and what an event does, is said by the
// functions of the same name below.
constexpr std::string_view kTable = R"(scan scanNothing cancel clear clean undo settle selectAll deselect ignore
    idle             SR   SR          II     II    II    II   II     II        II       II
    scanningFirst    SR   SR          II     II    SR    SR   RR     SR        SR       SR
    scannedFirst     SR   SR          II     II    SR    SR   RR     SR        SR       SR
    scanningAgain    SR   SR          RR     II    SR    SR   RR     SR        SR       SR
    ready            SR   SR          RR     II    CF    RR   RR     RR        RR       RR
    readyEmpty       SR   SR          RR     II    RR    RR   RR     RR        RR       RR
    cleaning         SR   SR          CR     II    CF    CF   FF     CF        CF       CF
    cleaned          SR   SR          CR     II    CF    CF   FF     CF        CF       CF
    restoringAll     SR   SR          UI     II    UF    UF   FF     UF        UF       UF
    restoringSome    SR   SR          UR     II    UF    UF   FF     UF        UF       UF
    restored         SR   SR          UF     II    UF    UF   FF     UF        UF       UF
    finished         SR   SR          FF     II    CF    UF   FF     FF        FF       FF
    finishedEmpty    SR   SR          FF     II    FF    UF   FF     FF        FF       FF
)";

/// A session that a test takes into any state.
class Stage final : public CleanerViewModelTest {
public:
    void reach(const std::string& state) { m_states.at(state)(); }
    void meet(const std::string& event) { m_events.at(event)(); }
    void comeToRest() { settle(); }
    void TestBody() override {}

    [[nodiscard]] char phase() const { return "ISRCUF"[static_cast<std::size_t>(session->phase())]; }
    [[nodiscard]] std::size_t loggedCount() const { return session->auditEntries().size(); }

    static bool writesDown(char running, const SessionTests::PhaseTable::Cell& /*cell*/)
    {
        return running == 'C' || running == 'U';
    }

    /// What holds in any session with nothing under way.
    void expectRest() const
    {
        EXPECT_FALSE(session->isBusy());
        EXPECT_EQ(executor.waitingCount(), 0U);
        const auto& candidates = session->report().candidates;
        std::int64_t bytes = 0;
        for (const auto& selected : session->review().selection().candidates()) {
            EXPECT_THAT(candidates, testing::Contains(selected));
            bytes += selected.sizeBytes;
        }
        EXPECT_EQ(session->selectedBytes(), bytes);
        EXPECT_EQ(session->scanProgress(), CleanerCore::StorageScanProgress::empty());
    }

private:
    void clean(const std::vector<std::string>& wanted)
    {
        session->clearSelection();
        for (const auto& name : wanted) {
            session->setSelected(candidate(name), true);
        }
        session->cleanSelected(CleanerCore::CleaningMode::moveToTrash);
    }
    void undo()
    {
        std::set<std::string, std::less<>> ids{"unknown"};
        if (session->lastCleanResult()) {
            for (const auto& item : session->lastCleanResult()->cleanedItems) {
                ids.insert(item.candidate.id);
            }
        }
        session->undoLastTrashClean(ids);
    }
    void finishWith(const std::vector<std::string>& cleaned)
    {
        scanCaches();
        clean(cleaned);
        settle();
    }

    const std::vector<std::string> m_all{"large", "middle", "small"};
    const std::map<std::string, std::function<void()>, std::less<>> m_states{
        {"idle", [] {}},
        {"scanningFirst", [this] { session->scan({location("home/Caches/")}); }},
        {"scannedFirst",
            [this] {
                session->scan({location("home/Caches/")});
                executor.runOne();
            }},
        {"scanningAgain",
            [this] {
                scanCaches();
                session->scan({location("home/Caches/")});
            }},
        {"ready", [this] { scanCaches(); }},
        {"readyEmpty", [this] { scan({location("home/Empty/")}); }},
        {"cleaning",
            [this] {
                scanCaches();
                clean({"large", "small"});
            }},
        {"cleaned",
            [this] {
                scanCaches();
                clean({"large", "small"});
                executor.runOne();
            }},
        {"restoringAll",
            [this] {
                finishWith(m_all);
                undo();
            }},
        {"restoringSome",
            [this] {
                finishWith({"large"});
                undo();
            }},
        {"restored",
            [this] {
                finishWith(m_all);
                undo();
                executor.runOne();
            }},
        {"finished",
            [this] {
                finishWith({"large"});
                session->selectAllCandidates();
            }},
        {"finishedEmpty", [this] { finishWith(m_all); }},
    };
    const std::map<std::string, std::function<void()>, std::less<>> m_events{
        {"scan", [this] { session->scan({location("home/Caches/")}); }},
        {"scanNothing", [this] { session->scan({location("home/Empty/")}); }},
        {"cancel", [this] { session->cancelCurrentOperation(); }},
        {"clear", [this] { session->clearScanResults(); }},
        {"clean", [this] { session->cleanSelected(CleanerCore::CleaningMode::moveToTrash); }},
        {"undo", [this] { undo(); }},
        {"settle", [this] { settle(); }},
        {"selectAll", [this] { session->selectAllCandidates(); }},
        {"deselect", [this] { session->clearSelection(); }},
        {"ignore",
            [this] {
                if (!session->report().candidates.empty()) {
                    session->ignoreCandidate(session->report().candidates.front());
                }
            }},
    };
};

} // namespace

TEST(CleanerViewModelPhases, AreThoseOfTheTableForEveryEventInEveryState)
{
    const SessionTests::PhaseTable table(kTable);
    ASSERT_EQ(table.cells().size(), 130U);
    SessionTests::expectPhases<Stage>(table);
}

} // namespace CleanerViewModelTests
