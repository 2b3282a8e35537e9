#include "Tests/Fuzz/ReaderTargets.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace FuzzTargets {

namespace {

/// Each file of the corpus, cut at every length too: a fuzzer's first moves.
std::size_t replay(std::string_view folder, bool (*holds)(std::string_view))
{
    std::size_t count = 0;
    for (const auto& file :
        std::filesystem::directory_iterator(std::string(KARVELLO_SOURCE_DIR "/Tests/Fuzz/Corpus/").append(folder))) {
        std::ostringstream content;
        content << std::ifstream(file.path(), std::ios::binary).rdbuf();
        const auto bytes = content.str();
        EXPECT_TRUE(holds(bytes)) << file.path();
        for (std::size_t length = 0; length < bytes.size(); ++length) {
            EXPECT_TRUE(holds(std::string_view(bytes).substr(0, length))) << file.path() << " cut to " << length;
        }
        ++count;
    }
    return count;
}

} // namespace

TEST(FuzzCorpus, HoldsForTheAuditLog)
{
    EXPECT_GE(replay("AuditLog", auditLogHolds), 5);
}

TEST(FuzzCorpus, HoldsForJSON)
{
    EXPECT_GE(replay("JSONReader", jsonHolds), 5);
}

} // namespace FuzzTargets
