#include "charts2d/RefusalMessages.h"

#include "framework/windowing/App.h"

void ReportRefusal(ERefusal refusal)
{
    switch (refusal) {
    case ERefusal::none:
        break;
    case ERefusal::indexOutOfBounds:
        AfxMessageBox(L"Index is out of bounds...");
        break;
    case ERefusal::segmentIndexOutOfBounds:
        AfxMessageBox(L"Segments index is out of bounds...");
        break;
    case ERefusal::seriesIndexOutOfBounds:
        AfxMessageBox(L"Series index is out of bounds...");
        break;
    case ERefusal::noSegments:
        AfxMessageBox(L"No graph segments...");
        break;
    case ERefusal::percentNotValid:
        AfxMessageBox(L"Percent is not valid...");
        break;
    }
}
