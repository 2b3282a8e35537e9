#include "CleanerCore/Safety/NoTouchPathPolicy.h"

#include "CleanerCore/Safety/LinuxNoTouchTable.h"
#include "Platform/Base/Text.h"
#include "Tests/CleanerCore/Safety/LinuxNoTouchExamples.h"
#include "Tests/CleanerCore/Safety/NoTouchReference.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {
namespace {

using Platform::FileURL;

bool isNoTouch(std::string_view path)
{
    return NoTouchPathPolicy::isNoTouchPath(FileURL(path));
}

void expectNoTouch(std::initializer_list<std::string_view> paths)
{
    for (const auto path : paths) {
        EXPECT_TRUE(isNoTouch(path)) << path;
    }
}

void expectTouchable(std::initializer_list<std::string_view> paths)
{
    for (const auto path : paths) {
        EXPECT_FALSE(isNoTouch(path)) << path;
    }
}

TEST(NoTouchPathPolicy, RefusesSensitivePartsOfAnyLibraryInAnyCase)
{
    expectNoTouch({"/Library/Mail/x", "/Users/a/Library/Mail/x", "/Users/a/library/mail/x", "/a/Library/Keychains",
        "/a/Library/Messages/x", "/a/LIBRARY/CloudStorage", "/a/Library/FileProvider", "/a/Library/File Provider/x",
        "/a/Library/Application Support/CloudDocs", "/a/Library/Application Support/FileProvider/x",
        "/a/Library/Application Support/File Provider"});
    expectTouchable(
        {"/", "/Library", "/a/Library/Application Support", "/a/Library/Application Support/Mail", "/a/Library/Mails",
            "/a/Libraries/Mail/x", "/a/Library/x/Mail", "/a/Mail/Library", "/a/Library/Caches/CloudDocs"});
}

TEST(NoTouchPathPolicy, RefusesICloudDriveButForItsTrash)
{
    expectNoTouch({"/Users/a/Library/Mobile Documents", "/Users/a/Library/Mobile Documents/com~apple~CloudDocs/x",
        "/Users/a/Library/Mobile Documents/x/.Trash", "/Users/a/Library/Mobile Documents/.Trashes"});
    expectTouchable({"/Users/a/Library/Mobile Documents/.Trash", "/Users/a/Library/Mobile Documents/.Trash/x",
        "/Users/a/Library/Mobile Documents/.TRASH/x/y"});
}

TEST(NoTouchPathPolicy, ForgetsTheRulesOfTheLibraryBelowTheTrashOfICloudDriveAndNoOthers)
{
    expectTouchable(
        {"/a/Library/Mobile Documents/.Trash/Library/Mail", "/a/Library/Mobile Documents/.Trash/b/Library/Keychains",
            "/a/Library/Mobile Documents/.Trash/Library/Mobile Documents",
            "/a/Library/Mobile Documents/.Trash/Library/Mobile Documents/x"});
    expectNoTouch({"/a/Library/Mobile Documents/.Trash/Library/Containers/com.apple.Safari",
        "/a/Library/Mobile Documents/.Trash/x.photoslibrary", "/a/Library/Mobile Documents/.Trash/disk.img",
        "/a/Library/Mobile Documents/.Trash/.ssh", "/a/Library/Mail/Library/Mobile Documents/.Trash"});
}

TEST(NoTouchPathPolicy, RefusesContainersOfTheSystemsApplications)
{
    expectNoTouch({"/Users/a/Library/Containers/com.apple.Safari/Data", "/Users/a/Library/Containers/com.apple",
        "/Users/a/Library/Containers/com.apple.", "/Users/a/Library/Containers/COM.Apple.mail",
        "/Users/a/Library/Group Containers/group.com.apple.notes", "/Users/a/Library/Group Containers/group.com.apple",
        "/Users/a/Library/Group Containers/com.apple.x/y", "/Users/a/Library/Group Containers/com.apple"});
    expectTouchable({"/Users/a/Library/Containers/com.applesauce", "/Users/a/Library/Containers/group.com.apple.x",
        "/Users/a/Library/Containers", "/Users/a/Library/Group Containers/group.com.applesauce",
        "/Users/a/Library/Group Containers/ABCDE.com.apple.x", "/Users/a/Containers/com.apple.Safari",
        "/Users/a/Library/Caches/com.apple.Safari"});
}

TEST(NoTouchPathPolicy, RefusesLibrariesBackupsAndImages)
{
    expectNoTouch({"/a/Pictures/Photos Library.photoslibrary/x", "/a/.PhotosLibrary", "/a/x.musiclibrary",
        "/a/x.tvlibrary/y", "/a/x.backup", "/a/x.origin/y", "/a/Disk.IMG", "/a/rootfs.img", "/a/main.img",
        "/a/data.img", "/a/storage.img", "/a/userdata.img", "/a/system.img", "/a/vm.img/x"});
    expectTouchable({"/a/photoslibrary", "/a/x.photoslibrary2", "/a/xbackup", "/a/x.backups", "/a/origin", "/a/x.img",
        "/a/disk.img.zst", "/a/mydisk.img", "/a/debian.img"});
}

TEST(NoTouchPathPolicy, LowerCasesBeyondASCIIBeforeItCompares)
{
    // U+212A KELVIN SIGN is a "k", and U+0130 an "i" with a combining point behind it.
    expectNoTouch({"/a/Library/\xE2\x84\xAA"
                   "eychains",
        "/a/dis\xE2\x84\xAA.img", "/a/x.bac\xE2\x84\xAAup", "/a/\xC3\x89t\xC3\xA9.photoslibrary",
        "/a/\xEC\x82\xAC.SQLITE", "/a/x\xFF.kdbx", "/a/\xC4\xB0.kdbx"});
    expectTouchable({"/a/d\xC4\xB0sk.img", "/a/Library/Ma\xC4\xB0l", "/a/Library/M\xC3\x84il", "/a/disk.img\xFF",
        "/a/\xE2\x84"
        "disk.img"});
}

TEST(NoTouchPathPolicy, RestsOnTwoLettersAloneBecomingASCII)
{
    for (char32_t scalar = 0x80; scalar <= 0x10FFFF; ++scalar) {
        if (scalar >= 0xD800 && scalar <= 0xDFFF) {
            continue;
        }
        const auto lower = Platform::Text::lowercased(Platform::Text::fromScalars(std::u32string(1, scalar)));
        const bool hasASCII = std::any_of(lower.begin(), lower.end(), [](char byte) { return (byte & 0x80) == 0; });
        EXPECT_EQ(hasASCII, scalar == 0x212A || scalar == 0x130) << static_cast<std::uint32_t>(scalar);
    }
}

TEST(NoTouchPathPolicy, HasExamplesOfEveryLinuxRow)
{
    std::set<std::string_view> rows;
    std::set<std::string_view> examples;
    for (const auto& row : kLinuxNoTouchTable) {
        EXPECT_TRUE(rows.insert(row.pattern).second) << row.pattern;
        EXPECT_FALSE(row.source.empty()) << row.pattern;
    }
    for (const auto& example : TestSupport::kLinuxNoTouchExamples) {
        EXPECT_TRUE(examples.insert(example.pattern).second) << example.pattern;
        EXPECT_FALSE(example.survivors.empty()) << example.pattern;
    }
    EXPECT_EQ(rows, examples);
}

TEST(NoTouchPathPolicy, RefusesWhatALinuxRowNamesAndLeavesItsNeighbours)
{
    for (const auto& example : TestSupport::kLinuxNoTouchExamples) {
        for (const auto path : example.refused) {
            EXPECT_TRUE(isNoTouch(path)) << path << " by " << example.pattern;
            EXPECT_TRUE(TestSupport::isNoTouchByReference(path)) << path << " by " << example.pattern;
        }
        for (const auto path : example.survivors) {
            EXPECT_FALSE(isNoTouch(path)) << path << " near " << example.pattern;
        }
    }
}

TEST(NoTouchPathPolicy, CountsCommonNamesOnlyDirectlyBelowAHome)
{
    expectNoTouch({"/home/u/Dropbox/x", "/Users/u/Mail", "/root/OneDrive", "/var/home/u/MEGA", "/Home/u/dropbox"});
    expectTouchable({"/home/Dropbox", "/home/u/x/Dropbox", "/srv/home/u/Dropbox", "/root/x/Mail", "/var/Mail", "/mail",
        "/home/u", "/root", "/var/home/u"});
}

TEST(NoTouchPathPolicy, TakesNoOtherFolderOfVarForTheFolderOfHomes)
{
    expectNoTouch({"/var/home/u/mail", "/VAR/Home/u/mail"});
    expectTouchable({"/var/lib/u/mail", "/var/www/u/mail"});
}

TEST(NoTouchPathPolicy, ComparesEveryLetterBeforeANumber)
{
    expectNoTouch({"/a/MANIFEST-000001"});
    expectTouchable({"/a/MANIPULE-000001", "/a/MANIFEST_000001", "/a/MANIFEST-00001"});
}

TEST(NoTouchPathPolicy, OpensAProfileExactlyAtItsCacheFolders)
{
    for (const std::string_view cache :
        {"Cache", "Code Cache", "GPUCache", "DawnGraphiteCache", "DawnWebGPUCache", "ShaderCache", "GrShaderCache"}) {
        const std::string name(cache);
        EXPECT_FALSE(isNoTouch("/home/u/.config/google-chrome/Default/" + name + "/data_0"));
        EXPECT_FALSE(isNoTouch("/home/u/.config/BraveSoftware/Brave-Browser/Profile 1/" + name));
        EXPECT_FALSE(isNoTouch("/home/u/.config/opera/" + name + "/x/y"));
        EXPECT_FALSE(isNoTouch("/home/u/.config/opera/Default/" + name));
        EXPECT_FALSE(isNoTouch("/home/u/.config/Signal/" + name));
        EXPECT_TRUE(isNoTouch("/home/u/.config/google-chrome/" + name));
        EXPECT_TRUE(isNoTouch("/home/u/.config/google-chrome/" + name + "/x"));
        EXPECT_TRUE(isNoTouch("/home/u/.config/google-chrome/Default/x/" + name));
        EXPECT_TRUE(isNoTouch("/home/u/.config/BraveSoftware/Brave-Browser/" + name));
        EXPECT_TRUE(isNoTouch("/home/u/.config/Signal/x/" + name));
        EXPECT_TRUE(isNoTouch("/home/u/.config/google-chrome/Default/" + name + "s"));
    }
    expectNoTouch({"/home/u/.config/google-chrome", "/home/u/.config/google-chrome/Default",
        "/home/u/.config/google-chrome/Default/Cookies", "/home/u/.config/Signal/config.json",
        "/home/u/.config/google-chrome/Default/Cache/x.sqlite", "/home/u/.config/chromium/Default/GPUCache/.ssh",
        "/home/u/.config/bravesoftware/.config/google-chrome/Cache"});
}

TEST(NoTouchPathPolicy, OpensTheFolderOfSnapsExactlyAtTheirCaches)
{
    expectTouchable({"/home/u/snap/app/common/.cache", "/home/u/snap/app/common/.cache/x", "/opt/snap/app"});
    expectNoTouch({"/home/u/snap", "/home/u/snap/app", "/home/u/snap/app/common", "/home/u/snap/app/common/x",
        "/home/u/snap/app/12/.cache", "/home/u/snap/common/.cache", "/home/u/snap/app/common/.cache/.ssh"});
}

TEST(NoTouchPathPolicy, LetsURLCachesBeDatabases)
{
    expectTouchable({"/Users/u/Library/Caches/com.example/Cache.db", "/Users/u/Library/Caches/x/Cache.db-wal",
        "/Users/u/Library/Caches/a.sqlite3"});
    expectNoTouch({"/Users/u/Library/x.db", "/Users/u/Caches/x.db", "/Users/u/Library/x/Caches/x.db",
        "/Users/u/Library/Caches/x/PG_VERSION", "/Users/u/Library/Caches/x.kdbx"});
}

TEST(NoTouchPathPolicy, LeavesAlonePackageScopesAndVersionControl)
{
    expectTouchable({"/home/u/.npm/_cacache/@types", "/home/u/p/node_modules/@home-assistant/x",
        "/home/u/p/node_modules/@babel", "/home/u/.cargo/git/checkouts/x/.git/config", "/home/u/p/.cargo/config.toml",
        "/home/u/p/debian.img", "/home/u/.var/app/org.example.App/data/x"});
}

/// Components that some rule looks at, near misses among them.
std::vector<std::string> interestingComponents()
{
    std::vector<std::string> components{"Library", "library", "LIBRARY", "Containers", "Group Containers", "com.apple",
        "com.apple.x", "com.applesauce", "group.com.apple.x", "Mail", "Keychains", "Mobile Documents", ".Trash", "x",
        "y", "Caches", "Application Support", "CloudDocs", "FileProvider", "x.backup", "Disk.img", "home", "Users",
        "root", "var", "Cache", "GPUCache", "Code Cache", "common", ".cache", "1000", "12a", ".Trash-1000", ".Trash-x",
        "MANIFEST-000001", "MANIFEST-1", "x.db", "x.db-wal", "dis\xE2\x84\xAA.img",
        "L\xC4\xB0"
        "brary",
        "\xFF", "@", "@x"};
    std::set<std::string> names;
    for (const auto& row : kLinuxNoTouchTable) {
        std::string name;
        for (const char byte : std::string(row.pattern) + "/") {
            if (byte != '/' && byte != '|') {
                name += byte == '*' ? 'z' : byte;
                continue;
            }
            if (!name.empty() && name != "~") {
                names.insert(name);
            }
            name.clear();
        }
    }
    components.insert(components.end(), names.begin(), names.end());
    return components;
}

TEST(NoTouchPathPolicy, AnswersStepByStepWhatTheRulesSayOfTheWholePath)
{
    const auto all = interestingComponents();
    // Small sets, drawn anew for each path, make their members meet.
    std::mt19937 random(20240229);
    const auto draw = [&](std::size_t count) { return static_cast<std::size_t>(random() % count); };
    int refused = 0;
    constexpr int kPaths = 15'000;
    for (int count = 0; count < kPaths; ++count) {
        std::string path;
        NoTouchPathPolicy::State state;
        const auto length = 1 + draw(7);
        // Half of the paths begin like real ones, so that the rules about pairs and places are met.
        static constexpr std::string_view kBeginnings[] = {"/home/u", "/Users/u/Library", "/root", "/home/u/.config",
            "/home/u/.cache", "/a/Library/Mobile Documents", "/home/u/.local/share", "/home/u/.config/opera",
            "/home/u/.config/BraveSoftware", "/home/u/snap/x"};
        if (draw(2) == 0) {
            path = kBeginnings[draw(std::size(kBeginnings))];
            state = NoTouchPathPolicy::State::of(FileURL(path));
        }
        for (std::size_t index = 0; index < length; ++index) {
            const auto& component = all[draw(draw(2) == 0 ? 43 : all.size())];
            path += "/" + component;
            state = NoTouchPathPolicy::State::fromBits(state.descend(component).bits());
            const bool expected = TestSupport::isNoTouchByReference(path);
            ASSERT_EQ(state.isNoTouch(), expected) << path;
            ASSERT_EQ(isNoTouch(path), expected) << path;
            refused += expected ? 1 : 0;
        }
    }
    // Neither answer may be the only one that is ever seen.
    EXPECT_GT(refused, kPaths / 2);
    EXPECT_LT(refused, kPaths * 3);
}

TEST(NoTouchPathPolicy, JudgesLongAndStrangeNamesWithoutHarm)
{
    EXPECT_FALSE(isNoTouch("/" + std::string(4096, 'x')));
    expectTouchable({"/a/\n", "/a/.", "/a/..", "/a/ "});
    EXPECT_TRUE(isNoTouch("/" + std::string(4096, 'x') + ".kdbx"));
    EXPECT_FALSE(NoTouchPathPolicy::State().isNoTouch());
    EXPECT_FALSE(NoTouchPathPolicy::State().descend("").isNoTouch());
}

} // namespace
} // namespace CleanerCore
