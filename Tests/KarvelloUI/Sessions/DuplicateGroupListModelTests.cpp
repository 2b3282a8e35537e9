#include "KarvelloUI/Sessions/DuplicateGroupListModel.h"

#include "Tests/KarvelloUI/Sessions/MacInsightsViewModelFixture.h"

#include <QVariantMap>
#include <gmock/gmock.h>
#include <vector>

namespace MacInsightsViewModelTests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Role = DuplicateGroupListModel::Role;

class DuplicateGroupListModelTest : public MacInsightsViewModelTest {
protected:
    DuplicateGroupListModelTest()
    {
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &model,
            [this](const QModelIndex& first, const QModelIndex& last) {
                EXPECT_EQ(first, last);
                changedRows.push_back(first.row());
            });
    }

    void scanHome()
    {
        session->scan(std::nullopt);
        settle();
        changedRows.clear();
    }
    [[nodiscard]] QVariant value(int row, Role role) const { return model.data(model.index(row), role); }
    [[nodiscard]] QVariantMap file(int row, int position) const
    {
        return value(row, Role::filesRole).toList().at(position).toMap();
    }
    /// A row in which something can be selected.
    [[nodiscard]] int selectableRow() const
    {
        for (int row = 0; row < model.count(); ++row) {
            if (value(row, Role::selectionStateRole) != QStringLiteral("unavailable")) {
                return row;
            }
        }
        ADD_FAILURE() << "nothing can be selected";
        return 0;
    }

    DuplicateGroupListModel model{*session};
    std::vector<int> changedRows;
};

} // namespace

TEST_F(DuplicateGroupListModelTest, HasARowForEachGroupOfTheReport)
{
    EXPECT_EQ(model.rowCount(), 0);
    scanHome();
    const auto& groups = session->duplicateReviewGroups();
    ASSERT_EQ(model.rowCount(), std::ssize(groups));
    ASSERT_GE(model.rowCount(), 3);
    EXPECT_EQ(model.rowCount(model.index(0)), 0);
    for (int row = 0; row < model.rowCount(); ++row) {
        const auto& group = groups[static_cast<std::size_t>(row)];
        EXPECT_EQ(value(row, Role::idRole).toString().toStdString(), group.id());
        EXPECT_EQ(value(row, Role::sizeBytesRole).toLongLong(), group.group->sizeBytes);
        EXPECT_EQ(value(row, Role::totalExtraBytesRole).toLongLong(), group.totalExtraBytes);
        EXPECT_EQ(value(row, Role::selectableExtraBytesRole).toLongLong(), group.selectableExtraBytes);
        ASSERT_EQ(value(row, Role::filesRole).toList().size(), std::ssize(group.rows));
        EXPECT_TRUE(file(row, 0).value(QStringLiteral("isKeeper")).toBool());
        EXPECT_FALSE(file(row, 1).value(QStringLiteral("isKeeper")).toBool());
        EXPECT_EQ(file(row, 1).value(QStringLiteral("path")).toString().toStdString(), group.rows[1].file->url.path());
    }
    EXPECT_FALSE(model.data(model.index(model.rowCount()), Role::idRole).isValid());
}

TEST_F(DuplicateGroupListModelTest, AnnouncesTheOneRowThatAClickChanges)
{
    scanHome();
    const int row = selectableRow();
    const auto& group = session->duplicateReviewGroups()[static_cast<std::size_t>(row)];
    session->selectDuplicateExtras(*group.group);
    EXPECT_THAT(changedRows, ElementsAre(row));
    EXPECT_EQ(value(row, Role::selectionStateRole), QStringLiteral("all"));
    EXPECT_EQ(value(row, Role::selectedExtraBytesRole), value(row, Role::selectableExtraBytesRole));
    changedRows.clear();
    session->clearDuplicateGroupSelection(*group.group);
    EXPECT_THAT(changedRows, ElementsAre(row));
    EXPECT_EQ(value(row, Role::selectionStateRole), QStringLiteral("none"));
}

TEST_F(DuplicateGroupListModelTest, IsResetByAnotherReport)
{
    int resets = 0;
    int counts = 0;
    QObject::connect(&model, &QAbstractItemModel::modelReset, &model, [&] { ++resets; });
    QObject::connect(&model, &DuplicateGroupListModel::countChanged, &model, [&] { ++counts; });
    scanHome();
    EXPECT_EQ(resets, 1);
    session->clearScanResults();
    EXPECT_EQ(resets, 2);
    EXPECT_EQ(counts, 2);
    EXPECT_EQ(model.count(), 0);
    EXPECT_THAT(changedRows, IsEmpty());
}

TEST_F(DuplicateGroupListModelTest, NamesItsRolesForScreens)
{
    EXPECT_EQ(model.roleNames().value(Role::selectionStateRole), QByteArray("selectionState"));
    EXPECT_EQ(model.roleNames().size(), 7);
}

} // namespace MacInsightsViewModelTests
