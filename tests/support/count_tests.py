#!/usr/bin/env python3
"""Sums up what the test command ran and prints "N passed, N failed" as its last line.

usage: count_tests.py BUILD...

Each BUILD holds ctest.xml (written by `ctest --output-junit`) and results/*.xml (written by
GoogleTest, one per program run, named like the ctest entry). An entry that wrote no results
counts as one test; of the GoogleTest programs as one that failed, since it ended before it was
done, whatever its exit code says. One that failed though its results name no failure - a crash, a sanitizer's
report at the end, a time-out - counts as one failure more.
"""
import pathlib
import sys
import xml.etree.ElementTree as xml


def count(build):
    passed = failed = 0
    for case in xml.parse(build / "ctest.xml").getroot().iter("testcase"):
        name = case.get("name")
        ok = case.get("status") == "run"
        try:
            root = xml.parse(build / "results" / f"{name}.xml").getroot()
            ran = [test for test in root.iter("testcase") if test.get("status") == "run"]
            bad = [test for test in ran if test.find("failure") is not None]
        except (FileNotFoundError, xml.ParseError):
            ran = bad = None
        if ran is None:
            ok = ok and not (name == "unit" or name.startswith("windows-"))
            passed, failed = passed + ok, failed + (not ok)
            if not ok:
                print(f"FAILED {name}")
            continue
        passed += len(ran) - len(bad)
        failed += len(bad)
        for test in bad:
            print(f"FAILED {test.get('classname')}.{test.get('name')}")
        if not ok and not bad:
            failed += 1
            print(f"FAILED {name} (did not end as it should)")
    return passed, failed


def main():
    totals = [count(pathlib.Path(build)) for build in sys.argv[1:]]
    passed = sum(total[0] for total in totals)
    failed = sum(total[1] for total in totals)
    print(f"{passed} passed, {failed} failed")
    return 1 if failed or not passed else 0


sys.exit(main())
