#include "Seeds.h"

#include "graph/FileBytes.h"

#include <limits>

using namespace FileBytes;

namespace
{
TCurve Curve(int nPoints)
{
    TCurve curve;
    for (int i = 0; i < nPoints; ++i)
        curve.points.push_back({i * 1.0, (i * 7 % 11) * 1.0});
    curve.label = L"curve";
    return curve;
}

std::string Data(EForm form)
{
    TAxis xAxis;
    xAxis.ranges.push_back({1, 2, 0xFF, 0xFF00, 6, L"band"});
    xAxis.markers.push_back({3, 0xFF, 1});
    TAxis yAxis;
    yAxis.nKind = 1;
    yAxis.bDateTime = true;
    yAxis.displayFormat = L"%Y-%m-%d";
    CBytes bytes;
    bytes.Count(form, 2).Raw(Bytes(Curve(5))).Raw(Bytes(Curve(40)));
    bytes.Count(form, 1).Raw(Bytes(xAxis, form));
    bytes.Count(form, 2).Raw(Bytes(yAxis, form)).Raw(Bytes(yAxis, form));
    return bytes.m_bytes;
}

std::string Objects(EForm form)
{
    TLabel label;
    label.text = L"A label\nof two lines";
    TNotation notation;
    notation.text = L"x: 1\ny: 2";
    TBitmap bitmap;
    bitmap.nWidth = 8;
    bitmap.nHeight = 4;
    bitmap.nWidthBytes = 32;
    bitmap.nPlanes = 1;
    bitmap.nBitsPixel = 32;
    bitmap.bits.assign(128, '\x55');
    CBytes bytes;
    bytes.Count(form, 1).Add(0).Add(1).Add(1).Add(2);
    bytes.Count(form, 5);
    bytes.Raw(NewClass("CXGraphLabel")).Raw(Bytes(label));
    bytes.Raw(NewClass("CXGraphDataNotation")).Raw(Bytes(notation));
    bytes.Raw(NewClass("CXGraphBitmap")).Raw(Bytes(bitmap));
    bytes.Raw(KnownClass(1)).Raw(Bytes(label));
    return bytes.Raw(KnownClass(5)).Raw(Bytes(bitmap)).m_bytes;
}

// Of classes that are no free objects, though derived from one base with them.
std::string StrangeObjects()
{
    CBytes bytes;
    bytes.Add(0).Add(4);
    bytes.Raw(NewClass("CXGraphAxis")).Raw(Bytes(TAxis(), EForm::Readable));
    bytes.Raw(NewClass("CXGraphDataSerie")).Raw(Bytes(Curve(3)));
    bytes.Raw(NewClass("CXGraphLogAxis")).Raw(Bytes(TAxis(), EForm::Readable));
    return bytes.Raw(NewClass("CXGraphObject")).Raw(Bytes(TObject())).m_bytes;
}

std::string LogGraph()
{
    TAxis axis;
    axis.fMin = axis.fCurMin = std::numeric_limits<double>::denorm_min();
    axis.fMax = axis.fCurMax = std::numeric_limits<double>::max();
    axis.label.assign(300, L'x');
    CBytes bytes;
    bytes.Add(1).Raw(Bytes(Curve(1000))).Add(1).Raw(Bytes(axis, EForm::Readable)).Add(1);
    return bytes.Raw(Bytes(axis, EForm::Readable)).m_bytes;
}
} // namespace

std::string DefaultSettings()
{
    return Flags(1) + Bytes(TSettings());
}

std::vector<std::string> SeedFiles()
{
    const std::string settings = Bytes(TSettings());
    return {Flags(1) + settings,
            Flags(7) + settings + Data(EForm::Readable) + Objects(EForm::Readable),
            Flags(7) + settings + Data(EForm::Saved) + Objects(EForm::Saved),
            Flags(2) + Data(EForm::Readable),
            Flags(4) + Objects(EForm::Readable),
            Flags(4) + Objects(EForm::Saved),
            Flags(4) + StrangeObjects(),
            Flags(2) + LogGraph(),
            Flags(0xFFFFFFFF) + settings + Data(EForm::Readable) + Objects(EForm::Readable)};
}
