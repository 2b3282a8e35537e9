#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileError.h"
#include "Platform/Files/FileManager.h"

#include <expected>
#include <string>
#include <string_view>
#include <variant>

namespace KarvelloCLI {

/// Writes everything, waiting where the receiver is slow. Gives the system's error number, 0 for none.
[[nodiscard]] int writeWholly(int descriptor, std::string_view bytes);

/// Where the data of a command goes: standard output, a file that is replaced whole or not at all, or a device or pipe,
/// which is simply written to.
class OutputFile {
public:
    static OutputFile standardOutput();
    /// `path` is absolute. "/dev/stdout", "/dev/stderr" and "/dev/fd/N" mean the descriptor itself, whatever lies behind
    /// it. A file is looked for behind symbolic links, so that a link to it stays a link. The error is a sentence for
    /// the user: what is named cannot be written to, and it is better known before the work than after.
    static std::expected<OutputFile, std::string> named(
        std::string_view path, const Platform::FileManager& fileManager);

    /// The descriptor that is written to, or -1.
    [[nodiscard]] int descriptor() const;
    /// Whether a kill in the middle of writing could leave something half done.
    [[nodiscard]] bool isReplacedAtomically() const { return std::holds_alternative<AtomicFile>(m_target); }
    /// "standard output", or the path.
    [[nodiscard]] const std::string& name() const { return m_name; }

    [[nodiscard]] std::expected<void, Platform::FileError> write(
        std::string_view bytes, const Platform::FileManager& fileManager) const;

private:
    struct Descriptor {
        int number;
    };
    struct Stream {
        Platform::FileURL url;
    };
    struct AtomicFile {
        Platform::FileURL url;
    };
    using Target = std::variant<Descriptor, Stream, AtomicFile>;

    OutputFile(Target target, std::string name)
        : m_target(std::move(target))
        , m_name(std::move(name))
    {
    }

    Target m_target;
    std::string m_name;
};

} // namespace KarvelloCLI
