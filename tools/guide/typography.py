"""French typography: the blanks at which a line must not end."""

import re

FORMULAS_AND_CODE = re.compile(r"(\$\$.*?\$\$|\$[^$\n]+\$|`[^`\n]+`|\]\([^)\n]*\))", re.DOTALL)
UNITS = ("%|°|[kMG]?Hz|[KMG]Hz|[mkM]?Ω|[Oo]hms|[mk]?V|[mµ]?A|k?W|VA|W/kg|A/mm²|N/m²|kg/cm²|[mµnp]?H|[µnp]?F|pF/m|nF/m|[cdmµ]?m|[mc]?m²|dB|"
         "[mµnp]?s|hPa|Pa|J|T|pouces?|tours?|spires?|volts?|watts?|degrés?")
BLANKS = (
    (re.compile(r"« "), "«\u00a0"),
    (re.compile(r"(?<!\n) (?=[»:;?!])"), "\u00a0"),
    (re.compile(r"(?<=\d) (?=\d{3}(?!\d))"), "\u202f"),
    (re.compile(rf"(?<=\d) (?=(?:{UNITS})(?![\w/]))"), "\u00a0"),
)


def french(markdown):
    """The text with blanks that keep marks with their words and units with their numbers; formulas and code stay."""
    parts = FORMULAS_AND_CODE.split(markdown)
    for index in range(0, len(parts), 2):
        for pattern, blank in BLANKS:
            parts[index] = pattern.sub(blank, parts[index])
    return "".join(parts)
