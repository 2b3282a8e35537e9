// Somebody swaps folders and files on another core while items are moved to the Trash. Usage:
//     karvello-rig-clean-races --below FOLDER --attack link|folder|leaf|rollback --mover product|naive --attempts N
// Prints one line of counts. The exit code is 1 as soon as an item went astray.

#include "Rigs/Attacker.h"
#include "Rigs/RigFolder.h"

#include <cstdlib>
#include <fmt/format.h>

namespace {

using namespace Rigs;

struct Counts {
    std::uint64_t attempts = 0;
    std::uint64_t moved = 0;
    std::uint64_t refused = 0;
    std::uint64_t leftInTrash = 0;
    std::uint64_t astray = 0;
};

/// `Caches/app/data` is confirmed. Its folder changes places with `Caches/swap`, or itself with `Caches/app/newer`. Of
/// each file a second name in `vault` brings it back after an attempt.
class Scene {
public:
    Scene(const std::string& below, std::string attack, Mover mover)
        : m_attack(std::move(attack))
        , m_folder(below)
        , m_trash(m_folder.trash(mover))
    {
        for (const auto* folder : {"Caches/app", "outside", "vault", "data/Trash", "data/Trash/files", "data/Trash/info"}) {
            m_folder.makeFolder(folder);
        }
        m_folder.makeFile("vault/confirmed", "confirmed");
        m_folder.makeFile("vault/other", "other, and newer");
        m_app = m_folder.open("Caches/app");
        m_vault = m_folder.open("vault");
        m_files = m_folder.open("data/Trash/files");
        m_info = m_folder.open("data/Trash/info");
        if (m_attack == "folder") {
            m_folder.makeFolder("Caches/swap");
        } else if (m_attack == "link" && symlink("../outside", m_folder.path("Caches/swap").c_str()) != 0) {
            fail("cannot make a link");
        }
        m_elsewhere = m_folder.open(m_attack == "folder" ? "Caches/swap" : "outside");
        m_confirmed = fileNumber(m_vault.get(), "confirmed");
        m_other = fileNumber(m_vault.get(), "other");
        restore();
        m_anchor = {.root = m_folder.anchor("Caches"),
            .item = m_folder.url("Caches/app/data"),
            .isConfirmed = m_folder.confirming("Caches/app/data")};
    }

    [[nodiscard]] Exchanger attacker() const
    {
        const bool isLeaf = m_attack == "leaf";
        return {m_folder.path(isLeaf ? "Caches/app/data" : "Caches/app"),
            m_folder.path(isLeaf ? "Caches/app/newer" : "Caches/swap")};
    }

    void attempt(Counts& counts)
    {
        const auto result = m_trash->trashItem(m_anchor);
        ++counts.attempts;
        ++(result ? counts.moved : counts.refused);
        const auto trashed = fileNumber(m_files.get(), "data");
        const bool isTold = result ? trashed == m_confirmed : trashed == 0;
        counts.astray += isOtherInPlace() && isTold ? 0U : 1U;
        restore();
    }

    /// The move is always taken back, and meanwhile an application makes the item anew.
    void attemptRollback(Counts& counts, Occupier& application)
    {
        int looks = 0;
        auto anchor = m_anchor;
        anchor.isConfirmed = [&looks](const Platform::FingerprintReadings&) { return ++looks == 1; };
        application.begin();
        const auto result = m_trash->trashItem(anchor);
        const bool isMadeAnew = application.end();
        ++counts.attempts;
        const auto place = fileNumber(m_app.get(), "data");
        const auto trashed = fileNumber(m_files.get(), "data");
        const bool hasRecord = fileNumber(m_info.get(), "data.trashinfo") != 0;
        const bool isInTrash = trashed == m_confirmed && hasRecord;
        const bool isSound = isMadeAnew ? place == m_other && isInTrash && !result
                                        : place == m_confirmed && trashed == 0 && !hasRecord;
        ++(isMadeAnew ? counts.leftInTrash : counts.refused);
        counts.astray += isSound ? 0U : 1U;
        unlinkat(m_app.get(), "data", 0);
        restore();
    }

    [[nodiscard]] Occupier application() const
    {
        return Occupier([this] { return linkat(m_vault.get(), "other", m_app.get(), "data", 0) == 0; });
    }

private:
    [[nodiscard]] bool isOtherInPlace() const
    {
        if (m_attack != "leaf") {
            return fileNumber(m_elsewhere.get(), "data") == m_other;
        }
        // Between the two looks it may change its name.
        for (int tries = 0; tries < 1000; ++tries) {
            if (fileNumber(m_app.get(), "data") == m_other || fileNumber(m_app.get(), "newer") == m_other) {
                return true;
            }
        }
        return false;
    }

    /// Everything as it was before the attempt. The attacker goes on meanwhile, so names are looked up in open folders.
    void restore() const
    {
        unlinkat(m_files.get(), "data", 0);
        unlinkat(m_info.get(), "data.trashinfo", 0);
        if (m_attack != "leaf") {
            linkat(m_vault.get(), "confirmed", m_app.get(), "data", 0);
            linkat(m_vault.get(), "other", m_elsewhere.get(), "data", 0);
            return;
        }
        for (int tries = 0; tries < 1000; ++tries) {
            const auto data = fileNumber(m_app.get(), "data");
            const auto newer = fileNumber(m_app.get(), "newer");
            if (data != 0 && newer != 0 && data != newer) {
                return;
            }
            if (data != 0 && data == newer) {
                unlinkat(m_app.get(), "newer", 0);
                continue;
            }
            const bool isConfirmedMissing = data != m_confirmed && newer != m_confirmed;
            linkat(m_vault.get(), isConfirmedMissing ? "confirmed" : "other", m_app.get(), data == 0 ? "data" : "newer", 0);
        }
    }

    std::string m_attack;
    RigFolder m_folder;
    std::unique_ptr<Platform::Trash> m_trash;
    Platform::FileDescriptor m_app;
    Platform::FileDescriptor m_vault;
    Platform::FileDescriptor m_files;
    Platform::FileDescriptor m_info;
    Platform::FileDescriptor m_elsewhere;
    ino_t m_confirmed = 0;
    ino_t m_other = 0;
    Platform::ItemAnchor m_anchor;
};

} // namespace

int main(int argc, char** argv)
{
    const auto below = option(argc, argv, "below").value_or("/tmp");
    const auto attack = option(argc, argv, "attack").value_or("link");
    const auto mover = option(argc, argv, "mover").value_or("product") == "naive" ? Mover::naive : Mover::product;
    const auto attempts = std::strtoull(option(argc, argv, "attempts").value_or("1000").c_str(), nullptr, 10);

    Scene scene(below, attack, mover);
    Counts counts;
    std::uint64_t strikes = 0;
    // That a naive mover fails is known after its first failure.
    const auto goesOn = [&] { return counts.attempts < attempts && (mover == Mover::product || counts.astray == 0); };
    if (attack == "rollback") {
        auto application = scene.application();
        while (goesOn()) {
            scene.attemptRollback(counts, application);
        }
        strikes = counts.leftInTrash;
    } else {
        const auto attacker = scene.attacker();
        while (goesOn()) {
            scene.attempt(counts);
        }
        strikes = attacker.count();
    }
    fmt::print("attempts={} strikes={} moved={} refused={} left_in_trash={} astray={}\n", counts.attempts, strikes,
        counts.moved, counts.refused, counts.leftInTrash, counts.astray);
    return counts.astray == 0 ? 0 : 1;
}
