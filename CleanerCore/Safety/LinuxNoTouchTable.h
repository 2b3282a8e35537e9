#pragma once

#include "CleanerCore/Safety/NoTouchRow.h"

#include <array>

namespace CleanerCore {

/// What a Linux desktop keeps in places that the layout of macOS does not know. The rows stand beside those of
/// `kAppleNoTouchTable` on every host and only ever refuse more. A name counts anywhere in a path unless it is so
/// common that only its place, directly below a home, tells what it is. Inside a Flatpak's folder the base directories
/// are called "config" and "data".
inline constexpr std::array kLinuxNoTouchTable{
    // Keys and passwords
    NoTouchRow{".ssh|.gnupg|.pki|.password-store", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Private keys: ssh(1), gpg(1), certutil(1), pass(1)"},
    NoTouchRow{".aws|.azure|.kube|.terraform.d", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Credentials of cloud tools: their configuration guides"},
    NoTouchRow{".config/gcloud|gh|rclone|op|1password|bitwarden*", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Tokens and vaults: the tools' configuration guides"},
    NoTouchRow{".netrc|.git-credentials|.gitconfig|.npmrc|.pypirc", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Passwords and tokens: netrc(5), git-credential-store(1), git-config(1), npmrc(5), twine"},
    NoTouchRow{".docker/config.json", NoTouchGroup::secret, NoTouchEffect::refuses, "Registry tokens: docker login"},
    NoTouchRow{".local/share/keyrings|kwalletd", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Password stores of GNOME and of KDE"},
    NoTouchRow{"data/keyrings|kwalletd", NoTouchGroup::secret, NoTouchEffect::refuses, "The same, inside a Flatpak"},
    NoTouchRow{".config/kwalletrc", NoTouchGroup::secret, NoTouchEffect::refuses, "Which wallet KDE opens"},
    NoTouchRow{".cargo/credentials|credentials.toml", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Registry tokens: The Cargo Book, Cargo Home"},
    NoTouchRow{".m2/settings.xml|settings-security.xml", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Server passwords: Maven, Settings Reference"},
    NoTouchRow{".gradle/gradle.properties|init.d", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Signing keys and set-up: Gradle, Gradle-managed Directories"},
    NoTouchRow{".android/debug.keystore|adbkey|adbkey.pub", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Signing and device keys: Android, Sign your app"},
    NoTouchRow{"huggingface/token|stored_tokens", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Access tokens: Hugging Face Hub, environment variables (HF_HOME)"},
    NoTouchRow{".bitcoin|.electrum|.monero", NoTouchGroup::secret, NoTouchEffect::refuses,
        "Wallets: the clients' data directories"},
    NoTouchRow{"*.kdbx", NoTouchGroup::secret, NoTouchEffect::refuses, "Password databases: KeePass file format"},

    // Mail, appointments, conversations
    NoTouchRow{".thunderbird|.mutt|maildir", NoTouchGroup::mail, NoTouchEffect::refuses,
        "Mail: Thunderbird profiles, mutt(1), maildir(5)"},
    NoTouchRow{"~/mail", NoTouchGroup::mail, NoTouchEffect::refuses, "Mail folders: mutt(1), alpine(1)"},
    NoTouchRow{
        ".local/share/evolution|akonadi|local-mail|geary|kmail2|contacts|signal|telegramdesktop|element|protonmail",
        NoTouchGroup::mail, NoTouchEffect::refuses, "Local stores of mail and chat applications"},
    NoTouchRow{"data/evolution|akonadi|local-mail|geary|kmail2|telegramdesktop", NoTouchGroup::mail,
        NoTouchEffect::refuses, "The same, inside a Flatpak"},
    NoTouchRow{
        ".config/evolution|protonmail", NoTouchGroup::mail, NoTouchEffect::refuses, "Accounts and local mail stores"},
    NoTouchRow{"config/evolution|protonmail", NoTouchGroup::mail, NoTouchEffect::refuses, "The same, inside a Flatpak"},
    NoTouchRow{".cache/evolution|protonmail", NoTouchGroup::mail, NoTouchEffect::refuses,
        "Offline mail and calendars: bleachbit issue 249, proton-bridge issue 480"},
    NoTouchRow{".config|config/signal|element", NoTouchGroup::mail, NoTouchEffect::refusesButForCachesOneBelow,
        "Conversations and their keys beside Electron's caches"},

    // Profiles: what an application keeps for its person
    NoTouchRow{
        ".config|config/google-chrome|google-chrome-beta|google-chrome-unstable|chromium|vivaldi|vivaldi-snapshot"
        "|microsoft-edge|microsoft-edge-beta|microsoft-edge-dev",
        NoTouchGroup::profile, NoTouchEffect::refusesButForCachesTwoBelow, "Chromium, User Data Directory"},
    NoTouchRow{"common/chromium", NoTouchGroup::profile, NoTouchEffect::refusesButForCachesTwoBelow,
        "The same, inside of Chromium's snap"},
    NoTouchRow{".config|config/bravesoftware", NoTouchGroup::profile, NoTouchEffect::refusesButForCachesThreeBelow,
        "The same, below one more folder"},
    NoTouchRow{".config|config/opera|opera-beta|opera-developer", NoTouchGroup::profile,
        NoTouchEffect::refusesButForCachesOneOrTwoBelow, "The same; the first profile is the folder itself"},
    NoTouchRow{".mozilla|.librewolf|.waterfox|.zen|.floorp", NoTouchGroup::profile, NoTouchEffect::refuses,
        "Profiles of Firefox and its kin: their caches lie in the cache directory"},
    NoTouchRow{"service worker|indexeddb|local storage|file system", NoTouchGroup::profile, NoTouchEffect::refuses,
        "Data of web sites, unsent work included: Storage Standard"},
    NoTouchRow{"storage/default", NoTouchGroup::profile, NoTouchEffect::refuses,
        "Data of web sites in Firefox: bleachbit issue 1858"},
    NoTouchRow{".config|config/code|code - oss|code - insiders|vscodium|cursor|windsurf/user|backups",
        NoTouchGroup::profile, NoTouchEffect::refuses, "Settings, local history and unsaved files of editors"},
    NoTouchRow{"localhistory", NoTouchGroup::profile, NoTouchEffect::refuses,
        "JetBrains IDEs keep the local history in the system directory"},
    NoTouchRow{"ccache.conf", NoTouchGroup::profile, NoTouchEffect::refuses,
        "ccache(1): settings, in the cache directory itself"},
    NoTouchRow{".wine|system.reg", NoTouchGroup::profile, NoTouchEffect::refuses,
        "wine(1): a prefix holds the documents of the programs in it"},
    NoTouchRow{".local/share/bottles|lutris", NoTouchGroup::profile, NoTouchEffect::refuses,
        "Prefixes and games of Bottles and Lutris"},
    NoTouchRow{"data/bottles|lutris", NoTouchGroup::profile, NoTouchEffect::refuses, "The same, inside a Flatpak"},
    NoTouchRow{"steamapps/compatdata|common", NoTouchGroup::profile, NoTouchEffect::refuses,
        "Prefixes with saved games, and installed games: Proton FAQ"},
    NoTouchRow{"~/snap", NoTouchGroup::profile, NoTouchEffect::refusesButForSnapCaches,
        "Snap, Data locations: the person's data beside the cache"},
    NoTouchRow{".cache/doc|obexd|ibus|wallpaper|gnome-control-center|sessions|dconf|wal|spotify|keyring-*|at-spi2-*",
        NoTouchGroup::profile, NoTouchEffect::refuses,
        "Mounts, sockets and state that only look like caches: bleachbit issue 572 and its list of kept folders"},
    NoTouchRow{".cache/plasmashell|kwin|drkonqi|icon-cache.kcache|plasma_theme_*|ksycoka5*|ksycoka6*",
        NoTouchGroup::profile, NoTouchEffect::refuses, "A running Plasma has them mapped: bleachbit issue 1853"},

    // Files that live elsewhere too, or not yet
    NoTouchRow{".stfolder|.stversions|.owncloudsync.log|.dropbox.cache|.synologydrive|.gvfs", NoTouchGroup::sync,
        NoTouchEffect::refuses, "Marks and stores of Syncthing, ownCloud, Dropbox, Synology Drive, GVfs"},
    NoTouchRow{"~/dropbox|onedrive|insync|mega|pclouddrive|nextcloud|owncloud", NoTouchGroup::sync,
        NoTouchEffect::refuses, "Default folders of synchronising clients: what goes here goes everywhere"},
    NoTouchRow{".cache/rclone", NoTouchGroup::sync, NoTouchEffect::refuses,
        "rclone mount, VFS file caching: files that wait for their upload"},

    // Backups and snapshots
    NoTouchRow{".snapshots|.zfs|@|@home|@snapshots|@rootfs", NoTouchGroup::backup, NoTouchEffect::refuses,
        "Subvolumes and snapshots: snapper(8), zfs(8), btrfs-subvolume(8)"},
    NoTouchRow{"timeshift/snapshots", NoTouchGroup::backup, NoTouchEffect::refuses, "timeshift(1)"},
    NoTouchRow{"*.sparsebundle|*.difftar|*.difftar.gz|*.difftar.gpg", NoTouchGroup::backup, NoTouchEffect::refuses,
        "Volumes of Time Machine and duplicity(1)"},
    NoTouchRow{".config/borg", NoTouchGroup::backup, NoTouchEffect::refuses,
        "Borg, environment: keys and the record of what was seen"},

    // Machines and containers
    NoTouchRow{"*.qcow2|*.vdi|*.vmdk|*.vhd|*.vhdx", NoTouchGroup::virtualMachine, NoTouchEffect::refuses,
        "Disk images: qemu-img(1)"},
    NoTouchRow{"virtualbox vms|.minikube", NoTouchGroup::virtualMachine, NoTouchEffect::refuses,
        "Default machine folders: VirtualBox manual, minikube"},
    NoTouchRow{".local/share/libvirt|gnome-boxes|containers|docker", NoTouchGroup::virtualMachine,
        NoTouchEffect::refuses, "Disks, images and volumes: libvirt, containers-storage.conf(5), Docker rootless mode"},
    NoTouchRow{"data/gnome-boxes", NoTouchGroup::virtualMachine, NoTouchEffect::refuses, "The same, inside a Flatpak"},
    NoTouchRow{".android/avd", NoTouchGroup::virtualMachine, NoTouchEffect::refuses, "Emulator disks: Android, AVDs"},

    // Databases: one file of them is worth nothing without the others
    NoTouchRow{"*.sqlite|*.sqlite-wal|*.sqlite-shm|*.sqlite-journal|*.sqlite3|*.sqlite3-wal|*.sqlite3-shm"
               "|*.sqlite3-journal|*.db|*.db-wal|*.db-shm|*.db-journal",
        NoTouchGroup::database, NoTouchEffect::refusesDatabase, "SQLite, Temporary Files Used By SQLite"},
    NoTouchRow{"library/caches", NoTouchGroup::database, NoTouchEffect::allowsDatabasesBelow,
        "URL caches of macOS are such files"},
    NoTouchRow{"pg_version|ibdata1|manifest-<6 digits>|data.mdb|lock.mdb", NoTouchGroup::database,
        NoTouchEffect::refuses, "File layouts of PostgreSQL, InnoDB, LevelDB and LMDB"},

    // The Trash
    NoTouchRow{".local/share/trash", NoTouchGroup::trash, NoTouchEffect::refuses, "Trash Specification 1.0"},
    NoTouchRow{"trash/files|info", NoTouchGroup::trash, NoTouchEffect::refuses, "The same, in another data directory"},
    NoTouchRow{".trash-<digits>", NoTouchGroup::trash, NoTouchEffect::refuses, "The same, on another volume"},
    NoTouchRow{".trash/<digits>", NoTouchGroup::trash, NoTouchEffect::refuses, "The same, shared by all users"},

    // What was installed, not cached
    NoTouchRow{".local/share/flatpak|pipx|uv|virtualenv|virtualenvs|gem", NoTouchGroup::installedTool,
        NoTouchEffect::refuses, "Installed programs and environments: each tool's own documentation"},
    NoTouchRow{"pypoetry/virtualenvs", NoTouchGroup::installedTool, NoTouchEffect::refuses,
        "Working environments, in the cache directory by default: poetry issue 3709"},
    NoTouchRow{"miniconda3|anaconda3|miniforge3|mambaforge/envs", NoTouchGroup::installedTool, NoTouchEffect::refuses,
        "conda, Managing environments"},
    NoTouchRow{".pyenv/versions", NoTouchGroup::installedTool, NoTouchEffect::refuses, "pyenv, installed versions"},
    NoTouchRow{".gem/ruby", NoTouchGroup::installedTool, NoTouchEffect::refuses, "gem(1), user installation"},
    NoTouchRow{".bun/bin", NoTouchGroup::installedTool, NoTouchEffect::refuses, "bun, global installation"},
    NoTouchRow{".ghcup", NoTouchGroup::installedTool, NoTouchEffect::refuses, "GHCup, installed compilers"},
    NoTouchRow{"~/.cargo/bin|config|config.toml|.crates.toml|.crates2.json", NoTouchGroup::installedTool,
        NoTouchEffect::refuses, "The Cargo Book, Cargo Home"},
};

} // namespace CleanerCore
