#include "Tests/Platform/Services/DefaultsFixture.h"

#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/FaultyFileManager.h"

namespace Platform {

namespace {

using namespace DefaultsTests;
using testing::ElementsAre;
using testing::StartsWith;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;

class FileUserDefaultsDamageTest : public FileUserDefaultsTest {
protected:
    /// The defaults begin clean, and the first save keeps what stands in the file's place under a name with the reason.
    /// Gives that name.
    std::string expectKeptAside(std::string_view reason)
    {
        const auto before = names();
        FileUserDefaults defaults(m_posix, m_file);
        EXPECT_EQ(defaults.value("a"), std::nullopt);
        EXPECT_TRUE(defaults.remove("a"));
        defaults.refresh();
        EXPECT_EQ(names(), before) << "moved though nothing was to be saved";
        EXPECT_TRUE(defaults.set("b", true));
        EXPECT_EQ(FileUserDefaults(m_posix, m_file).boolean("b"), true);
        const auto after = names();
        EXPECT_EQ(after.size(), 2);
        EXPECT_EQ(after.count("preferences.json"), 1);
        const auto kept = after.empty() ? std::string() : *after.rbegin();
        EXPECT_THAT(kept, StartsWith("preferences.json." + std::string(reason) + "-"));
        return m_tree.path("config/Karvello/" + kept);
    }

    [[nodiscard]] static std::string contentsOf(const std::string& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator(file), {}};
    }
};

} // namespace

TEST_F(FileUserDefaultsDamageTest, KeepsADocumentThatIsNoJSON)
{
    for (const std::string_view damaged : {"", "{", R"({"a":1)", R"({"a":1}x)", R"({"a":1,"a":2})", "{\"a\":\"\xFF\"}",
             R"([{"a":1}])", "null", R"({"a":1e999})"}) {
        m_tree.remove("config/Karvello");
        setText(damaged);
        EXPECT_EQ(contentsOf(expectKeptAside("undecodable")), damaged);
    }
}

TEST_F(FileUserDefaultsDamageTest, KeepsADocumentFullOfNULBytes)
{
    const std::string damaged(4096, '\0');
    setText(damaged);
    EXPECT_EQ(contentsOf(expectKeptAside("undecodable")), damaged);
}

TEST_F(FileUserDefaultsDamageTest, KeepsADocumentThatIsNestedTooDeep)
{
    const auto damaged = R"({"a":)" + std::string(100'000, '[') + std::string(100'000, ']') + "}";
    setText(damaged);
    EXPECT_EQ(contentsOf(expectKeptAside("undecodable")), damaged);
}

TEST_F(FileUserDefaultsDamageTest, KeepsADocumentThatIsTooLarge)
{
    const auto damaged = R"({"a":1)" + std::string(FileUserDefaults::kMaximumBytes, ' ') + "}";
    setText(damaged);
    EXPECT_EQ(contentsOf(expectKeptAside("oversized")), damaged);
}

TEST_F(FileUserDefaultsDamageTest, KeepsAFolderInItsPlace)
{
    m_tree.add("config/Karvello/preferences.json/mine text=x");
    EXPECT_EQ(contentsOf(expectKeptAside("unreadable") + "/mine"), "x");
}

TEST_F(FileUserDefaultsDamageTest, KeepsALinkInItsPlaceAndNeverFollowsIt)
{
    m_tree.add(R"(victim text="{\"a\":1}")"
               "\nconfig/Karvello/preferences.json -> ../../victim");
    const auto kept = expectKeptAside("unreadable");
    EXPECT_TRUE(std::filesystem::is_symlink(kept));
    EXPECT_EQ(contentsOf(m_tree.path("victim")), R"({"a":1})");
}

TEST_F(FileUserDefaultsDamageTest, KeepsALinkThatLeadsNowhere)
{
    m_tree.add("config/Karvello/preferences.json -> nowhere");
    EXPECT_TRUE(std::filesystem::is_symlink(expectKeptAside("unreadable")));
}

TEST_F(FileUserDefaultsDamageTest, KeepsAPipeInItsPlaceWithoutWaitingForIt)
{
    m_tree.add("config/Karvello/preferences.json fifo");
    EXPECT_TRUE(std::filesystem::is_fifo(expectKeptAside("unreadable")));
}

TEST_F(FileUserDefaultsDamageTest, KeepsASocketInItsPlace)
{
    m_tree.add("config/Karvello/preferences.json socket");
    EXPECT_TRUE(std::filesystem::is_socket(expectKeptAside("unreadable")));
}

TEST_F(FileUserDefaultsDamageTest, KeepsADocumentThatTheDiskCannotRead)
{
    setText(R"({"a":1})");
    FaultyFileManager files(m_files);
    files.fail(
        {.call = FileManagerCall::readFile, .systemError = EIO, .duration = TestSupport::FaultDuration::fromThenOn});
    FileUserDefaults defaults(files, m_file);
    EXPECT_TRUE(defaults.set("b", true));
    EXPECT_GT(files.failureCount(), 0);
    ASSERT_EQ(names().size(), 2);
    EXPECT_EQ(contentsOf(m_tree.path("config/Karvello/" + *names().rbegin())), R"({"a":1})");
}

TEST_F(FileUserDefaultsDamageTest, NeverMovesADocumentThatItMayNotRead)
{
    setText(R"({"a":1})");
    std::filesystem::permissions(m_file.path(), std::filesystem::perms::none);
    TestSupport::asOrdinaryUser(m_tree.root().path(), [&] {
        FileUserDefaults defaults(m_posix, m_file);
        EXPECT_EQ(defaults.value("a"), std::nullopt);
        const auto saved = defaults.set("b", true);
        ASSERT_FALSE(saved);
        EXPECT_EQ(saved.error().localizedDescription(),
            "The file “preferences.json” couldn’t be opened because you don’t have permission to view it.");
        EXPECT_EQ(defaults.value("b"), std::nullopt);
    });
    EXPECT_THAT(names(), ElementsAre("preferences.json"));
    std::filesystem::permissions(m_file.path(), std::filesystem::perms(0600));
    EXPECT_EQ(text(), R"({"a":1})");
}

TEST_F(FileUserDefaultsDamageTest, NeverMovesADocumentForAPassingLack)
{
    setText(R"({"a":1})");
    for (const int lack : {EMFILE, ENFILE, ENOMEM, EINTR}) {
        FaultyFileManager files(m_files);
        files.fail({.call = FileManagerCall::readFile,
            .systemError = lack,
            .duration = TestSupport::FaultDuration::fromThenOn});
        FileUserDefaults defaults(files, m_file);
        EXPECT_FALSE(defaults.set("b", true));
        EXPECT_EQ(text(), R"({"a":1})");
        EXPECT_THAT(names(), ElementsAre("preferences.json"));
    }
}

TEST_F(FileUserDefaultsDamageTest, OverwritesNothingThatItCannotKeep)
{
    setText("damaged");
    FaultyFileManager files(m_files);
    files.fail({.call = FileManagerCall::moveItem, .systemError = EACCES});
    FileUserDefaults defaults(files, m_file);
    const auto saved = defaults.set("b", true);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().kind, FileErrorKind::noPermission);
    EXPECT_EQ(text(), "damaged");
    EXPECT_EQ(defaults.value("b"), std::nullopt);
    EXPECT_TRUE(defaults.set("b", true));
}

TEST_F(FileUserDefaultsDamageTest, PutsADamagedDocumentBackWhereTheNewOneCannotBeWritten)
{
    setText("damaged");
    FaultyFileManager files(m_files);
    files.fail({.call = FileManagerCall::writeAtomically, .systemError = ENOSPC});
    FileUserDefaults defaults(files, m_file);
    ASSERT_FALSE(defaults.set("b", true));
    EXPECT_EQ(files.failureCount(), 1);
    EXPECT_EQ(text(), "damaged");
    EXPECT_THAT(names(), ElementsAre("preferences.json"));
}

TEST_F(FileUserDefaultsDamageTest, GoesOnWithWhatItReadLastWhereTheFileIsDamagedLater)
{
    FileUserDefaults defaults(m_files, m_file);
    ASSERT_TRUE(defaults.set("a", true));
    bool isCalled = false;
    const auto observation = defaults.observe([&](auto) { isCalled = true; });
    setText("{");
    defaults.refresh();
    EXPECT_FALSE(isCalled);
    EXPECT_EQ(defaults.boolean("a"), true);
    EXPECT_EQ(text(), "{") << "an editor may be in the middle of its work";
    ASSERT_TRUE(defaults.set("b", true));
    const FileUserDefaults fresh(m_files, m_file);
    EXPECT_EQ(fresh.boolean("a"), true);
    EXPECT_EQ(fresh.boolean("b"), true);
    EXPECT_EQ(names().size(), 2);
}

TEST_F(FileUserDefaultsDamageTest, TakesUpADocumentThatWasPutInOrder)
{
    setText("{");
    FileUserDefaults defaults(m_files, m_file);
    setText(R"({"a":1})");
    ASSERT_TRUE(defaults.set("b", true));
    EXPECT_EQ(defaults.value("a"), DefaultsValue(std::int64_t{1}));
    EXPECT_THAT(names(), ElementsAre("preferences.json"));
}

} // namespace Platform
