#pragma once

#include "CleanerCore/Safety/NoTouchRow.h"

#include <array>

namespace CleanerCore {

/// The rules for the layout of macOS. A Library folder may stand anywhere in a path.
inline constexpr std::array kAppleNoTouchTable{
    NoTouchRow{"library/containers/com.apple|com.apple.*", NoTouchGroup::appleContainer, NoTouchEffect::refuses,
        "Data of the system's own applications"},
    NoTouchRow{"library/group containers/group.com.apple|group.com.apple.*|com.apple|com.apple.*",
        NoTouchGroup::appleContainer, NoTouchEffect::refuses, "Data that the system's own applications share"},
    NoTouchRow{"library/keychains|mail|messages|cloudstorage|fileprovider|file provider",
        NoTouchGroup::sensitiveLibrary, NoTouchEffect::refusesInLibrary, "Keys, mail, messages and synced files"},
    NoTouchRow{"library/application support/clouddocs|fileprovider|file provider", NoTouchGroup::sensitiveLibrary,
        NoTouchEffect::refusesInLibrary, "The state of iCloud Drive and of file providers"},
    NoTouchRow{"library/mobile documents", NoTouchGroup::sensitiveLibrary, NoTouchEffect::refusesButForItsTrash,
        "The files of iCloud Drive"},
    NoTouchRow{"*.photoslibrary|*.musiclibrary|*.tvlibrary|*.backup|*.origin", NoTouchGroup::bundleOrImage,
        NoTouchEffect::refuses, "Libraries of media, backups and their originals"},
    NoTouchRow{"rootfs.img|main.img|data.img|storage.img|userdata.img|system.img|disk.img|vm.img",
        NoTouchGroup::bundleOrImage, NoTouchEffect::refuses, "Disks of virtual machines and emulators"},
};

} // namespace CleanerCore
