#include "KarvelloUI/Sessions/CandidateListModel.h"

#include "KarvelloUI/Sessions/CandidateReview.h"
#include "Tests/KarvelloUI/Sessions/CandidateSamples.h"

#include <QPersistentModelIndex>
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using Filters = CandidateReview::Filters;
using Mode = CandidateListGroupingMode;
using Role = CandidateListModel::Role;

constexpr SampleCandidate kA{"/h/a", CleanupCategory::userLogs, CleanupSafety::safe, 50};
constexpr SampleCandidate kB{"/h/b", CleanupCategory::userCaches, CleanupSafety::safe, 40};
constexpr SampleCandidate kC{"/h/c", CleanupCategory::userLogs, CleanupSafety::caution, 30};
constexpr SampleCandidate kD{"/h/d", CleanupCategory::customFolder, CleanupSafety::manualReview, 20};

class CandidateListModelTest : public testing::Test {
protected:
    CandidateListModelTest()
    {
        using Model = QAbstractItemModel;
        QObject::connect(&model, &Model::rowsRemoved, [this](const QModelIndex&, int first, int last) {
            signals_.append(QStringLiteral("-%1..%2 ").arg(first).arg(last));
            mirror.erase(mirror.begin() + first, mirror.begin() + last + 1);
            expectMirror();
        });
        QObject::connect(&model, &Model::rowsInserted, [this](const QModelIndex&, int first, int last) {
            signals_.append(QStringLiteral("+%1..%2 ").arg(first).arg(last));
            for (int row = first; row <= last; ++row) {
                mirror.insert(mirror.begin() + row, text(row, Role::idRole));
            }
            expectMirror();
        });
        QObject::connect(&model, &Model::modelReset, [this] {
            signals_.append(QStringLiteral("reset "));
            mirror = ids();
        });
        QObject::connect(&model, &Model::layoutChanged, [this] {
            signals_.append(QStringLiteral("layout "));
            mirror = ids();
        });
        QObject::connect(&model, &Model::dataChanged,
            [this](const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
                signals_.append(QStringLiteral("*%1..%2").arg(first.row()).arg(last.row()));
                signals_.append(roles == QList<int>{Role::isSelectedRole, Role::checkStateRole}
                        ? QStringLiteral("selected ")
                        : QStringLiteral(" "));
            });
        QObject::connect(&model, &CandidateListModel::countChanged, [this] { ++countChanges; });
    }

    void apply(const std::vector<SampleCandidate>& samples)
    {
        review.apply(indexOf(samples), Filters::reconcile);
        show();
    }
    void filter(CandidateListFilters filters)
    {
        review.setFilters(std::move(filters));
        show();
    }
    void show() { model.show(review.selection().sharedIndex(), review.visibleCandidateSections(copy), copy); }

    /// What the model told since the last call.
    std::string told() { return std::exchange(signals_, {}).trimmed().toStdString(); }

    QString text(int row, int role) const { return model.data(model.index(row), role).toString(); }
    std::vector<QString> ids() const { return column(Role::idRole); }
    std::vector<QString> names() const { return column(Role::nameRole); }
    std::vector<QString> column(int role) const
    {
        std::vector<QString> texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            texts.push_back(text(row, role));
        }
        return texts;
    }
    /// What a view that only listens to the signals has.
    void expectMirror() const { EXPECT_EQ(mirror, ids()); }

    CandidateReview review;
    CandidateListModel model{review.selection()};
    KarvelloCopy copy = english();
    std::vector<QString> mirror;
    QString signals_;
    int countChanges = 0;
};

std::vector<QString> texts(std::initializer_list<const char*> words)
{
    std::vector<QString> result;
    for (const auto* const word : words) {
        result.push_back(QString::fromUtf8(word));
    }
    return result;
}

} // namespace

TEST_F(CandidateListModelTest, ShowsTheCandidatesInTheOrderOfTheReport)
{
    apply({kD, kC, kB, kA});
    EXPECT_EQ(names(), texts({"a", "b", "c", "d"}));
    EXPECT_EQ(told(), "+0..3");
    EXPECT_EQ(countChanges, 1);
    EXPECT_EQ(model.candidate(2)->url.path(), "/h/c");
    EXPECT_EQ(model.candidate(4), nullptr);
    EXPECT_EQ(model.candidate(-1), nullptr);
}

TEST_F(CandidateListModelTest, SaysAllThatARowShows)
{
    apply({{"/h/caf\xC3\xA9\xFF", CleanupCategory::userLogs, CleanupSafety::caution, 1536}});
    review.selection().selectAll();
    const auto path = QString::fromUtf8("/h/café\\xFF");
    EXPECT_EQ(text(0, Role::idRole).toStdString(), review.index().candidates()[0].id);
    EXPECT_EQ(text(0, Role::nameRole), QString::fromUtf8("café\\xFF"));
    EXPECT_EQ(text(0, Qt::DisplayRole), QString::fromUtf8("café\\xFF"));
    EXPECT_EQ(text(0, Role::pathRole), path);
    EXPECT_EQ(model.data(model.index(0), Role::sizeBytesRole).toLongLong(), 1536);
    EXPECT_EQ(text(0, Role::sizeTextRole).toStdString(), "1.5 KB");
    EXPECT_EQ(text(0, Role::categoryRole).toStdString(), "userLogs");
    EXPECT_EQ(text(0, Role::categoryNameRole).toStdString(), copy.categoryName(CleanupCategory::userLogs));
    EXPECT_EQ(text(0, Role::safetyRole).toStdString(), "caution");
    EXPECT_EQ(text(0, Role::safetyNameRole).toStdString(), copy.safetyName(CleanupSafety::caution));
    EXPECT_TRUE(model.data(model.index(0), Role::isSelectedRole).toBool());
    EXPECT_EQ(text(0, Role::sectionIDRole).toStdString(), "flat.all");
    EXPECT_EQ(text(0, Role::sectionTitleRole).toStdString(), "");
    EXPECT_FALSE(model.data(model.index(0), Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.data(model.index(7), Role::idRole).isValid());
    for (const auto& name : model.roleNames()) {
        EXPECT_FALSE(name.isEmpty());
    }
}

TEST_F(CandidateListModelTest, AFilterTakesOutWhatDoesNotPassAndPutsItBack)
{
    apply({kA, kB, kC, kD});
    told();
    filter({.category = CleanupCategory::userLogs});
    EXPECT_EQ(names(), texts({"a", "c"}));
    EXPECT_EQ(told(), "-3..3 -1..1");
    filter({});
    EXPECT_EQ(names(), texts({"a", "b", "c", "d"}));
    EXPECT_EQ(told(), "+1..1 +3..3");
}

TEST_F(CandidateListModelTest, OneFilterAfterAnotherKeepsWhatPassesBoth)
{
    apply({kA, kB, kC, kD});
    filter({.category = CleanupCategory::userLogs});
    const QPersistentModelIndex first = model.index(0);
    told();
    filter({.safety = CleanupSafety::safe});
    EXPECT_EQ(names(), texts({"a", "b"}));
    EXPECT_EQ(told(), "-1..1 +1..1");
    EXPECT_EQ(first.row(), 0);
}

TEST_F(CandidateListModelTest, TheSameContentTellsNothing)
{
    apply({kA, kB});
    told();
    show();
    filter({.searchText = "/h"});
    apply({kA, kB});
    EXPECT_EQ(told(), "");
    EXPECT_EQ(countChanges, 1);
}

TEST_F(CandidateListModelTest, AClickTellsOfOneRow)
{
    apply({kA, kB, kC});
    told();
    ASSERT_TRUE(review.selection().setSelected(idOf(kB), true));
    model.announceSelection(idOf(kB));
    EXPECT_EQ(told(), "*1..1selected");
    EXPECT_TRUE(model.data(model.index(1), Role::isSelectedRole).toBool());
    model.announceSelection();
    EXPECT_EQ(told(), "*0..2selected");
}

TEST_F(CandidateListModelTest, AClickOnAHiddenOrUnknownCandidateTellsNothing)
{
    apply({kA, kB});
    filter({.searchText = "/h/a"});
    told();
    model.announceSelection(idOf(kB));
    model.announceSelection("userCaches:/unknown");
    EXPECT_EQ(told(), "");
    filter({.searchText = "nowhere"});
    told();
    model.announceSelection();
    EXPECT_EQ(told(), "");
}

TEST_F(CandidateListModelTest, CountsHiddenSelectedCandidates)
{
    apply({kA, kB, kC});
    review.selection().selectAll();
    EXPECT_EQ(model.hiddenSelectedCount(), 0);
    filter({.category = CleanupCategory::userLogs});
    EXPECT_EQ(model.hiddenSelectedCount(), 1);
    review.selection().setSelected(idOf(kB), false);
    EXPECT_EQ(model.hiddenSelectedCount(), 0);
}

TEST_F(CandidateListModelTest, CandidatesThatLeaveTheReportLeaveTheirRows)
{
    apply({kA, kB, kC, kD});
    const QPersistentModelIndex last = model.index(3);
    told();
    apply({kA, kD});
    EXPECT_EQ(told(), "-1..2");
    EXPECT_EQ(last.row(), 1);
    EXPECT_EQ(text(last.row(), Role::nameRole).toStdString(), "d");
    apply({kA, kC, kD});
    EXPECT_EQ(told(), "+1..1");
}

TEST_F(CandidateListModelTest, TellsOfACandidateThatIsAnotherNow)
{
    apply({kA, kB, kC});
    told();
    auto larger = kB;
    larger.sizeBytes = 45;
    apply({kA, larger, kC});
    EXPECT_EQ(told(), "*1..1");
    EXPECT_EQ(text(1, Role::sizeTextRole).toStdString(), "45 bytes");
}

TEST_F(CandidateListModelTest, GroupingMovesRowsAndKeepsTheirPlace)
{
    apply({kA, kB, kC, kD});
    const QPersistentModelIndex first = model.index(0);
    told();
    filter({.groupingMode = Mode::category});
    EXPECT_EQ(names(), texts({"b", "a", "c", "d"}));
    EXPECT_EQ(column(Role::sectionIDRole),
        texts({"category.userCaches", "category.userLogs", "category.userLogs", "category.customFolder"}));
    EXPECT_EQ(told(), "layout *0..3");
    EXPECT_EQ(first.row(), 1);
    EXPECT_EQ(text(first.row(), Role::nameRole).toStdString(), "a");
    EXPECT_EQ(countChanges, 1);
}

TEST_F(CandidateListModelTest, GroupingThatMovesNothingTellsOfTheSections)
{
    apply({kA, kB, kC, kD});
    told();
    filter({.groupingMode = Mode::safety});
    EXPECT_EQ(told(), "*0..3");
    EXPECT_EQ(text(3, Role::sectionTitleRole).toStdString(), copy.safetyName(CleanupSafety::manualReview));
}

TEST_F(CandidateListModelTest, AnotherLanguageTellsOfAllRows)
{
    apply({kA, kB});
    told();
    copy.language = AppLanguage::german;
    show();
    EXPECT_EQ(told(), "*0..1");
    EXPECT_EQ(text(0, Role::categoryNameRole).toStdString(), copy.categoryName(CleanupCategory::userLogs));
}

TEST_F(CandidateListModelTest, AChangeOfNearlyEverythingIsAReset)
{
    std::vector<CleanupCandidate> candidates;
    for (int number = 0; number < 1000; ++number) {
        candidates.push_back(made({"/h/" + std::to_string(number),
            number % 2 == 0 ? CleanupCategory::userLogs : CleanupCategory::userCaches, CleanupSafety::safe, 5}));
    }
    review.apply(indexOf(std::move(candidates)), Filters::reset);
    show();
    told();
    filter({.category = CleanupCategory::userLogs});
    EXPECT_EQ(told(), "reset");
    EXPECT_EQ(model.count(), 500);
    EXPECT_EQ(countChanges, 2);
}

TEST_F(CandidateListModelTest, BetweenANewReportAndItsRowsItAnswersForTheOldOne)
{
    apply({kA, kB, kC});
    review.selection().selectAll();
    review.apply(indexOf({kC}), Filters::reconcile);
    EXPECT_EQ(names(), texts({"a", "b", "c"}));
    EXPECT_FALSE(model.data(model.index(0), Role::isSelectedRole).toBool());
    EXPECT_TRUE(model.data(model.index(2), Role::isSelectedRole).toBool());
    EXPECT_EQ(model.hiddenSelectedCount(), 0);
}

TEST_F(CandidateListModelTest, AViewThatListensKnowsTheRowsWhateverHappens)
{
    std::mt19937 random(2);
    const auto chance = [&random](unsigned most) { return random() % most; };
    for (int step = 0; step < 1000; ++step) {
        if (chance(4) == 0) {
            std::vector<CleanupCandidate> candidates;
            for (int number = 0; number < 60; ++number) {
                if (chance(5) != 0) {
                    const auto path = "/h/" + std::to_string(number);
                    candidates.push_back(made({path, static_cast<CleanupCategory>(number % 5),
                        static_cast<CleanupSafety>(number % 3), 1 + (chance(20) == 0 ? 1 : 0)}));
                }
            }
            review.apply(indexOf(std::move(candidates)), chance(2) == 0 ? Filters::reset : Filters::reconcile);
        } else {
            CandidateListFilters filters{.groupingMode = static_cast<Mode>(chance(3))};
            if (chance(2) == 0) {
                filters.searchText = std::to_string(chance(7));
            }
            if (chance(4) == 0) {
                filters.category = static_cast<CleanupCategory>(chance(5));
            }
            if (chance(4) == 0) {
                filters.safety = static_cast<CleanupSafety>(chance(3));
            }
            review.setFilters(filters);
        }
        show();
        ASSERT_EQ(mirror, ids());
        std::vector<QString> expected;
        for (const auto& section : review.visibleCandidateSections(copy)) {
            for (const auto position : section.candidates) {
                expected.push_back(QString::fromStdString(review.index().candidates()[position].id));
            }
        }
        ASSERT_EQ(mirror, expected);
        ASSERT_EQ(model.count(), static_cast<int>(expected.size()));
    }
}

} // namespace KarvelloUI
