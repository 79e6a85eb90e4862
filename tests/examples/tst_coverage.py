#!/usr/bin/env python3
"""Every public operation of the library is used by an example.

The public headers say what is public, the library's symbols which overloads there are, and the
symbols that the examples' libraries import what they call. A virtual operation leaves no such trace:
an example has to override or call it in a file that names its class.

Usage: tst_coverage.py <tree> <nm> <library> <example library>...
"""

import pathlib
import re
import subprocess
import sys
import unittest

# What no plugin calls, by what the operation's qualified name begins with.
EXCEPTIONS = {
    "Zeplet::": "the host drives the plugin's module",
    "PluginSettingPage::": "made by the plugin's module",
    "RLBaseWidget::": "RLManager makes one around each content, for the program editor",
    "PluginRegister::create": "the module makes its plugin",
    "PluginRegister::cancel": "the module withdraws its plugin",
    "InterfaceManager::InterfaceManager": "zepletInterface() makes the only one",
    "InterfaceManager::initEventSystem": "a second call would double every event",
    "ZepletEventSystem::registerAllEvents": "a second call would double every event",
    "ZepletEventSystem::destroyInstance": "the panel ends the bus, after every plugin",
}

MACRO = re.compile(r"\bQ_(OBJECT|GADGET|DISABLE_COPY|DECLARE_METATYPE)\b(\([^)]*\))?")
TOKEN = re.compile(r"[A-Za-z_]\w*(?:::\w+)*|\d\w*|::|->|[^\w\s]")
ACCESS = {"public": True, "private": False, "protected": False, "signals": True, "Q_SIGNALS": True}


class Operation:
    def __init__(self, name, owner, virtual):
        self.name, self.owner, self.virtual = name, owner, virtual


def tokens_of(text):
    text = re.sub(r"//[^\n]*|/\*.*?\*/", " ", text, flags=re.DOTALL)
    text = re.sub(r"^\s*#(?:[^\n]*\\\n)*[^\n]*", " ", text, flags=re.MULTILINE)
    text = re.sub(r'"(?:[^"\\\n]|\\.)*"', " 0 ", text)
    return TOKEN.findall(MACRO.sub(" ", text))


def closing(tokens, start):
    """The place of the brace that closes the one at start."""
    depth = 0
    for place in range(start, len(tokens)):
        depth += {"{": 1, "}": -1}.get(tokens[place], 0)
        if depth == 0:
            return place
    raise ValueError("a brace is never closed")


def called_name(statement):
    """The name in front of the parameters of a function; None where it declares none."""
    angles = 0
    for place, token in enumerate(statement):
        angles += {"<": 1, ">": -1}.get(token, 0)
        if token == "(" and angles == 0:
            known = place > 0 and re.match(r"[A-Za-z_]", statement[place - 1])
            return statement[place - 1] if known else None
    return None


def operation_in(statement, owner):
    if not statement or statement[0] in ("using", "typedef", "friend", "enum", "static_assert"):
        return None
    if "operator" in statement or "~" in statement or "override" in statement:
        return None  # an overriding function is its base's operation
    if statement[-2:] in (["=", "delete"], ["=", "default"]):
        return None
    name = called_name(statement)
    if not name:
        return None
    return Operation(f"{owner}::{name}" if owner else name, owner, "virtual" in statement)


class Header:
    """Finds the exported operations of one header."""

    def __init__(self, text):
        self.tokens = tokens_of(text)
        self.operations = []
        self.read(0, len(self.tokens), None)

    def read(self, start, end, owner):
        """Reads the declarations of a namespace (no owner) or of an exported class."""
        public, statement, place = owner is None, [], start
        while place < end:
            token = self.tokens[place]
            if token == ":" and statement and statement[0] in ACCESS and len(statement) < 3:
                public, statement = ACCESS[statement[0]], []
            elif token == ";":
                self.declare(statement, owner, public)
                statement = []
            elif token == "{":
                close = closing(self.tokens, place)
                statement = self.block(statement, place + 1, close, owner, public)
                place = close
            else:
                statement.append(token)
            place += 1

    def block(self, statement, start, end, owner, public):
        """What a brace opens; returns what is left of the statement."""
        kind = next((word for word in statement if word in ("namespace", "enum", "class", "struct")),
                    None)
        if kind == "namespace":
            self.read(start, end, None)
            return []
        if kind in ("class", "struct"):
            if "ZEPLET_EXPORT" in statement:
                heading = statement[:statement.index(":")] if ":" in statement else statement
                self.read(start, end, [word for word in heading if word != "final"][-1])
            return statement
        if kind is None and called_name(statement):
            self.declare(statement, owner, public)
            return []
        return statement  # an initialiser or enumerators: the semicolon follows

    def declare(self, statement, owner, public):
        if statement and statement[0] in ("class", "struct"):
            return
        if not public or (owner is None and "ZEPLET_EXPORT" not in statement):
            return
        operation = operation_in([word for word in statement if word != "ZEPLET_EXPORT"], owner)
        if operation:
            self.operations.append(operation)


def public_operations(tree):
    found = {}
    for path in sorted((tree / "src").rglob("*.h")):
        if not path.name.endswith("_p.h"):
            for operation in Header(path.read_text(encoding="utf-8")).operations:
                found[operation.name] = operation
    return found


def symbols(nm, library, which):
    """The functions of the namespace zeplet, each with its parameters."""
    lines = subprocess.run([nm, "-D", "-C", which, library], check=True, capture_output=True,
                           text=True).stdout.splitlines()
    functions = (re.search(r" [TWU] zeplet::(.*)", line) for line in lines)
    return {match.group(1).split("[abi:")[0] for match in functions if match}


def excepted(name):
    return any(name == prefix or (prefix.endswith("::") and name.startswith(prefix))
               for prefix in EXCEPTIONS)


def uses_virtual(operation, sources):
    word = operation.name.split("::")[-1]
    use = re.compile(rf"\b{word}\([^;{{]*\boverride\b|(?:\.|->){word}\(")
    return any(re.search(rf"\b{operation.owner}\b", text) and use.search(text) for text in sources)


def unused(operations, exported, imported, sources):
    for operation in operations.values():
        if excepted(operation.name):
            continue
        if operation.virtual:
            if not uses_virtual(operation, sources):
                yield operation.name
            continue
        overloads = [symbol for symbol in exported if symbol.startswith(operation.name + "(")]
        if not overloads:
            yield f"{operation.name}: the library has no such symbol"
        yield from sorted(symbol for symbol in overloads if symbol not in imported)


class Coverage(unittest.TestCase):
    tree = nm = library = None
    examples = []

    def setUp(self):
        self.operations = public_operations(self.tree)

    def test_every_public_operation_is_used_in_an_example(self):
        exported = symbols(self.nm, self.library, "--defined-only")
        imported = set().union(*(symbols(self.nm, example, "--undefined-only")
                                 for example in self.examples))
        sources = [path.read_text(encoding="utf-8")
                   for path in (self.tree / "examples").rglob("*.[ch]*")
                   if not path.name.startswith("tst_") and path.suffix in (".h", ".cpp")]
        missing = list(unused(self.operations, exported, imported, sources))
        self.assertEqual([], missing, "\nno example uses:\n" + "\n".join(missing))

    def test_no_exception_is_stale(self):
        for prefix in EXCEPTIONS:
            with self.subTest(prefix):
                self.assertTrue(any(name.startswith(prefix) for name in self.operations))

    def test_no_exported_function_is_overlooked(self):
        """A class with a declaration that is not understood would hide what follows it."""
        owners = {operation.owner for operation in self.operations.values()}
        headers = {path: path.read_text(encoding="utf-8") for path in (self.tree / "src").rglob("*.h")}
        private = " ".join(text for path, text in headers.items() if path.name.endswith("_p.h"))
        exported = [symbol.split("(")[0]
                    for symbol in symbols(self.nm, self.library, "--defined-only")]
        known = {name for name in self.operations if "::" not in name}
        self.assertEqual(set(), {name for name in set(exported) - known if re.fullmatch(r"\w+", name)
                                 and not re.search(rf"\b{name}\(", private)})
        public = " ".join(text for path, text in headers.items() if not path.name.endswith("_p.h"))
        classes = set(re.findall(r"class ZEPLET_EXPORT (\w+)", public))
        self.assertEqual(classes, owners - {None})

    def test_headers_are_understood(self):
        cases = [
            ("class ZEPLET_EXPORT A : public B { Q_OBJECT\npublic: A(int); ~A(); void f() const; };",
             ["A::A", "A::f"]),
            ("class ZEPLET_EXPORT A { void f(); protected: void g(); private: void h(); };", []),
            ("class ZEPLET_EXPORT A { public: int m {3}; std::function<void(int)> c; void f(); };",
             ["A::f"]),
            ("class ZEPLET_EXPORT A { public: enum E { X, Y }; using C = F<void(int)>;\n"
             "A &operator=(const A &) = delete; A() = default; int f() { return g(1); } };",
             ["A::f"]),
            ("class ZEPLET_EXPORT A { private: int x; signals: void s(int a = f(2)); };", ["A::s"]),
            ("class A { public: void f(); };", []),
            ("namespace zeplet { class A; ZEPLET_EXPORT std::function<bool(int)> f(int); int g(); }",
             ["f"]),
            ("struct ZEPLET_EXPORT A { public: virtual void f() = 0; void g() override; };",
             ["A::f"]),
            ("// void f();\n#define X \\\n void g();\nclass ZEPLET_EXPORT A { public: /* { */ void h(); };",
             ["A::h"]),
        ]
        for text, names in cases:
            with self.subTest(text):
                self.assertEqual(names, [each.name for each in Header(text).operations])

    def test_what_nobody_uses_is_named(self):
        operations = {each.name: each for each in Header(
            "class ZEPLET_EXPORT A { public: void f(); void g(); virtual void v(); };").operations}
        exported = {"A::f(int)", "A::f()", "A::g()"}
        cases = [
            ({"A::f(int)", "A::f()", "A::g()"}, ["class B : A { void v() override; };"], []),
            ({"A::f()", "A::g()"}, ["A *a; a->v();"], ["A::f(int)"]),
            (exported, ["B *b; b->v();"], ["A::v"]),
        ]
        for imported, sources, missing in cases:
            with self.subTest(missing=missing):
                self.assertEqual(missing, list(unused(operations, exported, imported, sources)))


if __name__ == "__main__":
    tree, Coverage.nm, Coverage.library, *Coverage.examples = sys.argv[1:]
    Coverage.tree = pathlib.Path(tree).resolve()
    unittest.main(argv=sys.argv[:1])
