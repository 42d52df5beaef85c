import unittest

import scripts

layers = scripts.load("layers")

BASE = {
    "varnel/contracts/A.h": "#include <string>\n",
    "varnel/loads/L.h": '#include "varnel/contracts/A.h"\n',
    "varnel/results/R.h": "",
    "varnel/process/P.h": '#include "varnel/loads/L.h"\n',
}


def errors(path, *lines, allowed=()):
    text = "".join(f"#include {line}\n" for line in lines)
    return layers.check({**BASE, path: text}, {arrow: "needed" for arrow in allowed})


class Arrows(unittest.TestCase):
    def test_headers_include_downwards(self):
        self.assertEqual(layers.check(BASE, {}), [])
        self.assertEqual(errors("varnel/model/M.h", '"varnel/results/R.h"', '"varnel/contracts/A.h"', "<map>"), [])

    def test_headers_do_not_include_upwards_nor_their_peers(self):
        self.assertEqual(len(errors("varnel/geometry/G.h", '"varnel/loads/L.h"')), 1)
        self.assertEqual(len(errors("varnel/loads/M.h", '"varnel/results/R.h"')), 1)
        self.assertEqual(errors("varnel/loads/M.h", '"varnel/loads/L.h"'), [])

    def test_sources_include_upwards_but_nothing_outside_the_library(self):
        self.assertEqual(errors("varnel/geometry/G.cpp", '"varnel/process/P.h"'), [])
        for outside in ('"tests/support/T.h"', '"varnel/geometry/Missing.h"', "<gtest/gtest.h>", "<unistd.h>", '"varnel/varnel.h"'):
            with self.subTest(outside):
                self.assertEqual(len(errors("varnel/geometry/G.cpp", outside)), 1)

    def test_platform_headers_stay_in_the_platform_files(self):
        self.assertEqual(errors("varnel/exchange/FileSystemPosix.cpp", "<unistd.h>"), [])

    def test_a_circle_is_told(self):
        self.assertTrue(any("includes itself" in error for error in errors("varnel/contracts/A.h", '"varnel/contracts/A.h"')))

    def test_includes_in_comments_do_not_count(self):
        texts = {"varnel/geometry/G.h": '// #include "varnel/process/P.h"\n/*\n#include "varnel/model/M.h"\n*/\n'}
        self.assertEqual(layers.check(texts, {}), [])

    def test_an_exception_holds_only_while_it_is_needed(self):
        arrow = "varnel/loads/M.h>varnel/results/R.h"
        self.assertEqual(errors("varnel/loads/M.h", '"varnel/results/R.h"', allowed=[arrow]), [])
        self.assertEqual(len(errors("varnel/loads/M.h", allowed=[arrow])), 1)


if __name__ == "__main__":
    unittest.main()
