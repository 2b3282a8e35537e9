#include "Platform/Base/Base64.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Platform {

TEST(Base64, WritesTheKnownTexts)
{
    // RFC 4648, section 10.
    const std::vector<std::pair<std::string_view, std::string_view>> known{{"", ""}, {"f", "Zg=="}, {"fo", "Zm8="},
        {"foo", "Zm9v"}, {"foob", "Zm9vYg=="}, {"fooba", "Zm9vYmE="}, {"foobar", "Zm9vYmFy"}, {"\xFB\xEF\xFF", "++//"}};
    for (const auto& [bytes, text] : known) {
        EXPECT_EQ(Base64::encode(bytes), text);
        EXPECT_EQ(Base64::decode(text), bytes);
    }
}

TEST(Base64, GivesBackBytesOfAnyLength)
{
    constexpr std::size_t piece = std::size_t{3} * 1024 * 1024;
    for (const std::size_t length : {std::size_t{1}, std::size_t{255}, std::size_t{256}, piece - 1, piece, piece + 1}) {
        std::string bytes(length, '\0');
        for (std::size_t index = 0; index < length; ++index) {
            bytes[index] = static_cast<char>(index * 31 + index / 256);
        }
        EXPECT_TRUE(Base64::decode(Base64::encode(bytes)) == bytes) << length;
    }
}

TEST(Base64, RefusesWhatIsNoTextOfItsOwn)
{
    for (const std::string_view text : {"Z", "Zg", "Zg=", "Zg===", "====", "=", "Zm9v\n", " Zm9v", "Zm9v    ",
             "Zm9v Zm9", "Zh==", "Zm9=", "Zg==Zg==", "Zm-_", "Zm9vZ===", "\xC3\xA4\xC3\xA4"}) {
        EXPECT_EQ(Base64::decode(text), std::nullopt) << text;
    }
    EXPECT_EQ(Base64::decode(std::string_view("Zm\0v", 4)), std::nullopt);
}

} // namespace Platform
