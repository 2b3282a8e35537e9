#pragma once

#include "Platform/Files/Trash.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace TestSupport {

/// A Trash that is one plain folder: what is trashed is renamed into it, without a record. It asks whether the item is
/// the confirmed one, right before a move, and otherwise does what a test tells it to.
class FakeTrash final : public Platform::Trash {
public:
    struct Behaviour {
        /// What every `trashItem` and `removeItem` answers, with nothing moved.
        std::optional<Platform::FileErrorKind> failure = {};
        std::optional<Platform::FileErrorKind> restoreFailure = {};
        std::optional<Platform::FileErrorKind> settleFailure = {};
        bool tellsPlace = true;
        /// Says that it moved, and did not.
        bool pretends = false;
        /// Run after the item was found to be the confirmed one, before it moves.
        std::function<void()> beforeMove = {};
        /// Run after the move; not when nothing moved.
        std::function<void()> afterMove = {};
    };

    /// `folder` exists, and is made for nothing else. `fileManager` must outlive this object.
    FakeTrash(const Platform::FileManager& fileManager, Platform::FileURL folder);

    Behaviour behaviour = {};

    [[nodiscard]] std::expected<std::optional<Platform::FileURL>, Platform::FileError> trashItem(
        const Platform::ItemAnchor& anchor) override;
    [[nodiscard]] std::expected<void, Platform::FileError> restoreItem(const Platform::RestoreAnchor& anchor) override;
    [[nodiscard]] std::expected<void, Platform::FileError> removeItem(const Platform::ItemAnchor& anchor) override;
    [[nodiscard]] std::expected<void, Platform::FileError> settle() override;
    [[nodiscard]] std::vector<Platform::FileURL> trashDirectories(const Platform::FileURL& url) const override;

    [[nodiscard]] const Platform::FileURL& folder() const { return m_folder; }
    /// The moves that were asked for, those that failed included.
    [[nodiscard]] const std::vector<Platform::ItemAnchor>& itemAnchors() const { return m_itemAnchors; }
    [[nodiscard]] const std::vector<Platform::RestoreAnchor>& restoreAnchors() const { return m_restoreAnchors; }
    /// The calls of `settle`, each with the number of moves that were asked for before it.
    [[nodiscard]] const std::vector<std::size_t>& settleCalls() const { return m_settleCalls; }

private:
    [[nodiscard]] std::expected<Platform::FileURL, Platform::FileError> take(
        const Platform::ItemAnchor& anchor, Platform::FileOperation operation);
    [[nodiscard]] std::expected<void, Platform::FileError> move(const Platform::FileURL& from,
        const Platform::FileURL& to, const Platform::ItemTest& isConfirmed, Platform::FileOperation operation) const;

    const Platform::FileManager& m_fileManager;
    Platform::FileURL m_folder;
    std::vector<Platform::ItemAnchor> m_itemAnchors;
    std::vector<Platform::RestoreAnchor> m_restoreAnchors;
    std::vector<std::size_t> m_settleCalls;
};

} // namespace TestSupport
