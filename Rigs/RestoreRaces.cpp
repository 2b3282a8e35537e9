// Somebody swaps folders and files on another core while items are put back. Usage:
//     karvello-rig-restore-races --below FOLDER --attack link|occupied|leaf --mover product|naive --attempts N
// Prints one line of counts. The exit code is 1 as soon as something was overwritten or written elsewhere.

#include "Platform/Linux/TrashRecord.h"
#include "Rigs/Attacker.h"
#include "Rigs/RigFolder.h"

#include <cstdlib>
#include <fmt/format.h>

namespace {

using namespace Rigs;

struct Counts {
    std::uint64_t attempts = 0;
    std::uint64_t restored = 0;
    std::uint64_t refused = 0;
    std::uint64_t astray = 0;
};

/// `data` lies in the Trash and belongs to `Caches/app`. Of each file a second name in `vault` brings it back.
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
        m_folder.makeFile("vault/record",
            Platform::TrashRecord{.path = m_folder.path("Caches/app/data"), .deletionDate = "2026-01-01T00:00:00", .isOurs = true}
                .text());
        m_app = m_folder.open("Caches/app");
        m_outside = m_folder.open("outside");
        m_vault = m_folder.open("vault");
        m_files = m_folder.open("data/Trash/files");
        m_info = m_folder.open("data/Trash/info");
        if (symlink("../outside", m_folder.path("Caches/swap").c_str()) != 0) {
            fail("cannot make a link");
        }
        m_confirmed = fileNumber(m_vault.get(), "confirmed");
        m_other = fileNumber(m_vault.get(), "other");
        prepare();
        m_anchor = {.trashedItem = m_folder.url("data/Trash/files/data"),
            .isConfirmed = m_folder.confirming("vault/confirmed"),
            .root = m_folder.anchor("Caches"),
            .destination = m_folder.url("Caches/app/data")};
    }

    [[nodiscard]] Exchanger attacker() const
    {
        const bool isLeaf = m_attack == "leaf";
        return {m_folder.path(isLeaf ? "data/Trash/files/data" : "Caches/app"),
            m_folder.path(isLeaf ? "data/Trash/other" : "Caches/swap")};
    }

    [[nodiscard]] Occupier application() const
    {
        return Occupier([this] { return linkat(m_vault.get(), "other", m_app.get(), "data", 0) == 0; });
    }

    void attempt(Counts& counts, Occupier* application)
    {
        if (application != nullptr) {
            application->begin();
        }
        const auto result = m_trash->restoreItem(m_anchor);
        const bool isOccupied = application != nullptr && application->end();
        ++counts.attempts;
        ++(result ? counts.restored : counts.refused);
        const auto place = fileNumber(m_app.get(), "data");
        const auto expected = isOccupied ? m_other : result ? m_confirmed : ino_t{0};
        const bool isHonest = place == expected && (!isOccupied || !result);
        const bool isAnywhereElse = fileNumber(m_outside.get(), "data") != 0;
        counts.astray += isHonest && !isAnywhereElse ? 0U : 1U;
        unlinkat(m_app.get(), "data", 0);
        unlinkat(m_outside.get(), "data", 0);
        prepare();
    }

private:
    void prepare() const
    {
        linkat(m_vault.get(), "record", m_info.get(), "data.trashinfo", 0);
        if (m_attack != "leaf") {
            linkat(m_vault.get(), "confirmed", m_files.get(), "data", 0);
            return;
        }
        const auto trash = m_folder.path("data/Trash/other");
        for (int tries = 0; tries < 1000; ++tries) {
            const auto inside = fileNumber(m_files.get(), "data");
            const auto beside = fileNumber(AT_FDCWD, trash.c_str());
            if (inside != 0 && beside != 0 && inside != beside) {
                return;
            }
            if (inside != 0 && inside == beside) {
                unlink(trash.c_str());
                continue;
            }
            const char* const missing = inside != m_confirmed && beside != m_confirmed ? "confirmed" : "other";
            if (inside == 0) {
                linkat(m_vault.get(), missing, m_files.get(), "data", 0);
            } else {
                linkat(m_vault.get(), missing, AT_FDCWD, trash.c_str(), 0);
            }
        }
    }

    std::string m_attack;
    RigFolder m_folder;
    std::unique_ptr<Platform::Trash> m_trash;
    Platform::FileDescriptor m_app;
    Platform::FileDescriptor m_outside;
    Platform::FileDescriptor m_vault;
    Platform::FileDescriptor m_files;
    Platform::FileDescriptor m_info;
    ino_t m_confirmed = 0;
    ino_t m_other = 0;
    Platform::RestoreAnchor m_anchor;
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
    const auto goesOn = [&] { return counts.attempts < attempts && (mover == Mover::product || counts.astray == 0); };
    if (attack == "occupied") {
        auto application = scene.application();
        while (goesOn()) {
            scene.attempt(counts, &application);
        }
        strikes = counts.refused;
    } else {
        const auto attacker = scene.attacker();
        while (goesOn()) {
            scene.attempt(counts, nullptr);
        }
        strikes = attacker.count();
    }
    fmt::print("attempts={} strikes={} restored={} refused={} astray={}\n", counts.attempts, strikes, counts.restored,
        counts.refused, counts.astray);
    return counts.astray == 0 ? 0U : 1U;
}
