#!/usr/bin/env python3
"""Every text that a person reads is translated into every language, and translated soundly.

Usage: tst_catalogues.py <tree>
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml

TREE = pathlib.Path(sys.argv.pop(1)).resolve()
LANGUAGES = ["de", "zh_CN"]

# What puts a text on the screen, called with letters that nobody translates.
SAYS = re.compile(
    r"\b(?:setText|setToolTip|setTitle|setWindowTitle|setPlaceholderText|setSubtitle|setItemText"
    r"|setTabText|setAccessibleName|addAction|addParagraph|addTab|addItem|say|tell|throwLog"
    r"|(?:new )?(?:QLabel|QPushButton|QToolButton|QCheckBox|ElidedLabel))\("
    r"[^;()\"]*(?:(?:QStringLiteral|QLatin1String|QString)\()?\"([^\"]*[A-Za-z]{2}[^\"]*)\"")
# Words of the data, which operators see as they are.
DATA = {"info", "warning", "error"}


def catalogues():
    found = sorted(TREE.glob("translations/*.ts")) + sorted(TREE.glob("examples/*/*.ts"))
    return [path.relative_to(TREE) for path in found]


def messages(path):
    """(context, source, comment) -> (translation texts, finished)"""
    found = {}
    for context in xml.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.iter("numerusform")]
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment"))
            found[key] = (forms or [translation.text or ""], translation.get("type") is None)
    return found


def faults_of(source, translation):
    """What is wrong with a translation, in words."""
    if not translation.strip():
        return ["is empty"]
    faults = []
    for what, pattern in [("placeholders", r"%(?:L?\d|n)"), ("key marks", r"&(?=[^&\s])"),
                          ("line breaks", r"\n"), ("spaces at its ends", r"\A\s+|\s+\Z")]:
        if sorted(re.findall(pattern, source)) != sorted(re.findall(pattern, translation)):
            faults.append(f"has other {what}")
    return faults


class Catalogues(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.copy = tempfile.TemporaryDirectory()
        for path in catalogues():
            target = pathlib.Path(cls.copy.name, path)
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(TREE / path, target)
        cls.update = subprocess.run([TREE / "script/translations", cls.copy.name],
                                    capture_output=True, text=True)

    @classmethod
    def tearDownClass(cls):
        cls.copy.cleanup()

    def test_every_text_is_found(self):
        """lupdate names what it does not understand: a text in a context that the program lacks."""
        self.assertEqual(self.update.stderr, "")
        self.assertEqual(self.update.returncode, 0)

    def test_every_catalogue_has_all_languages(self):
        for folder in {path.parent for path in catalogues()}:
            names = {path.stem.split("_")[0] for path in catalogues() if path.parent == folder}
            for name in names:
                for language in LANGUAGES:
                    self.assertTrue((TREE / folder / f"{name}_{language}.ts").exists(),
                                    f"{folder}: {name}_{language}.ts is missing")

    def test_every_text_is_translated(self):
        faults = []
        for path in catalogues():
            now = messages(pathlib.Path(self.copy.name, path))
            for (context, source, _), (texts, finished) in now.items():
                wrong = [] if finished else ["is not translated: script/translations, then do it"]
                for text in texts if finished else []:
                    wrong += faults_of(source, text)
                faults += [f"{path}: {context}: \"{source}\" {fault}" for fault in wrong]
            for context, source, _ in messages(TREE / path).keys() - now.keys():
                faults.append(f"{path}: {context}: \"{source}\" is in no source: script/translations")
        self.assertEqual(faults, [], "\n" + "\n".join(faults))

    def test_no_text_bypasses_translation(self):
        faults = []
        for folder in ("host", "panel"):
            for path in sorted((TREE / folder).rglob("*.cpp")):
                if "panel/plugins/check" in str(path):
                    continue # for the person who runs it, in a terminal
                for match in SAYS.finditer(path.read_text()):
                    if match[1] not in DATA:
                        faults.append(f"{path.relative_to(TREE)}: \"{match[1]}\" needs tr()")
        self.assertEqual(faults, [])


class Faults(unittest.TestCase):
    def test_faults_are_found(self):
        for source, translation in [("a %1", "b"), ("%1 %2", "%1 %1"), ("&Open", "Öffnen"),
                                    ("  Start", "Start"), ("a", " "), ("a\nb", "a b")]:
            self.assertTrue(faults_of(source, translation), (source, translation))
        for source, translation in [("%1 of %2", "%2 / %1"), ("A && B", "A und B")]:
            self.assertEqual(faults_of(source, translation), [], (source, translation))

    def test_bypasses_are_found(self):
        for line in ['label->setText("Motors");', 'new QPushButton(QStringLiteral("Open"), this)',
                     'tabs->addTab(page, "Values")']:
            self.assertTrue(SAYS.search(line), line)
        for line in ['label->setText(tr("Motors"));', 'setText("%1")', 'label->setText(name());']:
            self.assertIsNone(SAYS.search(line), line)


if __name__ == "__main__":
    unittest.main()
