// A file is taken away and made anew with the same name, size and date; where the file system gives it the same number,
// nothing but its identity tells it from the confirmed one. Usage:
//     karvello-rig-identities --below FOLDER --mover product|naive --attempts N
// Prints one line of counts. The exit code is 1 as soon as a file was taken for the confirmed one.

#include "Rigs/RigFolder.h"

#include <cstdlib>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace Rigs;

/// What a plain look tells, as most programs compare it.
Platform::ItemTest confirmingByNumberSizeAndDate(const std::string& path)
{
    struct stat confirmed {};
    if (lstat(path.c_str(), &confirmed) != 0) {
        fail("cannot look at " + path);
    }
    return [confirmed, path](const Platform::FingerprintReadings& found) {
        return found.attributes && found.attributes->systemFileNumber == confirmed.st_ino
            && found.identityValues->values.fileSize == confirmed.st_size
            && found.attributes->modificationDate
            == Platform::Date::fromUnixTime(confirmed.st_mtim.tv_sec, static_cast<std::uint32_t>(confirmed.st_mtim.tv_nsec));
    };
}

void setDate(const std::string& path, timespec date)
{
    const timespec times[2] = {date, date};
    if (utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW) != 0) {
        fail("cannot date " + path);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const auto below = option(argc, argv, "below").value_or("/tmp");
    const auto mover = option(argc, argv, "mover").value_or("product") == "naive" ? Mover::naive : Mover::product;
    const auto attempts = std::strtoull(option(argc, argv, "attempts").value_or("1000").c_str(), nullptr, 10);

    const RigFolder folder(below);
    // The mover is the product's in both runs: what differs is what it is told to recognise the item by.
    const auto trash = folder.trash(Mover::product);
    const auto path = folder.path("Caches/data");
    const timespec date{.tv_sec = 1'700'000'000, .tv_nsec = 123'456'789};
    const auto root = folder.anchor("Caches");
    std::uint64_t sameNumber = 0;
    std::uint64_t accepted = 0;
    std::uint64_t made = 0;
    while (made < attempts && (mover == Mover::product || accepted == 0)) {
        folder.makeFile("Caches/data", "the confirmed bytes");
        setDate(path, date);
        const auto number = fileNumber(AT_FDCWD, path.c_str());
        auto test = mover == Mover::product ? folder.confirming("Caches/data") : confirmingByNumberSizeAndDate(path);
        if (unlink(path.c_str()) != 0) {
            fail("cannot take away " + path);
        }
        folder.makeFile("Caches/data", "some newer contents");
        setDate(path, date);
        ++made;
        sameNumber += fileNumber(AT_FDCWD, path.c_str()) == number ? 1U : 0U;
        const auto result = trash->trashItem({.root = root, .item = folder.url("Caches/data"), .isConfirmed = std::move(test)});
        if (result) {
            ++accepted;
        } else {
            unlink(path.c_str());
        }
    }
    fmt::print("attempts={} same_number={} astray={}\n", made, sameNumber, accepted);
    return accepted == 0 ? 0 : 1;
}
