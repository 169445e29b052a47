// Ids of the property dialogs, their controls and their texts. Included by the resource script
// too. A number may serve several dialogs, where the control has the same purpose.
#pragma once

#define IDD_AXIS 104
#define IDD_CHART 105
#define IDD_CHARTPAGE 106
#define IDD_CURVE 107
#define IDD_LABEL 108
#define IDD_TREND 109
#define IDD_MOVINGAVG 128

#define IDS_NO_POLYNOMIAL_TREND 101

// Preview tiles of the fill styles 0 to 5.
#define IDB_FILL_HORIZONTAL 206
#define IDB_FILL_VERTICAL 201
#define IDB_FILL_FALLING 202
#define IDB_FILL_RISING 203
#define IDB_FILL_GRID 204
#define IDB_FILL_CROSS 205

#define IDC_APPLY 5002
#define IDC_COLOR 6007 // of the axis, the curve or the label
#define IDC_VISIBLE 6009
#define IDC_LABEL 6010
#define IDC_MARKERSIZE 6022
#define IDC_MARKERSIZE_SPIN 6023
#define IDC_TYPE 6034 // of a curve, or of a moving average

// The sheet
#define IDC_TABS 6073

// The page of the graph
#define IDC_BACKCOLOR 6047
#define IDC_GRAPHCOLOR 6048
#define IDC_INNERCOLOR 6049
#define IDC_SHOWLEGEND 6050
#define IDC_LEGENDALIGNMENT 6051
#define IDC_DOUBLEBUFFER 6052
#define IDC_XAXES 6055
#define IDC_CURVES 6057
#define IDC_YAXES 6070
#define IDC_SNAPRANGE_SPIN 6074
#define IDC_SNAPRANGE 6075
#define IDC_SNAPCURSOR 6076

// The page of an axis
#define IDC_SCALEFONT 6001
#define IDC_TITLEFONT 6002
#define IDC_MAX 6013
#define IDC_SHOWGRID 6014
#define IDC_DATETIME 6015
#define IDC_DECIMALS 6016
#define IDC_DECIMALS_SPIN 6017
#define IDC_ARCSIZE 6018
#define IDC_ARCSIZE_SPIN 6019
#define IDC_TICKSIZE 6020
#define IDC_TICKSIZE_SPIN 6021
#define IDC_STEP 6024
#define IDC_MINDATE 6025
#define IDC_MINTIME 6026
#define IDC_MAXDATE 6029
#define IDC_MAXTIME 6030
#define IDC_GRIDCOLOR 6033
#define IDC_AUTOSCALE 6039
#define IDC_MIN 6040
#define IDC_DATEFORMAT 6046
#define IDC_SHOWKEYS 6058 // the band of curve keys
#define IDC_GRIDSTYLE 6072
#define IDC_PLACEMENT 6077
#define IDC_TIMESTEP 6081
#define IDC_TIMEUNIT 6083

// The page of a curve
#define IDC_LINESIZE_SPIN 6006
#define IDC_LINESTYLE 6008
#define IDC_FILLBENEATH 6011
#define IDC_FILLTRANSPARENT 6012
#define IDC_FILLSTYLE0 6045
#define IDC_FILLSTYLE1 6027
#define IDC_FILLSTYLE2 6028
#define IDC_FILLSTYLE3 6042
#define IDC_FILLSTYLE4 6043
#define IDC_FILLSTYLE5 6031
#define IDC_FILLSTYLE6 6032
#define IDC_LINESIZE 6035
#define IDC_FILLCURVE 6036
#define IDC_SHOWMARKER 6038
#define IDC_MARKER_SYMBOL 6059
#define IDC_MARKER 6060
#define IDC_MARKER_NUMBERED 6062
#define IDC_MOVINGAVG 6065
#define IDC_LINEARTREND 6066
#define IDC_CUBICTREND 6067
#define IDC_POLYNOMIALTREND 6080

// The dialog of a moving average
#define IDC_SPAN 6063
#define IDC_SPAN_SPIN 6064

// The dialog of a trend
#define IDC_EXPAND_SPIN 6069
#define IDC_EXPAND 6079
#define IDC_DEGREE 6082
#define IDC_DEGREE_SPIN 6084

// The dialog of a label
#define IDC_BORDER 6054
#define IDC_ALIGNMENT 6056
#define IDC_FONT 6068
#define IDC_CURVE 6071
#define IDC_TRANSPARENT 6078
