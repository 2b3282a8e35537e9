"""What `mutants` takes out besides conditions, and which checks need not be noticed alone."""

import typing

SOURCES = (
    "CleanerCore/Safety/*.cpp",
    "CleanerCore/Cleaning/CleaningService.cpp",
    "CleanerCore/Cleaning/CleanupValidationSnapshot.cpp",
    "CleanerCore/Cleaning/MoveAnchors.cpp",
    "CleanerCore/Cleaning/TrashRestoreService.cpp",
    "CleanerCore/Cleaning/TrashRoots.cpp",
    "CleanerCore/Scan/FileResourceIdentity.cpp",
    "CleanerCore/Audit/CleanupAuditStore.cpp",
    "CleanerCore/Audit/CleanupAuditEntry.cpp",
    "CleanerCore/Audit/DiscardedJSONBudget.cpp",
    "CleanerCore/Audit/LossyCleanupAuditEntryList.cpp",
    "Platform/Linux/AnchoredFolder.cpp",
    "Platform/Linux/LinuxTrash.cpp",
    "Platform/Linux/Mount*.cpp",
    "Platform/Linux/OpenFolder.cpp",
    "Platform/Linux/Trash*.cpp",
    "Platform/Linux/TreeRemoval.cpp",
    "Platform/Files/AtomicFile.cpp",
    "Platform/Files/FileLock.cpp",
    "Platform/Files/FolderTrail.cpp",
    "Platform/Files/WholeFile.cpp",
)

HEAD = """# The safety checks, and the test that notices each one's absence

Each entry is one change to the sources that decide about somebody's files: a condition that never holds or always does, a
part of one that is left out of it, a flag, a limit or a statement that is gone. What stands there is the first test that
failed with that change, or why none needs to. `Rigs/mutants --write docs/SAFETY-CHECKS.md` makes the list anew.
"""


class Replacement(typing.NamedTuple):
    """A mutant that puts another text into the place of one."""

    name: str
    start: int
    end: int
    text: str
    replacement: str

    def wrapping(self, number):
        if not self.text:
            return self.replacement.replace("MUTANT", f"karvelloMutant({number})"), ""
        if self.text.rstrip().endswith(";"):
            return f"if (karvelloMutant({number})) {{ {self.replacement} }} else {{ ", " }"
        return f"(karvelloMutant({number}) ? ({self.replacement}) : (", "))"


CLEAN = "CleanerCore/Cleaning/CleaningService.cpp"
MOVER = "Platform/Linux/LinuxTrash.cpp"
FOLDER = "Platform/Linux/TrashFolder.cpp"
PLACES = "Platform/Linux/TrashPlaces.cpp"
ANCHOR = "Platform/Linux/AnchoredFolder.cpp"
OPEN = "Platform/Linux/OpenFolder.cpp"
RECORD = "Platform/Linux/TrashRecord.cpp"
REMOVAL = "Platform/Linux/TreeRemoval.cpp"
MOUNTS = "Platform/Linux/MountTable.cpp"
FILE = "Platform/Files/WholeFile.cpp"
LOCK = "Platform/Files/FileLock.cpp"
ATOMIC = "Platform/Files/AtomicFile.cpp"
RESTORE = "CleanerCore/Cleaning/TrashRestoreService.cpp"
STORE = "CleanerCore/Audit/CleanupAuditStore.cpp"
PROTECTED = "CleanerCore/Safety/DefaultProtectedPaths.cpp"

PROTECTED_PATHS = (
    "/ /System /Library /Applications /bin /sbin /usr /etc /dev /Volumes /Users/Shared /private/etc /private/tmp "
    "/private/var/db /private/var/root /private/var/vm /private/var/log /boot /opt /srv /lib /lib32 /lib64 /libx32 /proc "
    "/sys /run /snap /nix /var/lib /var/log /var/cache /var/spool /var/mail /mnt /media /root /tmp /var/tmp").split()
FOREIGN_FILE_SYSTEMS = "nfs nfs4 cifs smb3 smbfs 9p ceph afs autofs ecryptfs davfs fuse".split()

# Name, file, a text that stands there once, and what stands there in the mutant. An expression becomes another, a
# statement (it ends with a semicolon) becomes others. Where the text alone stands there more than once, more of what is
# around it is given, and the text itself stands between « and ».
REPLACEMENTS = [
    ("a move replaces", MOVER, "RENAME_NOREPLACE", "0"),
    ("mounts are looked for at the given path", MOVER, "FileURL::entry(*path, itemName, DirectoryHint::isFolder).path()", "item.path()"),
    ("the record stays when an item goes back", MOVER, "std::ignore = trash.removeRecord(name);\n    return true;", "return true;"),
    ("the item stays where it came to after a failed restore", MOVER,
     "moveWithoutReplacing((*folder)->descriptor(), destinationName, files, name) == 0", "true"),
    ("what is wrong is not moved back", MOVER, "moveBack(**trash, *name, **folder, item)", "true"),
    ("the record stays when a move fails", MOVER, "«std::ignore = trash.removeRecord(name);»\n        if (moveError", ""),
    ("the record stays after a restore", MOVER, "std::ignore = trash->removeRecord(name);", ""),
    ("the record stays after a removal", MOVER, "std::ignore = trash.removeRecord(arrival->name);", ""),
    ("a failed removal leaves the item in the Trash", MOVER,
     "std::ignore = moveBack(trash, arrival->name, *arrival->folder, anchor.item);", ""),
    ("moves are not made durable", MOVER, "m_unsettled.emplace(trash.get(), trash);", ""),
    ("a Trash that was replaced stays known", MOVER, "known.reset();", ""),
    ("the Trash is made for all", FOLDER, "mkdirat(parent, name, kPrivateFolder)", "mkdirat(parent, name, 0755)"),
    ("records are for all", FOLDER, "record.text(), «kPrivateFile»", "0644"),
    ("a record may be of any size", FOLDER, "recordName, «kMaximumRecordBytes»", "std::size_t{1} << 40"),
    ("leftovers stay", FOLDER, "trash->removeLeftovers();", ""),
    ("the shared Trash may be a link", PLACES, "lstat(folder.path().c_str(), &found)", "stat(folder.path().c_str(), &found)"),
    ("links below the root are followed", ANCHOR, "RESOLVE_NO_SYMLINKS", "0"),
    ("volumes below the root are entered", ANCHOR, "RESOLVE_NO_XDEV", "0"),
    ("the way may lead out of the root", ANCHOR, "RESOLVE_BENEATH", "0"),
    ("links of /proc are followed", ANCHOR, "RESOLVE_NO_MAGICLINKS", "0"),
    ("a link as root is followed", ANCHOR, "open(root.url.path().c_str(), kNamingFlags)",
     "open(root.url.path().c_str(), kNamingFlags & ~O_NOFOLLOW)"),
    ("a walk enters other volumes", OPEN, "RESOLVE_NO_XDEV", "0"),
    ("a walk follows links", OPEN, "RESOLVE_NO_SYMLINKS", "0"),
    ("a walk follows links of /proc", OPEN, "RESOLVE_NO_MAGICLINKS", "0"),
    ("a path is recorded as it is", RECORD, "percentEncoded(path)", "path"),
    ("names may be too long for a record", RECORD, "NAME_MAX - TrashRecord::kSuffix.size()", "std::size_t{NAME_MAX}"),
    ("the options for programs are not read", MOUNTS, 'mount.options.append(",").append(same->options);', ""),
    ("a link is read", FILE, "O_RDONLY | O_NOFOLLOW | O_NONBLOCK", "O_RDONLY | O_NONBLOCK"),
    ("reading waits for a writer", FILE, "O_NONBLOCK", "0"),
    ("an unfinished file replaces another", FILE, "RENAME_NOREPLACE", "0"),
    ("an unfinished file stays", FILE, "unlinkat(folder, temporaryName.c_str(), 0);", ""),
    ("a lock file may be a link", LOCK, "open(url.path().c_str(), «flags», 0600)", "flags & ~O_NOFOLLOW"),
    ("a file that could not be replaced leaves one behind", ATOMIC, "unlinkat(m_folder, m_name.c_str(), 0);", ""),
    ("the contents are not made durable", ATOMIC, "fsync(m_descriptor.get()) == 0", "true"),
    ("the log loses what could not be read", STORE, "preserveAuditLog(reason);", ""),
    ("the log loses what is no log", STORE, "«preserveAuditLog(kUndecodable);»\n        return {};", ""),
    ("the log loses what is lossy", STORE, "«preserveAuditLog(kUndecodable);»\n    }\n    return std::move", ""),
]

# Every path that is protected, and every file system that has no Trash.
REPLACEMENTS += [
    (f"{path} is not protected", PROTECTED, "«paths.emplace(literal);\n        paths.insert(resolvedPath(Platform::FileURL::folder(literal), fileManager));»",
     f'if (literal != "{path}") {{ paths.emplace(literal); '
     "paths.insert(resolvedPath(Platform::FileURL::folder(literal), fileManager)); }")
    for path in PROTECTED_PATHS
] + [
    (f"{system} has a Trash", PLACES, "std::ranges::find(kForeignFileSystems, type) != kForeignFileSystems.end()",
     f'type != "{system}" && std::ranges::find(kForeignFileSystems, type) != kForeignFileSystems.end()')
    for system in FOREIGN_FILE_SYSTEMS
]

# Checks that stand in for each other: the first is not noticed alone, all of them together are. Each is written as its
# file and its name; the end of a long name may be left out.
SAFETY, FILES = "CleanerCore/Safety/", "Platform/Files/"
DOUBLED = (
    ((SAFETY + "CleanupEligibilityPolicy.cpp: CleanupEligibilityPolicy::CleanupEligibilityPolicy: location.rootURL.isRoot() -> false",
      SAFETY + "CleanupEligibilityPolicy.cpp: CleanupEligibilityPolicy::CleanupEligibilityPolicy: !safety.isScanRootSafe(location.rootURL, fileManager) -> false"),
     "isScanRootSafe refuses the root folder, too"),
    ((SAFETY + 'ScanRootSafety.cpp: ScanRootSafety::isScanRootSafe: rootKey == "/" -> false',
      SAFETY + "ScanRootSafety.cpp: ScanRootSafety::isScanRootSafe: std::any_of(m_protectedPaths.begin(), m_protectedPaths.end(), isInProtectedPath) || std::any_of(m_protectedPaths.begin(), m_protectedPaths.end(), holdsProtectedPath) || std::any_of(m_sharedFolders.begin(), m_sharedFolders.end(), holdsProtectedPath) -> false"),
     "the root folder holds protected paths"),
    ((SAFETY + "ScanRootSafety.cpp: ScanRootSafety::isScanRootSafe: isSymbolicLink(url, fileManager).value_or(true) -> false",
      SAFETY + "SymbolicLinkComponents.cpp: rejectSymbolicLinkComponents: values->isSymbolicLink.value_or(true) -> false"),
     "the last component is among those that rejectSymbolicLinkComponents looks at"),
    ((SAFETY + "ScanRootSafety.cpp: isUnsafeUsersRoot: isShared(rootKey) -> false",
      SAFETY + "ScanRootSafety.cpp: isUnsafeUsersRoot: isShared(homeKey) -> false"),
     "the shared folder is not in the home, and a shared home is refused"),
    ((SAFETY + "ScanRootSafety.cpp: isUnsafeUsersRoot: isShared(homeKey) -> false",
      SAFETY + "ScanRootSafety.cpp: isUnsafeUsersRoot: isShared(rootKey) -> false"),
     "what lies in a shared home is shared itself, and refused as that"),
    ((RESTORE + ": isSymbolicLinkEntry: values && values->isSymbolicLink -> false",
      RESTORE + ": isSymbolicLinkEntry: attributes && attributes->type == Platform::FileType::symbolicLink -> false"),
     "the attributes tell a link, too"),
    ((RESTORE + ": Restore::validateRestoreSource: roots.empty() -> false",
      SAFETY + "SafePathPolicy.cpp: SafePathPolicy::validate: root == nullptr -> false"),
     "a policy without roots allows nothing"),
    ((FOLDER + ": TrashFolder::removeLeftovers: !items->contains(name.substr(0, name.size() - TrashRecord::kSuffix.size())) -> true",
      FOLDER + ": TrashFolder::isLeftoverRecord: item || item.error() != ENOENT -> false"),
     "the item is looked for by its name before, and in the listing after"),
)

# Conditions whose absence changes no verdict: what they save, or what else gives the same answer.
SHORTCUT = "saves work, the answer is the same"
NO_CHECKS = {
    **dict.fromkeys((
        SAFETY + "CleanupEligibilityPolicy.cpp: CleanupEligibilityPolicy::allowedPaths: urls.empty() -> false",
        SAFETY + "CleanupValidationOptions.cpp: liesInAny: folders.empty() -> false",
        SAFETY + "NoTouchPathPolicy.cpp: judged: placeOf(bits) != Place::elsewhere -> true",
        SAFETY + "NoTouchPathPolicy.cpp: judged: (bits & kRefused) != 0 -> false",
        SAFETY + "NoTouchPathPolicy.cpp: NoTouchPathPolicy::State::descend: (m_bits & kRefused) != 0 -> false",
        SAFETY + "NoTouchPathPolicy.cpp: NoTouchPathPolicy::State::descend: (tokens.name | tokens.ending) == 0 && isPlain(m_bits) -> false",
        SAFETY + "NoTouchRuleSet.cpp: mayGainASCII: !Platform::ASCII::isASCII(name) -> true",
        SAFETY + 'NoTouchRuleSet.cpp: mayGainASCII: (name.find("\\xE2\\x84\\xAA") != std::string_view::npos || name.find("\\xC4\\xB0") != std::string_view::npos) -> true',
        SAFETY + 'NoTouchRuleSet.cpp: mayGainASCII: !Platform::ASCII::isASCII(name) && (name.find("\\xE2\\x84\\xAA") != std::string_view::npos || name.find("\\xC4\\xB0") != std::string_view::npos) -> true',
        SAFETY + "NoTouchRuleSet.cpp: tokensOfFolded: parent != kNoToken -> true",
        SAFETY + "NoTouchRuleSet.cpp: tokensOfFolded: kStandsBeforeNumber[parent] -> true",
        SAFETY + "NoTouchRuleSet.cpp: tokensOf: mayGainASCII(component) -> true",
        SAFETY + 'ScanRootSafety.cpp: usersFolders: resolved != "/home" -> true',
        SAFETY + "SymbolicLinkComponents.cpp: rejectSymbolicLinkComponents: url.isRoot() -> false",
        "CleanerCore/Cleaning/CleanupValidationSnapshot.cpp: add: !isNewest && (!isPackage || m_options.includesPackageDescendants) -> false",
        "CleanerCore/Cleaning/CleanupValidationSnapshot.cpp: add: !isPackage -> false",
        "CleanerCore/Cleaning/CleanupValidationSnapshot.cpp: add: m_options.includesPackageDescendants -> false",
        STORE + ": CleanupAuditStore::storageReadyEntriesAndData: data->size() > kMaximumBytes -> true",
        STORE + ": CleanupAuditStore::loadEntries: loaded->state == LoadedState::needsRewriting -> true (no. 2)",
        STORE + ": CleanupAuditStore::readForLoadUnlocked: !bytes->empty() -> true",
        MOVER + ": LinuxTrash::opened: known && known->isStillInPlace() -> false",
        MOVER + ": LinuxTrash::opened: found -> false",
        FOLDER + ": TrashFolder::beginUse: m_uses == 0 -> true",
        FOLDER + ": TrashFolder::removeLeftovers: suspects.empty() -> false",
    ), SHORTCUT),
    SAFETY + 'NoTouchRuleSet.cpp: mayGainASCII: name.find("\\xC4\\xB0") != std::string_view::npos -> false':
        "the i comes with a combining point behind it, and no name of the tables is open behind an i",
    "CleanerCore/Cleaning/CleanupValidationSnapshot.cpp: add: values.isDirectory.value_or(false) -> true":
        "a file holds nothing that could be left out",
    STORE + ": CleanupAuditStore::loadEntries: limit < 1 -> false": "`limited` keeps nothing then",
    STORE + ": CleanupAuditStore::append: limit >= 1 -> true": "`limited` keeps nothing then; only a log that cannot be read would be kept aside first",
    STORE + ": countThatFits: !alone -> false": "what is encoded with others is encoded alone",
    STORE + ": CleanupAuditStore::readAuditDataUnlocked: values.error().kind == FileErrorKind::noSuchFile -> false":
        "what is not there cannot be moved aside",
    ANCHOR + ": the way may lead out of the root": "paths are standardised and links are not followed, so no way leads up",
    ANCHOR + ": links of /proc are followed": "RESOLVE_NO_SYMLINKS implies it, openat2(2)",
    OPEN + ": a walk follows links of /proc": "RESOLVE_NO_SYMLINKS implies it, openat2(2)",
    MOVER + ": a Trash that was replaced stays known": "it is asked again each time whether it is in its place",
    MOVER + ": LinuxTrash::trashDirectories: descriptor.isOpen() -> true": "what is not open is on no mount",
    MOVER + ": LinuxTrash::homeTrashServes: place.isRoot() -> false": "the root folder is always there",
    MOUNTS + ": parsed: bytes->empty() -> false": "a text without bytes holds no mounts",
    **dict.fromkeys((MOUNTS + ": parsed: !stream -> false", MOUNTS + ": parsed: !table -> false", MOUNTS + ": parsed: !iterator -> false"),
                    "libmount and the C library give these always but where memory is out"),
    REMOVAL + ": enter: (*entry)->type != ListedType::folder -> true": "saves a call, unlinkat(2) refuses folders",
    LOCK + ": FileLock::acquire: !file.isOpen() -> false": "what is not open has no status, and fstat(2) says so",
    ATOMIC + ": ~TemporaryFile: m_descriptor.isOpen() -> true": "the random name was given up by the rename, nothing has it",
    FILE + ": addThroughTemporaryName: error != 0 -> true": "the random name was given up by the rename, nothing has it",
    FOLDER + ": isSound: S_ISDIR(found.st_mode) -> true": "only a folder is opened, and only the same item counts later",
}


def sites_in(file, source):
    sites = []
    for name, where, text, replacement in REPLACEMENTS:
        if where == file:
            around, text = text.replace("«", "").replace("»", ""), text[text.find("«") + 1:].split("»")[0]
            if source.count(around) != 1:
                raise SystemExit(f"{name}: {file} holds the text {source.count(around)} times")
            start = source.index(text, source.index(around))
            sites.append(Replacement(name, start, start + len(text), text, replacement))
    return sites
