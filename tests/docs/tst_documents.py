#!/usr/bin/env python3
"""Links of the documents, and their table of result codes. Usage: tst_documents.py <project>"""

import re
import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1)) if len(sys.argv) > 1 else Path.cwd()
TEXT = (ROOT / "docs/result-codes.md").read_text(encoding="utf-8")
TABLE = TEXT.split("## Codes of rsync")[0]  # what follows are no operations
FENCE = re.compile(r"^```.*?^```", re.MULTILINE | re.DOTALL)


def documents():
    found = [*ROOT.glob("*.md"), *ROOT.glob("docs/**/*.md"), *ROOT.glob("examples/*.md")]
    return sorted(path for path in found if path.name != "CLAUDE.md")


def anchors(path):
    """The anchors of a document's headings, as hosts of Markdown make them."""
    text = FENCE.sub("", path.read_text(encoding="utf-8"))
    words = (re.sub(r"[^\w\- ]", "", heading.lower()) for heading in
             re.findall(r"^#+ (.*)$", text, re.MULTILINE))
    return {word.replace(" ", "-") for word in words}


class Links(unittest.TestCase):
    def test_lead_somewhere(self):
        for path in documents():
            text = FENCE.sub("", path.read_text(encoding="utf-8"))
            for link in re.findall(r"\]\(([^)\s]+)\)", text):
                if re.match(r"\w+:", link):
                    continue
                file, _, anchor = link.partition("#")
                target = path.parent / file if file else path
                with self.subTest(document=path.name, link=link):
                    self.assertTrue(target.exists(), "there is no such file")
                    if anchor:
                        self.assertIn(anchor, anchors(target))


def operations():
    """Operations that answer with a number, by name: the text of all their docstrings."""
    found = {}
    headers = [path for folder in ("src", "testkit") for path in (ROOT / folder).rglob("*.h")
               if not path.name.endswith("_p.h") and "parts" not in path.parts]
    declaration = re.compile(r"^ *(?:ZEPLET_EXPORT |static )*(?:int (\w+)\(|void (\w+)\(int &result)")
    for path in headers:
        text, inside, private = "", False, False
        for line in path.read_text(encoding="utf-8").splitlines():
            private = {"private:": True, "public:": False}.get(line.strip(), private and line != "};")
            words = line.strip()
            if words.startswith("/**") or words.startswith("///"):
                text, inside = (text if words.startswith("///") else "") + words, True
            elif inside and words.startswith("*"):
                text += " " + words.lstrip("*")
            else:
                match = declaration.match(line)
                if match and not private:
                    name = match.group(1) or match.group(2)
                    found[name] = found.get(name, "") + text
                text, inside = "", False
    return found


def section(title):
    return re.search(rf"^## {title}\n(.*?)(?=^## |\Z)", TABLE, re.MULTILINE | re.DOTALL).group(1)


def table():
    """Codes by operation, as the document has them; plain numbers have none."""
    codes = {}
    for names, code in re.findall(r"^\| (`.*?`) \| (-?\d+) \|", TABLE, re.MULTILINE):
        for name in re.findall(r"`(\w+)`", names):
            codes.setdefault(name, []).append(int(code))
    for names in re.findall(r"^\| (`.*?`) \|", section("Numbers that are no codes"), re.MULTILINE):
        for name in re.findall(r"`(\w+)`", names):
            codes.setdefault(name, [])
    return codes


class ResultCodes(unittest.TestCase):
    def test_table_is_complete(self):
        self.assertEqual(sorted(table()), sorted(operations()))
        for name, codes in table().items():
            self.assertEqual(len(codes), len(set(codes)), f"{name}: a code stands there twice")

    def test_docstrings_agree(self):
        texts = operations()
        for name, codes in table().items():
            named = {int(number) for number in re.findall(r"(?<![\w.])-?\d+\b(?! ms| s\b)", texts[name])}
            with self.subTest(name):
                self.assertLessEqual(set(codes), named, "the docstring lacks a code")
                if codes:
                    self.assertLessEqual({number for number in named if number < 0}, set(codes))

    def test_operations_that_answer_with_bool(self):
        headers = "".join(path.read_text(encoding="utf-8") for path in (ROOT / "src").rglob("*.h"))
        for name in re.findall(r"`(\w+)`", section("What false means")):
            if name != "blocking":
                self.assertRegex(headers, rf"bool {name}\(")


if __name__ == "__main__":
    unittest.main()
