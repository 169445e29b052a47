#pragma once
// The ids of the viewer's own menu commands. Those from 40000 on are the graph's (GraphCommands.h).

#include <array>

namespace Viewer::MenuCommand
{

constexpr unsigned OpenCsv = 1001;
constexpr unsigned OpenGraph = 1002;
constexpr unsigned SaveGraph = 1003;
constexpr unsigned ExportPng = 1004;
constexpr unsigned Exit = 1005;
constexpr unsigned Follow = 1006;
constexpr unsigned CopyBitmap = 1011;
constexpr unsigned CopyMetafile = 1012;
constexpr unsigned DeleteMeasures = 1013;
constexpr unsigned ViewMoved = 1014; // of no menu: a wheel or a key has moved the view
constexpr unsigned ViewDragged = 1015;
constexpr unsigned Legend = 1021;
constexpr unsigned Snap = 1022;
constexpr unsigned FirstDegree = 1032; // of a polynomial: 2
constexpr unsigned LastDegree = 1036;
constexpr unsigned FirstAverage = 1041; // in the order of Analysis
constexpr unsigned LastAverage = 1044;
constexpr unsigned FirstSpan = 1051;
constexpr unsigned LastSpan = 1057;
constexpr unsigned FirstKind = 1061; // in the order of ChartKind
constexpr unsigned LastKind = 1065;
constexpr unsigned NoAnimation = 1070;
constexpr unsigned FirstAnimation = 1071; // in the order of Animations()
constexpr unsigned LastAnimation = 1079;
constexpr unsigned FirstStyle = 1081; // in the order of PieStyle
constexpr unsigned LastStyle = 1083;
constexpr unsigned FirstOrder = 1085; // in the order of PieOrder
constexpr unsigned LastOrder = 1087;
constexpr unsigned TiltMore = 1091;
constexpr unsigned TiltLess = 1092;
constexpr unsigned FirstCurve = 1100;
constexpr unsigned LastCurve = 1199;
constexpr unsigned FirstRecent = 1201; // in the order of RecentFiles
constexpr unsigned LastRecent = 1208;
constexpr unsigned Keys = 1301;
constexpr unsigned About = 1302;

constexpr std::array<int, LastSpan - FirstSpan + 1> spans = {3, 5, 7, 12, 30, 100, 365};

} // namespace Viewer::MenuCommand
