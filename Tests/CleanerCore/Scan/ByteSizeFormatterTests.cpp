#include "CleanerCore/Scan/ByteSizeFormatter.h"

#include <gtest/gtest.h>
#include <limits>

namespace CleanerCore {

TEST(ByteSizeFormatter, WritesBytesBelowOneKilobyteAsTheyAre)
{
    EXPECT_EQ(ByteSizeFormatter::string(0), "0 bytes");
    EXPECT_EQ(ByteSizeFormatter::string(1), "1 bytes");
    EXPECT_EQ(ByteSizeFormatter::string(100), "100 bytes");
    EXPECT_EQ(ByteSizeFormatter::string(1023), "1023 bytes");
}

TEST(ByteSizeFormatter, CountsNegativeAsZero)
{
    EXPECT_EQ(ByteSizeFormatter::string(-1), "0 bytes");
    EXPECT_EQ(ByteSizeFormatter::string(std::numeric_limits<std::int64_t>::min()), "0 bytes");
}

TEST(ByteSizeFormatter, TakesTheLargestUnitAndTrimsTheFraction)
{
    EXPECT_EQ(ByteSizeFormatter::string(1024), "1 KB");
    EXPECT_EQ(ByteSizeFormatter::string(1536), "1.5 KB");
    EXPECT_EQ(ByteSizeFormatter::string(1034), "1.01 KB");
    EXPECT_EQ(ByteSizeFormatter::string(2048), "2 KB");
    EXPECT_EQ(ByteSizeFormatter::string(10240), "10 KB");
    EXPECT_EQ(ByteSizeFormatter::string(10752), "10.5 KB");
    EXPECT_EQ(ByteSizeFormatter::string(102400), "100 KB");
    EXPECT_EQ(ByteSizeFormatter::string(1048576), "1 MB");
    EXPECT_EQ(ByteSizeFormatter::string(std::int64_t{1} << 30), "1 GB");
    EXPECT_EQ(ByteSizeFormatter::string(std::int64_t{1} << 40), "1 TB");
    EXPECT_EQ(ByteSizeFormatter::string(std::int64_t{1} << 50), "1 PB");
}

TEST(ByteSizeFormatter, GoesNoFurtherThanPetabytes)
{
    EXPECT_EQ(ByteSizeFormatter::string(std::numeric_limits<std::int64_t>::max()), "8192 PB");
}

TEST(ByteSizeFormatter, KeepsTheUnitOfAValueThatRoundsUp)
{
    EXPECT_EQ(ByteSizeFormatter::string(1048473), "1024 KB");
    EXPECT_EQ(ByteSizeFormatter::string(1048575), "1024 KB");
    // 9.999 and 99.96 round to more digits than their form was chosen for.
    EXPECT_EQ(ByteSizeFormatter::string(10239), "10 KB");
    EXPECT_EQ(ByteSizeFormatter::string(102359), "100 KB");
}

TEST(ByteSizeFormatter, RoundsExactHalvesToTheEvenDigit)
{
    // 1.125 KB and 100.5 KB are exact in binary.
    EXPECT_EQ(ByteSizeFormatter::string(1152), "1.12 KB");
    EXPECT_EQ(ByteSizeFormatter::string(102912), "100 KB");
}

TEST(ByteSizeFormatter, HasAFormOfItsOwnInKorean)
{
    EXPECT_EQ(ByteSizeFormatter::string(0, "ko"), "0byte");
    EXPECT_EQ(ByteSizeFormatter::string(1, "ko"), "1byte");
    EXPECT_EQ(ByteSizeFormatter::string(1024, "ko-KR"), "1KB");
    EXPECT_EQ(ByteSizeFormatter::string(1536, "KO_kr"), "1.5KB");
}

TEST(ByteSizeFormatter, WritesAPointInEveryOtherLanguage)
{
    for (const std::string_view locale : {"de-DE", "fr", "", "ar"}) {
        EXPECT_EQ(ByteSizeFormatter::string(1536, locale), "1.5 KB");
    }
}

} // namespace CleanerCore
