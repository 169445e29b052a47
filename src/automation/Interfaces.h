#pragma once
// The interfaces as the wrappers see them: the vocabulary of the native classes comes before
// the generated header, which then leaves its own copy out.

#include "base/Vocabulary.h"
#include "framework/component/ClassFactory.h"
#include "framework/component/Dispatch.h"
#include "framework/windowing/ModuleState.h"
#include "vantoplex.h"

#include <windows.h>

// Three interfaces declare methods of their base again. Those take no entry of the method
// table, but the type library counts one for each: its entries run that far past the real
// table's end. The wrappers of the three expose a table with as many refusals behind it.
//
// By table entry (IDispatch 0 to 6, ISObject 7 and 8, ISGraphObject 9 to 17):
//
//   ISGraphLabel      own entries 18 to 30, in the library 18 to 32. SetColor (83) and GetColor
//                     (84), at 21 and 22, land on SetTextColor and GetTextColor, and so on two
//                     further down each time; SetCurve (93) and GetCurve (94) land on refusals.
//   ISGraphDataSerie  own 18 to 54, library 18 to 55. GetGraph (20), at 18, lands on
//                     GetLinearTrend, each following one on its neighbour; SetLineStyle (57)
//                     lands on a refusal.
//   ISGraphLogAxis    own 51, library 51 to 53. SetRange (60) is in its place; GetValueForPos
//                     (61) and SetAxisType (62) land on refusals.
using ISGraphLabelTable = CRefusingTail<ISGraphLabel, 2>;
using ISGraphDataSerieTable = CRefusingTail<ISGraphDataSerie, 1>;
using ISGraphLogAxisTable = CRefusingTail<ISGraphLogAxis, 2>;
