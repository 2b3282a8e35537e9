#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace TestSupport {

enum class LayoutKind : std::uint8_t { folder, file, symbolicLink, hardLink, fifo, socket };

/// One item of a tree that a test asks for.
struct LayoutItem {
    static constexpr std::size_t kTop = SIZE_MAX;

    LayoutKind kind = LayoutKind::file;
    /// The index of the folder that holds it, which comes earlier in the list; `kTop` at the top of the tree.
    std::size_t parent = kTop;
    std::string name;
    /// What a symbolic link leads to, or the item at the top of whose tree a hard link is made, by its path there.
    std::string target = {};
    std::optional<std::string> text = {};
    std::int64_t size = 0;
    bool isSparse = false;
    std::optional<mode_t> mode = {};
    /// Seconds before the tree's `now`; negative for the future.
    std::optional<double> age = {};
};

/// Reads the layout language, one item a line:
///
///     # A comment, and a blank line.
///     Caches/com.example.app/           a slash at the end makes a folder; the ones on the way are made too
///         data.bin  size=4K age=3d      what is indented further lies in the folder above
///         note      text="two\nlines"
///         disk.img  size=1G sparse      bytes that no block stands behind
///         latest -> data.bin            a symbolic link, whatever it leads to
///         twin => Caches/com.example.app/data.bin     a second name of a file that stands earlier
///         pipe      fifo
///         door      socket
///         locked/   mode=000 age=40d
///         part      count=1000 size=1   part0, part1 ... part999
///         deep/     levels=10000        deep/deep/deep ...; what follows lies in the innermost
///         "a name with \xFF, \n and \"" "x"*255
///
/// A name or a target with a blank, a quote, "#" or "=" is quoted; quoted and bare parts of one word join, and
/// `"x"*255` repeats a quoted part. Escapes are \n, \t, \e, \\, \" and \xHH. A slash in quotes separates like any other.
/// Sizes take K, M or G (1024 each), ages s, m, h or d. The error is a sentence with the number of the line.
[[nodiscard]] std::expected<std::vector<LayoutItem>, std::string> parseLayout(std::string_view text);

} // namespace TestSupport
