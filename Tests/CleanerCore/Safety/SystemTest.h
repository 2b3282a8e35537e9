#pragma once

#include "CleanerCore/Safety/SafePathPolicy.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/RootedFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace SafetyTests {

using CleanerCore::CleaningError;
using CleanerCore::SafePathPolicy;
using Kind = CleaningError::Kind;
using Platform::FileURL;
using TestSupport::FaultDuration;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;
using TestSupport::RootedFileManager;
using TestSupport::TemporaryTree;

inline constexpr std::string_view kSystem = R"(
Users/a/Library/Caches/app/data
Users/a/Library/Caches/way -> ../Elsewhere
Users/a/Library/Caches/broken -> nowhere
Users/a/Library/Elsewhere/thing
Users/a/Library/Logs/
Users/a/linked -> Library
Users/a/Library/Mail/x
Users/b/Library/Caches/x
Users/Shared/stuff/x
System/x
Library/Caches/x
usr/local/share/x
home/u/.cache/pip/x
home/v/.cache/pip/x
root/.cache/pip/x
opt/tool/x
mnt/disk/data/x
media/disk/x
srv/x
boot/x
var/lib/x
var/tmp/mine/x
var/own/x
tmp/mine/x
data/x
private/etc/x
etc -> private/etc
bin -> usr/bin
usr/bin/
)";

/// A file system of its own, with the folders of both kinds of systems.
class SystemTest : public testing::Test {
protected:
    std::expected<void, CleaningError> root(std::string_view path, std::string_view home = "/Users/a") const
    {
        return SafePathPolicy::validateScanRoot(FileURL::folder(path), FileURL::folder(home), files);
    }

    SafePathPolicy policy(std::vector<std::string_view> roots, std::string_view home = "/Users/a") const
    {
        std::vector<FileURL> urls;
        for (const auto path : roots) {
            urls.push_back(FileURL::folder(path));
        }
        return SafePathPolicy(urls, FileURL::folder(home), files);
    }

    void expectNotAllowed(std::string_view path, std::string_view home = "/Users/a") const
    {
        const auto verdict = root(path, home);
        ASSERT_FALSE(verdict.has_value()) << path;
        EXPECT_EQ(verdict.error().kind, Kind::pathNotAllowed) << path;
    }

    static void expectError(const std::expected<void, CleaningError>& verdict, Kind kind, std::string_view path)
    {
        ASSERT_FALSE(verdict.has_value()) << path;
        EXPECT_EQ(verdict.error(), (CleaningError{kind, std::string(path)}));
    }

    TemporaryTree tree{kSystem};
    Platform::PosixFileManager posix;
    FaultyFileManager faulty{posix};
    RootedFileManager files{faulty, tree.root()};
};

} // namespace SafetyTests
