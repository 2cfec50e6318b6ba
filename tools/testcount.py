#!/usr/bin/env python3
"""testcount.py CTEST_XML FOLDER: prints how many test cases passed and failed.

CTest knows programs; what each GoogleTest program tested is in its own report in FOLDER. A program
without a report (a fuzz corpus, or one that crashed) counts as one case.
"""
import pathlib
import sys
import xml.etree.ElementTree as ElementTree


def count_program(case, folder):
    ran_well = case.get("status") == "run"
    report = folder / (case.get("name") + ".xml")
    if not report.exists():
        return (1, 0) if ran_well else (0, 1)
    suites = ElementTree.parse(report).getroot()
    bad = int(suites.get("failures")) + int(suites.get("errors"))
    skipped = len(suites.findall(".//skipped")) + int(suites.get("disabled"))
    good = int(suites.get("tests")) - bad - skipped
    # Every case was well, the program was not: a crash or a leak at its end, say.
    return (good, bad) if ran_well or bad else (good, 1)


def main():
    folder = pathlib.Path(sys.argv[2])
    cases = ElementTree.parse(sys.argv[1]).getroot().findall("testcase")
    counts = [count_program(case, folder) for case in cases]
    # A build without any test is a fault of the build.
    print(sum(c[0] for c in counts), sum(c[1] for c in counts) if counts else 1)


main()
