#!/usr/bin/env python3
"""The check of the translation files finds each kind of fault, and nothing in a faultless file."""

import unittest
import xml.etree.ElementTree as ElementTree
from xml.sax.saxutils import escape

from check_texts import faults


def file_with(source, translation, language="de_DE", attributes="", other=""):
    return ElementTree.fromstring(
        f'<TS language="{language}"><context><name>Here</name><message><source>{escape(source)}</source>'
        f"<translation{attributes}>{escape(translation)}</translation></message></context>{other}</TS>")


def found(*arguments, **options):
    return list(faults(file_with(*arguments, **options)))


class CheckTexts(unittest.TestCase):
    def assert_fault(self, part, *arguments, **options):
        lines = found(*arguments, **options)
        self.assertEqual(len(lines), 1, lines)
        self.assertIn(part, lines[0])

    def test_faultless_texts_pass(self):
        for source, translation, language in [
                ("&Open %1 ...", "Öffne %1 &jetzt ...", "de"),
                ("<b>K</b>", "<b>K</b>", "de"),
                ("Aquifer & well wizard", "Assistent für Grundwasserleiter & Brunnen", "de"),
                ("%1 of %2: ", "%2, davon %1: ", "de"),
                ("Done…", "Fertig ...", "de"),
                ("Unable to open:%1", "Impossible d’ouvrir\u00a0: %1", "fr"),
                ("ready &laquo;%1&raquo;", "prêt &laquo;&nbsp;%1&nbsp;&raquo;", "fr"),
                ("<b>%1 1:%2</b>", "<b>%1 1:%2</b>", "fr")]:
            self.assertEqual(found(source, translation, language=language), [])

    def test_unfinished_text(self):
        self.assert_fault("unfinished", "Well", "Brunnen", attributes=' type="unfinished"')

    def test_text_that_is_gone(self):
        self.assert_fault("vanished", "Well", "Brunnen", attributes=' type="vanished"')

    def test_empty_text(self):
        self.assert_fault("empty", "Well", "")

    def test_lost_place_holder(self):
        self.assert_fault("place holders", "Well %1", "Brunnen")

    def test_other_place_holder(self):
        self.assert_fault("place holders", "%1 of %2", "%1 von %3")

    def test_lost_mnemonic(self):
        self.assert_fault("mnemonic", "&Wells", "Brunnen")

    def test_mnemonic_of_its_own(self):
        self.assert_fault("mnemonic", "Wells", "&Brunnen")

    def test_two_mnemonics(self):
        self.assert_fault("more than one mnemonic", "&Wells", "&Brun&nen")

    def test_other_tags(self):
        self.assert_fault("tags", "<b>K</b>", "<i>K</i>")

    def test_lost_blank_at_the_end(self):
        self.assert_fault("blanks", "effective ", "Effektiver")

    def test_lost_colon(self):
        self.assert_fault("colon", "Options:", "Optionen")

    def test_lost_ellipsis(self):
        self.assert_fault("ellipsis", "Finished ...", "Beendet")

    def test_other_number_of_lines(self):
        self.assert_fault("lines", "a\nb", "a b")

    def test_breakable_punctuation_in_french(self):
        self.assert_fault("no-break", "Options:", "Options :", language="fr")
        self.assert_fault("no-break", "Save?", "Enregistrer?", language="fr")

    def test_guillemets_without_blanks_in_french(self):
        self.assert_fault("no-break", "the \"map\"", "la «carte»", language="fr")

    def test_a_number_and_a_per_cent_sign_that_may_be_parted(self):
        self.assert_fault("per cent", "by %1% too much", "um %1 % zu viel")
        self.assert_fault("per cent", "0 to 100 %", "0 à 100 %", language="fr")
        self.assertEqual(found("by %1% too much", "um %1\u00a0% zu viel"), [])
        self.assertEqual(found("%1 %2", "%1 %2"), [])

    def test_two_translations_of_one_text(self):
        other = ("<context><name>There</name><message><source>Well</source>"
                 "<translation>Bohrung</translation></message></context>")
        self.assert_fault("but ['Brunnen'] in Here", "Well", "Brunnen", other=other)

    def test_fault_in_one_form_of_a_plural(self):
        root = ElementTree.fromstring(
            '<TS language="de"><context><name>Here</name><message numerus="yes"><source>%n day(s) of %1</source>'
            "<translation><numerusform>ein Tag von %1</numerusform><numerusform>%n Tage</numerusform>"
            "</translation></message></context></TS>")
        lines = list(faults(root))
        self.assertEqual(len(lines), 1, lines)
        self.assertIn("'%n Tage'", lines[0])


if __name__ == "__main__":
    unittest.main()
