#include "Tests/Platform/Linux/InterruptedFileManager.h"

namespace {

using namespace TrashTests;
using testing::IsEmpty;

using LinuxTrashRestoreRefusals = InterruptedTrashTest;

TEST_F(LinuxTrashRestoreRefusals, RefusesToRestoreWithoutARecord)
{
    m_tree.add("home/Caches/data size=1");
    const auto place = trashed("home/Caches/data");
    std::filesystem::remove(infoFolder() + "/data.trashinfo");
    const auto result = m_trash.restoreItem(restoring(place, "home/Caches/data"));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::noTrashRecord);
    EXPECT_TRUE(stands(place.path()));
    EXPECT_FALSE(stands(m_tree.path("home/Caches/data")));
}

TEST_F(LinuxTrashRestoreRefusals, RefusesToRestoreToAnotherPlaceThanTheRecordNames)
{
    m_tree.add("home/Caches/data size=1");
    const auto place = trashed("home/Caches/data");
    for (const auto* destination : {"home/Caches/other", "home/Caches/sub/data"}) {
        m_tree.add("home/Caches/sub/");
        const auto result = m_trash.restoreItem(restoring(place, destination));
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().kind, FileErrorKind::noTrashRecord);
    }
    EXPECT_TRUE(stands(place.path()));
}

TEST_F(LinuxTrashRestoreRefusals, RefusesToRestoreWithADamagedRecord)
{
    m_tree.add("home/Caches/data size=1");
    const auto place = trashed("home/Caches/data");
    for (const auto* text : {"", "[Trash Info]\n", "Path=/x\n"}) {
        write(infoFolder() + "/data.trashinfo", text);
        const auto result = m_trash.restoreItem(restoring(place, "home/Caches/data"));
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().kind, FileErrorKind::noTrashRecord);
    }
}

TEST_F(LinuxTrashRestoreRefusals, NeverRestoresOntoAnotherItem)
{
    m_tree.add(R"(home/Caches/data text="old")");
    const auto place = trashed("home/Caches/data");
    const auto path = m_tree.path("home/Caches/data");
    const auto expectUntouched = [&] {
        const auto result = m_trash.restoreItem(restoring(place, "home/Caches/data"));
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().kind, FileErrorKind::fileExists);
        EXPECT_EQ(contentsOf(place.path()), "old");
        EXPECT_NE(record("data"), "");
    };
    write(path, "new");
    expectUntouched();
    EXPECT_EQ(contentsOf(path), "new");
    std::filesystem::remove(path);
    std::filesystem::create_symlink("nowhere", path);
    expectUntouched();
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    expectUntouched();
}

TEST_F(LinuxTrashRestoreRefusals, RefusesToRestoreAnItemThatChangedInTheTrash)
{
    m_tree.add("home/Caches/data size=1");
    const auto place = trashed("home/Caches/data");
    const auto anchor = restoring(place, "home/Caches/data");
    write(place.path(), "another");
    const auto result = m_trash.restoreItem(anchor);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::itemChanged);
    EXPECT_TRUE(stands(place.path()));
}

TEST_F(LinuxTrashRestoreRefusals, TakesBackIntoTheTrashWhatSlippedInDuringARestore)
{
    m_tree.add(R"(
        home/Caches/data text="old"
        home/other text="other"
    )");
    const auto place = trashed("home/Caches/data");
    const InterruptedFileManager files(m_posix, 1, [&] { exchange("home/data/Trash/files/data", "home/other"); });
    Platform::LinuxTrash trash(files, m_tree.url("home/data/"));
    const auto result = trash.restoreItem(restoring(place, "home/Caches/data"));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::itemChanged);
    EXPECT_EQ(contentsOf(place.path()), "other");
    EXPECT_FALSE(stands(m_tree.path("home/Caches/data")));
    EXPECT_NE(record("data"), "");
}

TEST_F(LinuxTrashRestoreRefusals, SaysThatAnUnconfirmedItemWasPutBack)
{
    m_tree.add(R"(
        home/Caches/data text="old"
        home/other text="other"
    )");
    const auto place = trashed("home/Caches/data");
    const InterruptedFileManager second(m_posix, 2, [&] { write(place.path(), "taken"); });
    const InterruptedFileManager first(second, 1, [&] { exchange("home/data/Trash/files/data", "home/other"); });
    Platform::LinuxTrash trash(first, m_tree.url("home/data/"));
    const auto result = trash.restoreItem(restoring(place, "home/Caches/data"));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::restoredUnconfirmed);
    EXPECT_EQ(contentsOf(m_tree.path("home/Caches/data")), "other");
    EXPECT_EQ(contentsOf(place.path()), "taken");
}

TEST_F(LinuxTrashRestoreRefusals, RestoresOnlyFromTheTrash)
{
    m_tree.add(R"(
        home/Caches/
        home/fake/files/data text="x"
        home/fake/info/data.trashinfo text="[Trash Info]\nPath=/x\n"
        home/data/Trash/files/sub/data size=1
        home/data/Trash/info/
        home/data/Trash/other/data size=1
    )");
    for (const auto* path : {"home/fake/files/data", "home/data/Trash/files/sub/data", "home/data/Trash/other/data"}) {
        const auto result = m_trash.restoreItem(restoring(m_tree.url(path), "home/Caches/data"));
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().kind, FileErrorKind::noTrash) << path;
    }
}

TEST_F(LinuxTrashRestoreRefusals, MakesNoFolderForARestore)
{
    m_tree.add("home/Caches/app/data size=1");
    const auto place = trashed("home/Caches/app/data");
    m_tree.remove("home/Caches/app");
    const auto result = m_trash.restoreItem(restoring(place, "home/Caches/app/data"));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::noSuchFile);
    EXPECT_THAT(names(m_tree.path("home/Caches")), IsEmpty());
}

} // namespace
