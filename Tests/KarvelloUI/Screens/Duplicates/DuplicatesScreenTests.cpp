#include "KarvelloUI/Screens/Duplicates/DuplicatesScreenModel.h"

#include "Tests/KarvelloUI/Screens/Insights/InsightScreenWindow.h"

#include <gmock/gmock.h>

namespace InsightScreenTests {

namespace {

using testing::ElementsAre;
using Role = DuplicateCardListModel::CardRole;
using BaseRole = DuplicateGroupListModel::Role;

/// The first group has an extra that may not be selected; the second one has two copies.
class DuplicatesScreenTest : public InsightScreenWindow {
protected:
    explicit DuplicatesScreenTest(std::string_view layoutOfHome = kHome)
        : InsightScreenWindow(layoutOfHome)
    {
    }

    [[nodiscard]] static QVariant value(DuplicatesScreenModel& screen, int row, int role)
    {
        return screen.groups()->index(row, 0).data(role);
    }
    [[nodiscard]] static std::string text(DuplicatesScreenModel& screen, int row, int role)
    {
        return value(screen, row, role).toString().toStdString();
    }
    [[nodiscard]] static QString id(DuplicatesScreenModel& screen, int row)
    {
        return value(screen, row, BaseRole::idRole).toString();
    }
    [[nodiscard]] static QVariantMap file(DuplicatesScreenModel& screen, int row, int position)
    {
        return value(screen, row, BaseRole::filesRole).toList().at(position).toMap();
    }
    [[nodiscard]] static std::vector<bool> selected(DuplicatesScreenModel& screen, int row)
    {
        std::vector<bool> flags;
        for (const auto& flag : value(screen, row, Role::selectedFilesRole).toList()) {
            flags.push_back(flag.toBool());
        }
        return flags;
    }
    DuplicatesScreenModel& showScreen()
    {
        return show<DuplicatesScreenModel>("Karvello.Screens.Duplicates", "DuplicatesScreen");
    }
};

} // namespace

TEST_F(DuplicatesScreenTest, HasACardForEachGroup)
{
    DuplicatesScreenModel screen(*dashboard);
    scan();
    ASSERT_EQ(screen.count(), 2);
    EXPECT_EQ(text(screen, 0, Role::titleRole), "Duplicate group 1 · 4 copies");
    EXPECT_EQ(text(screen, 0, Role::stateTextRole), "0 selected / 2 selectable · 3 extra copies");
    EXPECT_EQ(text(screen, 0, Role::bytesTextRole), "Total extra-copy bytes 120 KB · currently selectable 80 KB");
    EXPECT_EQ(file(screen, 0, 0).value(QStringLiteral("kind")).toString().toStdString(), "Keeper");
    EXPECT_EQ(file(screen, 0, 0).value(QStringLiteral("path")).toString().toStdString(), "~/Documents/photo.jpg");
    EXPECT_EQ(file(screen, 0, 0).value(QStringLiteral("reasons")).toStringList(),
        QStringList{QStringLiteral("preferred folder")});
    EXPECT_EQ(file(screen, 0, 1).value(QStringLiteral("kind")).toString().toStdString(), "Extra copy");
    EXPECT_TRUE(file(screen, 0, 1).value(QStringLiteral("reasons")).toStringList().isEmpty());
    EXPECT_EQ(screen.subtitle().toStdString(), "2 duplicate groups · 6 files · 192 KB in extra copies");
}

TEST_F(DuplicatesScreenTest, NeverSelectsAKeeperOrWhatMayNotBeCleaned)
{
    DuplicatesScreenModel screen(*dashboard);
    scan();
    screen.toggleFile(0, id(screen, 0), 0);
    EXPECT_EQ(session().selectedCount(), 0);
    screen.toggleFile(0, id(screen, 0), 3);
    EXPECT_EQ(session().selectedCount(), 0) << "it lies in the library";
    screen.selectAll();
    EXPECT_THAT(selected(screen, 0), ElementsAre(false, true, true, false));
    EXPECT_THAT(selected(screen, 1), ElementsAre(false, true));
}

TEST_F(DuplicatesScreenTest, SelectsTheExtrasOfOneGroupAndClearsThem)
{
    DuplicatesScreenModel screen(*dashboard);
    scan();
    screen.toggleFile(0, id(screen, 0), 1);
    EXPECT_EQ(value(screen, 0, Role::checkStateRole).value<Qt::CheckState>(), Qt::PartiallyChecked);
    EXPECT_EQ(text(screen, 0, Role::stateTextRole), "Partially selected: 1 / 2 selectable · 3 extra copies");
    screen.toggleGroup(0, id(screen, 0));
    EXPECT_EQ(value(screen, 0, Role::checkStateRole).value<Qt::CheckState>(), Qt::Checked);
    EXPECT_TRUE(value(screen, 0, Role::isAllSelectedRole).toBool());
    EXPECT_EQ(value(screen, 1, Role::checkStateRole).value<Qt::CheckState>(), Qt::Unchecked);
    EXPECT_EQ(screen.selectionTitle().toStdString(), "2 selected · 80 KB");
    EXPECT_EQ(screen.selectionText().toStdString(), "2 selected extras will be moved to Trash");
    screen.toggleGroup(0, id(screen, 0));
    EXPECT_EQ(session().selectedCount(), 0);
}

TEST_F(DuplicatesScreenTest, KeepsTheFilesOfACardWhenOneIsClicked)
{
    DuplicatesScreenModel screen(*dashboard);
    scan();
    QSignalSpy changes(screen.groups(), &QAbstractItemModel::dataChanged);
    screen.toggleFile(0, id(screen, 0), 1);
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 0);
    const auto roles = changes[0][2].value<QList<int>>();
    EXPECT_TRUE(roles.contains(Role::selectedFilesRole));
    EXPECT_FALSE(roles.contains(BaseRole::filesRole));
}

TEST_F(DuplicatesScreenTest, DoesNothingToAGroupThatIsNotThereAnyMore)
{
    DuplicatesScreenModel screen(*dashboard);
    scan();
    const QString other = id(screen, 1);
    screen.toggleGroup(0, other);
    screen.toggleFile(0, other, 1);
    screen.toggleFile(0, id(screen, 0), 7);
    screen.toggleFile(5, other, 1);
    screen.reveal(0, other, 1);
    EXPECT_EQ(session().selectedCount(), 0);
    EXPECT_TRUE(fileViewer.selected.empty());
    screen.reveal(1, other, 0);
    EXPECT_THAT(fileViewer.selected, ElementsAre(tree.path("home/Movies/disc.img")));
}

TEST_F(DuplicatesScreenTest, IsUsedFromTheKeyboardAsOneList)
{
    showScreen();
    scan();
    m_window->grabWindow();
    focus("groups");
    EXPECT_EQ(focused("title").toString().toStdString(), "Duplicate group 1 · 4 copies");
    key(Qt::Key_Space);
    EXPECT_EQ(session().selectedCount(), 2);
    key(Qt::Key_Down);
    EXPECT_TRUE(focused("isKeeper").toBool());
    key(Qt::Key_Space);
    EXPECT_EQ(session().selectedCount(), 2) << "a keeper stays";
    key(Qt::Key_Down);
    key(Qt::Key_Space);
    EXPECT_EQ(session().selectedCount(), 1);
    EXPECT_EQ(focused("kindText").toString().toStdString(), "Extra copy") << "a click leaves the focus where it is";
    EXPECT_TRUE(focused("visualFocus").toBool());
    key(Qt::Key_PageDown);
    EXPECT_EQ(focused("title").toString().toStdString(), "Duplicate group 2 · 2 copies");
    key(Qt::Key_Up);
    EXPECT_EQ(focused("path").toString().toStdString(), "~/Library/Application Support/photo.jpg");
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(dashboard->pendingInsightSection(), duplicates);
}

TEST_F(DuplicatesScreenTest, TellsAssistantsWhichCopyStaysAndWhy)
{
    showScreen();
    scan();
    m_window->grabWindow();
    focus("groups");
    auto* const head = QAccessible::queryAccessibleInterface(m_window->activeFocusItem());
    EXPECT_EQ(head->role(), QAccessible::CheckBox);
    EXPECT_FALSE(head->state().checked);
    comeAgainAsAssistant();
    EXPECT_EQ(head->role(), QAccessible::CheckBox);
    head->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(head->state().checked);
    EXPECT_FALSE(head->state().checkStateMixed);
    key(Qt::Key_Down);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(m_window->activeFocusItem())->role(), QAccessible::ListItem);
    EXPECT_EQ(nameOf(m_window->activeFocusItem()),
        "photo.jpg, Keeper, Keeper recommendation: preferred folder, 40 KB, ~/Documents/photo.jpg, 6 months");
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(m_window->activeFocusItem())->state().checkable);
    key(Qt::Key_Down);
    auto* const extra = QAccessible::queryAccessibleInterface(m_window->activeFocusItem());
    EXPECT_EQ(extra->role(), QAccessible::CheckBox);
    EXPECT_TRUE(extra->state().checked);
    extra->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(extra->state().checked);
    EXPECT_TRUE(head->state().checkStateMixed);
}

TEST_F(DuplicatesScreenTest, HasRoomForAllTexts)
{
    auto& screen = showScreen();
    lookAtAllFaces("duplicates-idle");
    scan();
    screen.toggleFile(0, id(screen, 0), 1);
    lookAtAllFaces("duplicates-results");
}

class DuplicatesScreenWithHostileNames : public DuplicatesScreenTest {
protected:
    DuplicatesScreenWithHostileNames()
        : DuplicatesScreenTest("home/Pictures/\n  a/\n    " + std::string(kHostileNameOfTree)
              + " size=40K age=90d\n  b/\n    " + std::string(kHostileNameOfTree) + " size=40K age=80d\n")
    {
    }
};

TEST_F(DuplicatesScreenWithHostileNames, ShowsThemWithEscapesAndActsOnTheFiles)
{
    DuplicatesScreenModel screen(*dashboard);
    scan();
    ASSERT_EQ(screen.count(), 1);
    for (const int copy : {0, 1}) {
        const auto shown = file(screen, 0, copy);
        EXPECT_EQ(shown.value(QStringLiteral("name")).toString().toStdString(), kShownHostileName);
        EXPECT_THAT(shown.value(QStringLiteral("path")).toString().toStdString(),
            testing::AllOf(testing::StartsWith("~/Pictures/"), testing::EndsWith("/" + kShownHostileName)));
        EXPECT_THAT(shown.value(QStringLiteral("spokenName")).toString().toStdString(),
            testing::AllOf(testing::StartsWith(kShownHostileName), testing::Not(testing::HasSubstr("\n"))));
    }
    screen.toggleFile(0, id(screen, 0), 1);
    ASSERT_EQ(session().selectedFiles(duplicates).size(), 1U);
    EXPECT_EQ(session().selectedFiles(duplicates)[0]->displayName, kHostileName);
    screen.reveal(0, id(screen, 0), 1);
    EXPECT_EQ(fileViewer.selected.back(), session().selectedFiles(duplicates)[0]->url.path());
}

/// Many small groups.
class DuplicatesScreenWithManyGroups : public DuplicatesScreenTest {
protected:
    DuplicatesScreenWithManyGroups()
        : DuplicatesScreenTest(layout())
    {
    }

    [[nodiscard]] static std::string layout()
    {
        std::string text = "home/Pictures/\n";
        for (const char* const folder : {"a", "b"}) {
            text += std::string("  ") + folder + "/\n";
            for (int size = 0; size < 60; ++size) {
                text += "    p" + std::to_string(size) + " size=" + std::to_string(16384 + size) + " age=90d\n";
            }
        }
        return text;
    }
};

TEST_F(DuplicatesScreenWithManyGroups, MakesOnlyTheCardsThatAreSeen)
{
    auto& screen = showScreen();
    scan();
    m_window->grabWindow();
    ASSERT_GE(screen.count(), 40);
    EXPECT_GE(rowsOf("groups").size(), 3);
    EXPECT_LT(rowsOf("groups").size(), 16);
    focus("groups");
    key(Qt::Key_End);
    m_window->grabWindow();
    EXPECT_EQ(find("groups")->property("currentIndex").toInt(), screen.count() - 1);
    EXPECT_LT(rowsOf("groups").size(), 24);
}

} // namespace InsightScreenTests
