#include "KarvelloUI/Design/FileIcon.h"

#include <algorithm>
#include <array>
#include <string>

namespace KarvelloUI {

namespace {

struct Icon {
    std::string_view name;
    /// Between spaces.
    std::string_view extensions;
};

constexpr std::array kIcons{
    Icon{.name = "film", .extensions = " avi m4v mkv mov mp4 mpeg mpg mts ogv webm wmv "},
    Icon{.name = "image",
        .extensions = " arw avif bmp cr2 dng gif heic jpeg jpg nef png psd raw svg tif tiff webp xcf "},
    Icon{
        .name = "archive", .extensions = " 7z bz2 cpio dmg gz img iso qcow2 rar squashfs tar tgz vdi vmdk xz zip zst "},
    Icon{.name = "installer", .extensions = " appimage deb flatpak msi pkg rpm run snap "},
    Icon{.name = "terminal", .extensions = " bash command fish sh zsh "},
    Icon{.name = "code", .extensions = " c cpp go h hpp java js json py rb rs swift ts xml "},
    Icon{.name = "globe", .extensions = " url webloc "},
    Icon{.name = "settings", .extensions = " mobileconfig workflow "},
    Icon{.name = "application", .extensions = " app desktop exe "},
};

} // namespace

std::string_view fileIconName(std::string_view fileName)
{
    static constexpr std::string_view kOther = "file";
    const auto point = fileName.rfind('.');
    if (point == std::string_view::npos || point == 0) {
        return kOther;
    }
    std::string extension = " ";
    for (const char byte : fileName.substr(point + 1)) {
        extension += byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
    }
    extension += ' ';
    if (extension.find(' ', 1) != extension.size() - 1) {
        return kOther;
    }
    const auto* const icon = std::ranges::find_if(
        kIcons, [&extension](const Icon& candidate) { return candidate.extensions.contains(extension); });
    return icon == kIcons.end() ? kOther : icon->name;
}

} // namespace KarvelloUI
