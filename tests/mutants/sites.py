"""What can be changed in a source: one token at a time, each change as a person could have mistyped it."""

import re
import zlib
from dataclasses import dataclass, field

TOKEN = re.compile(r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#[^\n]*)
  | (?P<string>"(?:\\.|[^"\\\n])*")
  | (?P<char>(?<![\w])'(?:\\.|[^'\\\n])+')
  | (?P<number>(?<![\w.])(?:0[xX][0-9A-Fa-f']+|(?:\d[\d']*\.?\d*|\.\d+)(?:[eE][-+]?\d+)?)[fFuUlL]*)
  | (?P<name>[^\W\d]\w*)
  | (?P<sign><=>|->\*?|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||::|[-+*/%]=|[^\s\w])
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

SIGNS = {"+": "Plus", "-": "Minus", "*": "Times", "/": "Over", "<": "Less", "<=": "LessEqual", ">": "Greater",
         ">=": "GreaterEqual", "==": "Equal", "!=": "NotEqual"}
OTHER_SIGNS = {"+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="],
               ">=": [">", "<"], "==": ["!="], "!=": ["=="]}
LOGIC = {"&&": "||", "||": "&&"}
WORDS = {"true": "false", "false": "true"}
ALIGN = {"Left": "Right", "Right": "Center", "Center": "Left"}
# No statement that can be left out begins with one of these.
KEYWORDS = {"if", "else", "for", "while", "do", "switch", "case", "default", "const", "constexpr", "static", "auto",
            "using", "namespace", "template", "class", "struct", "enum", "friend", "virtual", "explicit", "inline",
            "public", "private", "protected", "typedef", "operator", "try", "catch", "throw", "static_assert", "extern"}
STATEMENT_BEGINS = re.compile(r"\s*|\s*(?:resumeNext\(\{)?\[(?:&|this)\] \{ ")  # a line, or one of a list of statements
# Where a control stands is our own layout, stated nowhere: the form checks of the view judge it.
PLACES = re.compile(r"\.at = \{|(?<=[ {])\.(?:Width|Height) = |\b(?:Box|Column)(?: \w+)?\{"
                    r"|\bColumn \w+ = \w+\.from\(|\.noms = \{|(?<=[ {])\.traits = "
                    r"|\(\{(?=[\w.]+, [^{}]+, [^{}]+, [^{}]+\})|\b(?:letterBox|letter|lettreDeCote|cote)\(")
PLACE = re.compile(r"constexpr double \w+ = [^;]*$")
# Functions that give a place, and the members of one; a statement that moves one.
PLACES_OF_FUNCTIONS = re.compile(r"\bBox \w+\([^(){}]*\)(?: const)?\s*\{|\bstruct (?:Box|Column) \{")
MOVES = re.compile(r"\bdesign\.at\.\w+ [-+]?= [^;]*;")
# In a form, what is called with numbers gives places, but these.
CALLED_WITH_VALUES = {"barre", "Pow", "vers"}
LINE_ENDS = re.compile(r"\.[XY][12] = -?$")


@dataclass
class Change:
    """One change of one token: what the source has, and what a mutant has instead."""

    start: int
    end: int
    old: str
    new: str
    before: str | None = None  # what goes before and behind the token to have both in one source; @ is its number
    behind: str | None = None
    line: int = field(default=0)


def tokens(text):
    return [match for match in TOKEN.finditer(text) if match.lastgroup not in ("comment", "directive")]


def changes(text, header):
    """All changes of a source, in the order of their places."""
    found = []
    code = tokens(text)
    excluded = excluded_places(text)
    for index, token in enumerate(code):
        if any(start <= token.start() < end for start, end in excluded):
            continue
        made = one_token(text, code, index, header)
        found += made
    found += [change for change in statements(text, code)
              if not any(start <= change.start < end for start, end in excluded)]
    found.sort(key=lambda change: (change.start, -change.end))
    for change in found:
        change.line = text.count("\n", 0, change.start) + 1
    return found


def excluded_places(text):
    """The parts of a text that say where controls stand."""
    spans = [match.span() for match in MOVES.finditer(text)]
    for match in (*PLACES.finditer(text), *PLACES_OF_FUNCTIONS.finditer(text)):
        depth, end = 1, match.end()
        while depth and end < len(text):
            depth += {"(": 1, "{": 1, ")": -1, "}": -1}.get(text[end], 0)
            end += 1
        spans.append((match.start(), end))
    return spans


def one_token(text, code, index, header):
    token = code[index]
    kind, old = token.lastgroup, token.group()
    start, end = token.span()
    before = code[index - 1].group() if index else ""
    behind = code[index + 1].group() if index + 1 < len(code) else ""
    if kind == "number":
        return numbers(text, code, index, header)
    if kind == "string":
        return strings(text, start, end, old)
    if kind == "name" and old in WORDS and before != "consteval":
        return [either(start, end, old, WORDS[old])]
    if kind == "name" and old in ALIGN and before == "::" and code[index - 2].group() == "Align":
        return [either(code[index - 2].start(), end, "Align::" + old, "Align::" + ALIGN[old])]
    if kind != "sign" or before == "operator":
        return []
    if old == "!" and behind != "=":
        return [Change(start, end, old, "")]
    if text[start - 1] != " " or text[end:end + 1] != " " or old in "+-" and in_template_argument(text, start, end):
        return []
    if old in LOGIC:
        return [Change(start, end, old, LOGIC[old])]
    if old in SIGNS and not before.startswith("template"):
        line = text[text.rfind("\n", 0, start):text.find("\n", end)]
        if old == "+" and '"' in line:
            return []  # it joins texts
        return [Change(start, end, old, new, "", f" ondelis_mutants::Change<ondelis_mutants::Sign::{SIGNS[old]}, "
                       f"ondelis_mutants::Sign::{SIGNS[new]}>{{@}} {old}")
                for new in OTHER_SIGNS[old]]
    return []


def either(start, end, old, new):
    return Change(start, end, old, new, f"ondelis_mutants::either(@, {new}, ", ")")


def numbers(text, code, index, header):
    token = code[index]
    start, end = token.span()
    old = token.group()
    before = code[index - 1].group() if index else ""
    earlier = text[text.rfind("\n", 0, start) + 1:start]
    if in_template_argument(text, start, end):
        return []  # the size of a table
    if before == "case" or header and is_place(text, start, earlier) or re.match(r"\s*virtual .*= $", earlier):
        return []  # beside another label, or layout, or of a function that is left to others
    sign = ""
    if before == "-" and code[index - 1].end() == start and code[index - 2].group() in "(,={?:<>==!=return+-*/":
        start, sign = start - 1, "-"
    return [either(start, end, sign + old, new) for new in other_numbers(sign, old)]


def in_template_argument(text, start, end):
    earlier = text[text.rfind("\n", 0, start) + 1:start]
    return re.search(r"<[^<>=;]*$", earlier) and re.match(r"[^<>=;()]*>", text[end:])


def is_place(text, start, earlier):
    """Whether a number of a form says where a control stands."""
    if LINE_ENDS.search(earlier) or PLACE.search(earlier):
        return True
    called = call_around(text, start)
    return called is not None and called not in CALLED_WITH_VALUES


def call_around(text, start):
    """The function of whose call that place is an argument; None where it is in no call."""
    depth = 0
    for place in range(start - 1, -1, -1):
        depth += {")": 1, "}": 1, "(": -1, "{": -1}.get(text[place], 0)
        if depth < 0:
            if text[place] == "{" and text[place - 1] == "(":
                depth = 0
                continue  # a box that is an argument itself
            return re.search(r"\w*$", text[:place]).group() if text[place] == "(" else None
    return None


def other_numbers(sign, old):
    if sign == "-":
        yield old
    if old[:2] in ("0x", "0X"):
        digits = old.rstrip("uUlL")
        yield digits[:-1] + format(int(digits[-1], 16) ^ 1, "X") + old[len(digits):]
        return
    if old.isdigit():
        yield sign + str(int(old) + 1)
        if int(old) > 0:
            yield sign + str(int(old) - 1)
        return
    digits = [place for place, letter in enumerate(re.split("[eE]", old)[0]) if letter.isdigit()]
    for place in sorted({digits[-1], digits[0]}):
        digit = int(old[place])
        yield sign + old[:place] + str(digit + 1 if digit < 9 else 8) + old[place + 1:]


def strings(text, start, end, old):
    earlier = text[max(0, start - 40):start]
    if re.search(r"\bthis, $|\.name = $|NOLINT|extern $", earlier):
        return []  # the name of a control
    if old == '""':
        return [either(start, end, old, '"?"')]
    places = [place for place in range(1, len(old) - 1)
              if old[place].isascii() and old[place].isalnum() and old[place - 1] != "\\"]
    if not places:
        return [either(start, end, old, ('"!' if old[1] == "?" else '"?') + old[2:])]
    place = places[zlib.crc32(old.encode()) % len(places)]  # the same letter wherever the text stands
    letter = old[place]
    other = {"z": "y", "Z": "Y", "9": "8"}.get(letter, chr(ord(letter) + 1))
    return [either(start, end, old, old[:place] + other + old[place + 1:])]


STATEMENT = re.compile(
    r"(?:\*|\+\+|--)?(?:::)?[^\W\d]\w*(?:<[\w:, ]+>)?(?:(?:\.|->|::)\w+|\([^()]*\)|\[[^\[\]]*\])*\s*(?:[-+*/]?=(?!=)|\(|\+\+|--|;)")


def statements(text, code):
    """Statements that can be left out: those that begin a line, but declarations."""
    classes = set(re.findall(r"^class (\w+)\b(?!.*;)", text, flags=re.MULTILINE))
    for index, token in enumerate(code):
        start = token.start()
        line = text[text.rfind("\n", 0, start) + 1:start]
        if not line or not STATEMENT_BEGINS.fullmatch(line) or token.group() in KEYWORDS:
            continue
        if index == 0 or code[index - 1].group() not in (";", "{", "}", ")", ":", "else"):
            continue
        if token.group() in classes:
            continue  # a constructor
        match = STATEMENT.match(text, start)
        if token.group() != "return" and not match:
            continue
        if token.group() == "return" and code[index + 1].group() != ";":
            continue
        end = statement_end(code, index)
        if end is None:
            continue
        old = " ".join(text[start:end].split())
        if old.endswith(("= default;", "= delete;")):
            continue
        yield Change(start, end, old, ";", "{ if (!ondelis_mutants::on(@)) { ", " } }")


def statement_end(code, index):
    depth = 0
    for token in code[index:]:
        sign = token.group() if token.lastgroup == "sign" else ""
        depth += {"(": 1, "{": 1, "[": 1, ")": -1, "}": -1, "]": -1}.get(sign, 0)
        if depth < 0:
            return None
        if depth == 0 and sign == ";":
            return token.end()
    return None
