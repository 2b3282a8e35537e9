"""The structure of the source tree, checked by ctest. Each rule is also shown an offence that it must find."""

import os
import pathlib
import subprocess
import tempfile
import unittest

import headers
import rules
import source_text
from source_text import SourceFile

ROOT = pathlib.Path(os.environ["KARVELLO_SOURCE_DIR"])
PROGRAMS = [program for program in os.environ.get("KARVELLO_PROGRAMS_WITHOUT_QT", "").split(":") if program]


class StructureTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.files = source_text.code_files(ROOT)
        cls.texts = source_text.text_files(ROOT)

    def assert_none(self, offences):
        found = list(offences)
        if found:
            self.fail("\n" + "\n".join(found))

    def assert_finds(self, rule, path, *offending_texts):
        for text in offending_texts:
            self.assertEqual(len(list(rule([SourceFile(path, text)]))), 1, f"{path}: {text}")

    def assert_allows(self, rule, path, *texts):
        for text in texts:
            self.assertEqual(list(rule([SourceFile(path, text)])), [], f"{path}: {text}")


class SourceTree(StructureTest):
    def test_is_found(self):
        paths = {file.path for file in self.files}
        self.assertIn("Platform/Files/FileManager.h", paths)
        self.assertIn("CleanerCore/Scan/StorageScanner.h", paths)
        self.assertTrue(any(path == "Tests/Structure/rules.py" for path, _ in self.texts))
        self.assertTrue(any(path == "test" for path, _ in self.texts))

    def test_is_read_without_comments_and_literals(self):
        text = 'a; // unlink(x)\n/* rmdir\n */ b("kill(1)"); c(\'"\'); d(R"(mkdir(\n))"); e(1\'000\'000); f("\\"g(");'
        code = source_text.without_comments_and_literals(text)
        for word in ("unlink", "rmdir", "kill", "mkdir", "g("):
            self.assertNotIn(word, code)
        for word in ("a;", "b(", "c(", "d(", "e(1'000'000)", "f("):
            self.assertIn(word, code)
        self.assertEqual(code.count("\n"), text.count("\n"))


class Layers(StructureTest):
    def test_no_include_points_upward(self):
        self.assert_none(rules.upward_includes(self.files))

    def test_an_upward_include_is_found(self):
        for path, name in (
                ("Platform/Base/Date.h", "CleanerCore/Scan/ScanReport.h"),
                ("Platform/Base/Date.h", "Platform/Files/FileManager.h"),
                ("CleanerCore/Scan/ScanReport.h", "KarvelloCLI/Options.h"),
                ("KarvelloCLI/Options.h", "KarvelloUI/Sessions/CleanerViewModel.h"),
                ("KarvelloUI/Copy/KarvelloCopy.h", "KarvelloUI/Stores/CleanupIgnoreStore.h"),
                ("KarvelloUI/Sessions/Session.h", "KarvelloMac/KarvelloMacApp.h"),
                ("PlatformDesktop/Tray.h", "CleanerCore/Scan/ScanReport.h"),
                ("CleanerCore/Scan/ScanReport.h", "Tests/Support/TemporaryTree.h")):
            self.assert_finds(rules.upward_includes, path, f'#include "{name}"\n')

    def test_a_downward_include_is_allowed(self):
        for path, name in (
                ("CleanerCore/Scan/ScanReport.h", "Platform/Base/Date.h"),
                ("Platform/Files/FileManager.h", "Platform/Base/Date.h"),
                ("KarvelloCLI/Options.h", "KarvelloUI/Copy/KarvelloCopy.h"),
                ("Tests/CleanerCore/ScanReportTests.cpp", "Tests/Support/TemporaryTree.h")):
            self.assert_allows(rules.upward_includes, path, f'#include "{name}"\n')


class Qt(StructureTest):
    def test_the_engine_includes_none(self):
        self.assert_none(rules.qt_includes(self.files))

    def test_an_include_of_it_is_found(self):
        self.assert_finds(rules.qt_includes, "CleanerCore/Scan/ScanReport.h",
                          "#include <QString>\n", "#include <QtCore/QString>\n", "#include <qglobal.h>\n")
        self.assert_allows(rules.qt_includes, "KarvelloUI/Sessions/Session.h", "#include <QObject>\n")

    def test_the_engine_links_none(self):
        self.assertTrue(PROGRAMS, "no program to look at")
        for program in PROGRAMS:
            linked = subprocess.run(["ldd", program], capture_output=True, text=True, check=True).stdout
            self.assertIn("libc.so", linked)
            self.assert_none(rules.qt_links(program, linked))

    def test_a_link_to_it_is_found(self):
        planted = "\tlibQt6Core.so.6 => /usr/lib/x86_64-linux-gnu/libQt6Core.so.6 (0x00007f)\n\tlibc.so.6 => /lib/libc.so.6\n"
        self.assertTrue(list(rules.qt_links("program", planted)))


class Headers(StructureTest):
    compiler = os.environ.get("KARVELLO_CXX_COMPILER", "c++")
    # Qt insists on code that may stand anywhere. The system's own folder, named once more, would come too early.
    flags = ["-fPIC", "-DQT_GUI_LIB"] + [f"-isystem{folder}" for folder in os.environ.get("KARVELLO_INCLUDES", "").split(":")
                         if folder not in ("", "/usr/include")]

    def test_compile_alone(self):
        self.assert_none(headers.offences(ROOT, headers.to_compile(self.files), self.compiler, self.flags))

    def test_one_that_does_not_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            pathlib.Path(folder, "Good.h").write_text("#pragma once\n#include <string>\nstd::string good();\n")
            pathlib.Path(folder, "Bad.h").write_text("#pragma once\nstd::string bad();\n")
            found = list(headers.offences(folder, ["Good.h", "Bad.h"], self.compiler, self.flags))
            self.assertEqual(len(found), 1)
            self.assertIn("Bad.h does not compile alone", found[0])

    def test_only_what_a_source_file_includes_first_is_proven_by_the_build(self):
        files = [SourceFile("A/First.h", ""), SourceFile("A/Second.h", ""),
                 SourceFile("A/First.cpp", '#include "A/First.h"\n\n#include "A/Second.h"\n')]
        self.assertEqual(headers.to_compile(files), ["A/Second.h"])


class Disk(StructureTest):
    path = "CleanerCore/Scan/StorageScanner.cpp"

    def test_is_changed_only_where_it_may_be(self):
        self.assert_none(rules.mutating_calls(self.files))

    def test_a_change_elsewhere_is_found(self):
        self.assert_finds(
            rules.mutating_calls, self.path, "x = rename(a, b);", "::unlink(path);", "if (std::remove(p) != 0) {",
            "return rmdir(p);", "return ::unlinkat(fd, n, 0);", "open(p, O_WRONLY);", "open(p, O_RDONLY | O_TRUNC);",
            "std::filesystem::remove_all(p);", "fs::rename(a, b);", "std::filesystem::create_directories(p);",
            "std::ofstream file(p);", 'fopen(p, "wb");', "syscall(SYS_renameat2, 1);", "{ mkdir(p, 0700); }",
            "truncate(p, 0);", "!creat(p, 0)", "&& remove(p)", "QFile::remove(p)", "std::system(x);")

    def test_what_only_has_such_a_name_is_allowed(self):
        self.assert_allows(
            rules.mutating_calls, self.path, "list.remove(x);", "list->remove(x);", "void remove(int item);",
            "bool Store::remove(int item)", "std::ranges::remove(v, 1);", "std::remove_if(a, b, c);", "// unlink(p)",
            'print("rmdir(p)");', "open(p, O_RDONLY | O_CLOEXEC);", 'fopen(p, "rb");', "std::ifstream file(p);",
            "std::expected<void, E> rename(const FileURL& a);", "Values& link(int a);", "unlinked(p);", "isLink(p)")
        self.assert_allows(rules.mutating_calls, "Platform/Linux/TrashMover.cpp", "renameat2(a, b, c, d, e);")
        self.assert_allows(rules.mutating_calls, "Tests/Support/TreeRemoval.cpp", "unlinkat(a, b, c);")


class Outside(StructureTest):
    path = "CleanerCore/Relief/ResourceRelief.cpp"

    def test_no_network_is_reached_for(self):
        self.assert_none(rules.network_calls(self.files))

    def test_a_reach_for_the_network_is_found(self):
        self.assert_finds(rules.network_calls, self.path, "int fd = socket(AF_INET, 0, 0);", "::connect(fd, a, b);",
                          "getaddrinfo(a, b, c, d);", "#include <sys/socket.h>\n", "connect(fd, a, b);")
        self.assert_finds(rules.network_calls, "KarvelloUI/Sessions/Session.cpp", "QNetworkAccessManager m;")
        self.assert_finds(rules.network_calls, "KarvelloUI/Sessions/Session.cpp", "QLocalSocket s;")
        self.assert_allows(rules.network_calls, "KarvelloUI/Sessions/Session.cpp", "connect(a, &A::b, this, &C::d);")
        self.assert_allows(rules.network_calls, "KarvelloUI/Sessions/Session.cpp", "QLocale l;")
        self.assert_allows(rules.network_calls, self.path, "std::bind(f)", "values.socket(1)", "bool socket = true;")

    def test_the_socket_of_the_bus_is_of_this_machine(self):
        self.assert_allows(rules.network_calls, "PlatformDesktop/BusProbe.cpp", "x = ::socket(AF_UNIX, SOCK_STREAM, 0);")
        self.assert_finds(rules.network_calls, "PlatformDesktop/BusProbe.cpp", "x = ::socket(AF_INET, SOCK_STREAM, 0);",
                          "sockaddr_in6 place;", "getaddrinfo(a, b, c, d);")

    def test_no_signal_is_sent(self):
        self.assert_none(rules.signal_calls(self.files))

    def test_a_signal_is_found(self):
        self.assert_finds(rules.signal_calls, self.path, "kill(pid, SIGTERM);", "return ::kill(pid, 9);",
                          "syscall(SYS_pidfd_send_signal, fd);", "std::x(); killpg(p, 1);")
        self.assert_allows(rules.signal_calls, self.path, "skill(1);", "job.kill();", "sigaction(SIGINT, &a, nullptr);")

    def test_no_thread_outlives_its_call(self):
        self.assert_none(rules.threads_left_behind(self.files))

    def test_a_detached_thread_is_found(self):
        self.assert_finds(rules.threads_left_behind, self.path, "worker.detach();")


class Files(StructureTest):
    def test_are_short(self):
        self.assert_none(rules.long_files(self.texts))

    def test_a_long_one_is_found(self):
        self.assertEqual(len(list(rules.long_files([("A/B.cpp", "x\n" * 401)]))), 1)
        self.assertEqual(list(rules.long_files([("A/B.cpp", "x\n" * 400)])), [])

    def test_use_the_names_that_they_take(self):
        self.assert_none(rules.unused_names(self.files))

    def test_an_unused_name_is_found(self):
        self.assert_finds(rules.unused_names, "CleanerCore/Scan/A.cpp", "using std::string;\nvoid f();")
        self.assert_allows(rules.unused_names, "CleanerCore/Scan/A.cpp", "using std::string;\nvoid f(string);")

    def test_hold_finished_work(self):
        self.assert_none(rules.unfinished_work(self.texts))

    def test_unfinished_work_is_found(self):
        for word in ("TO" + "DO", "FIX" + "ME", "X" + "XX", "HA" + "CK"):
            self.assertEqual(len(list(rules.unfinished_work([("A/B.cpp", f"// {word}: later\n")]))), 1)
        self.assertEqual(list(rules.unfinished_work([("A/B.cpp", "mkdtemp(-XXXXXX), hackney")])), [])


if __name__ == "__main__":
    unittest.main(verbosity=0)
