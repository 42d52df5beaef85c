"""Runs the command-line tool as its users do. VARNEL_TOOL names the program."""
import json
import os
import pathlib
import re
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
HOUSE = ROOT / "examples" / "documents" / "house.xml"
EVERYTHING = ROOT / "tests" / "documents" / "everything.xml"
OLDER = ROOT / "tests" / "documents" / "older_forms.xml"
DOCUMENTS = (HOUSE, EVERYTHING, OLDER)
COMMANDS = ("show", "check", "rewrite")
CLEAN, FINDINGS, FAILED = 0, 1, 2


def run(*arguments, **options):
    done = subprocess.run([os.environ["VARNEL_TOOL"], *map(os.fsencode, arguments)], capture_output=True, stdin=subprocess.DEVNULL,
                          timeout=60, **options)
    return done.returncode, done.stdout.decode("utf-8"), done.stderr.decode("utf-8", "replace")


def plate(number, content="", attributes=""):
    return f'<PLATE NUMBER="{number}" NAME="p{number}" {attributes}><RECTAN WIDTH="2" HEIGHT="3"><POS/></RECTAN>{content}</PLATE>'


def project(content, before=""):
    return f'<VARNEL>{before}<SUBSYSTEM NAME="System">{content}</SUBSYSTEM></VARNEL>'


class ToolTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def file(self, content, name="document.xml"):
        path = self.folder / name
        path.write_bytes(content if isinstance(content, bytes) else content.encode("utf-8"))
        return path

    def check(self, content):
        code, out, err = run("check", self.file(content))
        self.assertEqual(err, "")
        self.assertEqual(code, FINDINGS if out else CLEAN)
        return out.splitlines()

    def assert_fails(self, *arguments, says=""):
        code, out, err = run(*arguments)
        self.assertEqual((code, out), (FAILED, ""))
        self.assertRegex(err, r"\Avarnel: [^\n]+\n\Z")
        self.assertIn(says, err)


class CommandLine(ToolTest):
    def test_help_has_an_example_of_each_command(self):
        for arguments in (["--help"], *([command, "--help"] for command in COMMANDS)):
            code, out, err = run(*arguments)
            self.assertEqual((code, err), (CLEAN, ""))
            for command in COMMANDS if len(arguments) == 1 else arguments[:1]:
                self.assertIn(f"  varnel {command} " if len(arguments) == 1 else f"Example: varnel {command} ", out)

    def test_the_guide_shows_what_is_printed(self):
        text = (ROOT / "docs" / "command-line.md").read_text(encoding="utf-8")
        shown = re.findall(r"^    \$ varnel (\w+ (?:examples|tests)/\S+)\n((?:(?:    .*)?\n)*)", text, re.M)
        self.assertEqual(len(shown), 2)
        for command, printed in shown:
            with self.subTest(command):
                self.assertEqual(re.sub(r"^    ", "", printed, flags=re.M).strip(), run(*command.split(), cwd=ROOT)[1].strip())

    def test_the_version_is_that_of_the_library(self):
        version = re.search(r"project\(varnel VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text()).group(1)
        self.assertEqual(run("--version"), (CLEAN, f"varnel {version}\n", ""))

    def test_a_wrong_command_line_is_one_line(self):
        for arguments in ([], ["paint", HOUSE], ["show"], ["check", HOUSE, HOUSE], ["rewrite", "--loud", HOUSE]):
            with self.subTest(arguments):
                self.assert_fails(*arguments, says="--help")

    def test_what_cannot_be_read_or_is_no_document_fails_in_one_line(self):
        house = HOUSE.read_bytes()
        self.file(house[:5000], "cut.xml")
        self.file("", "empty.xml")
        self.file("\n \n", "blank.xml")
        self.file("<OTHER/>", "other.xml")
        self.file("plain", "text.xml")
        self.file(b"\0\xff", "binary.xml")
        rows = (("cut.xml", "line 152, column 21"), ("empty.xml", "is empty"), ("blank.xml", "is empty"), ("other.xml", '"OTHER"'),
                ("text.xml", "line 1, column 1"), ("binary.xml", ""), (".", "directory"), ("missing.xml", "cannot be opened"),
                ("two\nlines.xml", "two\\nlines.xml"), ("", "cannot be opened"))
        for name, says in rows:
            for command in COMMANDS:
                with self.subTest((command, name)):
                    self.assert_fails(command, self.folder / name if name else "", says=says)

    def test_paths_have_any_characters(self):
        for name in ("a b.xml", "\u00fc\u732b.xml", "check", "show", "-x.xml", "a'\"$*%[1].xml", "two\nlines", b"\xff\xfe.xml"):
            path = os.fsencode(self.folder) + b"/" + os.fsencode(name)
            with open(path, "wb") as file:
                file.write(HOUSE.read_bytes())
            for command in COMMANDS:
                with self.subTest((command, name)):
                    self.assertEqual(run(command, path)[::2], (CLEAN, ""))
                    self.assertEqual(run(command, "--", name, cwd=self.folder)[::2], (CLEAN, ""))
            self.assertEqual(run("show", "--json", path)[0], CLEAN)
            os.remove(path)
        self.assertEqual(os.listdir(self.folder), [])

    def test_output_that_finds_no_room_is_a_failure(self):
        if not os.path.exists("/dev/full"):
            return
        with open("/dev/full", "wb") as full:
            done = subprocess.run([os.environ["VARNEL_TOOL"], "show", HOUSE], stdout=full, stderr=subprocess.PIPE, timeout=60)
        self.assertEqual((done.returncode, done.stderr), (FAILED, b"varnel: the output cannot be written\n"))


def text_tables(out):
    """{heading: {first cell: {column: cell}}}; columns are two blanks apart, those of the first row."""
    tables = {}
    for block in out.strip("\n").split("\n\n"):
        rows = [re.split(r" {2,}", line.strip()) for line in block.splitlines()]
        tables[rows[0][0]] = {row[0]: dict(zip(rows[0][1:], row[1:])) for row in rows[1:]}
    return tables


HEADINGS = {
    "Objects": {"plates": "plates", "beams": "beams", "holes": "holes", "point supports": "point_supports",
                "line supports": "line_supports", "supported edges": "supported_edges", "gaps": "gaps", "groups": "groups",
                "result sections": "result_sections"},
    "Loads": {"point loads": "point_loads", "line loads": "line_loads", "area loads": "area_loads", "loads of plates": "plate_loads"},
    "Measures": {"plates m2": "plate_area_m2", "plates m3": "plate_volume_m3", "beams m": "beam_length_m",
                 "beams m3": "beam_volume_m3", "weight kN": "weight_kn"},
}


class Show(ToolTest):
    def both(self, path):
        code, out, err = run("show", path)
        self.assertEqual((code, err), (CLEAN, ""))
        code, told, err = run("show", path, "--json")
        self.assertEqual((code, err), (CLEAN, ""))
        return text_tables(out), json.loads(told)

    def assert_row(self, row, columns, values):
        self.assertEqual(set(row), set(columns))
        for heading, key in columns.items():
            decimals = 3 if "_m" in key or "_kn" in key else 0
            self.assertEqual(row[heading], f"{values[key]:.{decimals}f}", heading)

    def assert_node(self, tables, node):
        for heading, columns in HEADINGS.items():
            self.assert_row(tables[heading][node["name"]], columns, node)
        for child in node["children"]:
            self.assert_node(tables, child)

    def test_text_and_json_agree(self):
        for path in DOCUMENTS:
            with self.subTest(path.name):
                tables, told = self.both(path)
                self.assertEqual(told["file"], str(path))
                self.assert_node(tables, told["subsystem"])
                for heading, columns in HEADINGS.items():
                    self.assert_row(tables[heading].get("(all)", tables[heading]["System"]), columns, told["total"])
                for heading, key in (("Materials", "materials"), ("Cross-sections", "cross_sections"), ("Foundations", "foundations")):
                    self.assertEqual({name: int(row["uses"]) for name, row in tables.get(heading, {}).items()},
                                     {use["name"]: use["uses"] for use in told[key]})
                for case in told["load_cases"]:
                    row = tables["Case"]["-" if case["number"] is None else str(case["number"])]
                    if case["name"]:
                        self.assertEqual(row["name"], case["name"])
                        self.assertEqual([row[f"{axis} kN"] for axis in "xyz"], [f"{case['force_kn'][axis]:.3f}" for axis in "xyz"])

    def test_the_house_by_hand(self):
        tables, told = self.both(HOUSE)
        total = told["total"]
        self.assertEqual([total[key] for key in ("plates", "beams", "point_supports", "line_supports", "supported_edges")], [2, 2, 2, 2, 2])
        ceiling, ground = 12 * 6, 12 * 6 + 5 * 3.5
        self.assertAlmostEqual(total["plate_area_m2"], ceiling + ground)
        self.assertAlmostEqual(total["plate_volume_m3"], ceiling * 0.22 + ground * 0.3)
        self.assertAlmostEqual(total["beam_length_m"], 8)
        self.assertAlmostEqual(total["beam_volume_m3"], 8 * 0.3 * 0.5)
        self.assertAlmostEqual(total["weight_kn"], 25 * (ceiling * 0.22 + ground * 0.3 + 1.2))
        forces = {case["number"]: case["force_kn"] for case in told["load_cases"]}
        self.assertEqual({number: (force["x"], force["y"]) for number, force in forces.items()}, dict.fromkeys((1, 2, 3), (0, 0)))
        self.assertAlmostEqual(forces[1]["z"], 35 + 4.2 * 4 + 1.5 * ceiling)
        self.assertAlmostEqual(forces[2]["z"], 2 * ceiling + 3.5 * ground)
        self.assertAlmostEqual(forces[3]["z"], 0.85 * 18)
        self.assertEqual([use["name"] for use in told["materials"]], ["C25/30", "C25/30 ceiling", "C30/37"])
        self.assertEqual(told["cross_sections"], [{"name": "R 30/50", "uses": 2}])
        self.assertEqual(told["foundations"], [{"name": "gravel", "uses": 1}])

    def test_the_tree_of_subsystems(self):
        tower = self.both(EVERYTHING)[1]["subsystem"]["children"]
        self.assertEqual([(node["name"], node["offset_m"]["y"]) for node in tower], [("Tower", 20)])
        self.assertEqual([node["name"] for node in tower[0]["children"]], ["Cabin"])
        lines = run("show", EVERYTHING)[1].splitlines()
        self.assertEqual([line.split()[0] for line in lines[1:5]], ["System", "Tower", "Cabin", "(all)"])
        self.assertTrue(lines[2].startswith("  Tower ") and lines[3].startswith("    Cabin "))

    def test_loads_without_a_case_have_a_row_of_their_own(self):
        path = self.file(project('<POINTLOADS><POINTLOAD NUMBER="1"><FORCE><X>1</X><Z>-2</Z></FORCE></POINTLOAD></POINTLOADS>'))
        tables, told = self.both(path)
        self.assertEqual(told["load_cases"], [{"number": None, "name": "no load case", "force_kn": {"x": 1, "y": 0, "z": -2}}])
        self.assertEqual(tables["Case"]["-"], {"name": "no load case", "x kN": "1.000", "y kN": "0.000", "z kN": "-2.000"})

    def test_local_loads_count_in_global_directions(self):
        line = '<LINE TYPE="STRAIGHT"><START/><END><Y>4</Y></END></LINE><FORCEA><X>1</X></FORCEA><FORCEE><X>3</X></FORCEE>'
        force = {}
        for kind in (0, 1):
            load = f'<LINELOAD TYPE="{kind}">{line}<LOCSYS><Z>1</Z></LOCSYS></LINELOAD>'
            force[kind] = self.both(self.file(project(f"<LINELOADS>{load}</LINELOADS>")))[1]["load_cases"][0]["force_kn"]
        self.assertEqual(force, {0: {"x": 8, "y": 0, "z": 0}, 1: {"x": 0, "y": 8, "z": 0}})

    def test_an_unknown_material_fails_with_its_place(self):
        path = self.file(project(f"<PLATES>{plate(1)}{plate(2, '<CONCRETE>C99</CONCRETE>')}</PLATES>"))
        self.assert_fails("show", path, says='material not found: "C99" at /VARNEL/SUBSYSTEM/PLATES/PLATE[2]/CONCRETE')

    def test_names_do_not_break_the_lines(self):
        materials = '<MATERIALS><MATERIAL NAME="a&#10;b" KIND="CONCRETE" RHO="1" GAMMA="1"/></MATERIALS>'
        path = self.file(project(f"<PLATES>{plate(1, '<CONCRETE>a&#10;b</CONCRETE>')}</PLATES>", materials))
        code, out, _ = run("show", path)
        self.assertEqual(code, CLEAN)
        self.assertIn("a\\nb", out)
        self.assertEqual(self.both(path)[1]["materials"], [{"name": "a\nb", "uses": 1}])

    def test_numbers_that_are_none_are_null(self):
        path = self.file(project(f"<PLATES>{plate(1, '', 'THICK=' + chr(34) + 'nan' + chr(34))}</PLATES>"))
        self.assertIsNone(json.loads(run("show", "--json", path)[1])["total"]["plate_volume_m3"])


class Check(ToolTest):
    def test_the_house_is_clean(self):
        self.assertEqual(run("check", HOUSE), (CLEAN, "", ""))

    def test_what_the_library_does_not_know_is_told_by_its_place(self):
        found = self.check(project(f'<PLATES>{plate(1)}{plate(2, "<COLOR><RED/></COLOR>", "OWNER=" + chr(34) + "me" + chr(34))}</PLATES>'
                                   "<ROOF/>", '<SETTINGS><THEME/></SETTINGS><FOREIGN KEPT="1"/>'))
        self.assertEqual(found, ["lost when saved: /VARNEL/SETTINGS/THEME",
                                 "lost when saved: /VARNEL/SUBSYSTEM/PLATES/PLATE[2]/@OWNER",
                                 "lost when saved: /VARNEL/SUBSYSTEM/PLATES/PLATE[2]/COLOR"])

    def test_what_was_calculated_is_lost_and_older_forms_are_not(self):
        found = run("check", EVERYTHING)[1]
        self.assertIn("lost when saved: /VARNEL/SUBSYSTEM/BEAMS/BEAM[1]/LOADCASES\n", found)
        self.assertIn("lost when saved: /VARNEL/SUBSYSTEM/GROUPS/GROUP/OBJECT[9]\n", found)
        self.assertNotIn("/VARNEL/LOADCASES", found)
        places = [line.rsplit("/SUBSYSTEM/", 1)[-1] for line in run("check", OLDER)[1].splitlines() if line.startswith("lost")]
        self.assertEqual(places, ["BEAMS/BEAM[1]/JOINTS", "BEAMS/BEAM[1]/RESULTS", "BEAMS/BEAM[2]/RECTAN",
                                  "PLATES/PLATE[1]/BOUNDS/EDGE/LOCSYS", "ATTRIBUTES/ANY/@MESHSIZE", "lost when saved: /VARNEL/SUBSYSTEMS"])

    def test_the_bedding_of_parts_of_beams_is_lost_once(self):
        foundations = '<FOUNDATIONS><FOUNDATION NUMBER="1" NAME="F1"><DISP><Z>5</Z></DISP></FOUNDATION></FOUNDATIONS>'
        beam = ('<BEAM NUMBER="1"><AREA><EDGE POS="1"><LINE TYPE="STRAIGHT"><START/><END><X>4</X></END></LINE></EDGE></AREA>'
                '<FOUNDB><FSPAN><LOCA POS="0" FOUND="1"/><LOCE POS="1" FOUND="1"/></FSPAN></FOUNDB></BEAM>')
        path = self.file(project(f"<BEAMS>{beam}</BEAMS>", foundations))
        place = "lost when saved: /VARNEL/SUBSYSTEM/BEAMS/BEAM/FOUNDB/FSPAN/"
        self.assertEqual(run("check", path)[1].splitlines(), [place + "LOCA/@FOUND", place + "LOCE/@FOUND"])
        self.assertEqual(run("rewrite", path)[0], FINDINGS)
        self.assertEqual(run("check", path), (CLEAN, "", ""))

    def test_an_unknown_material_is_a_finding(self):
        self.assertEqual(self.check(project(f"<PLATES>{plate(1, '<CONCRETE>C99</CONCRETE>')}</PLATES>")),
                         ['material not found: "C99" at /VARNEL/SUBSYSTEM/PLATES/PLATE/CONCRETE'])
        self.assertEqual(self.check(project(f"<PLATES>{plate(1, '<DESIGN><STEEL>B9</STEEL></DESIGN>')}</PLATES>")),
                         ['material not found: "B9" at /VARNEL/SUBSYSTEM/PLATES/PLATE/DESIGN/STEEL'])

    def test_an_unknown_object_of_a_stage_is_a_finding(self):
        stage = '<CONSTRUCTIONSTATES><CONSTRUCTIONSTATE NUMBER="1"><OBJECTSTATES><OBJECTSTATE BEAM="7"/></OBJECTSTATES>'
        self.assertEqual(self.check(project(stage + "</CONSTRUCTIONSTATE></CONSTRUCTIONSTATES>")), ["beam not found"])

    def test_plates_without_a_good_outline(self):
        corners = "".join(f"<P><X>{x}</X><Y>{y}</Y><Z>{z}</Z></P>" for x, y, z in ((0, 0, 0), (4, 0, 0), (4, 4, 0), (0, 4, 1)))
        found = self.check(project(f'<PLATES><PLATE NUMBER="1" NAME="bare"/><PLATE NUMBER="2" NAME="flat"><RECTAN WIDTH="0" HEIGHT="3">'
                                   f'<POS/></RECTAN></PLATE><PLATE NUMBER="3" NAME="bent"><POLY>{corners}</POLY></PLATE></PLATES>'))
        self.assertEqual(found, ['plate 1 "bare" has no outline',
                                 'plate 2 "flat" has an outline without area, or with a side without length',
                                 'plate 3 "bent" has an outline that is not plane'])

    def test_findings_in_nested_subsystems_name_them(self):
        nested = '<SUBSYSTEMS><SUBSYSTEM NAME="Tower"><PLATES><PLATE NUMBER="1" NAME="bare"/></PLATES></SUBSYSTEM></SUBSYSTEMS>'
        self.assertEqual(self.check(project(nested)), ['plate 1 "bare" in subsystem "Tower" has no outline'])

    def test_groups_with_missing_members(self):
        group = '<GROUPS><GROUP NAME="g"><OBJECT NUMBER="1" PLATE="1"/><OBJECT NUMBER="2" PLATE="5"/></GROUP></GROUPS>'
        self.assertEqual(self.check(project(f"<PLATES>{plate(1)}</PLATES>{group}")),
                         ['group "g" has members that are not there: 1 of 2'])

    def test_loads_in_a_case_without_a_name_or_in_no_place(self):
        loads = ('<POINTLOADS><POINTLOAD NUMBER="1" LC="4"/><POINTLOAD NUMBER="2" LC="4"/><POINTLOAD NUMBER="3" LC="5"/></POINTLOADS>'
                 '<LINELOADS><LINELOAD NUMBER="1" NAME="l"><LINE TYPE="SPIRAL"/></LINELOAD></LINELOADS>'
                 '<AREALOADS><AREALOAD NUMBER="1" NAME="a"/></AREALOADS>')
        cases = '<LOADCASES><LOADCASE NUMBER="5" NAME="wind"/></LOADCASES>'
        self.assertEqual(self.check(project(loads, cases)),
                         ['line load 1 "l" has no line', 'area load 1 "a" has no outline', "load case 4 has no name; loads in it: 2",
                          "lost when saved: /VARNEL/SUBSYSTEM/LINELOADS/LINELOAD/LINE"])

    def test_checking_leaves_the_file_alone(self):
        for path in DOCUMENTS:
            copy = self.file(path.read_bytes())
            run("check", copy)
            self.assertEqual(copy.read_bytes(), path.read_bytes())


class Rewrite(ToolTest):
    def test_a_second_rewriting_gives_the_same_bytes(self):
        for path in (HOUSE, EVERYTHING):
            with self.subTest(path.name):
                first, second = self.folder / "first.xml", self.folder / "second.xml"
                run("rewrite", path, first)
                self.assertEqual(run("rewrite", first, second), (CLEAN, "", ""))
                self.assertEqual(first.read_bytes(), second.read_bytes())

    def test_older_forms_rest_after_the_second_rewriting(self):
        path = self.file(OLDER.read_bytes())
        run("rewrite", path)
        run("rewrite", path)
        before = path.read_bytes()
        self.assertEqual(run("rewrite", path), (CLEAN, "", ""))
        self.assertEqual(path.read_bytes(), before)

    def test_the_model_is_the_same_afterwards(self):
        for path in (HOUSE, OLDER):
            with self.subTest(path.name):
                copy = self.folder / "copy.xml"
                run("rewrite", path, copy)
                before, after = (json.loads(run("show", "--json", name)[1]) for name in (path, copy))
                for key in ("total", "load_cases", "materials", "cross_sections"):
                    self.assertEqual(before[key], after[key], key)

    def test_load_cases_keep_their_values(self):
        for path in (HOUSE, EVERYTHING):
            copy = self.folder / "copy.xml"
            run("rewrite", path, copy)
            cases = [re.search(r"<LOADCASES CURRENT.*?</LOADCASES>", name.read_text("utf-8"), re.S).group() for name in (path, copy)]
            self.assertEqual(*cases)

    def test_load_cases_stay_beside_a_gap(self):
        gap = '<GAPS><GAP THICK="0.02"><AREA><EDGE><START/><END><X>3</X></END></EDGE></AREA></GAP></GAPS>'
        path = self.file(project(gap, '<LOADCASES><LOADCASE NUMBER="3" NAME="wind" TYPE="2"/></LOADCASES>'))
        self.assertEqual(run("rewrite", path), (CLEAN, "", ""))
        self.assertIn('NAME="wind" TYPE="2"', path.read_text("utf-8"))

    def test_what_is_lost_is_told_on_request(self):
        path = self.file(project(f"<PLATES>{plate(1, '<COLOR/>')}</PLATES>"))
        target = self.folder / "target.xml"
        self.assertEqual(run("rewrite", path, target), (FINDINGS, "", ""))
        self.assertEqual(run("rewrite", "--verbose", path), (FINDINGS, "lost when saved: /VARNEL/SUBSYSTEM/PLATES/PLATE/COLOR\n", ""))
        self.assertEqual(path.read_bytes(), target.read_bytes())
        self.assertEqual(run("rewrite", "--verbose", path), (CLEAN, "", ""))

    def test_a_failure_leaves_the_target_untouched(self):
        target = self.file("precious", "target.xml")
        sources = {"cut.xml": HOUSE.read_bytes()[:5000], "empty.xml": b"",
                   "unknown.xml": project(f"<PLATES>{plate(1, '<CONCRETE>C99</CONCRETE>')}</PLATES>").encode()}
        for name, content in sources.items():
            source = self.file(content, name)
            for arguments in ([source], [source, target]):
                with self.subTest(arguments):
                    self.assert_fails("rewrite", *arguments)
                    self.assertEqual(source.read_bytes(), content)
                    self.assertEqual(target.read_bytes(), b"precious")
        self.assertEqual(sorted(os.listdir(self.folder)), sorted([*sources, "target.xml"]))

    def test_a_target_that_cannot_be_written_fails(self):
        for target in (self.folder / "missing" / "x.xml", self.folder):
            self.assert_fails("rewrite", HOUSE, target, says=f"cannot write {target}")
        self.assertEqual(os.listdir(self.folder), [])


if __name__ == "__main__":
    unittest.main()
