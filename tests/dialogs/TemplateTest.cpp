// The dialog templates of the module, read as data.

#include "support/LoadedServer.h"

#include <cstring>

namespace
{

struct ExpectedControl {
    int id; // -1 for none
    const wchar_t* className;
    const wchar_t* caption; // null: a picture, whose number is in `bitmap`
    int x, y, width, height;
    int bitmap = 0;
};

// Walks a template; all its parts are words.
class Reader
{
public:
    explicit Reader(const WORD* p) : m_begin(p), m_p(p) {}
    WORD Word() { return *m_p++; }
    DWORD Double()
    {
        const DWORD low = Word();
        return low | static_cast<DWORD>(Word()) << 16;
    }
    short Short() { return static_cast<short>(Word()); }
    void Align()
    {
        if ((m_p - m_begin) % 2 != 0)
            ++m_p;
    }
    // A text, or a number in `number`.
    std::wstring Name(int& number)
    {
        number = 0;
        if (*m_p == 0xFFFF) {
            ++m_p;
            number = Word();
            return {};
        }
        std::wstring text;
        while (const WORD unit = Word())
            text += static_cast<wchar_t>(unit);
        return text;
    }

private:
    const WORD* m_begin;
    const WORD* m_p;
};

struct Control {
    DWORD style;
    int x, y, width, height, id, bitmap;
    std::wstring className, caption;
};

struct Dialog {
    DWORD style;
    int width, height, points;
    std::wstring caption, face;
    std::vector<Control> controls;
};

Dialog Load(int id)
{
    const Server server;
    const HRSRC found = FindResourceW(server.module, MAKEINTRESOURCEW(id), MAKEINTRESOURCEW(5));
    Dialog dialog{};
    if (found == nullptr) {
        ADD_FAILURE() << "no template " << id;
        return dialog;
    }
    Reader in(static_cast<const WORD*>(LockResource(LoadResource(server.module, found))));
    int number;
    dialog.style = in.Double();
    in.Double();
    const int count = in.Word();
    in.Double(); // its place is the framework's
    dialog.width = in.Short();
    dialog.height = in.Short();
    in.Name(number);
    in.Name(number);
    dialog.caption = in.Name(number);
    dialog.points = in.Word();
    dialog.face = in.Name(number);
    for (int i = 0; i < count; ++i) {
        in.Align();
        Control control{};
        control.style = in.Double();
        in.Double();
        control.x = in.Short();
        control.y = in.Short();
        control.width = in.Short();
        control.height = in.Short();
        control.id = in.Short();
        control.className = in.Name(number);
        control.caption = in.Name(control.bitmap);
        const int extra = in.Word();
        EXPECT_EQ(extra, 0);
        dialog.controls.push_back(control);
    }
    return dialog;
}

void ExpectControls(const Dialog& dialog, const std::vector<ExpectedControl>& expected)
{
    ASSERT_EQ(dialog.controls.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const Control& control = dialog.controls[i];
        const ExpectedControl& wanted = expected[i];
        EXPECT_EQ(control.id, wanted.id) << i;
        EXPECT_EQ(_wcsicmp(control.className.c_str(), wanted.className), 0) << i;
        EXPECT_EQ(control.caption, wanted.caption) << i;
        EXPECT_EQ(control.bitmap, wanted.bitmap) << i;
        EXPECT_EQ(control.x, wanted.x) << i;
        EXPECT_EQ(control.y, wanted.y) << i;
        EXPECT_EQ(control.width, wanted.width) << i;
        EXPECT_EQ(control.height, wanted.height) << i;
        EXPECT_TRUE((control.style & WS_CHILD) != 0) << i;
    }
}

void ExpectFrame(const Dialog& dialog, DWORD style, int width, int height, const wchar_t* caption)
{
    EXPECT_EQ(dialog.style, style);
    EXPECT_EQ(dialog.width, width);
    EXPECT_EQ(dialog.height, height);
    EXPECT_EQ(dialog.caption, caption);
    EXPECT_EQ(dialog.points, 8);
    EXPECT_EQ(dialog.face, L"MS Sans Serif");
}

const Control& Find(const Dialog& dialog, int id)
{
    for (const Control& control : dialog.controls) {
        if (control.id == id)
            return control;
    }
    ADD_FAILURE() << "no control " << id;
    return dialog.controls.front();
}

// Which of the controls with an id start in a state that the style shows.
std::vector<int> With(const Dialog& dialog, DWORD style)
{
    std::vector<int> ids;
    for (const Control& control : dialog.controls) {
        if (control.id != -1 && (control.style & style) == style)
            ids.push_back(control.id);
    }
    return ids;
}

constexpr DWORD Page = 0x40000040, Popup = 0x80C800C0;

} // namespace

TEST(Templates, TheSheetIsATabControl)
{
    const Dialog dialog = Load(106);
    ExpectFrame(dialog, Popup, 335, 273, L"XGraph-属性");
    ExpectControls(dialog, {{6073, L"SysTabControl32", L"", 7, 7, 321, 259}});
    EXPECT_EQ(dialog.controls[0].style, 0x50004040u);
}

TEST(Templates, ThePageOfTheGraph)
{
    const Dialog dialog = Load(105);
    ExpectFrame(dialog, Page, 306, 241, L"");
    ExpectControls(dialog, {{1, L"BUTTON", L"确定", 5, 220, 50, 14},
                            {2, L"BUTTON", L"取消", 60, 220, 50, 14},
                            {5002, L"BUTTON", L"应用", 130, 220, 50, 14},
                            {-1, L"STATIC", L"背景颜色", 10, 13, 80, 10},
                            {6047, L"BUTTON", L"", 95, 10, 85, 15},
                            {-1, L"STATIC", L"外部颜色", 10, 33, 80, 10},
                            {6048, L"BUTTON", L"", 95, 30, 85, 15},
                            {-1, L"STATIC", L"内部颜色", 10, 53, 80, 10},
                            {6049, L"BUTTON", L"", 95, 50, 85, 15},
                            {6050, L"BUTTON", L"显示图例", 10, 75, 80, 10},
                            {6051, L"COMBOBOX", L"", 95, 72, 85, 55},
                            {6076, L"BUTTON", L"鼠标吸附", 10, 93, 80, 10},
                            {-1, L"STATIC", L"最近曲线. 容限 :", 10, 105, 85, 10},
                            {6075, L"EDIT", L"", 95, 100, 85, 15},
                            {6074, L"msctls_updown32", L"", 180, 100, 15, 15},
                            {-1, L"STATIC", L"选择X轴", 10, 133, 80, 10},
                            {6055, L"COMBOBOX", L"", 95, 130, 85, 55},
                            {-1, L"STATIC", L"选择Y轴", 10, 151, 80, 10},
                            {6070, L"COMBOBOX", L"", 95, 148, 85, 55},
                            {-1, L"STATIC", L"选择曲线", 10, 170, 80, 10},
                            {6057, L"COMBOBOX", L"", 95, 167, 85, 55},
                            {6052, L"BUTTON", L"双缓存", 10, 185, 110, 10},
                            {-1, L"STATIC", L"", 0, 215, 305, 1}});
    EXPECT_EQ(With(dialog, WS_DISABLED), std::vector<int>{5002});
    EXPECT_EQ(Find(dialog, 1).style & BS_TYPEMASK, static_cast<DWORD>(BS_DEFPUSHBUTTON));
    for (const int id : {6050, 6052, 6076})
        EXPECT_EQ(Find(dialog, id).style & BS_TYPEMASK, static_cast<DWORD>(BS_AUTOCHECKBOX)) << id;
    for (const int id : {6051, 6055, 6057, 6070})
        EXPECT_EQ(Find(dialog, id).style & 3, static_cast<DWORD>(CBS_DROPDOWNLIST)) << id;
    EXPECT_EQ(dialog.controls.back().style & SS_TYPEMASK, static_cast<DWORD>(SS_ETCHEDHORZ));
}

TEST(Templates, ThePageOfAnAxis)
{
    const Dialog dialog = Load(104);
    ExpectFrame(dialog, Page, 306, 241, L"");
    ExpectControls(dialog, {{1, L"BUTTON", L"确定", 5, 220, 50, 14},
                            {2, L"BUTTON", L"取消", 60, 220, 50, 14},
                            {-1, L"STATIC", L"标签", 5, 5, 75, 10},
                            {6010, L"EDIT", L"", 5, 15, 85, 15},
                            {5002, L"BUTTON", L"应用", 130, 220, 50, 14},
                            {6039, L"BUTTON", L"自动缩放", 100, 35, 75, 10},
                            {-1, L"STATIC", L"最大值", 5, 150, 40, 10},
                            {6040, L"EDIT", L"", 5, 160, 80, 13},
                            {-1, L"STATIC", L"最大值", 100, 150, 40, 10},
                            {6013, L"EDIT", L"", 100, 160, 70, 13},
                            {6001, L"BUTTON", L"Scalefont ...", 225, 15, 70, 15},
                            {6002, L"BUTTON", L"标题字体", 100, 15, 70, 15},
                            {6014, L"BUTTON", L"显示网格", 5, 52, 70, 10},
                            {6015, L"BUTTON", L"时间坐标格式:", 100, 53, 73, 10},
                            {-1, L"STATIC", L"Decimal places (scale)", 5, 73, 85, 10},
                            {6016, L"EDIT", L"", 100, 70, 70, 15},
                            {6017, L"msctls_updown32", L"", 170, 70, 11, 15},
                            {6033, L"BUTTON", L"", 225, 130, 70, 15},
                            {6007, L"BUTTON", L"", 100, 130, 70, 15},
                            {-1, L"STATIC", L"网格颜色", 180, 133, 35, 10},
                            {-1, L"STATIC", L"坐标颜色", 5, 132, 45, 10},
                            {6018, L"EDIT", L"", 225, 70, 70, 15},
                            {6019, L"msctls_updown32", L"", 295, 70, 11, 15},
                            {6020, L"EDIT", L"", 100, 90, 70, 15},
                            {6021, L"msctls_updown32", L"", 170, 90, 11, 15},
                            {-1, L"STATIC", L"箭头大小", 180, 70, 35, 10},
                            {-1, L"STATIC", L"Ticksize", 5, 93, 80, 10},
                            {6022, L"EDIT", L"", 225, 90, 70, 15},
                            {6023, L"msctls_updown32", L"", 295, 90, 11, 15},
                            {-1, L"STATIC", L"Marker大小", 180, 93, 40, 10},
                            {-1, L"STATIC", L"步长宽度", 225, 150, 40, 10},
                            {6024, L"EDIT", L"", 225, 160, 70, 13},
                            {6025, L"SysDateTimePick32", L"", 5, 176, 80, 13},
                            {6026, L"SysDateTimePick32", L"", 5, 194, 80, 13},
                            {6029, L"SysDateTimePick32", L"", 100, 175, 70, 13},
                            {6030, L"SysDateTimePick32", L"", 100, 194, 70, 13},
                            {6046, L"EDIT", L"", 225, 50, 70, 15},
                            {6058, L"BUTTON", L"显示markers", 225, 35, 75, 10},
                            {-1, L"STATIC", L"Adjustment", 180, 110, 35, 10},
                            {6077, L"COMBOBOX", L"", 226, 110, 70, 35},
                            {6081, L"EDIT", L"", 225, 176, 70, 13},
                            {6083, L"COMBOBOX", L"", 225, 194, 70, 50},
                            {6072, L"COMBOBOX", L"", 100, 110, 71, 77},
                            {-1, L"STATIC", L"网格类型", 5, 112, 55, 10},
                            {-1, L"STATIC", L"", 0, 215, 305, 1},
                            {6009, L"BUTTON", L"可见", 5, 35, 70, 10}});
    EXPECT_EQ(With(dialog, WS_DISABLED), (std::vector<int>{5002, 6025, 6026, 6029, 6030, 6081, 6083}));
    for (const int id : {6017, 6019, 6021, 6023})
        EXPECT_EQ(Find(dialog, id).style, 0x500000B6u) << id;
    EXPECT_EQ(Find(dialog, 6025).style, 0x58010020u);
    EXPECT_EQ(Find(dialog, 6029).style, 0x58010020u);
    EXPECT_EQ(Find(dialog, 6026).style, 0x58010029u);
    EXPECT_EQ(Find(dialog, 6030).style, 0x58010029u);
    EXPECT_EQ(Find(dialog, 6072).style, 0x50210013u);
}

TEST(Templates, ThePageOfACurve)
{
    const Dialog dialog = Load(107);
    ExpectFrame(dialog, Page, 306, 241, L"");
    ExpectControls(dialog, {{-1, L"STATIC", L"标签", 5, 5, 80, 10},
                            {6010, L"EDIT", L"", 5, 15, 80, 15},
                            {-1, L"STATIC", L"类型", 95, 5, 35, 10},
                            {6008, L"COMBOBOX", L"", 95, 15, 85, 60},
                            {-1, L"STATIC", L"线宽", 190, 5, 45, 10},
                            {6035, L"EDIT", L"", 190, 15, 85, 15},
                            {6006, L"msctls_updown32", L"Spin2", 275, 10, 11, 20},
                            {-1, L"STATIC", L"Markersize", 5, 40, 80, 10},
                            {6022, L"EDIT", L"", 5, 50, 80, 15},
                            {6023, L"msctls_updown32", L"Spin1", 75, 45, 11, 20},
                            {-1, L"STATIC", L"类型", 95, 40, 35, 10},
                            {6034, L"COMBOBOX", L"", 95, 50, 85, 45},
                            {-1, L"STATIC", L"线颜色", 190, 40, 35, 10},
                            {6007, L"BUTTON", L"", 190, 50, 85, 15},
                            {6009, L"BUTTON", L"可见", 5, 80, 75, 10},
                            {6036, L"COMBOBOX", L"", 88, 79, 85, 45},
                            {-1, L"BUTTON", L"Marker", 5, 100, 270, 35},
                            {6038, L"BUTTON", L"Show markers", 10, 115, 75, 10},
                            {6062, L"BUTTON", L"Numbered", 90, 115, 50, 10},
                            {6059, L"BUTTON", L"Symbol :", 166, 115, 40, 10},
                            {6060, L"COMBOBOX", L"", 215, 113, 50, 88},
                            {6011, L"BUTTON", L"Fill area beneath curve", 5, 145, 88, 10},
                            {6012, L"BUTTON", L"Transparent", 100, 145, 65, 10},
                            {6045, L"BUTTON", L"Radio1", 5, 162, 8, 8},
                            {-1, L"STATIC", L"", 17, 160, 12, 13, 206},
                            {6027, L"BUTTON", L"Radio1", 40, 162, 8, 8},
                            {-1, L"STATIC", L"", 50, 160, 12, 13, 201},
                            {6028, L"BUTTON", L"Radio1", 75, 162, 8, 8},
                            {-1, L"STATIC", L"", 85, 160, 12, 13, 202},
                            {6042, L"BUTTON", L"Radio1", 110, 162, 8, 8},
                            {-1, L"STATIC", L"", 120, 160, 12, 13, 203},
                            {6043, L"BUTTON", L"Radio1", 145, 162, 8, 8},
                            {-1, L"STATIC", L"", 155, 160, 12, 13, 204},
                            {6031, L"BUTTON", L"Radio1", 180, 162, 8, 8},
                            {-1, L"STATIC", L"", 190, 160, 12, 13, 205},
                            {6032, L"BUTTON", L"Radio1", 215, 162, 8, 8},
                            {-1, L"STATIC", L"", 225, 160, 12, 11},
                            {6066, L"BUTTON", L"Add linear trend", 5, 175, 84, 15},
                            {6067, L"BUTTON", L"Add cubic trend", 95, 175, 84, 15},
                            {6065, L"BUTTON", L"Moving average ...", 190, 175, 84, 15},
                            {6080, L"BUTTON", L"Add polynomial trend", 5, 195, 84, 15},
                            {-1, L"STATIC", L"", 0, 215, 305, 1},
                            {1, L"BUTTON", L"确定", 5, 220, 50, 14},
                            {2, L"BUTTON", L"取消", 60, 220, 50, 14},
                            {5002, L"BUTTON", L"应用", 130, 220, 50, 14}});
    EXPECT_EQ(With(dialog, WS_DISABLED), (std::vector<int>{6062, 6059, 6060, 6012, 5002}));
    EXPECT_EQ(Find(dialog, 6036).style & WS_VISIBLE, 0u);
    EXPECT_EQ(Find(dialog, 6008).style, 0x50210013u);
    EXPECT_EQ(dialog.controls[36].style & (SS_TYPEMASK | SS_SUNKEN),
              static_cast<DWORD>(SS_BLACKRECT | SS_SUNKEN));
}

TEST(Templates, TheDialogOfALabel)
{
    const Dialog dialog = Load(108);
    ExpectFrame(dialog, Popup, 186, 145, L"属性");
    ExpectControls(dialog, {{1, L"BUTTON", L"确定", 5, 125, 50, 14},
                            {2, L"BUTTON", L"取消", 60, 125, 50, 14},
                            {-1, L"STATIC", L"背景颜色", 5, 8, 66, 8},
                            {6054, L"BUTTON", L"边框", 80, 105, 45, 10},
                            {-1, L"STATIC", L"对齐", 5, 48, 66, 8},
                            {6056, L"COMBOBOX", L"", 80, 45, 100, 45},
                            {6007, L"BUTTON", L"Button1", 80, 5, 100, 15},
                            {6068, L"BUTTON", L"字体", 80, 25, 100, 15},
                            {5002, L"BUTTON", L"应用", 130, 125, 50, 14},
                            {-1, L"STATIC", L"连接曲线", 5, 68, 66, 8},
                            {6071, L"COMBOBOX", L"", 80, 65, 100, 85},
                            {6078, L"BUTTON", L"透明", 80, 90, 80, 10}});
    EXPECT_EQ(With(dialog, WS_DISABLED), std::vector<int>{5002});
}

TEST(Templates, TheDialogOfATrend)
{
    const Dialog dialog = Load(109);
    ExpectFrame(dialog, Popup, 182, 66, L"Trend");
    ExpectControls(dialog, {{1, L"BUTTON", L"OK", 5, 45, 50, 14},
                            {2, L"BUTTON", L"Cancel", 60, 45, 50, 14},
                            {-1, L"STATIC", L"Expand trend with", 5, 10, 59, 10},
                            {6079, L"EDIT", L"", 66, 5, 34, 15},
                            {6069, L"msctls_updown32", L"Spin1", 105, 5, 11, 15},
                            {-1, L"STATIC", L"values", 105, 10, 50, 10},
                            {-1, L"STATIC", L"Max. degree for polynomial regression", 5, 30, 125, 10},
                            {6082, L"EDIT", L"", 130, 25, 34, 15},
                            {6084, L"msctls_updown32", L"Spin1", 165, 25, 11, 15}});
}

TEST(Templates, TheDialogOfAMovingAverage)
{
    const Dialog dialog = Load(128);
    ExpectFrame(dialog, Popup, 167, 66, L"Moving average");
    ExpectControls(dialog, {{1, L"BUTTON", L"确定", 5, 45, 50, 14},
                            {2, L"BUTTON", L"取消", 63, 45, 50, 14},
                            {-1, L"STATIC", L"类型", 5, 10, 60, 10},
                            {6034, L"COMBOBOX", L"", 70, 5, 93, 68},
                            {-1, L"STATIC", L"窗口大小", 5, 28, 55, 10},
                            {6063, L"EDIT", L"", 70, 23, 93, 15},
                            {6064, L"msctls_updown32", L"Spin1", 155, 25, 11, 15}});
}

TEST(Templates, TheRowsOfTheAveragesAreInTheirInitialisationResource)
{
    const Server server;
    const HRSRC found = FindResourceW(server.module, MAKEINTRESOURCEW(128), MAKEINTRESOURCEW(240));
    ASSERT_NE(found, nullptr);
    const char* p = static_cast<const char*>(LockResource(LoadResource(server.module, found)));
    for (const std::string text : {"Simple", "Linear", "Exponential", "Triangular", "Sine-weighted"}) {
        WORD words[4];
        std::memcpy(words, p, sizeof words);
        EXPECT_EQ(words[0], 6034) << text;
        EXPECT_EQ(words[1], 0x403) << text; // adds a row to a combo box
        EXPECT_EQ(words[2], text.size() + 1);
        EXPECT_EQ(words[3], 0);
        EXPECT_EQ(std::string(p + 8), text);
        p += 8 + words[2];
    }
    EXPECT_EQ(p[0] | p[1], 0);
}

TEST(Templates, TheTextOfAFitThatFails)
{
    const Server server;
    WCHAR text[200] = {};
    LoadStringW(server.module, 101, text, 200);
    EXPECT_STREQ(text, L"Could not create polynomial trend for the selected curve.");
}
