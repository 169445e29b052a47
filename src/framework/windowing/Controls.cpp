#include "framework/windowing/Controls.h"

IMPLEMENT_DYNAMIC(CEdit, CWnd)
