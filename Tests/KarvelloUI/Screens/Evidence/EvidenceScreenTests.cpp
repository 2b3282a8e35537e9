#include "Tests/KarvelloUI/Screens/Evidence/EvidenceFixture.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace EvidenceTests {

using testing::StartsWith;

class EvidenceScreen : public EvidenceTest {
protected:
    void look(int width = 1240, int height = 820) { show("Evidence", "EvidenceScreen", evidence.get(), width, height); }
    QQuickItem* rowOf(const char* list, int row)
    {
        QQuickItem* item = nullptr;
        QMetaObject::invokeMethod(find(list), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, row));
        return item;
    }
    /// A log of many cleans, a clean of this session, and a restore that left something.
    void fill()
    {
        clean();
        const auto record = [this](double seconds, CleanerCore::CleanupAuditOperation operation, bool wasCancelled) {
            CleanerCore::CleanupAuditEntry entry{.id = Platform::UUID::random(),
                .occurredAt = now.addingSeconds(seconds),
                .operation = operation,
                .requestedItemCount = 26,
                .requestedBytes = 9'100'000'000,
                .succeededItemCount = 24,
                .failedItemCount = 2,
                .affectedBytes = 8'930'000'000,
                .wasCancelled = wasCancelled};
            if (operation == CleanerCore::CleanupAuditOperation::clean) {
                entry.mode = CleanerCore::CleaningMode::moveToTrash;
            }
            const CleanerCore::CleanupAuditStore store(
                fileManager, CleanerCore::CleanupAuditStore::defaultFileURL(environment));
            store.append(entry);
        };
        for (int days = 1; days < 40; ++days) {
            record(days * -86'400.0 * 7,
                days % 3 == 0 ? CleanerCore::CleanupAuditOperation::restore : CleanerCore::CleanupAuditOperation::clean,
                days % 5 == 0);
        }
        reopen();
        now = now.addingSeconds(3600);
        tree.add("home/.cache/pip/http size=640K age=90d\nhome/.cache/go-build/b size=318M sparse age=90d\n"
                 "home/.cache/thumbnails/normal/u.png size=386M sparse age=90d\n"
                 "home/.npm/_cacache/e size=5M age=90d\nhome/.npm/_cacache/f size=6M age=90d\n"
                 "home/.cache/pip/wheel size=64K age=90d");
        clean();
        std::filesystem::create_directories(
            dashboard->cleaner().lastCleanResult()->cleanedItems[0].candidate.url.path());
        now = now.addingSeconds(60);
        restore(0);
        center->toggle(keyOf(0));
        center->toggle(keyOf(1));
        evidence->history()->setOpen(0, true);
    }
};

TEST_F(EvidenceScreen, IsShownInEveryStateWithoutAWarning)
{
    look();
    dashboard->scanCleanup();
    layOut();
    settle();
    clean();
    layOut();
    center->selectAll();
    center->restore();
    layOut();
    settle();
    layOut();
    EXPECT_TRUE(evidence->lastRestore()->hasResult());
}

TEST_F(EvidenceScreen, TogglesRowsByTheKeyboardAndRestoresThem)
{
    clean();
    look();
    auto* const first = rowOf("restoreRows", 0);
    ASSERT_NE(first, nullptr);
    first->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_TRUE(value(0, RestoreCenterList::isSelectedRole).toBool());
    key(Qt::Key_Down);
    key(Qt::Key_Space);
    EXPECT_TRUE(value(1, RestoreCenterList::isSelectedRole).toBool());
    EXPECT_EQ(nameOf(find("restore")), "Try Restoring 2 Selected Items");
    press(find("restore"));
    settle();
    EXPECT_EQ(count(), 1);
}

TEST_F(EvidenceScreen, SelectsAllAndNoneByTheKeyboard)
{
    clean();
    look();
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(center->checkState(), Qt::Checked);
    key(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(center->checkState(), Qt::Unchecked);
}

TEST_F(EvidenceScreen, OpensARowToTellWhereItIs)
{
    clean();
    look();
    rowOf("restoreRows", 0)->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    EXPECT_TRUE(value(0, RestoreCenterList::isOpenRole).toBool());
    layOut();
    key(Qt::Key_Left);
    EXPECT_FALSE(value(0, RestoreCenterList::isOpenRole).toBool());
}

TEST_F(EvidenceScreen, SaysItsRowsToAnAssistant)
{
    clean();
    look();
    const auto* const row = spoken(rowOf("restoreRows", 0));
    EXPECT_EQ(row->role(), QAccessible::CheckBox);
    EXPECT_EQ(row->text(QAccessible::Name).toStdString(), text(0, RestoreCenterList::accessibleNameRole));
    const auto* const entryRow = spoken(rowOf("historyRows", 0));
    EXPECT_THAT(entryRow->text(QAccessible::Name).toStdString(), StartsWith("Clean, Cleanup dashboard, "));
    EXPECT_EQ(nameOf(find("exportHistory")), "Export Cleanup History");
    EXPECT_EQ(nameOf(find("restoreAll")), "Select All, No items selected");
}

TEST_F(EvidenceScreen, ExportsTheHistoryByTheKeyboard)
{
    clean();
    look();
    find("exportHistory")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    layOut();
    photograph("evidence-export");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    ASSERT_EQ(fileDialogs.saveRequests.size(), 1U);
    EXPECT_THAT(fileDialogs.saveRequests[0].suggestedName, StartsWith("karvello-cleanup-history-redacted-"));
    EXPECT_TRUE(fileDialogs.saveRequests[0].suggestedName.ends_with(".json"));
}

TEST_F(EvidenceScreen, KeepsALongHistoryInAListThatScrolls)
{
    fill();
    look();
    auto* const rows = find("historyRows");
    EXPECT_GT(rows->property("count").toInt(), 35);
    EXPECT_LE(rows->height(), 560);
    EXPECT_EQ(rowOf("historyRows", 35), nullptr);
}

TEST_F(EvidenceScreen, IsTidyWhenEmpty)
{
    look(1180, 780);
    expectTidy();
    photograph("evidence-empty");
}

TEST_F(EvidenceScreen, IsTidyInEveryLanguageAndScale)
{
    fill();
    look();
    layOut();
    expectTidy();
    photograph("evidence-light");
    m_design.setAppearanceMode(KarvelloAppearanceMode::dark);
    layOut();
    photograph("evidence-dark");
    m_design.setAppearanceMode(KarvelloAppearanceMode::light);
    m_window->resize(1180, 1600);
    for (const auto language : {AppLanguage::english, AppLanguage::german, AppLanguage::japanese}) {
        setLanguage(language);
        layOut();
        expectTidy();
        photograph("evidence-" + std::string(Platform::rawValue(language)));
    }
    setScale(KarvelloTextScale::extraLarge);
    m_window->resize(1180, 2800);
    for (const auto language : {AppLanguage::english, AppLanguage::german}) {
        setLanguage(language);
        layOut();
        expectTidy();
        photograph("evidence-" + std::string(Platform::rawValue(language)) + "-xl");
    }
}

} // namespace EvidenceTests
