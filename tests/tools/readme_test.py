"""The programs in README.md are the ones that are compiled and run as examples."""
import re
import unittest

import scripts


class Readme(unittest.TestCase):
    text = (scripts.ROOT / "README.md").read_text(encoding="utf-8")

    def test_the_first_program_is_the_first_example(self):
        programs = re.findall(r"```cpp\n(.*?)```", self.text, re.S)
        self.assertEqual(programs, [(scripts.ROOT / "examples" / "00_first_host.cpp").read_text(encoding="utf-8")])

    def test_every_file_that_it_names_is_there(self):
        for name in re.findall(r"\]\(([^)#:]+)\)", self.text):
            with self.subTest(name):
                self.assertTrue((scripts.ROOT / name).exists())


if __name__ == "__main__":
    unittest.main()
