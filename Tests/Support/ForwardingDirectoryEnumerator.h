#pragma once

#include "Platform/Files/DirectoryEnumerator.h"

#include <memory>
#include <utility>

namespace TestSupport {

/// Does what `inner` does; a double overrides the calls that it answers otherwise.
class ForwardingDirectoryEnumerator : public Platform::DirectoryEnumerator {
public:
    explicit ForwardingDirectoryEnumerator(std::unique_ptr<Platform::DirectoryEnumerator> inner)
        : m_inner(std::move(inner))
    {
    }

    bool next() override { return m_inner->next(); }
    [[nodiscard]] std::string_view name() const override { return m_inner->name(); }
    [[nodiscard]] std::size_t level() const override { return m_inner->level(); }
    [[nodiscard]] Platform::ListedType listedType() const override { return m_inner->listedType(); }
    const std::expected<Platform::ResourceValues, Platform::FileError>& resourceValues() override
    {
        return m_inner->resourceValues();
    }
    [[nodiscard]] Platform::FileURL url() const override { return m_inner->url(); }
    [[nodiscard]] Platform::ItemReference reference() const override { return m_inner->reference(); }
    void skipDescendants() override { m_inner->skipDescendants(); }
    void setContextOfDescendants(std::uint64_t context) override { m_inner->setContextOfDescendants(context); }
    [[nodiscard]] std::uint64_t folderContext() const override { return m_inner->folderContext(); }

private:
    std::unique_ptr<Platform::DirectoryEnumerator> m_inner;
};

} // namespace TestSupport
