#include "Platform/Services/DefaultsObservers.h"

#include <array>
#include <atomic>
#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <latch>
#include <string>
#include <thread>
#include <vector>

namespace Platform {

namespace {

using testing::ElementsAre;

const std::array<std::string, 1> kKeys{"a"};

} // namespace

TEST(DefaultsObservers, CallsEveryObserverInTheirOrder)
{
    DefaultsObservers observers;
    std::vector<int> called;
    const auto first = observers.add([&](auto) { called.push_back(1); });
    const auto second = observers.add([&](auto) { called.push_back(2); });
    observers.notify(kKeys);
    EXPECT_THAT(called, ElementsAre(1, 2));
    observers.notify({});
    EXPECT_EQ(called.size(), 2) << "there is nothing to tell";
}

TEST(DefaultsObservers, LetsAnObserverEndItsOwnObservation)
{
    DefaultsObservers observers;
    int calls = 0;
    UserDefaults::Observation observation;
    const std::string large(1000, 'x');
    observation = observers.add([&, large](auto) {
        ++calls;
        observation.reset();
        observers.notify(kKeys);
        EXPECT_EQ(large.size(), 1000) << "the observer lives until it returns";
    });
    observers.notify(kKeys);
    observers.notify(kKeys);
    EXPECT_EQ(calls, 1);
}

TEST(DefaultsObservers, DoesNotCallAnObserverThatAnEarlierOneEnded)
{
    DefaultsObservers observers;
    int calls = 0;
    UserDefaults::Observation second;
    const auto first = observers.add([&](auto) { second.reset(); });
    second = observers.add([&](auto) { ++calls; });
    observers.notify(kKeys);
    EXPECT_EQ(calls, 0);
}

TEST(DefaultsObservers, CallsAnObserverThatWasAddedDuringACallFromTheNextChangeOn)
{
    DefaultsObservers observers;
    int calls = 0;
    UserDefaults::Observation added;
    const auto first = observers.add([&](auto) {
        if (!added) {
            added = observers.add([&](auto) { ++calls; });
        }
    });
    observers.notify(kKeys);
    EXPECT_EQ(calls, 0);
    observers.notify(kKeys);
    EXPECT_EQ(calls, 1);
}

TEST(DefaultsObservers, WaitsForACallOnAnotherThreadBeforeAnObservationEnds)
{
    DefaultsObservers observers;
    std::latch isCalled(1);
    std::atomic<bool> hasReturned = false;
    auto observation = observers.add([&](auto) {
        isCalled.count_down();
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        hasReturned = true;
    });
    std::jthread notifying([&] { observers.notify(kKeys); });
    isCalled.wait();
    observation.reset();
    EXPECT_TRUE(hasReturned);
}

TEST(DefaultsObservers, LetsAnObservationOutliveThem)
{
    UserDefaults::Observation observation;
    {
        DefaultsObservers observers;
        observation = observers.add([](auto) {});
    }
    observation.reset();
}

TEST(DefaultsObservers, LetsObserversOfTwoThreadsTellOfChangesThemselves)
{
    // Each observer tells the other one of a change: with a lock held over the calls, two threads would wait for each
    // other.
    DefaultsObservers observers;
    std::atomic<int> calls = 0;
    const auto tellsOnce = [&](std::span<const std::string> keys) {
        ++calls;
        if (keys.size() == 1) {
            observers.notify(std::array<std::string, 2>{"a", "b"});
        }
    };
    const auto first = observers.add(tellsOnce);
    const auto second = observers.add(tellsOnce);
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 2; ++thread) {
            threads.emplace_back([&] {
                for (int round = 0; round < 500; ++round) {
                    observers.notify(kKeys);
                }
            });
        }
    }
    EXPECT_EQ(calls, 2 * 500 * (2 + 4));
}

TEST(DefaultsObservers, LetsObservationsComeAndGoWhileOthersTell)
{
    DefaultsObservers observers;
    std::atomic<bool> isOver = false;
    std::jthread telling([&] {
        while (!isOver) {
            observers.notify(kKeys);
        }
    });
    for (int round = 0; round < 100; ++round) {
        auto target = std::make_unique<std::atomic<int>>(0);
        auto observation = observers.add([&target = *target](auto) { ++target; });
        std::this_thread::yield();
        observation.reset();
        target.reset();
    }
    isOver = true;
}

} // namespace Platform
