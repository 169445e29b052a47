#pragma once
// The 3D pie: a child window with a title, a pie in one of three styles and a scrolling list
// of labels, drawn with GDI+.
//
// The elements are in a map by position, 0 to m_nElements - 1. A share is an element's
// part of the total, a sweep the share of 360 degrees; both are those of the last change of
// a value, and drawing adds the sweeps up in the order of the map. Colours are ARGB except
// m_crParentWindow. GDI+ is started with the window and shut down with the object.
//
// An operation that is refused changes nothing and returns null, 0 or -1.
// Values and amounts must be finite. An item is the address of an element and is good until
// the element is removed.

#include "framework/windowing/ScrollBar.h"
#include "framework/windowing/Strings.h"
#include "framework/windowing/Window.h"
#include "pie3d/GdiPlus.h"
#include "pie3d/KeptPicture.h"
#include "pie3d/PieElement.h"
#include "pie3d/PieGeometry.h"
#include "pie3d/PieLabels.h"
#include "pie3d/PieLook.h"
#include "pie3d/PieScroll.h"
#include "pie3d/PieWalls.h"
#include "pie3d/TextSizes.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

class CPieChartWnd : public CWnd
{
    DECLARE_MESSAGE_MAP()

public:
    CPieChartWnd();
    ~CPieChartWnd() override;

    // Makes the visible child window; the caption becomes the title.
    virtual BOOL Create(LPCWSTR lpszCaption, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Elements
    SPieElement* InsertItem(const CString& strElement, const CString& strLabel, double dValue,
                            PieColors::Argb crColor);
    int RemoveItem(const CString& strElement);
    int RemoveItemByIndex(std::int32_t iElementID);
    void RemoveAllItem(); // the picture stays until something repaints
    int UpdateItemLabel(SPieElement* pItem, const CString& strLabel);
    int UpdateItemValue(SPieElement* pItem, double dVal);
    int UpdateItemColor(SPieElement* pItem, PieColors::Argb crItem);
    int SetPieElementGradientLight(SPieElement* pItem, float flGradientVal);
    int SetPieElementGradientDark(SPieElement* pItem, float flGradientVal);
    // Sets the light colour of every element by this amount; the elements keep their own amounts.
    int SetPieElementGradientLightAll(float flGradientVal);
    // Sets this amount in every element, and its dark colour.
    int SetPieElementGradientDarkAll(float flGradientVal);
    // Descending if bClockWise, else ascending; of equal values the last comes first.
    void sortPiechartElements(long bClockWise);
    void SortToOrginalOrder();
    [[nodiscard]] SPieElement* GetSelectedElement() const noexcept;
    [[nodiscard]] SPieElement* GetPieChartItem(const CString& strElement) const noexcept;
    [[nodiscard]] std::int32_t GetElementID(const CString& strElement) const noexcept; // of insertion
    [[nodiscard]] float GetElementGrLight(const SPieElement* pItem) const noexcept;
    [[nodiscard]] float GetElementGrDark(const SPieElement* pItem) const noexcept;
    [[nodiscard]] CString GetElementName(const SPieElement* pItem) const { return pItem->strName; }

    // Brings the shares up to the insertions since the last time. Paints, sizes, clicks, scrolling
    // and changes of what is there do it of themselves, so that the shares of a table of elements
    // are computed once and not with each.
    void Settle();

    // Looks
    void SetBackgrndColor(PieColors::Argb crItem);
    void SetBackGroundGradientLight(float flGradientVal);
    void SetBackGroundGradientDark(float flGradientVal);
    [[nodiscard]] float GetBackGroungGrLight() const noexcept { return m_fBackgroundLight; }
    [[nodiscard]] float GetBackgroundGrDark() const noexcept { return m_fBackgroundDark; }
    void SetLabelColor(PieColors::Argb crLabel);
    void SetLabelBoxColor(PieColors::Argb crItem);
    void SetParentWindowColor(COLORREF crParent) noexcept; // seen at the next painting
    void SetLabelFontName(const CString& strName);
    void SetTitleFontName(const CString& strName);
    void SetLabelFont(const LOGFONTW& lf);
    void SetTitleFont(const LOGFONTW& lf); // adds its styles to those that the title has
    void SetPieChartTitle(const CString& strTitle);
    void SetPieChartStyle(std::int32_t nChartStyle); // 0 doughnut, 1 flat, 2 three-dimensional
    void SetStartAngle(float flAngle);
    void SetInclineAngle(float flAngle); // a negative one is 0; there is no upper limit
    int SetDepth(float fDepth);          // about pixels, at an incline of 85

    // Geometry, in client coordinates
    [[nodiscard]] TRect GetPieRect() const noexcept;
    void GetFaceRects(TRect& rcUpper, TRect& rcLower) const noexcept;
    [[nodiscard]] static float AngleOfPoint(const PieGeometry::TPointF& point, const TRect& rc) noexcept;

    // Selects the element at the point, and no other.
    void HitTest(POINT point);
    // Brings the first row shown in step with a scroll position; the result is its key.
    std::int32_t SyncFirstLabel(std::int32_t nPos, BOOL bTrack);

    CScrollBar m_wndScrollBar;
    std::int32_t m_nElements = 0;
    float m_fStartAngle = 0;     // degrees, of the first element
    float m_fDrawStartAngle = 0; // the same on the ellipse
    float m_fInclineAngle = 0;   // degrees
    float m_fDepthRatio = 0.5f;  // thickness relative to the tilt
    double m_dTotal = 0;
    COLORREF m_crParentWindow; // behind the rounded frame
    std::int32_t m_nMarkWidth = 50;
    std::int32_t m_nRowHeight = 20;
    std::int32_t m_nPieLimit = 200; // right limit of the pie
    std::int32_t m_nScrollBarInset = 20;
    std::int32_t m_nRowGap = 10;
    CString m_strLabelFontName;
    std::int32_t m_nLabelFontStyle = 0;
    std::int32_t m_nLabelsHeight = 0;     // of all rows
    std::int32_t m_nFirstLabel = 0;       // key of the first row shown
    std::int32_t m_nVisibleHeight = 1000; // of the rows that fit
    PieColors::Argb m_crLabel = 0xFF000000;
    PieColors::Argb m_crLabelBox = 0xFFFFFFFF;
    CString m_strLongestLabel;
    PieColors::Argb m_crBackground = 0xFFFFFFFF;
    PieColors::Argb m_crBackgroundLight = 0xFFFFFFFF;
    PieColors::Argb m_crBackgroundDark = 0xFFFFFFFF;
    float m_fBackgroundLight = 200.0f;
    float m_fBackgroundDark = 10.0f;
    CString m_strTitle;
    CString m_strTitleFontName;
    std::int32_t m_nTitleFontStyle = 0;
    PieColors::Argb m_crSelected = 0xFF6BE6FF;
    CString m_strImageFile;
    BOOL m_bSaveImage = FALSE; // save the next picture
    BOOL m_bShowPercent = TRUE;
    TPieElements m_mapElements;
    ULONG_PTR m_gdiplusToken = 0;
    std::int32_t m_nChartStyle = 2;
    BOOL m_bLabelPercent = FALSE; // percents in the label list

protected:
    afx_msg int OnCreate(CREATESTRUCTW* lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

private:
    // Elements
    void RecalcPercents() noexcept;
    void RenumberElements() noexcept;
    [[nodiscard]] CString LongestLabelWith(const SPieElement* pItem, const CString& strLabel) const;
    int Remove(TPieElements::iterator position);
    void PutInOrder(const std::vector<std::size_t>& positions);

    // Label list
    void RecalcLabelExtent() noexcept;
    void UpdateScrollBar();
    [[nodiscard]] PieScroll::TList ScrollList() const;

    // Looks of what is drawn now
    [[nodiscard]] TPieFont TitleFontLook() const;
    [[nodiscard]] TPieFont LabelFontLook(std::int32_t nPoints) const;
    [[nodiscard]] TBackgroundLook BackgroundLook() const;
    [[nodiscard]] TPieLook PieLook() const;

    // Painting
    using TSlicePainter = void (CPieChartWnd::*)(const GdiPlus::CGraphics&);
    void Repaint() noexcept;
    [[nodiscard]] TRect ClientRect() const noexcept;
    [[nodiscard]] PieGeometry::TFaces Faces() const noexcept;
    void ProjectAngles();
    void DrawFrame(CDC& dc, TSlicePainter pfnSlices);
    struct TPicture {
        GdiPlus::CBitmap Bitmap;
        bool bHasPercents = false;
    };
    [[nodiscard]] TPicture KeptOrNewPicture(TSlicePainter pfnSlices);
    [[nodiscard]] GdiPlus::CBitmap KeptOrNewBackground();
    void DrawDoughnut(CDC& dc);
    void DrawFlat(CDC& dc);
    void Draw3D(CDC& dc);
    void DrawBackground(const GdiPlus::CGraphics& graphics) const;
    void DrawTitle(const GdiPlus::CGraphics& graphics, const TRect& rcFrame) const;
    [[nodiscard]] GdiPlus::CLineBrush DiagonalBrush() const;
    void DrawDoughnutSlices(const GdiPlus::CGraphics& graphics);
    void DrawFlatSlices(const GdiPlus::CGraphics& graphics);
    void DrawCuts(const GdiPlus::CGraphics& graphics) const;
    void Draw3DSlices(const GdiPlus::CGraphics& graphics);
    void DrawWalls(const GdiPlus::CGraphics& graphics);
    void DrawSideWall(const GdiPlus::CGraphics& graphics, SPieElement& element,
                      const PieWalls::TWallPiece& piece) const;
    void SelectOnFaces(POINT point);
    void SelectOnCircle(POINT point);
    void DrawLabels(const GdiPlus::CGraphics& graphics) const;
    void DrawPercentBox(const GdiPlus::CGraphics& graphics, const PieLabels::TColumns& columns,
                        std::int32_t nFirstY) const;
    void DrawPercentSeparator(const GdiPlus::CGraphics& graphics, const PieLabels::TColumns& columns,
                              std::int32_t nFirstY, std::int32_t nRowY) const;
    void DrawPercents(const GdiPlus::CGraphics& graphics);
    [[nodiscard]] bool PercentsReachLabels(const GdiPlus::CGraphics& graphics);
    int SaveImage(const GdiPlus::CBitmap& bitmap);

    std::unordered_map<std::wstring_view, SPieElement*> m_Names; // the texts are the elements' own
    bool m_bSettled = true;
    CKeptPicture<TBackgroundLook> m_KeptBackground;
    // With its percents, if m_bKeptPercents. Dropped when elements change places: drawing them also
    // makes the paths of their walls, which are the elements' own and not part of a look.
    CKeptPicture<TPieLook> m_KeptPicture;
    bool m_bKeptPercents = false;
    CTextSizes m_PercentSizes;
};
