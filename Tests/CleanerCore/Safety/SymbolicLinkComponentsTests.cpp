#include "CleanerCore/Safety/SymbolicLinkComponents.h"

#include "Tests/CleanerCore/Safety/SystemTest.h"

namespace SafetyTests {

using namespace CleanerCore;

using SymbolicLinkComponentsTest = SystemTest;

TEST_F(SymbolicLinkComponentsTest, LooksForLinksOnlyBelowTheGivenParent)
{
    const auto reject = [&](std::string_view path, std::optional<std::string_view> parent,
                            NameComparison comparison = NameComparison::caseSensitive) {
        return rejectSymbolicLinkComponents(FileURL(path), parent, files, comparison);
    };
    EXPECT_TRUE(reject("/", std::nullopt));
    EXPECT_TRUE(reject("/Users/a/Library/Caches/app/data", std::nullopt));
    EXPECT_TRUE(reject("/Users/a/linked/Caches/app", "/Users/a/linked"));
    EXPECT_TRUE(reject("/Users/a/linked", "/Users/a/linked"));
    expectError(reject("/Users/a/linked/Caches/app", "/Users/a"), Kind::symbolicLink, "/Users/a/linked");
    expectError(reject("/Users/a/linked/Caches/app", std::nullopt), Kind::symbolicLink, "/Users/a/linked");
    expectError(reject("/Users/a/linked/Caches", "/Users/b"), Kind::pathNotAllowed, "/Users/a/Library/Caches");
    expectError(reject("/Users/a/missing/x", std::nullopt), Kind::unreadableAttributes, "/Users/a/missing");
    EXPECT_TRUE(reject("/Users/a/linked/Caches", "/USERS/A/Linked", NameComparison::caseInsensitive));
    expectError(reject("/Users/a/linked/Caches", "/USERS/A/Linked"), Kind::pathNotAllowed, "/Users/a/Library/Caches");
}

/// A file system that does not tell of one item what it is.
class SilentFileManager : public RootedFileManager {
public:
    using RootedFileManager::RootedFileManager;

    [[nodiscard]] std::expected<Platform::ResourceValues, Platform::FileError> resourceValues(
        const Platform::ItemReference& item) const override
    {
        auto values = RootedFileManager::resourceValues(item);
        if (values && item.url().path() == "/Users/a") {
            values->isSymbolicLink.reset();
        }
        return values;
    }
};

TEST_F(SymbolicLinkComponentsTest, TakesAnItemThatDoesNotTellForALink)
{
    const SilentFileManager silent(posix, tree.root());
    const auto verdict =
        rejectSymbolicLinkComponents(FileURL("/Users/a/Library"), std::nullopt, silent, NameComparison::caseSensitive);
    expectError(verdict, Kind::symbolicLink, "/Users/a");
    EXPECT_EQ(isSymbolicLink(FileURL("/Users/a"), silent),
        std::unexpected(CleaningError{Kind::unreadableAttributes, "/Users/a"}));
    EXPECT_EQ(isSymbolicLink(FileURL("/Users/a/linked"), silent), true);
    EXPECT_EQ(isSymbolicLink(FileURL("/Users/a/Library"), silent), false);
    EXPECT_EQ(isSymbolicLink(FileURL("/none"), silent).error().kind, Kind::unreadableAttributes);
}

} // namespace SafetyTests
