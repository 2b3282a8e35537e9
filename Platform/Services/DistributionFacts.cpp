#include "Platform/Services/DistributionFacts.h"

#include "Platform/Base/JSONReader.h"

#include <cstddef>

namespace Platform {

namespace {

constexpr std::size_t kMaximumBytes = 64 * 1024;

} // namespace

DistributionFacts DistributionFacts::read(const FileManager& files, const FileURL& file)
{
    const auto bytes = files.readFile(file, kMaximumBytes);
    if (!bytes) {
        return {};
    }
    const auto document = JSONReader::parse(*bytes);
    if (!document) {
        return {};
    }
    DistributionFacts facts;
    if (const auto* const channel = document->member(kChannelKey); channel != nullptr && channel->string() != nullptr) {
        facts.channel = *channel->string();
    }
    if (const auto* const sandbox = document->member(kSandboxKey); sandbox != nullptr) {
        facts.isSandboxed = sandbox->boolean();
    }
    return facts;
}

DistributionFacts DistributionFacts::current(const FileManager& files)
{
    // The link of proc(5) leads to the program that runs, by whatever name it was started.
    return read(files, fileFor(files.resolvingSymbolicLinks(FileURL("/proc/self/exe"))));
}

FileURL DistributionFacts::fileFor(const FileURL& program)
{
    const auto prefix = program.deletingLastPathComponent().deletingLastPathComponent();
    return prefix.appending("share/karvello/distribution.json");
}

} // namespace Platform
