#include "Platform/Base/SHA256.h"

#include <cstdio>
#include <cstdlib>
#include <openssl/evp.h>

namespace Platform {

namespace {

/// What fails here is out of memory, or has no SHA-256 at all: nothing that a caller could do better about.
void require(bool isDone)
{
    if (!isDone) {
        std::fputs("karvello: SHA-256 is not available\n", stderr);
        std::abort();
    }
}

/// Looked up once: a look-up for each file would cost as much as hashing a small one.
const EVP_MD* algorithm()
{
    static const EVP_MD* const found = EVP_MD_fetch(nullptr, "SHA256", nullptr);
    require(found != nullptr);
    return found;
}

} // namespace

void SHA256::ContextDeleter::operator()(evp_md_ctx_st* context) const
{
    EVP_MD_CTX_free(context);
}

SHA256::SHA256()
    : m_context(EVP_MD_CTX_new())
{
    require(m_context && EVP_DigestInit_ex2(m_context.get(), algorithm(), nullptr) == 1);
}

SHA256::SHA256(const SHA256& other)
    : m_context(EVP_MD_CTX_new())
{
    require(m_context && EVP_MD_CTX_copy_ex(m_context.get(), other.m_context.get()) == 1);
}

SHA256& SHA256::operator=(const SHA256& other)
{
    if (this != &other) {
        *this = SHA256(other);
    }
    return *this;
}

void SHA256::update(std::span<const std::byte> bytes)
{
    require(EVP_DigestUpdate(m_context.get(), bytes.data(), bytes.size()) == 1);
}

SHA256::Digest SHA256::finish()
{
    Digest digest{};
    require(EVP_DigestFinal_ex(m_context.get(), digest.data(), nullptr) == 1);
    return digest;
}

SHA256::Digest SHA256::of(std::span<const std::byte> bytes)
{
    SHA256 hash;
    hash.update(bytes);
    return hash.finish();
}

std::string hexDigest(const SHA256::Digest& digest)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    text.reserve(2 * digest.size());
    for (const auto byte : digest) {
        text += digits[byte >> 4U];
        text += digits[byte & 15U];
    }
    return text;
}

} // namespace Platform
