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

} // namespace SafetyTests
