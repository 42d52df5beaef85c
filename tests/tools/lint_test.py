import unittest

import scripts

lint = scripts.load("lint")
GUARD = "#ifndef VARNEL_MODEL_A_H\n#define VARNEL_MODEL_A_H\n%s\n#endif\n"


class Rules(unittest.TestCase):
    def test_the_library_neither_prints_nor_ends_nor_touches_the_locale(self):
        for line in ("std::cout << 1;", 'printf("x");', "std::cin >> x;", "std::exit(1);", "abort();", 'setlocale(LC_ALL, "");',
                     "std::locale::global(x);"):
            with self.subTest(line):
                self.assertEqual(len(lint.rule_errors("varnel/model/A.cpp", line)), 1)
                self.assertEqual(lint.rule_errors("varnel/model/A.cpp", f"// {line}\n"), [])
                self.assertEqual(lint.rule_errors("tests/model/ATest.cpp", line), [])

    def test_the_error_handler_may_print(self):
        self.assertEqual(lint.rule_errors("varnel/process/VarnelErrorHandler.cpp", "std::cout << 1;"), [])

    def test_members_that_bear_such_names_are_no_matter(self):
        self.assertEqual(lint.rule_errors("varnel/model/A.cpp", "run.abort(); run->exit(1); do_printf(1);"), [])

    def test_headers_have_their_guard_and_no_other_macro(self):
        self.assertEqual(lint.rule_errors("varnel/model/A.h", GUARD % "int x;"), [])
        self.assertEqual(len(lint.rule_errors("varnel/model/B.h", GUARD % "")), 1)
        self.assertEqual(len(lint.rule_errors("varnel/model/A.h", GUARD % "#define MAXIMUM(a, b) 1")), 1)
        self.assertEqual(len(lint.rule_errors("varnel/model/A.h", GUARD % "using namespace std;")), 1)

    def test_nothing_is_left_unfinished_or_switched_off(self):
        self.assertEqual(len(lint.rule_errors("varnel/model/A.cpp", "int x;\n// TO" "DO: finish\n")), 1)
        self.assertEqual(len(lint.rule_errors("tests/model/ATest.cpp", "TEST(A, DIS" "ABLED_B) {}")), 1)


if __name__ == "__main__":
    unittest.main()
