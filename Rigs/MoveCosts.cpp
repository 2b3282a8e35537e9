// What the checks around a move cost. Usage:
//     karvello-rig-move-costs [--below FOLDER] [--items N] [--rounds N]
// Items are small files, taken away in turn by a loop of plain renames, by a loop that writes the record of each and
// renames, and by the product, all in the same run. The last line is what the product adds to the second loop.

#include "Platform/Files/WholeFile.h"
#include "Platform/Linux/TrashRecord.h"
#include "Rigs/RigFolder.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fmt/format.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace Rigs;
using Clock = std::chrono::steady_clock;

double microseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::micro>(duration).count();
}

/// One pass over fresh items; microseconds an item, and for all of them the milliseconds until they are on the disk.
struct Pass {
    double perItem = 0;
    double settle = 0;
};

enum class Way { renames, recordsAndRenames, product };

Pass measure(const std::string& below, Way way, int items)
{
    const RigFolder folder(below);
    const auto trash = folder.trash(Mover::product);
    for (const auto* name : {"Caches/app", "data/Trash", "data/Trash/files", "data/Trash/info"}) {
        folder.makeFolder(name);
    }
    const auto root = folder.anchor("Caches");
    const auto app = folder.open("Caches/app");
    const auto files = folder.open("data/Trash/files");
    const auto info = folder.open("data/Trash/info");
    std::vector<std::string> names;
    std::vector<Platform::ItemAnchor> anchors;
    for (int number = 0; number < items; ++number) {
        names.push_back(fmt::format("item-{}.bin", number));
        const auto path = "Caches/app/" + names.back();
        folder.makeFile(path, "a small item");
        anchors.push_back({.root = root, .item = folder.url(path), .isConfirmed = folder.confirming(path)});
    }
    sync();
    const auto begin = Clock::now();
    for (std::size_t index = 0; index < names.size(); ++index) {
        const auto* name = names[index].c_str();
        if (way == Way::product) {
            if (!trash->trashItem(anchors[index])) {
                fail("cannot move an item");
            }
            continue;
        }
        if (way == Way::recordsAndRenames) {
            const Platform::TrashRecord record{.path = anchors[index].item.path(), .deletionDate = Platform::TrashRecord::now(), .isOurs = true};
            if (Platform::addWholeFile(info.get(), (names[index] + ".trashinfo").c_str(), record.text(), 0600) != 0) {
                fail("cannot write a record");
            }
        }
        if (renameat2(app.get(), name, files.get(), name, RENAME_NOREPLACE) != 0) {
            fail("cannot rename an item");
        }
    }
    const auto moved = Clock::now();
    if (way == Way::product ? !trash->settle() : syncfs(files.get()) != 0) {
        fail("cannot settle");
    }
    return {.perItem = microseconds(moved - begin) / items, .settle = microseconds(Clock::now() - moved) / 1000};
}

} // namespace

int main(int argc, char** argv)
{
    const auto below = option(argc, argv, "below").value_or(std::filesystem::temp_directory_path());
    const int items = std::atoi(option(argc, argv, "items").value_or("1000").c_str());
    const int rounds = std::atoi(option(argc, argv, "rounds").value_or("9").c_str());
    std::vector<std::vector<Pass>> passes(3);
    for (int round = 0; round < rounds; ++round) {
        for (const auto way : {Way::renames, Way::recordsAndRenames, Way::product}) {
            passes[static_cast<std::size_t>(way)].push_back(measure(below, way, items));
        }
    }
    std::vector<double> perItem;
    for (auto& ofWay : passes) {
        std::ranges::sort(ofWay, {}, &Pass::perItem);
        const auto& median = ofWay[ofWay.size() / 2];
        perItem.push_back(median.perItem);
        constexpr std::array<const char*, 3> names{"plain renames", "records and renames", "product"};
        fmt::print("{:<20} {:7.2f} us an item, {} items on the disk after {:.0f} ms\n", names[perItem.size() - 1],
            median.perItem, items, median.perItem * items / 1000 + median.settle);
    }
    fmt::print("records add {:.2f} us an item, checks add {:.2f} us\n", perItem[1] - perItem[0], perItem[2] - perItem[1]);
    return 0;
}
