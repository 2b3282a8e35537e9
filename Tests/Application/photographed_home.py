"""A home as people have it, for pictures: browsers, compilers, films, copies, old downloads, and names of all lengths."""

from home import MEGABYTE, Home

# Path, megabytes, days since it changed.
_CACHES = (
    (".cache/mozilla/firefox/x7k2p9ab.default-release/cache2/entries", 742, 3),
    (".cache/mozilla/firefox/x7k2p9ab.default-release/startupCache/scripts", 38, 3),
    (".cache/google-chrome/Default/Code Cache/js", 412, 12),
    (".cache/thumbnails/large/contents", 186, 33),
    (".cache/thumbnails/x-large/contents", 61, 90),
    (".cache/fontconfig/contents", 4, 200),
    (".npm/_cacache/content-v2/sha512", 1210, 41),
    (".npm/_logs/2026-08-02T08_14_33_118Z-debug-0.log", 2, 110),
    (".cache/pip/http-v2/wheels", 428, 26),
    (".cache/go-build/0f/objects", 588, 12),
    (".cargo/registry/cache/index.crates.io-6f17d22bba15001f/archives", 364, 74),
    (".cargo/git/checkouts/a-library-with-a-rather-long-name-1c9d0e2f4a6b8c7d/contents", 42, 180),
    (".cache/mesa_shader_cache/contents", 88, 33),
    (".gradle/caches/modules-2/files-2.1", 640, 52),
    (".config/Code/Cache/Cache_Data", 132, 9),
    (".config/Code/CachedData/b1c0a14de1414fcdaa400695b4db1c0799bc3124/chrome", 54, 9),
    (".config/Code/logs/20260902T101512/window1", 3, 80),
    (".cache/JetBrains/IdeaIC2026.1/log/idea.log", 7, 61),
    (".cache/ccache/a/objects", 306, 18),
    (".cache/pypoetry/cache/A package index with a very long name, which somebody has mirrored for the whole institute", 96, 45),
    (".local/share/xorg/Xorg.0.log", 3, 120),
    (".var/app/org.example.Studio/cache/previews", 210, 58),
)
_FILES = (
    ("Videos/Holiday on the coast.mkv", 1480, 400),
    ("Videos/Lecture 12 – Storage systems, part two, with questions and answers at the end.mp4", 620, 150),
    ("Videos/夏休みの動画.mov", 310, 210),
    ("Pictures/Panorama.tif", 180, 700),
    ("Documents/Archive/Letters 2014 to 2024.zip", 240, 260),
    ("Projects/atlas-web/node_modules/lib/index.js", 240, 300),
    ("Projects/ferrite/target/debug/ferrite", 320, 61),
    ("Music/Live/concert.flac", 410, 500),
    ("Downloads/debian-12.8.0-amd64-netinst.iso", 660, 80),
    ("Downloads/a presentation that somebody sent with a name which goes on and on (final) (2).pptx", 120, 95),
    ("Downloads/installer.dmg", 130, 70),
    ("Downloads/tool_1.2_amd64.deb", 88, 220),
    ("Downloads/editor-setup.AppImage", 140, 45),
    ("Downloads/scan.pdf", 55, 33),
)
_COPIES = (
    (52, ("Documents/Reports/Annual report.pdf", "Documents/Reports/Annual report (copy).pdf", "Downloads/Annual report.pdf")),
    (31, ("Pictures/2024/Harbour.raw", "Pictures/To sort/Harbour.raw")),
)


def filled(folder):
    home = Home(folder)
    for path, size, days in _CACHES:
        home.add(path, size * MEGABYTE, days)
    for path, size, days in _FILES:
        home.add(path, size * MEGABYTE, days)
    for size, paths in _COPIES:
        content = bytes(range(256)) * (size * MEGABYTE // 256)
        for number, path in enumerate(paths):
            home.add(path, days=120 + 40 * number, content=content)
    return home


def busy(folder):
    """So much that a scan can be seen at work."""
    home = Home(folder)
    home.add_many("Library/Caches/com.example.Big", 60_000)
    return home


def add_logs(home, name):
    """So many that their clean can be seen at work."""
    for number in range(2_500):
        home.add(f"Library/Logs/Session {name} {number:04}/session.log", size=100)
