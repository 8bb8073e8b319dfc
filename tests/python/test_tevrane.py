"""The Python module, with the programs of the build in TEVRANE_BIN."""

import os
import pathlib
import sys
import tempfile
import unittest

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


class StudyTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.folder = pathlib.Path(directory.name, "site.study")
        self.folder.mkdir()
        (self.folder / "answers.csv").write_text(
            "run,well,time [a],quantity,value,unit\nab,Pump,30,temperature,11.5,deg C\n", encoding="utf-8"
        )

    def test_rows_have_numbers_and_texts(self):
        row = tevrane.Study(self.folder).rows()[0]
        self.assertEqual(row["well"], "Pump")
        self.assertEqual(row["value"], 11.5)

    def test_a_study_is_found_by_its_file(self):
        study = tevrane.Study(self.folder.with_suffix(".tstudy"))
        self.assertEqual(study.folder, self.folder)

    def test_a_frame_has_all_rows(self):
        self.assertEqual(len(tevrane.Study(self.folder).frame()), 1)


if __name__ == "__main__":
    unittest.main()
