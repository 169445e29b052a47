#pragma once
// Command ids that a host sends to the graph's window.

namespace CommandId
{
enum : unsigned {
    NoOp = 40000,
    InsertLabel = 40001,
    Zoom = 40002,
    ResetZoom = 40003,
    Pan = 40004,
    Properties = 40005,
    Print = 40007,
    LinearTrend = 40009,
    CubicTrend = 40010,
    Cursor = 40011,
    PassOn = 40012, // to the parent window, as it came
    ZoomBack = 40013,
    Edit = 40014,
    Measure = 40015
};
} // namespace CommandId
