// Ids of the registry scripts, resources of type REGISTRY. Included by the resource script too.
#pragma once

#define IDR_PIECHART3D 102
#define IDR_CHART2D 103
#define IDR_SGRAPHOBJECT 119
#define IDR_SGRAPHAXIS 120
#define IDR_SGRAPHLOGAXIS 121
#define IDR_SGRAPHLABEL 122
#define IDR_SGRAPHDATASERIE 123
#define IDR_SGRAPHDATANOTATION 124
#define IDR_SGRAPHBITMAP 125
#define IDR_SBITMAPEX 126 // kept, but no class refers to it
#define IDR_SGRAPH 127
#define IDR_SOBJECT 129
