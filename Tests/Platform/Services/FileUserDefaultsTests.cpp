#include "Tests/Platform/Services/DefaultsFixture.h"

#include "Platform/Base/JSONReader.h"
#include "Platform/Services/Environment.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/FaultyFileManager.h"

#include <array>
#include <cmath>
#include <limits>
#include <sys/stat.h>

namespace Platform {

namespace {

using namespace DefaultsTests;
using testing::ElementsAre;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;

mode_t modeOf(const std::string& path)
{
    struct stat found{};
    return stat(path.c_str(), &found) == 0 ? found.st_mode & 0777U : 0;
}

} // namespace

TEST_F(FileUserDefaultsTest, GivesBackEveryTypeAfterARestart)
{
    const std::vector<std::pair<std::string, DefaultsValue>> values{
        {"true", true},
        {"false", false},
        {"zero", std::int64_t{0}},
        {"large", std::numeric_limits<std::int64_t>::min()},
        {"fraction", 0.1},
        {"wholeDouble", 5.0},
        {"hugeDouble", 1.0e300},
        {"beyondExact", 1152921504606846976.0},
        {"tinyDouble", 5e-324},
        {"text", std::string("Zürich \"x\"\n/\t\x01")},
        {"empty", std::string()},
        {"data", DefaultsData{std::string("\x00\xFF\x80{}", 5)}},
        {"emptyData", DefaultsData{}},
        {"dictionary", DefaultsDictionary{{"a", "1"}, {"data", "Zg=="}}},
        {"likeData", DefaultsDictionary{{"data", "Zg=="}}},
        {"emptyDictionary", DefaultsDictionary{}},
    };
    {
        FileUserDefaults defaults(m_posix, m_file);
        for (const auto& [key, value] : values) {
            ASSERT_TRUE(defaults.set(key, value)) << key;
            EXPECT_EQ(defaults.value(key), value) << key;
        }
    }
    const FileUserDefaults defaults(m_posix, m_file);
    for (const auto& [key, value] : values) {
        EXPECT_EQ(defaults.value(key), value) << key;
    }
    EXPECT_EQ(defaults.value("missing"), std::nullopt);
}

TEST_F(FileUserDefaultsTest, AnswersOnlyForTheTypeThatIsAskedFor)
{
    FileUserDefaults defaults(m_files, m_file);
    ASSERT_TRUE(defaults.set("text", std::string("a")));
    ASSERT_TRUE(defaults.set("whole", std::int64_t{7}));
    EXPECT_EQ(defaults.string("text"), "a");
    EXPECT_EQ(defaults.data("text"), std::nullopt);
    EXPECT_EQ(defaults.boolean("whole"), std::nullopt);
    EXPECT_EQ(defaults.number("whole"), 7.0);
    EXPECT_EQ(defaults.dictionary("whole"), std::nullopt);
}

TEST_F(FileUserDefaultsTest, LiesInTheFolderForConfiguration)
{
    using Variables = std::map<std::string, std::string, std::less<>>;
    EXPECT_EQ(
        FileUserDefaults::defaultFileURL(Environment(Variables{{"XDG_CONFIG_HOME", "/c"}, {"HOME", "/home/ada"}})),
        FileURL("/c/Karvello/preferences.json"));
    EXPECT_EQ(FileUserDefaults::defaultFileURL(Environment(Variables{{"XDG_CONFIG_HOME", "c"}, {"HOME", "/home/ada"}})),
        FileURL("/home/ada/.config/Karvello/preferences.json"));
}

TEST_F(FileUserDefaultsTest, TouchesNothingUntilSomethingIsSaved)
{
    FileUserDefaults defaults(m_files, m_file);
    EXPECT_EQ(defaults.value("a"), std::nullopt);
    EXPECT_TRUE(defaults.remove("a"));
    defaults.refresh();
    EXPECT_FALSE(std::filesystem::exists(m_tree.path("config/Karvello")));
}

TEST_F(FileUserDefaultsTest, MakesItsFolderForItsUserAlone)
{
    const auto former = umask(0);
    FileUserDefaults defaults(m_files, m_tree.url("config/deep/Karvello/preferences.json"));
    EXPECT_TRUE(defaults.set("a", true));
    umask(former);
    EXPECT_EQ(modeOf(m_tree.path("config/deep")), 0700);
    EXPECT_EQ(modeOf(m_tree.path("config/deep/Karvello")), 0700);
}

TEST_F(FileUserDefaultsTest, WritesAReadableDocument)
{
    FileUserDefaults defaults(m_files, m_file);
    const std::array changes{
        DefaultsChange{"b", DefaultsData{"foo"}},
        DefaultsChange{"a", std::string("x")},
        DefaultsChange{"c", DefaultsDictionary{{"k", "v"}}},
        DefaultsChange{"d", 2.0},
    };
    ASSERT_TRUE(defaults.apply(changes));
    EXPECT_EQ(text(), R"({
  "a" : "x",
  "b" : {
    "data" : "Zm9v"
  },
  "c" : {
    "dictionary" : {
      "k" : "v"
    }
  },
  "d" : {
    "double" : 2
  }
})");
}

TEST_F(FileUserDefaultsTest, LeavesWhatItDoesNotUnderstandAsItWas)
{
    setText(R"({"list":[1,{"x":null}],"null":null,"large":18446744073709551615,"notText":{"dictionary":{"a":1}},)"
            R"("badData":{"data":"Zg"},"twoNames":{"data":"Zg==","double":1},"newType":{"date":5},"mine":1})");
    FileUserDefaults defaults(m_files, m_file);
    for (const auto* const key : {"list", "null", "large", "notText", "badData", "twoNames", "newType"}) {
        EXPECT_EQ(defaults.value(key), std::nullopt) << key;
    }
    ASSERT_TRUE(defaults.set("mine", std::int64_t{2}));
    const auto before = JSONReader::parse(R"({"list":[1,{"x":null}],"null":null,"large":18446744073709551615,)"
                                          R"("notText":{"dictionary":{"a":1}},"badData":{"data":"Zg"},)"
                                          R"("twoNames":{"data":"Zg==","double":1},"newType":{"date":5},"mine":2})");
    EXPECT_EQ(JSONReader::parse(text()), before);
    // Who says what such a key is to be has said it.
    ASSERT_TRUE(defaults.set("list", true));
    ASSERT_TRUE(defaults.remove("null"));
    EXPECT_EQ(JSONReader::parse(text())->member("null"), nullptr);
    EXPECT_EQ(FileUserDefaults(m_files, m_file).boolean("list"), true);
}

TEST_F(FileUserDefaultsTest, WritesNothingForAValueThatIsThereAlready)
{
    FaultyFileManager files(m_files);
    FileUserDefaults defaults(files, m_file);
    ASSERT_TRUE(defaults.set("a", std::string("x")));
    std::vector<std::string> heard;
    const auto observation = defaults.observe([&](auto keys) { heard = keysOf(keys); });
    EXPECT_TRUE(defaults.set("a", std::string("x")));
    EXPECT_TRUE(defaults.remove("b"));
    const std::array thereAndBack{DefaultsChange{"a", false}, DefaultsChange{"a", std::string("x")}};
    EXPECT_TRUE(defaults.apply(thereAndBack));
    EXPECT_EQ(files.count(FileManagerCall::writeAtomically), 1);
    EXPECT_TRUE(heard.empty());
}

TEST_F(FileUserDefaultsTest, WritesAValueThatAnotherProcessHasChangedMeanwhile)
{
    FileUserDefaults one(m_files, m_file);
    FileUserDefaults other(m_files, m_file);
    ASSERT_TRUE(one.set("a", std::int64_t{1}));
    ASSERT_TRUE(other.set("a", std::int64_t{2}));
    ASSERT_TRUE(one.set("a", std::int64_t{1}));
    EXPECT_EQ(FileUserDefaults(m_files, m_file).value("a"), DefaultsValue(std::int64_t{1}));
}

TEST_F(FileUserDefaultsTest, KeepsTheKeysOfAnotherInstanceAndTakesThemOver)
{
    FileUserDefaults one(m_files, m_file);
    FileUserDefaults other(m_files, m_file);
    std::vector<std::string> heard;
    const auto observation = other.observe([&](auto keys) { heard = keysOf(keys); });
    ASSERT_TRUE(one.set("a", true));
    ASSERT_TRUE(other.set("b", true));
    EXPECT_THAT(heard, ElementsAre("a", "b"));
    EXPECT_EQ(other.boolean("a"), true);
    const FileUserDefaults fresh(m_files, m_file);
    EXPECT_EQ(fresh.boolean("a"), true);
    EXPECT_EQ(fresh.boolean("b"), true);
}

TEST_F(FileUserDefaultsTest, AppliesAllChangesOrNone)
{
    FileUserDefaults defaults(m_files, m_file);
    ASSERT_TRUE(defaults.set("a", true));
    const auto before = text();
    for (const DefaultsValue& bad : {DefaultsValue(std::nan("")), DefaultsValue(INFINITY), DefaultsValue("\xFF"),
             DefaultsValue(DefaultsDictionary{{"\xC3", "x"}}), DefaultsValue(DefaultsDictionary{{"x", "\xC3"}})}) {
        const std::array changes{DefaultsChange{"a", false}, DefaultsChange{"b", bad}};
        const auto applied = defaults.apply(changes);
        ASSERT_FALSE(applied);
        EXPECT_EQ(applied.error().kind, FileErrorKind::corrupt);
        EXPECT_EQ(applied.error().localizedDescription(), "The file “preferences.json” couldn’t be saved.");
        EXPECT_EQ(defaults.boolean("a"), true);
        EXPECT_EQ(defaults.value("b"), std::nullopt);
        EXPECT_EQ(text(), before);
    }
}

TEST_F(FileUserDefaultsTest, LeavesMemoryAndDiskAsTheyWereWhereTheDiskIsFull)
{
    FaultyFileManager files(m_files);
    FileUserDefaults defaults(files, m_file);
    ASSERT_TRUE(defaults.set("a", std::int64_t{1}));
    const auto before = text();
    bool isCalled = false;
    const auto observation = defaults.observe([&](auto) { isCalled = true; });
    files.fail({.call = FileManagerCall::writeAtomically, .systemError = ENOSPC});
    const auto saved = defaults.set("a", std::int64_t{2});
    ASSERT_FALSE(saved);
    EXPECT_EQ(files.failureCount(), 1);
    EXPECT_EQ(saved.error().kind, FileErrorKind::outOfSpace);
    EXPECT_EQ(saved.error().localizedDescription(),
        "The file “preferences.json” couldn’t be saved because the volume is out of space.");
    EXPECT_EQ(defaults.value("a"), DefaultsValue(std::int64_t{1}));
    EXPECT_FALSE(isCalled);
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(defaults.set("a", std::int64_t{2}));
}

TEST_F(FileUserDefaultsTest, SaysWhyNothingCanBeSavedInAReadOnlyFolder)
{
    setText(R"({"a":1})");
    const auto before = names();
    std::filesystem::permissions(m_tree.path("config/Karvello"), std::filesystem::perms(0500));
    TestSupport::asOrdinaryUser(m_tree.root().path(), [&] {
        FileUserDefaults defaults(m_posix, m_file);
        const auto saved = defaults.set("a", std::int64_t{2});
        ASSERT_FALSE(saved);
        EXPECT_EQ(saved.error().localizedDescription(),
            "The file “preferences.json” couldn’t be saved because you don’t have permission.");
        EXPECT_EQ(defaults.value("a"), DefaultsValue(std::int64_t{1}));
    });
    EXPECT_EQ(text(), R"({"a":1})");
    EXPECT_EQ(names(), before);
}

TEST_F(FileUserDefaultsTest, SaysWhyItsFolderCannotBeMade)
{
    m_tree.add("config/file");
    FileUserDefaults defaults(m_posix, m_tree.url("config/file/Karvello/preferences.json"));
    const auto saved = defaults.set("a", true);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().kind, FileErrorKind::notDirectory);
}

TEST_F(FileUserDefaultsTest, RefusesToGrowBeyondWhatItWouldRead)
{
    FileUserDefaults defaults(m_files, m_file);
    const auto saved = defaults.set("a", std::string(FileUserDefaults::kMaximumBytes, 'x'));
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().kind, FileErrorKind::tooLarge);
    EXPECT_EQ(defaults.value("a"), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(m_file.path()));
}

TEST_F(FileUserDefaultsTest, StartsCleanWhereTheUserTookTheFileAway)
{
    FileUserDefaults defaults(m_files, m_file);
    ASSERT_TRUE(defaults.set("a", true));
    std::vector<std::string> heard;
    const auto observation = defaults.observe([&](auto keys) { heard = keysOf(keys); });
    m_tree.remove("config/Karvello");
    defaults.refresh();
    EXPECT_THAT(heard, ElementsAre("a"));
    EXPECT_EQ(defaults.value("a"), std::nullopt);
    ASSERT_TRUE(defaults.set("b", true));
    EXPECT_EQ(FileUserDefaults(m_files, m_file).boolean("b"), true);
}

} // namespace Platform
