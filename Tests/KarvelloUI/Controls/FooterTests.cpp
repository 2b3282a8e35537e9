#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

/// A footer as a review shows it, and what it asked for.
class KarvelloFooter : public Controls {
protected:
    void showFooter(const std::string& properties = "canAct: true")
    {
        show(("KarvelloFooter { objectName: 'footer'; width: 1016; title: '14 selected'; text: 'Only to Trash.';"
              " pills: [{ text: '12 Safe', kind: KarvelloDesign.SafePill }]; checkState: Qt.PartiallyChecked;"
              " clearText: 'Clear'; selectAllText: 'Select All'; primaryText: 'Move Selected to Trash'; "
            + properties + " }")
                .c_str());
        m_window->resize(1100, 480);
        m_footer = find("footer");
        m_all = std::make_unique<QSignalSpy>(m_footer, SIGNAL(selectAllRequested()));
    }

    /// The button or entry that shows this word, if there is one.
    QQuickItem* shown(const char* name)
    {
        for (auto* const item : m_footer->window()->findChildren<QQuickItem*>()) {
            if (item->isVisible() && item->property("iconName").isValid()
                && item->property("text").toString() == QString::fromLatin1(name)) {
                return item;
            }
        }
        return nullptr;
    }

    QQuickItem* m_footer = nullptr;
    std::unique_ptr<QSignalSpy> m_all;
};

TEST_F(KarvelloFooter, AsksForEachOfItsActionsOnce)
{
    showFooter();
    const QSignalSpy cleared(m_footer, SIGNAL(clearRequested()));
    const QSignalSpy moved(m_footer, SIGNAL(primaryRequested()));
    const QSignalSpy toggled(m_footer, SIGNAL(toggleAllRequested()));
    click(shown("Clear"));
    click(shown("Select All"));
    click(shown("Move Selected to Trash"));
    click(m_footer, {40, 36});
    EXPECT_EQ(cleared.count(), 1);
    EXPECT_EQ(m_all->count(), 1);
    EXPECT_EQ(moved.count(), 1);
    EXPECT_EQ(toggled.count(), 1);
    EXPECT_EQ(m_footer->property("checkState").toInt(), Qt::PartiallyChecked);
}

TEST_F(KarvelloFooter, FoldsSelectAllIntoAMenuWhereThereIsNoRoomAndKeepsThePrimary)
{
    showFooter();
    ASSERT_NE(shown("Select All"), nullptr);
    m_footer->setWidth(560);
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown("Select All") == nullptr; }));
    const auto* const primary = shown("Move Selected to Trash");
    EXPECT_GE(primary->width(), primary->implicitWidth());
    EXPECT_TRUE(QTest::qWaitFor(
        [this, primary] { return primary->mapToItem(m_footer, {primary->width(), 0}).x() == 560 - 24; }));
    auto* const more = shown("");
    ASSERT_NE(more, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return more->mapToItem(m_footer, {0, 0}).x()
            >= shown("Clear")->mapToItem(m_footer, {shown("Clear")->width(), 0}).x();
    }));
    more->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown("Select All") != nullptr; }));
    key(Qt::Key_Return);
    EXPECT_EQ(m_all->count(), 1);
    EXPECT_TRUE(QTest::qWaitFor([more] { return more->hasActiveFocus(); })) << "the focus goes back";
}

TEST_F(KarvelloFooter, DoesNothingWhileNothingIsSelectedAndSaysWhy)
{
    showFooter("canAct: false; canClear: false; canSelectAll: false; primaryDisabledReason: 'Nothing is selected.'");
    auto* const primary = shown("Move Selected to Trash");
    const QSignalSpy moved(m_footer, SIGNAL(primaryRequested()));
    const QSignalSpy toggled(m_footer, SIGNAL(toggleAllRequested()));
    click(primary);
    press(primary);
    click(m_footer, {40, 36});
    EXPECT_EQ(moved.count(), 0);
    EXPECT_EQ(toggled.count(), 0);
    EXPECT_EQ(spoken(primary)->text(QAccessible::Description), QStringLiteral("Nothing is selected."));
    QTest::mouseMove(m_window.get(), primary->mapToScene({10, 10}).toPoint());
    EXPECT_TRUE(QTest::qWaitFor(
        [this] {
            for (const auto* const item : m_window->findChildren<QQuickItem*>()) {
                if (item->isVisible() && item->inherits("QQuickText")
                    && item->property("text").toString() == QStringLiteral("Nothing is selected.")) {
                    return true;
                }
            }
            return false;
        },
        2000))
        << "a disabled button shows its reason under the pointer";
}

TEST_F(KarvelloFooter, DropsItsPillsForLargeTexts)
{
    showFooter();
    const auto hasPill = [this] {
        QAccessibleInterface* const footer = spoken(m_footer);
        for (int index = 0; index < footer->childCount(); ++index) {
            QAccessibleInterface* const part = footer->child(index);
            if (part->text(QAccessible::Name) == QStringLiteral("12 Safe") && !part->state().invisible) {
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(hasPill());
    m_design.setTextEnvironment({.scale = KarvelloTextScale::extraLarge});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hasPill(); }));
    EXPECT_NE(nameOf(m_footer).find("12 Safe"), std::string::npos) << "it is said still";
}

} // namespace KarvelloUI
