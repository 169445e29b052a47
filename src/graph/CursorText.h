#pragma once
// The lines of the cursor's box. Each begins with a blank and ends in "\r\n".
//
// Display formats come from the host: they are parsed, never handed to the run-time.

#include "framework/windowing/Strings.h"

class CXGraphAxis;

namespace CursorText
{
// "X[01] : value label". With a date-time axis the date's text is itself taken for a format: a
// "%%" in it becomes one "%", and its first string item takes the label in place of the last one.
[[nodiscard]] CString XAxisLine(int number, const CXGraphAxis& axis, double value);

// "Y[01] : value label", always as a number.
[[nodiscard]] CString YAxisLine(int number, const CXGraphAxis& axis, double value);

// "curve[01] : x, y". With a date-time X axis the date's text is taken for a format too: a number
// item in it takes y.
[[nodiscard]] CString CurveLine(const CString& curveLabel, int number, const CXGraphAxis& xAxis,
                                double x, const CXGraphAxis& yAxis, double y);
} // namespace CursorText
