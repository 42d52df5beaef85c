import unittest

import scripts

cxx_text = __import__("cxx_text")
sizes = scripts.load("sizes")


def found(text):
    return [(name, lines) for name, _, lines in sizes.functions(cxx_text.without_literals(text))]


class Functions(unittest.TestCase):
    def test_free_member_and_nested_functions_are_found_with_their_lines(self):
        self.assertEqual(found("namespace a {\n\nint one() { return 1; }\n\ntemplate <class T>\nint two(\n    T x) {\n"
                               "    if (x) {\n        return 2;\n    }\n    return 1;\n}\n\n}  // namespace a\n"),
                         [("one", 1), ("two", 8)])
        self.assertEqual(found("class A : public B {\n  public:\n    A() {\n    }\n    ~A() override { reset(); }\n"
                               "    bool operator()(int x) const noexcept { return x; }\n"
                               "    A &operator=(const A &other) {\n        return *this;\n    }\n"
                               "  private:\n    int x_ = 0;\n    std::list<int> y_{1, 2};\n};\n"),
                         [("A", 2), ("~A", 1), ("operator()", 1), ("operator=", 3)])

    def test_a_constructor_with_members_in_braces_is_one_function(self):
        self.assertEqual(found("A::A(int x)\n    : Base(x), a_{x}, b_{x, 1},\n      c_(2) {\n    run();\n}\n"), [("A", 5)])
        self.assertEqual(found("A::A() : a_{1} {\n    run();\n}\n"), [("A", 3)])

    def test_values_and_types_are_no_functions(self):
        self.assertEqual(found("const std::map<int, int> table = {\n    {1, 2},\n    {3, 4},\n};\n"
                               "struct { int x; } rows[] = {{f(1)}, {2}};\nenum E : int { A = f(1), B };\n"
                               "constexpr Word words[]{{1}, {2}};\nstd::ostream dead{nullptr};\nint f(A a = {}, B b = B{});\n"),
                         [])

    def test_lambdas_belong_to_their_function_and_braces_in_text_do_not_count(self):
        self.assertEqual(found('void f() {\n    auto g = [](int x) {\n        return x;\n    };\n    g(\'{\');\n    h("}}", R"({)");\n'
                               "    // }\n    /* } */\n}\nvoid g() {}\n"),
                         [("f", 9), ("g", 1)])

    def test_a_function_that_answers_a_struct_is_one(self):
        self.assertEqual(found("struct A f(int x) {\n    return {};\n}\n"), [("f", 3)])

    def test_test_cases_bear_their_names(self):
        self.assertEqual(found("TEST(VarnelHole, IsBornUnchanged) {\n    run();\n}\nTEST_F(A, B) {}\n"),
                         [("VarnelHole.IsBornUnchanged", 3), ("A.B", 1)])

    def test_digit_separators_and_preprocessor_lines_are_harmless(self):
        self.assertEqual(found("#define OPEN {\n#if defined(X) && \\\n    Y\n#endif\nint f() { return 1'000'000; }\nint g() { return 2; }\n"),
                         [("f", 1), ("g", 1)])


class Budgets(unittest.TestCase):
    def test_the_budget_depends_on_what_it_is(self):
        rows = sizes.measure("varnel/a.h", "int f() {\n}\n")
        self.assertEqual([(name, lines, budget) for name, lines, budget, _ in rows],
                         [("varnel/a.h", 2, 300), ("varnel/a.h:f", 2, 60)])
        self.assertEqual(sizes.measure("varnel/a.cpp", "\n" * 601)[0][1:3], (601, 600))


if __name__ == "__main__":
    unittest.main()
