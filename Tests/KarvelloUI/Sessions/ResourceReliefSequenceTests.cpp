#include "KarvelloUI/Sessions/JobThreads.h"
#include "Tests/KarvelloUI/Sessions/ResourceReliefFixture.h"

#include <array>
#include <atomic>
#include <chrono>
#include <random>
#include <set>
#include <thread>

namespace {

using namespace ResourceReliefTests;

class ResourceReliefSequence : public ResourceReliefTest {
protected:
    enum class Event : std::uint8_t { refresh, request, select, clear, work, result, destroy };
    static constexpr std::array kEvents{
        Event::refresh, Event::request, Event::select, Event::clear, Event::work, Event::result, Event::destroy};

    void handle(Event event)
    {
        switch (event) {
        case Event::refresh:
            m_model->refreshCandidates();
            break;
        case Event::request:
            for (const auto& each : m_model->selectedCandidates()) {
                m_confirmed.insert(each.displayName);
            }
            request();
            break;
        case Event::select:
            for (const auto& each : m_model->candidates()) {
                m_model->setSelected(each, true);
            }
            break;
        case Event::clear:
            m_model->clearSelection();
            break;
        case Event::work:
            if (m_executor.waitingCount() > 0) {
                m_executor.runOne();
            }
            break;
        case Event::result:
            m_loop.handleEvents();
            break;
        case Event::destroy:
            m_model = newModel();
            break;
        }
    }

    void expectSense() const
    {
        for (const auto& id : m_model->selectedIDs()) {
            const auto found = std::ranges::find(m_model->candidates(), id, &ResourceReliefCandidate::id);
            ASSERT_NE(found, m_model->candidates().end());
            EXPECT_TRUE(found->eligibility.isActionable);
        }
        EXPECT_EQ(m_model->cpuSortedCandidates().size(), m_model->candidates().size());
        EXPECT_EQ(m_model->memorySortedCandidates().size(), m_model->candidates().size());
        for (const auto& name : m_asked) {
            EXPECT_TRUE(m_confirmed.contains(name)) << name;
        }
    }

    /// What is under way comes to its end, and nothing stays busy.
    void expectRest()
    {
        settle();
        EXPECT_FALSE(m_model->isRefreshing());
        EXPECT_FALSE(m_model->isRequestingQuit());
        expectSense();
    }

    std::set<std::string> m_confirmed;
};

TEST_F(ResourceReliefSequence, EverySequenceOfFiveEventsKeepsItsPromises)
{
    constexpr int length = 5;
    std::size_t count = 1;
    for (int place = 0; place < length; ++place) {
        count *= kEvents.size();
    }
    for (std::size_t sequence = 0; sequence < count; ++sequence) {
        m_asked.clear();
        m_confirmed.clear();
        m_model = newModel();
        refresh();
        for (auto [place, rest] = std::pair(0, sequence); place < length; ++place, rest /= kEvents.size()) {
            handle(kEvents.at(rest % kEvents.size()));
            expectSense();
        }
        expectRest();
        ASSERT_FALSE(HasFailure()) << sequence;
    }
}

TEST_F(ResourceReliefSequence, LongOnesInAChangingWorldDoToo)
{
    for (unsigned seed = 0; seed < 50; ++seed) {
        std::mt19937 random(seed);
        m_asked.clear();
        m_confirmed.clear();
        m_model = newModel();
        for (int step = 0; step < 400; ++step) {
            handle(kEvents.at(random() % kEvents.size()));
            auto& changed = m_running.at(random() % m_running.size());
            switch (random() % 8) {
            case 0:
                changed.isTerminated = !changed.isTerminated;
                break;
            case 1:
                changed.launchDate = changed.launchDate.value_or(Date{0}).addingSeconds(1);
                break;
            case 2:
                changed.isUserVisible = !changed.isUserVisible;
                break;
            case 3:
                m_capability =
                    random() % 2 == 0 ? ResourceReliefCapability::supported() : ResourceReliefCapability::unknown();
                break;
            default:
                break;
            }
            expectSense();
        }
        expectRest();
        ASSERT_FALSE(HasFailure()) << seed;
    }
}

TEST_F(ResourceReliefSequence, ItMayEndAtAnyMomentOfWorkOnThreads)
{
    std::atomic<int> asked = 0;
    const auto main = std::this_thread::get_id();
    std::atomic<bool> isOffMain = true;
    const auto leave = [&] { isOffMain = isOffMain && std::this_thread::get_id() != main; };
    ResourceReliefProviders threaded{
        .candidateProvider =
            [&, running = m_running](const std::stop_token&) {
                leave();
                return running;
            },
        .capabilityProvider =
            [&] {
                leave();
                return ResourceReliefCapability::supported();
            },
        .revalidationProvider =
            [&, running = m_running](const ResourceReliefCandidate& candidate) {
                leave();
                return std::optional(
                    *std::ranges::find(running, candidate.processIdentifier, &Snapshot::processIdentifier));
            },
        .quitRequester =
            [&](const Snapshot&) {
                leave();
                ++asked;
                return true;
            },
        .postQuitRefreshDelay = [&](const std::stop_token&) { leave(); },
    };
    {
        KarvelloUI::JobThreads threads(4);
        std::mt19937 random(1);
        for (int round = 0; round < 300; ++round) {
            m_model = std::make_unique<MacResourceReliefViewModel>(
                threads, threaded, KarvelloUI::ResourceReliefRequester{.currentProcessIdentifier = kOwnProcess});
            m_model->refreshCandidates();
            ASSERT_TRUE(m_loop.runUntil([this] { return !m_model->isRefreshing(); }));
            handle(Event::select);
            request();
            const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(random() % 300);
            ASSERT_TRUE(m_loop.runUntil([end] { return std::chrono::steady_clock::now() > end; }));
        }
        m_model.reset();
    }
    EXPECT_GT(asked, 0);
    EXPECT_TRUE(isOffMain);
}

} // namespace
