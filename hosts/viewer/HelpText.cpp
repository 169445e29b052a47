#include "viewer/HelpText.h"

#include <VersionNumbers.h>

namespace Viewer
{

std::u16string_view HelpText() noexcept
{
    return uR"(vantoplex-viewer [OPTIONS] [FILE.csv]

Shows the columns of a CSV file as a graph. The first row names the columns; dates
(2012-01-31, 2012-01-31T06:30, 31.01.2012) become a date axis. A row with an empty or
unreadable cell is left out and counted. Without a FILE the program asks for one.

  --x NAME         column along the X axis (default: the first column)
  --y NAME         column for the Y axis; may be given again (default: all numeric ones)
  --y2 NAME        column for a second Y axis on the right; may be given again
  --group NAME     one curve for each word in this column
  --points         single points instead of lines
  --no-legend      no legend beside the graph

  --chart KIND     graph (default), bar, line, pie or pie3d. The others show categories: each
                   value of the X column is one, each column or word of the group is a series.
                   A pie has a slice for each series, or for each category of a single series.
  --pick NAME      a pie shows this category alone, not the sum of all
  --title TEXT     title of bar, line and pie charts (default: the name of the file)
  --subtitle TEXT  subtitle of bar, line and flat pie charts
  --gradient       a background that fades from one colour into another
  --animation NAME bar: grow, grow-groups, grow-series, fade-groups, fade-series;
                   line: draw, draw-series; pie: sweep, fade
  --tick N         stops the animation after N ticks of its clock (0 to 10000)
  --style NAME     of the 3D pie: 3d (default), flat or doughnut
  --tilt DEGREES   of the 3D pie, 0 to 85 (default: 50)
  --start DEGREES  where the 3D pie's first slice begins, 0 to 359
  --depth PIXELS   of the 3D pie's wall, 0 to 1000 (default: 60)
  --sort ORDER     of the 3D pie's slices: none, descending or ascending

  --png FILE       draws into a PNG file and ends, without a person
  --size WxH       size of the picture or the window in pixels (default: 800x600)
  --script FILE    works with the window as the file says, line by line, and ends
  --registered     uses the Vantoplex.dll that is registered on this machine,
                   not the one beside this program
  --help           this text
  --version        the version of this program

A script moves the mouse and the keys of the XY graph. X and Y are pixels of the chart's
window ("120") or parts of it ("25%"); "on:1" as Y is the first curve's point at that X.

  mode NAME              select, zoom, pan, cursor, measure or edit
  command NAME           label, zoom-back, reset-zoom, delete-measures, linear-trend,
                         cubic-trend, polynomial, simple-average, exponential-average,
                         linear-average, triangular-average, copy-bitmap, copy-metafile,
                         bar, line, pie, pie3d, graph, properties, or the number of a
                         menu command
  click X Y              also: double-click, right-click
  move X Y
  drag X Y X Y           hold X Y X Y the same without letting go, release X Y lets go
  wheel NOTCHES          key NAME: home add subtract left right up down delete return
                         escape space tab
  type TEXT              into the label that is being edited, or where a dialog has its caret
  save FILE, load FILE   graph files
  picture FILE           a PNG file of the chart, window FILE one of the whole window
  print                  tells operation, zoom depth and curves

While a dialog is open, the steps that follow work in it. CONTROL is a number, or ok, cancel
or apply; docs/gallery.md has the numbers.

  choose N               the Nth item of the popup menu that a right click opened
  page NAME              chart, axis or curve
  set CONTROL VALUE      a text, on or off, or the number of a row, counted from 1
  press CONTROL          read CONTROL tells what it holds
  dialog FILE            a PNG file of the dialog and of all that is open over it

Exit codes: 0 done, 1 the file can't be read or plotted, 2 wrong command line or script,
3 the chart server can't be started, 4 the picture can't be drawn or written.
)";
}

std::u16string_view KeysText() noexcept
{
    return uR"(In every mode
Home	the whole data again
+ and -	(numeric pad) zoom in and out
Arrows	move the view by a tenth; in cursor mode: the cursor by a pixel
Wheel	move along X; with Shift: along Y
Right click	menu

Select
Click	select an axis, a curve, a label; with an axis selected: a marker at the click
Drag	a marker, a selected label
Double click	properties; on a label: write in it
Right click	on a marker: remove it
Delete	remove the selected label

Zoom	drag a rectangle (15 pixels at least)
Pan	drag the view
Cursor	move to read off, click to leave a note, drag with the right button to pan
Measure	drag from one point of a curve to another
Edit points	drag a point of a curve up or down

Ctrl+O open, Ctrl+E export, Ctrl+P print, Ctrl+C copy, F1 this text
)";
}

std::u16string_view VersionText() noexcept
{
    return u"vantoplex-viewer " VANTOPLEX_RELEASE "\n";
}

} // namespace Viewer
