"""Formulas that read well without a font of mathematics and without a graphical browser.

A root is written √(…), since browsers draw its sign only with such a font. A browser that knows no MathML shows the
letters of a formula in a row: signs that only it shows tell fractions, powers and indices apart.
"""

import re
import xml.etree.ElementTree as ET

NAMESPACE = "{http://www.w3.org/1998/Math/MathML}"
ET.register_namespace("", NAMESPACE.strip("{}"))


def readable(html):
    """A page with all its formulas rewritten."""
    return re.sub(r"<math .*?</math>", lambda found: _formula(found.group()), html, flags=re.DOTALL)


def _formula(text):
    math = ET.fromstring(text.replace("&nbsp;", "\u00a0"))
    semantics = math.find(NAMESPACE + "semantics")
    if semantics is not None:  # the formula, and its TeX as an annotation, which such a browser would show too
        math[:] = [semantics[0]]
    for element in list(math.iter()):
        _rewrite(element)
        element[:] = [_row(_hidden(" "), child) if child.tag == NAMESPACE + "mspace" else child for child in element]
    return ET.tostring(math, encoding="unicode", short_empty_elements=False)


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
    """In brackets, where it is more than one letter or number."""
    single = element.tag in (NAMESPACE + "mi", NAMESPACE + "mn")
    return _row(_hidden(before or " "), element) if single else _row(_hidden(before + "("), element, _hidden(")"))
