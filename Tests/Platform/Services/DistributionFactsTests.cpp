#include "Platform/Files/PosixFileManager.h"
#include "Platform/Services/DistributionFacts.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace {

using Platform::DistributionFacts;
using Platform::FileURL;

const Platform::PosixFileManager kFiles;

DistributionFacts factsIn(std::string_view bytes)
{
    const TestSupport::TemporaryTree tree;
    const auto file = tree.url("distribution.json");
    EXPECT_TRUE(kFiles.writeAtomically(bytes, file));
    return DistributionFacts::read(kFiles, file);
}

TEST(DistributionFacts, AreReadFromTheFile)
{
    EXPECT_EQ(factsIn(R"({"KarvelloDistributionChannel":"DeveloperID","com.apple.security.app-sandbox":false})"),
        (DistributionFacts{.channel = "DeveloperID", .isSandboxed = false}));
    EXPECT_EQ(factsIn(R"({"KarvelloDistributionChannel":"Flathub","com.apple.security.app-sandbox":true,"more":[1]})"),
        (DistributionFacts{.channel = "Flathub", .isSandboxed = true}));
}

TEST(DistributionFacts, WhatIsMissingIsNotKnown)
{
    EXPECT_EQ(factsIn(R"({"KarvelloDistributionChannel":"DeveloperID"})"),
        (DistributionFacts{.channel = "DeveloperID", .isSandboxed = {}}));
    EXPECT_EQ(factsIn(R"({"com.apple.security.app-sandbox":false})"),
        (DistributionFacts{.channel = {}, .isSandboxed = false}));
    EXPECT_EQ(factsIn("{}"), DistributionFacts());
}

TEST(DistributionFacts, WhatIsOfAnotherTypeIsNotKnown)
{
    for (const std::string_view value : {"0", "1", "0.0", "\"false\"", "null", "[]", "{}", "[false]"}) {
        EXPECT_EQ(factsIn(R"({"com.apple.security.app-sandbox":)" + std::string(value) + "}"), DistributionFacts())
            << value;
    }
    for (const std::string_view value : {"0", "true", "null", R"(["DeveloperID"])", R"({"a":"DeveloperID"})"}) {
        EXPECT_EQ(factsIn(R"({"KarvelloDistributionChannel":)" + std::string(value) + "}"), DistributionFacts())
            << value;
    }
}

TEST(DistributionFacts, ADamagedFileTellsNothing)
{
    const std::string whole = R"({"KarvelloDistributionChannel":"DeveloperID","com.apple.security.app-sandbox":false})";
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(factsIn(std::string_view(whole).substr(0, length)), DistributionFacts()) << length;
    }
    EXPECT_EQ(factsIn(whole + "}"), DistributionFacts());
    EXPECT_EQ(factsIn("[" + whole + "]"), DistributionFacts());
    EXPECT_EQ(factsIn("false"), DistributionFacts());
    EXPECT_EQ(factsIn(R"({"com.apple.security.app-sandbox":true,"com.apple.security.app-sandbox":false})"),
        DistributionFacts());
    EXPECT_EQ(factsIn("{\"KarvelloDistributionChannel\":\"DeveloperID\xFF\"}"), DistributionFacts());
}

TEST(DistributionFacts, AFileThatCannotBeReadWholeTellsNothing)
{
    const TestSupport::TemporaryTree tree("pipe fifo\nfolder/\n");
    EXPECT_EQ(DistributionFacts::read(kFiles, tree.url("missing")), DistributionFacts());
    EXPECT_EQ(DistributionFacts::read(kFiles, tree.url("pipe")), DistributionFacts());
    EXPECT_EQ(DistributionFacts::read(kFiles, tree.url("folder")), DistributionFacts());
    EXPECT_NE(factsIn(R"({"com.apple.security.app-sandbox":false})" + std::string(1000, ' ')), DistributionFacts());
    EXPECT_EQ(factsIn(R"({"com.apple.security.app-sandbox":false})" + std::string(70'000, ' ')), DistributionFacts());
}

TEST(DistributionFacts, StandBesideTheFolderOfTheProgram)
{
    EXPECT_EQ(DistributionFacts::fileFor(FileURL("/usr/bin/karvello")).path(), "/usr/share/karvello/distribution.json");
    EXPECT_EQ(DistributionFacts::fileFor(FileURL("/karvello")).path(), "/share/karvello/distribution.json");
}

TEST(DistributionFacts, OfThisBuildAreThoseOfALinuxPackage)
{
    EXPECT_EQ(DistributionFacts::current(kFiles), (DistributionFacts{.channel = "DeveloperID", .isSandboxed = false}));
}

} // namespace
