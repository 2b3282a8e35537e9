#pragma once

#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusModel.h"
#include "Tests/KarvelloUI/MenuBar/ManualReminderScheduler.h"
#include "Tests/KarvelloUI/MenuBar/MenuBarSnapshots.h"
#include "Tests/KarvelloUI/Stores/PreferencesFixture.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/ManualExecutor.h"
#include "Tests/Support/TestTime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

namespace MenuBarTests {

using KarvelloUI::KarvelloMenuBarStatusModel;
using Platform::Date;
using TestSupport::kSecond;

/// A model whose clock, machine, desktop and threads are the test's.
class MenuBarModelTest : public StoresTests::PreferencesTest {
protected:
    static constexpr auto kEnabledKey = "karvello.menuBarRemindersEnabled";
    static constexpr auto kDeliveredKey = "karvello.menuBarReminderLastDeliveredAt";
    /// When the wall clock stands at the beginning.
    static constexpr Date kStart{800'000'000};

    void make()
    {
        auto scheduler = std::make_unique<ManualReminderScheduler>();
        m_desktop = scheduler.get();
        KarvelloUI::KarvelloMenuBarStatusProviders providers;
        providers.snapshotProvider = [this] {
            ++m_snapshotCount;
            if (m_snapshotFails) {
                throw std::runtime_error("no memory");
            }
            return m_machine;
        };
        providers.languageProvider = [this] {
            if (m_whenAskedForTheLanguage) {
                m_whenAskedForTheLanguage();
            }
            return m_language;
        };
        providers.now = [this] { return m_now; };
        providers.uptime = [this] { return m_time.now; };
        providers.pollingTimer = std::make_unique<TestSupport::TestCall>(m_time);
        m_model = std::make_unique<KarvelloMenuBarStatusModel>(
            m_first, m_executor, m_defaults, std::move(scheduler), m_settings, std::move(providers));
        QObject::connect(m_model.get(), &KarvelloMenuBarStatusModel::snapshotChanged, [this] { ++m_snapshotSignals; });
    }

    /// One look at the machine, from its start to the reminders that it leads to.
    void refreshNow()
    {
        m_model->refresh();
        finishRefresh();
    }
    void finishRefresh()
    {
        m_executor.runAll();
        m_loop.handleEvents();
    }

    /// A model whose user wants reminders, which the desktop allows, and whose machine calls for none yet.
    void makeEnabled()
    {
        make();
        m_model->applyRemindersEnabled(true);
        m_desktop->answerRequest(true);
        ASSERT_TRUE(m_model->areRemindersEnabled());
    }
    /// Leads to the question whether notifications are allowed.
    void becomeStrained(const KarvelloMenuBarStatusSnapshot& machine = lowDisk())
    {
        m_machine = machine;
        refreshNow();
    }

    void seed(std::string_view key, Platform::DefaultsValue value) { ASSERT_TRUE(m_file.set(key, std::move(value))); }

    void expectState(bool isEnabled, bool isDenied) const
    {
        EXPECT_EQ(m_model->areRemindersEnabled(), isEnabled);
        EXPECT_EQ(m_model->isReminderPermissionDenied(), isDenied);
    }

    TestSupport::EventLoop m_loop;
    TestSupport::ManualExecutor m_executor;
    TestSupport::TestTime m_time;
    Date m_now = kStart;
    KarvelloMenuBarStatusSnapshot m_first = calm();
    KarvelloMenuBarStatusSnapshot m_machine = calm();
    KarvelloUI::KarvelloMenuBarStatusSettings m_settings{.startsPolling = false};
    KarvelloUI::AppLanguage m_language = KarvelloUI::AppLanguage::english;
    std::function<void()> m_whenAskedForTheLanguage;
    bool m_snapshotFails = false;
    int m_snapshotCount = 0;
    int m_snapshotSignals = 0;
    ManualReminderScheduler* m_desktop = nullptr;
    std::unique_ptr<KarvelloMenuBarStatusModel> m_model;
};

} // namespace MenuBarTests
