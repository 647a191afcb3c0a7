"""Décibels.

Source: the definition of the decibel (ISO 80000-8 and IEC 60027-3): ten times the decimal logarithm of a ratio of
powers, twenty times that of a ratio of voltages across equal impedances.
"""

from math import log

from accuracy import Case

CASES = [
    Case("Gain de 4 W à 100 W", ['replace Decibels.TxtPe "4"', 'replace Decibels.TxtPs "100"'],
         read="Decibels.TxtGdBp.Text", unit="dB", right=10 * log(100 / 4) / log(10), factor=1, tolerance=1e-9),
    Case("Rapport de puissances pour 3 dB", ['replace Decibels.TxtGdBp "3"'],
         read="Decibels.TxtGainP.Text", unit="", right=1.9953, factor=1, tolerance=1e-4),
    Case("Un point S de 6 dB, en tension", ['replace Decibels.TxtGdBU "6"'],
         read="Decibels.TxtGainU.Text", unit="", right=1.9953, factor=1, tolerance=1e-4),
    Case("50 µV contre 1 µV", ['replace Decibels.TxtUe "1"', 'replace Decibels.TxtUs "50"'],
         read="Decibels.TxtGdBU.Text", unit="dB", right=33.979, factor=1, tolerance=1e-4),
]
