"""The rules of the code's structure. Each takes source files and gives the offences, one sentence each."""

import re

# What each layer may include, beside itself.
LAYERS = {
    "Platform": (),
    "PlatformDesktop": ("Platform",),
    "CleanerCore": ("Platform",),
    "KarvelloUI": ("CleanerCore", "PlatformDesktop", "Platform"),
    "KarvelloCLI": ("KarvelloUI/Copy", "KarvelloUI/Advisors", "CleanerCore", "Platform"),
    "KarvelloMac": ("KarvelloUI", "CleanerCore", "PlatformDesktop", "Platform"),
}
# Folders that see less than their layer does.
FOLDERS = {
    "Platform/Base": ("Platform/Base",),
    "Platform/Files": ("Platform/Base", "Platform/Files"),
    "KarvelloUI/Copy": ("KarvelloUI/Copy", "CleanerCore", "Platform"),
    "KarvelloUI/Design": ("KarvelloUI/Design", "KarvelloUI/Copy", "CleanerCore", "Platform"),
    "KarvelloUI/Controls": ("KarvelloUI/Controls", "KarvelloUI/Design", "KarvelloUI/Copy", "CleanerCore", "Platform"),
    "KarvelloUI/Advisors": ("KarvelloUI/Advisors", "KarvelloUI/Copy", "CleanerCore", "Platform"),
    "KarvelloUI/Stores": ("KarvelloUI/Stores", "KarvelloUI/Copy", "KarvelloUI/Advisors", "CleanerCore",
                          "PlatformDesktop", "Platform"),
    "KarvelloUI/Sessions": ("KarvelloUI/Sessions", "KarvelloUI/Stores", "KarvelloUI/Copy", "KarvelloUI/Advisors",
                            "CleanerCore", "PlatformDesktop", "Platform"),
    "KarvelloUI/MenuBar": ("KarvelloUI/MenuBar", "KarvelloUI/Sessions", "KarvelloUI/Stores", "KarvelloUI/Copy",
                           "KarvelloUI/Advisors", "CleanerCore", "Platform"),
}
_BELOW_SCREENS = ("KarvelloUI/Dashboard", "KarvelloUI/Controls", "KarvelloUI/Design", "KarvelloUI/Sessions",
                  "KarvelloUI/Stores", "KarvelloUI/Advisors", "KarvelloUI/Copy", "CleanerCore", "Platform")
FOLDERS["KarvelloUI/Dashboard"] = tuple(name for name in _BELOW_SCREENS if name != "KarvelloUI/Controls")
FOLDERS["KarvelloUI/Screens"] = ("KarvelloUI/Screens", "KarvelloUI/MenuBar") + _BELOW_SCREENS
FOLDERS["KarvelloUI/Shell"] = ("KarvelloUI/Shell", "KarvelloUI/Screens") + _BELOW_SCREENS
WITHOUT_QT = ("Platform/", "CleanerCore/", "KarvelloCLI/", "KarvelloUI/Copy/", "KarvelloUI/Advisors/",
              "KarvelloUI/Design/")
MAY_CHANGE_FILES = ("Platform/Files/", "Platform/Linux/", "Platform/macOS/")

MAXIMUM_LINES = 400
# Tables that are longer, each a list of rows and no code, and the page of all texts.
LONG_TABLES = ("Tests/Golden/copy.txt",) + tuple(
    f"KarvelloUI/Copy/Translations/{name}.txt"
    for name in ("english", "japanese", "simplifiedChinese", "traditionalChinese", "spanish", "french", "german"))

_INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)


def includes(file):
    """The included names, with the number of the line."""
    for match in _INCLUDE.finditer(file.text):
        yield match[1] or match[2], file.text.count("\n", 0, match.start()) + 1


def _is_below(path, folders):
    return any(path == folder or path.startswith(folder + "/") for folder in folders)


def upward_includes(files):
    for file in files:
        if file.layer not in LAYERS:
            continue
        folder = "/".join(file.path.split("/")[:2])
        allowed = FOLDERS.get(folder, (file.layer,) + LAYERS[file.layer])
        for name, line in includes(file):
            layer = name.split("/")[0]
            if layer in ("Tests", "Benchmarks") or (layer in LAYERS and not _is_below(name, allowed)):
                yield f"{file.path}:{line}: {folder} may not include {name}"


def qt_includes(files):
    for file in files:
        if not file.path.startswith(WITHOUT_QT):
            continue
        for name, line in includes(file):
            if re.match(r"(Qt[A-Z]\w*/|Q[A-Z]\w*$|q\w+\.h$)", name):
                yield f"{file.path}:{line}: no Qt here, but it includes <{name}>"


def qt_links(program, ldd_output):
    for library in re.findall(r"\blibQt\w*\.so\S*", ldd_output):
        yield f"{program} links {library}"


_WORDS_BEFORE_A_CALL = ("return", "co_return", "else", "do", "case", "throw", "not", "and", "or")


def _is_call(before):
    """Whether a name with an opening parenthesis behind `before` calls the plain function, `std::` or not. It may also
    name a member or something in another namespace, or be declared there."""
    before = before.rstrip()
    if before.endswith((".", "->")):
        return False
    if before.endswith("::"):
        qualifier = re.search(r"(\w+|>)$", before[:-2])
        return not qualifier or qualifier[1] == "std"
    word = re.search(r"\w+$", before)
    if word:
        return word[0] in _WORDS_BEFORE_A_CALL
    # The end of a type stands close to what comes before it, an operator does not.
    return not re.search(r"[\w>][>&*]$", before)


def _calls(code, names):
    for match in re.finditer(r"(?<![\w~])(" + "|".join(names) + r")\s*\(", code):
        if _is_call(code[max(0, match.start() - 300):match.start()]):
            yield match[1], match.start()


def _offences(files, names, patterns, reason):
    for file in files:
        for name, offset in _calls(file.code, names):
            yield f"{file.path}:{file.line_of(offset)}: {name}() {reason}"
        for pattern in patterns:
            for match in re.finditer(pattern, file.code):
                yield f"{file.path}:{file.line_of(match.start())}: {match[0].strip()} {reason}"


def mutating_calls(files):
    """System calls that change the disk, outside of the folders that may make them."""
    names = ("rename", "renameat", "renameat2", "unlink", "unlinkat", "rmdir", "remove", "creat", "mkdir", "mkdirat",
             "mkdtemp", "mkstemp", "mkostemp", "mkfifo", "mkfifoat", "mknod", "mknodat", "link", "linkat", "symlink",
             "symlinkat", "truncate", "ftruncate", "chmod", "fchmodat", "chown", "lchown", "fchownat", "utime",
             "utimes", "utimensat", "setxattr", "lsetxattr", "removexattr", "nftw", "system", "popen", "tmpfile",
             "freopen")
    patterns = (
        r"\b(?:O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND|O_TMPFILE)\b",
        r"\bstd\s*::\s*(?:basic_)?(?:ofstream|fstream|filebuf)\b",
        r"\b(?:filesystem|fs)\s*::\s*(?:remove|remove_all|rename|create_\w+|copy|copy_\w+|resize_file|permissions"
        r"|last_write_time)\b",
        r"\b(?:SYS|__NR)_(?:rename\w*|unlink\w*|rmdir|creat|mkdir\w*|truncate|link\w*|symlink\w*|mknod\w*)\b",
        r"\bQ(?:File|SaveFile|Dir|TemporaryFile|TemporaryDir)\b",
    )
    product = [file for file in files if file.is_product and not file.path.startswith(MAY_CHANGE_FILES)]
    yield from _offences(product, names, patterns, "changes the disk by a path: only Platform/Files and the adapters may")
    for file in product:
        for match in re.finditer(r'\bfopen\s*\([^;]*,\s*"([^"]*[wa+][^"]*)"', file.text):
            line = file.text.count("\n", 0, match.start()) + 1
            yield f'{file.path}:{line}: fopen(..., "{match[1]}") changes the disk by a path'


# Listens to the socket of the desktop's own bus, which is a file of this machine.
LOCAL_SOCKETS = ("PlatformDesktop/BusProbe.cpp",)


def network_calls(files):
    names = ("socket", "socketpair", "accept4", "getaddrinfo", "gethostbyname", "sendto", "recvfrom")
    reason = "reaches for a network"
    patterns = (r"\bQ(?:Network|Tcp|Udp|Ssl|Local(?!e))\w+", r"\bcurl_\w+")
    local = [file for file in files if file.path in LOCAL_SOCKETS]
    yield from _offences(local, ("getaddrinfo", "gethostbyname"), (r"\b[AP]F_(?!UNIX\b)\w+", r"\bsockaddr_(?!un\b)\w+"), reason)
    product = [file for file in files if file.is_product and file not in local]
    with_qt = [file for file in product if not file.path.startswith(WITHOUT_QT)]
    without_qt = [file for file in product if file.path.startswith(WITHOUT_QT)]
    # Qt's own `connect` is never called through the global namespace.
    yield from _offences(with_qt, names, patterns + (r"(?<![\w>])::\s*connect\s*\(",), reason)
    yield from _offences(without_qt, names + ("connect",), patterns, reason)
    for file in product:
        for name, line in includes(file):
            if re.match(r"(sys/socket\.h|netdb\.h|netinet/|arpa/inet\.h|curl/|Q(t?Network|Tcp|Udp|Ssl))", name):
                yield f"{file.path}:{line}: <{name}> {reason}"


def signal_calls(files):
    names = ("kill", "killpg", "tgkill", "tkill", "pidfd_send_signal", "sigqueue", "pthread_kill", "rt_sigqueueinfo")
    patterns = (r"\b(?:SYS|__NR)_(?:kill|tkill|tgkill|pidfd_send_signal|rt_sigqueueinfo)\b",)
    yield from _offences(
        [file for file in files if file.is_product], names, patterns, "sends a signal: other programs are asked, never killed")


def threads_left_behind(files):
    for file in files:
        if file.path.startswith(("Platform/", "CleanerCore/")):
            for match in re.finditer(r"\.\s*detach\s*\(|\bpthread_detach\b", file.code):
                yield f"{file.path}:{file.line_of(match.start())}: a thread would outlive the call that started it"


def unused_names(files):
    """Names that a source file takes from a namespace and never uses."""
    for file in files:
        if file.path.endswith(".cpp"):
            for match in re.finditer(r"^using (?:\w+::)+(\w+);", file.code, re.MULTILINE):
                if len(re.findall(rf"\b{match[1]}\b", file.code)) == 1:
                    yield f"{file.path}:{file.line_of(match.start())}: {match[1]} is not used"


def long_files(texts):
    for path, text in texts:
        lines = text.count("\n")
        if lines > MAXIMUM_LINES and path not in LONG_TABLES and not path.endswith((".md", ".json")):
            yield f"{path}: {lines} lines; a file that passes {MAXIMUM_LINES} hides a second type"


def unfinished_work(texts):
    words = re.compile(r"\b(?:" + "|".join(("TO" + "DO", "FIX" + "ME", "X" + "XX", "HA" + "CK")) + r")\b")
    for path, text in texts:
        for match in words.finditer(text):
            yield f"{path}:{text.count(chr(10), 0, match.start()) + 1}: {match[0]}"
