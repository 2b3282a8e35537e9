"""The checks that `mutants` takes out: where each stands, and what stands there without it."""

import typing


class Mutation(typing.NamedTuple):
    name: str
    file: str
    text: str
    replacement: str


MOVER = "Platform/Linux/LinuxTrash.cpp"
FOLDER = "Platform/Linux/TrashFolder.cpp"
PLACES = "Platform/Linux/TrashPlaces.cpp"
ANCHOR = "Platform/Linux/AnchoredFolder.cpp"
RECORD = "Platform/Linux/TrashRecord.cpp"
REMOVAL = "Platform/Linux/TreeRemoval.cpp"
MOUNTS = "Platform/Linux/MountTable.cpp"
WATCH = "Platform/Linux/MountWatch.cpp"
FILE = "Platform/Files/WholeFile.cpp"

MUTATIONS = [Mutation(*mutation) for mutation in (
    ("a move replaces", MOVER, "RENAME_NOREPLACE", "0"),
    ("an item that cannot be looked at is moved", MOVER, "    if (!values) {", "    if (false) {"),
    ("a mount point is no obstacle", MOVER, "if (values->isOnOtherVolume)", "if (false)"),
    ("a mount inside is no obstacle", MOVER, "    if (values->isDirectory.value_or(true)) {", "    if (false) {"),
    ("mounts are compared by the given path", MOVER,
     "hasMountAtOrBelow(FileURL::entry(*path, itemName, DirectoryHint::isFolder).path())", "hasMountAtOrBelow(item.path())"),
    ("the item is not confirmed before the move", MOVER,
     "    if (!anchor.isConfirmed(m_fileManager.fingerprintReadings(here))) {", "    if (false) {"),
    ("what arrived is not confirmed", MOVER,
     "    if (anchor.isConfirmed(m_fileManager.fingerprintReadings(entry((*trash)->files(), *name)))) {", "    if (true) {"),
    ("what is wrong is not moved back", MOVER, "const bool isBack = moveBack(**trash, *name, **folder, item);",
     "const bool isBack = true;"),
    ("the record stays when an item goes back", MOVER,
     "    std::ignore = trash.removeRecord(name);\n    return true;", "    return true;"),
    ("the record stays when a move fails", MOVER,
     "        std::ignore = trash.removeRecord(name);\n        if (moveError != EEXIST)", "        if (moveError != EEXIST)"),
    ("a taken name ends the move", MOVER, "        if (recordError == EEXIST) {", "        if (false) {"),
    ("an orphan ends the move", MOVER, "        if (moveError != EEXIST) {", "        if (true) {"),
    ("only numbered names are tried", MOVER, "constexpr std::size_t kNameAttempts = 64;",
     "constexpr std::size_t kNameAttempts = kNumberedNames;"),
    ("any folder named files is a Trash", MOVER,
     "return trashURL.path() == home.path() ? opened(", "return true ? opened("),
    ("any folder in a Trash is one of files", MOVER, 'if (files.lastPathComponent() != "files")', "if (false)"),
    ("a restore needs no record", MOVER, "if (!recorded || recorded->path() != destination.path())", "if (false)"),
    ("a restore needs no record of its place", MOVER, "if (!recorded || recorded->path() != destination.path())",
     "if (!recorded)"),
    ("the item in the Trash is not confirmed", MOVER,
     "    if (!anchor.isConfirmed(m_fileManager.fingerprintReadings(entry(trash->files(), name)))) {", "    if (false) {"),
    ("what was put back is not confirmed", MOVER,
     "    if (!anchor.isConfirmed(m_fileManager.fingerprintReadings(entry(*folder, destinationName)))) {", "    if (false) {"),
    ("the record stays after a restore", MOVER,
     "    std::ignore = trash->removeRecord(name);\n    return {};", "    return {};"),
    ("the record stays after a removal", MOVER,
     "    std::ignore = trash.removeRecord(arrival->name);\n    return {};", "    return {};"),
    ("a failed removal leaves the item in the Trash", MOVER,
     "        std::ignore = moveBack(trash, arrival->name, *arrival->folder, anchor.item);\n", ""),
    ("the home's Trash serves every mount", MOVER,
     "return status->mountNumber == folder.status().mountNumber;", "return true;"),
    ("the Trash that was opened once is used for ever", MOVER, "if (known && known->isStillInPlace())", "if (known)"),
    ("a Trash of somebody else is used", FOLDER, "found.st_uid == geteuid() && ", ""),
    ("a Trash that others may write to is used", FOLDER, " && (found.st_mode & (S_IWGRP | S_IWOTH)) == 0", ""),
    ("a Trash that the group may write to is used", FOLDER, "(S_IWGRP | S_IWOTH)", "S_IWOTH"),
    ("another Trash in the place is not noticed", FOLDER, " && found.st_ino == folder.status().fileNumber", ""),
    ("only the folder of items must still be in place", FOLDER,
     "return isSame(*m_files) && isSame(*m_info);", "return isSame(*m_files);"),
    ("a Trash is made where none was asked for", FOLDER, "missing == MissingTrash::make && mkdirat", "mkdirat"),
    ("the Trash is made for all", FOLDER, "constexpr mode_t kPrivateFolder = 0700;", "constexpr mode_t kPrivateFolder = 0755;"),
    ("records are for all", FOLDER, "constexpr mode_t kPrivateFile = 0600;", "constexpr mode_t kPrivateFile = 0644;"),
    ("tidying goes on while items are moved", FOLDER, "LOCK_EX | LOCK_NB) != 0", "LOCK_EX | LOCK_NB) == 77"),
    ("the first use that ends lets others tidy", FOLDER, "if (--m_uses == 0)", "if (--m_uses, true)"),
    ("a lock that cannot be had is none", FOLDER, "m_uses == 0 && flock(", "false && flock("),
    ("the lock is waited for without end", FOLDER,
     "(errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() > deadline", "(deadline, false)"),
    ("leftovers stay", FOLDER, "trash->removeLeftovers();", ""),
    ("unfinished files stay", FOLDER, "if (isUnfinishedFile(name))", "if (false)"),
    ("records of others are tidied", FOLDER, "return record && record->isOurs;", "return record.has_value();"),
    ("records of items are tidied", FOLDER, "if (item || item.error() != ENOENT)", "if (false)"),
    ("an item elsewhere gets a record on the volume", FOLDER,
     "if (!isPathInside(itemURL.path(), m_recordedPathBase->path()))", "if (false)"),
    ("the shared Trash need not be sticky", PLACES, " && (found.st_mode & S_ISVTX) != 0", ""),
    ("the shared Trash may be a link", PLACES, "return lstat(folder", "return stat(folder"),
    ("the shared Trash may be a file", PLACES, "S_ISDIR(found.st_mode) && ", ""),
    ("a bind mount has a Trash", PLACES, "!isBindMount(mount) && ", ""),
    ("every mount of btrfs is a volume", PLACES, " || !top || top->fileNumber != kTopOfSubvolume", ""),
    ("the system's volume has a Trash", PLACES, ' && mount.path != "/"', ""),
    ("a volume of another machine has a Trash", PLACES, "return !isForeign && ", "return "),
    ("a mount that forbids a Trash has one", PLACES, ' && !mount.hasOption("x-gvfs-notrash")', ""),
    ("an item outside the root is moved", ANCHOR, "if (!isPathInside(item.path(), root.url.path()))", "if (false)"),
    ("another root is taken for the proved one", ANCHOR,
     "if (rootStatus->deviceNumber != root.systemNumber || rootStatus->fileNumber != root.systemFileNumber)", "if (false)"),
    ("the root's device is not compared", ANCHOR, "rootStatus->deviceNumber != root.systemNumber || ", ""),
    ("links below the root are followed", ANCHOR, " | RESOLVE_NO_SYMLINKS", ""),
    ("volumes below the root are entered", ANCHOR, " | RESOLVE_NO_XDEV", ""),
    ("a link as root is followed", ANCHOR, "O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC", "O_PATH | O_DIRECTORY | O_CLOEXEC"),
    ("a path is recorded as it is", RECORD, "percentEncoded(path)", "path"),
    ("a text without the header is a record", RECORD, "if (line != kHeader)", "if (false)"),
    ("the last of a key counts", RECORD, 'key == "Path" && !path', 'key == "Path"'),
    ("a record may name nothing", RECORD, "if (!path || path->empty())", "if (!path)"),
    ("the marks of others count", RECORD, "key == kOursKey", "true"),
    ("names may be too long for a record", RECORD, "NAME_MAX - TrashRecord::kSuffix.size()", "std::size_t{NAME_MAX}"),
    ("characters are cut", RECORD, "(static_cast<unsigned char>(text[cut]) & 0xC0U) != 0x80U", "true"),
    ("bytes that are no text are cut to nothing", RECORD, "cut + kLongestTail >= limit && cut > 0", "cut > 0"),
    ("a removal enters what was moved away", REMOVAL, "if (!status || !status->isSamePlace(m_levels.back().status))",
     "if (!status)"),
    ("a failed unlink is no failure", REMOVAL,
     "return unlinkat(m_current.get(), name.c_str(), AT_REMOVEDIR) == 0 ? 0 : errno;",
     "unlinkat(m_current.get(), name.c_str(), AT_REMOVEDIR); return 0;"),
    ("a table without mounts is one", MOUNTS, "if (!mounts || mounts->empty())", "if (!mounts)"),
    ("the options for programs are not read", MOUNTS, 'mount.options.append(",").append(same->options);', ""),
    ("mounts on a path do not count", MOUNTS, "mount.path == path || ", ""),
    ("mounts below a path do not count", MOUNTS, " || isPathInside(mount.path, path)", ""),
    ("changes of the mounts are not seen", WATCH, "m_table != nullptr && poll(&changes, 1, 0) == 0", "m_table != nullptr"),
    ("what is no file is read", FILE, "if (!S_ISREG(found.st_mode))", "if (false)"),
    ("a link is read", FILE, "O_RDONLY | O_NOFOLLOW", "O_RDONLY"),
    ("a file may be of any size", FILE, "if (offset > maximumBytes)", "if (false)"),
    ("a record may be in part", FILE, "if (const int error = writeAll(file.get(), bytes); error != 0)",
     "if (const int error = writeAll(file.get(), bytes.substr(0, 10)); error != 0)"),
    ("a failed write is no failure", FILE,
     "        if (written < 0 && (errno != EINTR || ++interruptions > kMaximumInterruptions)) {\n            return errno;",
     "        if (written < 0) {\n            return 0;"),
)]
