#include "Platform/Base/SHA256.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace Platform {
namespace {

std::string digestOf(std::string_view text)
{
    return hexDigest(SHA256::of(std::as_bytes(std::span(text))));
}

TEST(SHA256, GivesTheKnownDigests)
{
    EXPECT_EQ(digestOf(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(digestOf("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(
        digestOf(std::string(1'000'000, 'a')), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(SHA256, DoesNotDependOnThePieces)
{
    SHA256 hash;
    hash.update("a");
    hash.update("");
    hash.update("bc");
    EXPECT_EQ(hexDigest(hash.finish()), digestOf("abc"));
}

TEST(SHA256, GoesOnInACopyFromWhereTheOriginalStands)
{
    SHA256 hash;
    hash.update("ab");
    auto copy = hash;
    hash.update("c");
    copy.update("d");
    EXPECT_EQ(hexDigest(hash.finish()), digestOf("abc"));
    EXPECT_EQ(hexDigest(copy.finish()), digestOf("abd"));
}

} // namespace
} // namespace Platform
