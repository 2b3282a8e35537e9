"""What is installed beside the programs, checked by ctest."""

import configparser
import os
import pathlib
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

import man_pages
import qml_packages

ROOT = pathlib.Path(os.environ["KARVELLO_SOURCE_DIR"])
VERSION = os.environ["KARVELLO_VERSION"]
CLI = os.environ["KARVELLO_CLI_PROGRAM"]
APPLICATION = os.environ.get("KARVELLO_PROGRAM")
PACKAGING = ROOT / "Packaging"
ID = "io.github.karvello.Karvello"
# The languages as desktops name them, and as our page of texts does.
LANGUAGES = {"ko": "ko", "ja": "ja", "zh_CN": "zh-Hans", "zh_TW": "zh-Hant", "es": "es", "fr": "fr", "de": "de"}
LANGUAGE_ATTRIBUTE = "{http://www.w3.org/XML/1998/namespace}lang"


def output(*command, **options):
    result = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                            **options)
    return result.returncode, result.stdout


def launch_destinations():
    header = (ROOT / "KarvelloUI/Stores/KarvelloDashboardLaunchRequest.h").read_text()
    names = re.search(r"enum class KarvelloDashboardLaunchDestination[^{]*\{([^}]*)\}", header)[1]
    return {name.strip() for name in names.split(",")}


def section_titles(section):
    """The title of a section of the dashboard in each language."""
    page = (ROOT / "Tests/Golden/copy.txt").read_text()
    block = re.search(rf"^macDashboardSectionTitle {section}\n((?:  .*\n)+)", page, re.MULTILINE)[1]
    return dict(line.split(maxsplit=1) for line in block.splitlines())


def runtime_packages():
    return set(re.search(r"^runtime:(.*)$", (ROOT / "scripts/packages.txt").read_text(), re.MULTILINE)[1].split())


class DesktopFiles(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.file = PACKAGING / f"desktop/{ID}.desktop"
        cls.entry = configparser.ConfigParser(interpolation=None, strict=True)
        cls.entry.optionxform = str
        cls.entry.read(cls.file, encoding="utf-8")
        cls.metainfo = xml.etree.ElementTree.parse(PACKAGING / f"desktop/{ID}.metainfo.xml").getroot()

    def test_the_entry_is_valid(self):
        code, complaints = output("desktop-file-validate", "--no-hints", self.file)
        self.assertEqual((code, complaints), (0, ""))

    def test_the_metadata_is_valid(self):
        code, complaints = output("appstreamcli", "validate", "--no-net", PACKAGING / f"desktop/{ID}.metainfo.xml")
        self.assertEqual(code, 0, complaints)

    def test_one_id_names_all(self):
        self.assertEqual(self.entry["Desktop Entry"]["Icon"], ID)
        self.assertEqual(self.metainfo.findtext("id"), ID)
        self.assertEqual(self.metainfo.findtext("launchable"), f"{ID}.desktop")
        self.assertEqual(self.metainfo.findtext("provides/dbus"), ID)
        self.assertIn(f"\nName={ID}\n", (PACKAGING / f"desktop/{ID}.service.in").read_text())

    def test_every_language_is_there(self):
        for key in ("GenericName", "Comment", "Keywords"):
            texts = [self.entry["Desktop Entry"][name] for name in (key, *(f"{key}[{code}]" for code in LANGUAGES))]
            self.assertEqual(len(set(texts)), len(LANGUAGES) + 1, key)
        summaries = {summary.get(LANGUAGE_ATTRIBUTE): summary.text for summary in self.metainfo.findall("summary")}
        self.assertEqual(set(summaries), {None, *LANGUAGES})
        self.assertEqual(len(set(summaries.values())), len(LANGUAGES) + 1)

    def test_actions_open_what_they_are_called(self):
        actions = {"open-cleanup": ("cleanupReview", "cleanup"), "open-memory": ("memoryReview", "memoryAnalysis"),
                   "open-system": ("systemReview", "system")}
        self.assertEqual(self.entry["Desktop Entry"]["Actions"], "".join(f"{name};" for name in actions))
        for name, (destination, section) in actions.items():
            action = self.entry[f"Desktop Action {name}"]
            self.assertIn(destination, launch_destinations())
            self.assertEqual(action["Exec"], f"karvello --open {destination}")
            titles = section_titles(section)
            self.assertEqual(action["Name"], titles["en"])
            for code, language in LANGUAGES.items():
                self.assertEqual(action[f"Name[{code}]"], titles[language], f"{name}, {code}")

    def test_every_page_tells_this_version(self):
        self.assertEqual(self.metainfo.find("releases/release").get("version"), VERSION)
        changelog = (PACKAGING / "debian/changelog").read_text()
        self.assertTrue(changelog.startswith(f"karvello ({VERSION}-1) "), changelog)
        for page in (PACKAGING / "man").iterdir():
            self.assertIn(f'"Karvello {VERSION}"', page.read_text().splitlines()[0], page.name)


class Icons(unittest.TestCase):
    def drawings(self):
        return {file.name: xml.etree.ElementTree.parse(file).getroot() for file in (PACKAGING / "icons").glob("*.svg")}

    def test_use_only_what_every_reader_of_svg_draws(self):
        plain = {"svg", "title", "g", "rect", "circle", "path"}
        drawings = self.drawings()
        self.assertEqual(len(drawings), 3)
        for name, drawing in drawings.items():
            used = {element.tag.split("}")[1] for element in drawing.iter()}
            self.assertLessEqual(used, plain, name)

    def test_the_symbolic_one_is_filled_in_one_colour(self):
        drawing = self.drawings()[f"{ID}-symbolic.svg"]
        self.assertEqual(drawing.get("viewBox"), "0 0 16 16")
        self.assertEqual({element.get("fill") for element in drawing.iter()} - {None}, {"#2e3436"})
        self.assertEqual([element for element in drawing.iter() if element.get("stroke")], [])


class ManPages(unittest.TestCase):
    def test_are_without_complaint(self):
        pages = sorted((PACKAGING / "man").glob("*.1"))
        self.assertEqual(len(pages), 2)
        self.assertEqual(output("mandoc", "-T", "lint", *pages), (0, ""))

    def test_every_option_of_the_command_line_stands_in_its_page_and_no_other(self):
        page = man_pages.sections(man_pages.rendered(PACKAGING / "man/karvello-cli.1"))
        common = man_pages.page_options(page["OPTIONS OF EVERY COMMAND"])
        overview = output(CLI, "--help")[1]
        self.assertLessEqual(man_pages.help_options(overview), common)
        commands = man_pages.commands(overview)
        self.assertIn("scan", commands)
        for command in commands:
            told = common | man_pages.page_options(page[command])
            if command == "clean":
                told |= man_pages.page_options(page["scan"])
            self.assertEqual(told, man_pages.help_options(output(CLI, command, "--help")[1]), command)

    def test_the_page_of_the_application_tells_every_destination(self):
        text = man_pages.rendered(PACKAGING / "man/karvello.1")
        for destination in launch_destinations():
            self.assertRegex(text, rf"\b{destination}\b")

    if APPLICATION:
        def test_every_option_of_the_application_stands_in_its_page(self):
            page = man_pages.rendered(PACKAGING / "man/karvello.1")
            code, text = output(APPLICATION, "--help", env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
            self.assertEqual(code, 0, text)
            options = set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", text))
            self.assertLessEqual({"--open", "--version"}, options)
            for option in options:
                self.assertIn(option, page)


class QmlPackages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = output(os.environ["KARVELLO_QMAKE"], "-query", "QT_INSTALL_QML")[1].strip()
        screens = [file for file in ROOT.glob("*/**/*.qml")
                   if file.relative_to(ROOT).parts[0] not in ("build", "Tests")]
        cls.modules = set().union(*(qml_packages.imported_modules(file.read_text()) for file in screens))

    def missing(self, modules, packages):
        return list(qml_packages.missing_packages(modules, self.folder, packages))

    def test_every_module_that_screens_import_is_in_a_package_that_ours_depends_on(self):
        self.assertIn("QtQuick", self.modules)
        self.assertEqual(self.missing(self.modules, runtime_packages()), [])

    def test_imports_are_found(self):
        text = 'import QtQuick\n  import QtQuick.Templates as T\nimport Karvello.Design\nimport "x.js" as X\n'
        self.assertEqual(qml_packages.imported_modules(text), {"QtQuick", "QtQuick.Templates"})

    def test_a_package_that_is_not_listed_is_found(self):
        for package in ("qml6-module-qtquick-shapes", "qml6-module-qtquick"):
            offences = self.missing({"QtQuick.Shapes"}, runtime_packages() - {package})
            self.assertEqual(len(offences), 1)
            self.assertIn(f"{package}:", offences[0])

    def test_a_module_without_a_package_is_found(self):
        self.assertEqual(len(self.missing({"QtQuick.Nowhere"}, runtime_packages())), 1)


class Installation(unittest.TestCase):
    PICTURE_SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.with_application = cls.package("with", "ON")
        cls.without_application = cls.package("without", "OFF")

    @classmethod
    def package(cls, name, with_application):
        cmake = os.environ["KARVELLO_CMAKE"]
        build = pathlib.Path(cls.folder.name, name)
        for command in (
            [cmake, "-S", ROOT / "Tests/Packaging/Installation", "-B", build, "-DCMAKE_INSTALL_PREFIX=/usr",
             "-DCMAKE_BUILD_TYPE=Release", f"-DKARVELLO_VERSION={VERSION}", f"-DWITH_APPLICATION={with_application}"],
            [cmake, "--build", build, "--target", "karvello-installed"],
            [pathlib.Path(cmake).with_name("cpack"), "--config", build / "CPackConfig.cmake", "-B", build / "package"],
        ):
            code, text = output(*command)
            if code:
                raise AssertionError(text)
        package, = (build / "package").glob("*.deb")
        return package

    def files(self, package):
        listing = output("dpkg-deb", "--contents", package)[1]
        return {line.split()[-1].removeprefix("."): line.split()[:2] for line in listing.splitlines()
                if not line.startswith("d")}

    def field(self, package, name):
        return output("dpkg-deb", "--field", package, name)[1].strip()

    def test_programs_and_what_desktops_know_of_them_lie_where_desktops_look(self):
        files = self.files(self.with_application)
        expected = {
            "/usr/bin/karvello", "/usr/bin/karvello-cli", "/usr/share/karvello/distribution.json",
            f"/usr/share/applications/{ID}.desktop", f"/usr/share/dbus-1/services/{ID}.service",
            f"/usr/share/metainfo/{ID}.metainfo.xml", f"/usr/share/icons/hicolor/scalable/apps/{ID}.svg",
            f"/usr/share/icons/hicolor/symbolic/apps/{ID}-symbolic.svg", "/usr/share/man/man1/karvello.1.gz",
            "/usr/share/man/man1/karvello-cli.1.gz", "/usr/share/doc/karvello/changelog.Debian.gz",
            *(f"/usr/share/icons/hicolor/{size}x{size}/apps/{ID}.png" for size in self.PICTURE_SIZES)}
        self.assertEqual(set(files), expected)
        for path, (mode, owner) in files.items():
            self.assertEqual(mode, "-rwxr-xr-x" if path.startswith("/usr/bin/") else "-rw-r--r--", path)
            self.assertEqual(owner, "root/root", path)

    def test_the_bus_starts_the_installed_program(self):
        with tempfile.TemporaryDirectory() as root:
            self.assertEqual(output("dpkg-deb", "--extract", self.with_application, root), (0, ""))
            service = pathlib.Path(root, f"usr/share/dbus-1/services/{ID}.service").read_text()
            self.assertEqual(service.splitlines(), ["[D-BUS Service]", f"Name={ID}", "Exec=/usr/bin/karvello"])
            for size in self.PICTURE_SIZES:
                picture = pathlib.Path(root, f"usr/share/icons/hicolor/{size}x{size}/apps/{ID}.png").read_bytes()
                self.assertEqual(int.from_bytes(picture[16:20], "big"), size)

    def test_the_package_is_named_and_depends_on_what_runs_it(self):
        self.assertRegex(self.with_application.name, rf"^karvello_{re.escape(VERSION)}-1_\w+\.deb$")
        self.assertEqual(self.field(self.with_application, "Section"), "utils")
        depends = set(re.findall(r"[^,|\s]+(?=\s*(?:\(|,|$))", self.field(self.with_application, "Depends")))
        self.assertLessEqual(runtime_packages() | {"libc6"}, depends)
        self.assertIn("qt6-wayland", self.field(self.with_application, "Recommends"))
        self.assertIn("gnome-shell-extension-appindicator", self.field(self.with_application, "Suggests"))

    def test_without_the_application_no_desktop_hears_of_it(self):
        self.assertEqual(set(self.files(self.without_application)), {
            "/usr/bin/karvello-cli", "/usr/share/karvello/distribution.json", "/usr/share/man/man1/karvello-cli.1.gz",
            "/usr/share/doc/karvello/changelog.Debian.gz"})
        self.assertNotIn("qml6", self.field(self.without_application, "Depends"))


if __name__ == "__main__":
    unittest.main(verbosity=0)
