"""The Python module, with the programs of the build in TEVRANE_BIN."""

import fractions
import importlib.util
import math
import os
import pathlib
import subprocess
import sys
import tempfile
import types
import unittest
import unittest.mock
import warnings

sys.path.insert(0, os.environ["TEVRANE_PYTHON"])
import tevrane

DOUBLET = """[main]
simulation_time=2
max_number_of_fv_elements=200
cell_increase_factor=60
[thermic]
exchange_caprock=false
exchange_bedrock=false
[hydraulic]
groundwater_gradient=0.2
[installation]
well_model\\size=2
well_model\\1\\0=Pump
well_model\\1\\1=0
well_model\\1\\2=0
well_model\\1\\3=-0.001
well_model\\2\\0=Return
well_model\\2\\1=40
well_model\\2\\2=0
well_model\\2\\3=0.001
well_model\\2\\4=-3
"""


def is_installed(module):
    return importlib.util.find_spec(module) is not None


# keys of flags, and what reports call them
FLAGS = {
    "exchange_caprock": "energy exchange with the caprock",
    "wells_used_closed_loop": "wells_used_closed_loop",
    "aquifer_unconfined": "aquifer_unconfined",
}


class LikeNumPy:
    """A number as NumPy has them: it says its type along, and `item` gives the number alone."""

    def __init__(self, number):
        self.number = number

    def __repr__(self):
        return f"np.type({self.number})"

    def item(self):
        return self.number


class NumberTest(unittest.TestCase):
    def line(self, key, value):
        return tevrane.with_values("", {key: value}, {key: "section"}).splitlines()[-1]

    def test_numbers_have_all_their_digits(self):
        self.assertEqual(self.line("kf", 0.1 + 0.2), "kf=0.30000000000000004")
        self.assertEqual(self.line("kf", 1e-7), "kf=1e-07")
        self.assertEqual(self.line("kf", fractions.Fraction(1, 8)), "kf=0.125")
        self.assertEqual(self.line("cells", 200), "cells=200")
        self.assertEqual(self.line("name", "a 1"), "name=a 1")

    def test_numbers_of_other_libraries_are_written_without_their_type(self):
        self.assertEqual(self.line("kf", LikeNumPy(0.002)), "kf=0.002")
        self.assertEqual(self.line("cells", LikeNumPy(200)), "cells=200")
        self.assertEqual(self.line("flag", LikeNumPy(True)), "flag=1")

        class Float64(float):  # a float all the same
            def __repr__(self):
                return f"np.float64({float(self)})"

        self.assertEqual(self.line("kf", Float64(0.002)), "kf=0.002")

    @unittest.skipUnless(is_installed("numpy"), "needs python3-numpy, see scripts/test-python")
    def test_numbers_of_numpy_are_written_as_numbers(self):
        import numpy

        self.assertEqual(self.line("kf", numpy.float64(0.002)), "kf=0.002")
        self.assertEqual(self.line("kf", numpy.array([0.002, 1])[0]), "kf=0.002")
        self.assertEqual(self.line("cells", numpy.int32(200)), "cells=200")
        self.assertEqual(self.line("flag", numpy.bool_(False)), "flag=0")


class RunTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.directory = pathlib.Path(directory.name)
        self.site = self.directory / "site.tbat"
        self.site.write_text(DOUBLET, encoding="utf-8")

    def test_a_run_gives_the_temperatures_of_its_wells(self):
        well = tevrane.run(self.site).wells["Return"]
        self.assertEqual((well.x, well.y), (40, 0))
        self.assertEqual(len(well.times), len(well.temperatures))
        self.assertAlmostEqual(well.times[-1], 2 * 31557600.0)
        self.assertAlmostEqual(well.temperatures[-1], 7, delta=0.1)

    def test_values_by_name_count_instead_of_those_of_the_file(self):
        result = tevrane.run(self.site, kf=2e-3, groundwater_gradient=0.5)
        self.assertEqual(result.parameters["kf"], 2e-3)
        self.assertEqual(result.parameters["groundwater_gradient"], 0.5)

    def test_a_cell_of_a_table_is_a_key_like_others(self):
        result = tevrane.run(self.site, {"well_model\\2\\4": -5.0})
        self.assertAlmostEqual(result.wells["Return"].temperatures[-1], 5, delta=0.1)

    def test_a_cell_that_the_tables_do_not_have_is_an_error(self):
        for key in ("well_model\\9\\4", "well_model\\x\\4", "well_model\\2\\7", "well_model\\2", "well_model"):
            with self.subTest(key), self.assertRaises(KeyError) as caught:
                tevrane.run(self.site, {"well_model\\2\\4": -3, key: -3})
            self.assertEqual(caught.exception.args, (key,))

    def test_a_cell_is_there_as_soon_as_the_table_is_as_long(self):
        result = tevrane.run(
            self.site,
            {"well_model\\size": 3, "well_model\\3\\0": "Third", "well_model\\3\\2": 60, "well_model\\3\\3": -0.001},
        )
        self.assertEqual(list(result.wells), ["Pump", "Return", "Third"])

    def test_a_flag_is_true_or_false_whatever_its_key(self):
        for key, parameter in FLAGS.items():
            for flag in (True, False):
                with self.subTest(key, flag=flag):
                    self.assertEqual(tevrane.run(self.site, {key: flag}).parameters[parameter], flag)

    def test_a_project_file_is_run_as_it_stands_and_takes_no_values(self):
        project = self.directory / "site.tvr"
        subprocess.run(
            [tevrane.program("tevrane-batch"), "--quiet", "--output", self.directory / "site.out",
             "--save-project", project, self.site], check=True,
        )
        self.assertAlmostEqual(tevrane.run(project).wells["Return"].temperatures[-1], 7, delta=0.1)
        with self.assertRaises(tevrane.TevraneError) as caught:
            tevrane.run(project, kf=2e-3)
        self.assertEqual(caught.exception.status, "refused")
        self.assertIn("site.tvr: expected a batch file (.tbat)", caught.exception.errors[0])

    def test_nothing_is_left_beside_the_file_and_it_stays(self):
        tevrane.run(self.site, kf=2e-3)
        self.assertEqual([file.name for file in self.directory.iterdir()], ["site.tbat"])
        self.assertEqual(self.site.read_text(encoding="utf-8"), DOUBLET)

    def test_a_refused_run_says_why(self):
        with self.assertRaises(tevrane.TevraneError) as caught:
            tevrane.run(self.site, kf="fast")
        self.assertEqual(caught.exception.status, "refused")
        self.assertIn("[hydraulic] kf", caught.exception.errors[0])

    def test_an_unknown_key_is_an_error(self):
        with self.assertRaises(KeyError):
            tevrane.run(self.site, permeability=1)

    def test_the_mesh_is_judged_if_that_is_wanted(self):
        self.assertEqual(len(tevrane.run(self.site, convergence=True).report["convergence"]["cells"]), 3)

    def test_letters_of_other_code_pages_are_left_alone(self):
        self.site.write_bytes(DOUBLET.replace("Pump", "F\xf6rder").encode("latin-1"))
        self.assertIn("F\xf6rder", tevrane.run(self.site, kf=2e-3).wells)


class TableTest(unittest.TestCase):
    """The tables of a study, written as the programs write them."""

    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.folder = pathlib.Path(directory.name, "site.study")
        self.folder.mkdir()
        self.study = tevrane.Study(self.folder)

    def write(self, table, *lines):
        (self.folder / table).write_text("\n".join(lines) + "\n", encoding="utf-8")

    def write_answers(self, *rows):
        self.write("answers.csv", "run,well,time [a],quantity,value,unit", *rows)

    def test_rows_have_numbers_and_texts(self):
        self.write_answers("ab,Pump,30,temperature,11.5,\N{DEGREE SIGN}C")
        self.assertEqual(
            self.study.rows(),
            [{"run": "ab", "well": "Pump", "time [a]": 30, "quantity": "temperature", "value": 11.5,
              "unit": "\N{DEGREE SIGN}C"}],
        )

    def test_names_of_wells_stay_texts_whatever_they_look_like(self):
        names = ["1", "01", "1e5", "nan", "inf"]
        self.write_answers(*[f"ab,{name},30,temperature,11.5,K" for name in names])
        self.assertEqual([row["well"] for row in self.study.rows()], names)

    def test_the_name_of_a_run_stays_a_text_whatever_it_looks_like(self):
        run = "1234567890123456789012345e678901"
        self.write_answers(f"{run},Pump,30,temperature,11.5,K")
        self.write("runs.csv", "run,repeats,outcome,kf [m/s],drawdown_max 30 a [m],reason", f"{run},1,done,0.001,2.5,")
        for table in ("answers.csv", "runs.csv"):
            self.assertEqual(self.study.rows(table)[0]["run"], run)

    def test_an_empty_cell_is_no_number_or_no_text(self):
        self.write_answers("ab,,,drawdown_max,2.5,m")
        self.write("runs.csv", "run,repeats,outcome,kf [m/s],drawdown_max 30 a [m],reason", 'ab,2,failed,0.001,,"7, or so"')
        answer, = self.study.rows()
        self.assertEqual(answer["well"], "")
        self.assertTrue(math.isnan(answer["time [a]"]))
        run, = self.study.rows("runs.csv")
        self.assertTrue(math.isnan(run.pop("drawdown_max 30 a [m]")))
        self.assertEqual(run, {"run": "ab", "repeats": 2, "outcome": "failed", "kf [m/s]": 0.001, "reason": "7, or so"})

    def test_a_study_is_found_by_its_file(self):
        self.assertEqual(tevrane.Study(self.folder.with_suffix(".tstudy")).folder, self.folder)

    def test_a_frame_is_made_by_pandas_of_all_rows(self):
        self.write_answers("ab,01,30,temperature,11.5,K", "ac,01,30,temperature,12.5,K")
        pandas = types.ModuleType("pandas")
        pandas.DataFrame = unittest.mock.Mock()
        with unittest.mock.patch.dict(sys.modules, pandas=pandas):
            frame = self.study.frame()
        pandas.DataFrame.assert_called_once_with(self.study.rows())
        self.assertIs(frame, pandas.DataFrame.return_value)

    def test_without_pandas_a_frame_is_the_rows(self):
        self.write_answers("ab,01,30,temperature,11.5,K")
        with unittest.mock.patch.dict(sys.modules, pandas=None):
            self.assertEqual(self.study.frame(), self.study.rows())

    @unittest.skipUnless(is_installed("pandas"), "needs python3-pandas, see scripts/test-python")
    def test_the_columns_of_a_frame_of_pandas_are_numbers_or_texts(self):
        self.write_answers("ab,01,30,temperature,11.5,K", "ac,,,drawdown_max,2.5,m")
        frame = self.study.frame()
        self.assertEqual(list(frame.columns), ["run", "well", "time [a]", "quantity", "value", "unit"])
        self.assertEqual(frame.dtypes["value"], float)
        self.assertEqual(frame.dtypes["time [a]"], float)
        self.assertEqual(list(frame["well"]), ["01", ""])
        self.assertEqual(frame["time [a]"].isna().tolist(), [False, True])
        self.assertEqual(frame.groupby("quantity")["value"].mean()["temperature"], 11.5)


class AgeTest(unittest.TestCase):
    """Whether a study tells that its answers are old, by a study that was run."""

    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.file = pathlib.Path(directory.name, "site.tstudy")
        self.file.with_suffix(".tbat").write_text(DOUBLET, encoding="utf-8")
        self.elsewhere = pathlib.Path(directory.name, "elsewhere")
        self.write_study()

    def write_study(self, runs=4, vary="kf=log-uniform(0.0005, 0.005)", answers="quantities=drawdown_max"):
        self.file.write_text(
            f"[study]\nbase=site.tbat\nsampler=sobol\nruns={runs}\nruns_per_part=2\n"
            f"[vary]\n{vary}\n[answers]\n{answers}\n", encoding="utf-8",
        )

    def tell(self, command, *options):
        """Has the program work elsewhere, where no study file stands beside the results."""
        subprocess.run(
            [tevrane.program("tevrane-study"), command, self.file, "--quiet", "--folder", self.elsewhere, *options],
            check=False, capture_output=True,
        )

    def warned(self, folder):
        """What the summary of a study and its rows are warned of."""
        with warnings.catch_warnings(record=True) as caught:
            warnings.simplefilter("always")
            tevrane.Study(folder).summary()
            tevrane.Study(folder).rows()
        texts = [str(warning.message) for warning in caught if warning.category is tevrane.OldAnswers]
        self.assertIn(len(texts), (0, 2))
        return texts[0] if texts else None

    def test_answers_of_all_runs_are_not_old(self):
        self.tell("run")
        self.assertIsNone(self.warned(self.elsewhere))

    def test_a_study_file_with_more_runs_makes_them_old(self):
        self.tell("run")
        self.elsewhere.rename(self.file.with_suffix(".study"))
        self.assertIsNone(self.warned(self.file))
        self.write_study(runs=6)
        self.assertIn("it has 6 runs, they are of 4", self.warned(self.file))

    def test_a_table_of_other_runs_makes_them_old(self):
        self.tell("run")
        self.write_study(runs=8)
        self.tell("run", "--shard", "2/2")  # two of the four that are new
        self.tell("collect")
        self.assertIn("other runs are there", self.warned(self.elsewhere))

    def test_so_does_a_table_that_lacks_the_last_run(self):
        self.tell("run")
        table = self.elsewhere / "runs.csv"
        table.write_text("".join(table.read_text(encoding="utf-8").splitlines(True)[:-1]), encoding="utf-8")
        self.assertIn("other runs are there", self.warned(self.elsewhere))

    def test_so_do_as_many_runs_with_other_values(self):
        self.tell("run")
        self.write_study(runs=8, vary="kf=log-uniform(0.0006, 0.005)")
        self.tell("run", "--shard", "1/2")
        self.tell("collect")
        self.assertEqual(len(tevrane.Study(self.elsewhere).rows("runs.csv")), 4)
        self.assertIn("other runs are there", self.warned(self.elsewhere))

    def test_so_do_other_keys_and_other_answers(self):
        self.tell("run")
        self.write_study(answers="quantities=drawdown_max, temperature")
        self.tell("collect")
        self.assertIn("it asks for other answers", self.warned(self.elsewhere))
        self.write_study(vary="groundwater_gradient=uniform(0.1, 0.3)")
        self.tell("collect")
        self.assertIn("other keys are varied", self.warned(self.elsewhere))


if __name__ == "__main__":
    unittest.main()
