"""application_tests.py SUITE: the program as people meet it, in a session of its own; checked by ctest."""

import sys
import unittest

from disks_tests import Disks
from ending_tests import Ending
from faults_tests import Faults
from folders_tests import Folders
from lifetime_tests import Lifetime
from names_tests import Names
from no_bus_tests import NoBus
from questions_tests import Questions
from reminders_tests import Reminders
from review_tests import Review
from sections_tests import Sections
from settings_tests import Settings
from tray_tests import Tray

if __name__ == "__main__":
    unittest.main(verbosity=2)
