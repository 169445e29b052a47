"""The type library without the time of its making, so that two builds of one commit are equal."""

import re

# widl's note of itself, as custom data: the text, filled up to a multiple of four; the time as a number;
# its version as one.
NOTE = re.compile(rb"(Created by WIDL version [\d.]+ at )(.{24})(\nW*\x13\x00)(.{4})(WW\x13\x00)", re.DOTALL)
NO_TIME = b"Thu Jan  1 00:00:00 1970"


def without_time(library):
    made, count = NOTE.subn(lambda note: note[1] + NO_TIME + note[3] + bytes(4) + note[5], library)
    if count != 1:
        raise SystemExit("the type library does not say once when it was made")
    return made
