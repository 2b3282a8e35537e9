#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

struct evp_md_ctx_st;

namespace Platform {

/// A SHA-256 that is fed piece by piece. A copy goes on from where the original stands.
class SHA256 {
public:
    using Digest = std::array<std::uint8_t, 32>;

    SHA256();
    SHA256(const SHA256& other);
    SHA256(SHA256&&) noexcept = default;
    SHA256& operator=(const SHA256& other);
    SHA256& operator=(SHA256&&) noexcept = default;
    ~SHA256() = default;

    void update(std::span<const std::byte> bytes);
    void update(std::string_view text) { update(std::as_bytes(std::span(text))); }
    /// The digest of all that it was fed. Ends it: afterwards it may only be assigned to or destroyed.
    [[nodiscard]] Digest finish();

    [[nodiscard]] static Digest of(std::span<const std::byte> bytes);

private:
    struct ContextDeleter {
        void operator()(evp_md_ctx_st* context) const;
    };

    std::unique_ptr<evp_md_ctx_st, ContextDeleter> m_context;
};

/// 64 lower-case hexadecimal digits.
[[nodiscard]] std::string hexDigest(const SHA256::Digest& digest);

} // namespace Platform
