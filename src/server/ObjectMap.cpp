#include "server/ObjectMap.h"

#include "automation/Chart2d.h"
#include "automation/ChildWrappers.h"
#include "automation/PieChart3d.h"
#include "automation/SGraph.h"
#include "automation/SGraphLabel.h"
#include "automation/SGraphLogAxis.h"

namespace
{

BEGIN_OBJECT_MAP(ObjectMap)
OBJECT_ENTRY(CLSID_PieChart3d, CPieChart3d)
OBJECT_ENTRY(CLSID_Chart2d, CChart2d)
OBJECT_ENTRY(CLSID_SGraphObject, CSGraphObject)
OBJECT_ENTRY(CLSID_SGraphAxis, CSGraphAxis)
OBJECT_ENTRY(CLSID_SGraphLogAxis, CSGraphLogAxis)
OBJECT_ENTRY(CLSID_SGraphLabel, CSGraphLabel)
OBJECT_ENTRY(CLSID_SGraphDataSerie, CSGraphDataSerie)
OBJECT_ENTRY(CLSID_SGraphDataNotation, CSGraphDataNotation)
OBJECT_ENTRY(CLSID_SGraphBitmap, CSGraphBitmap)
OBJECT_ENTRY(CLSID_SGraph, CSGraph)
OBJECT_ENTRY(CLSID_SObject, CSObject)
END_OBJECT_MAP()

} // namespace

_ATL_OBJMAP_ENTRY* TheObjectMap() noexcept
{
    return ObjectMap;
}
