"""Formulas that read well without a maths font and without a graphical browser.

A root is written √(…), since browsers draw its sign only with such a font. A browser that knows no MathML shows the
letters of a formula in a row: signs that only it shows tell fractions, powers and indices apart. Formulas that stand
side by side become one each, so that a narrow screen can set them one under the other.
"""

import re
import xml.etree.ElementTree as ET

NAMESPACE = "{http://www.w3.org/1998/Math/MathML}"
BETWEEN = "2.0em"  # the width of \\qquad, which stands between formulas
ET.register_namespace("", NAMESPACE.strip("{}"))


def readable(html):
    """A page with all its formulas rewritten."""
    return re.sub(r"<math .*?</math>", lambda found: _formula(found.group()), html, flags=re.DOTALL)


def _formula(text):
    math = ET.fromstring(text.replace("&nbsp;", "\u00a0"))
    semantics = math.find(NAMESPACE + "semantics")
    if semantics is not None:  # the formula, and its TeX as an annotation, which such a browser would show too
        math[:] = [semantics[0]]
    formulas = _apart(math) if math.get("display") == "block" else [math]
    for element in [element for formula in formulas for element in formula.iter()]:
        _join_decimals(element)
        _rewrite(element)
        element[:] = [_row(_hidden(" "), child) if child.tag == NAMESPACE + "mspace" else child for child in element]
    written = " ".join(ET.tostring(formula, encoding="unicode", short_empty_elements=False) for formula in formulas)
    return f'<span class="formules">{written}</span>' if math.get("display") == "block" else written


def _apart(math):
    """The formulas that stand side by side in one."""
    elements = math[0] if len(math) == 1 and math[0].tag == NAMESPACE + "mrow" else math
    rows = [_row()]
    for element in elements:
        if element.tag == NAMESPACE + "mspace" and element.get("width") == BETWEEN:
            rows.append(_row())
        else:
            rows[-1].append(element)
    formulas = [ET.Element(math.tag, math.attrib) for _ in rows]
    for formula, row in zip(formulas, rows):
        formula.append(row)
    return formulas


def _join_decimals(element):
    """A number with a decimal comma as one number: otherwise the comma would separate two of them, with a blank."""
    for before, comma, after in list(zip(element, element[1:], element[2:])):
        if [part.tag.removeprefix(NAMESPACE) for part in (before, comma, after)] == ["mn", "mo", "mn"] and comma.text == ",":
            after.text = f"{before.text},{after.text}"
            element.remove(before)
            element.remove(comma)


def _rewrite(element):
    name = element.tag.removeprefix(NAMESPACE)
    if name == "msqrt":
        element.tag = NAMESPACE + "mrow"
        element[:] = [_sign("√"), _sign("(", form="prefix"), *element, _sign(")", form="postfix")]
    elif name == "mfrac":
        above, below = element
        element[:] = [_group("", above), _group("/", below)]
    elif name == "msup":
        base, power = element
        element[:] = [base, _group("^", power)]
    elif name == "msub":
        base, index = element
        element[:] = [base, _row(_hidden("_"), index)] if len(_text(index)) > 1 else [base, index]


def _text(element):
    return "".join(element.itertext()).strip()


def _sign(character, **attributes):
    sign = ET.Element(NAMESPACE + "mo", {"stretchy": "true", **attributes} if attributes else {})
    sign.text = character
    return sign


def _hidden(characters):
    text = ET.Element(NAMESPACE + "mtext", {"class": "brut"})
    text.text = characters
    return text


def _row(*elements):
    row = ET.Element(NAMESPACE + "mrow")
    row.extend(elements)
    return row


def _group(before, element):
    """In brackets if it is more than one letter or number."""
    single = element.tag in (NAMESPACE + "mi", NAMESPACE + "mn")
    return _row(_hidden(before or " "), element) if single else _row(_hidden(before + "("), element, _hidden(")"))
