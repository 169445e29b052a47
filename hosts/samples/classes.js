// What a script can do, in JScript.
// Tried: run by cscript of Wine 8.
//
// A script makes the objects by their names and calls what takes numbers and texts. It can't show a
// chart: Create takes the address of a rectangle and a window's handle, SetData the address of an
// array, and most getters write through an address. Late binding of a script has none of these.
var names = ["SGraph", "Chart2d", "PieChart3d", "SGraphAxis", "SGraphDataSerie", "SGraphLabel"];
for (var i = 0; i < names.length; i++) {
    var object = new ActiveXObject("Vantoplex." + names[i]);
    WScript.Echo("Vantoplex." + names[i] + " " + typeof object);
}
// A method with numbers alone. Nothing comes of it before Create, which is for programs.
new ActiveXObject("Vantoplex.SGraph").GetXGraphMsgInfo(1025, "");
WScript.Echo("called");
