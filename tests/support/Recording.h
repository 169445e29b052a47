#pragma once
// A drawing as an enhanced metafile, and what its records say.

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

class Recording
{
public:
    struct Text {
        std::wstring text;
        POINT reference;
    };
    using Visit = std::function<void(const ENHMETARECORD& record)>;

    explicit Recording(const std::function<void(HDC)>& draw) : Recording(Drawn(draw)) {}
    // Ends a recording that Begin began.
    explicit Recording(HDC hDC) : m_hFile(::CloseEnhMetaFile(hDC)) {}
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;
    ~Recording() { ::DeleteEnhMetaFile(m_hFile); }

    // A context that records what is drawn on it.
    [[nodiscard]] static HDC Begin() { return ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr); }

    void ForEach(const Visit& visit) const
    {
        ::EnumEnhMetaFile(
            nullptr, m_hFile,
            [](HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM target) -> int {
                (*reinterpret_cast<const Visit*>(target))(*record);
                return 1;
            },
            const_cast<Visit*>(&visit), nullptr);
    }

    // Without the filled rectangles, which are texts of no characters.
    [[nodiscard]] std::vector<Text> Texts() const
    {
        std::vector<Text> texts;
        ForEach([&](const ENHMETARECORD& record) {
            if (!IsText(record))
                return;
            const auto& drawn = reinterpret_cast<const EMREXTTEXTOUTW&>(record);
            const auto* units = reinterpret_cast<const wchar_t*>(reinterpret_cast<const BYTE*>(&record) +
                                                                 drawn.emrtext.offString);
            texts.push_back({std::wstring(units, drawn.emrtext.nChars),
                             {drawn.emrtext.ptlReference.x, drawn.emrtext.ptlReference.y}});
        });
        return texts;
    }

    // A letter for every record that the function has one for, in order.
    [[nodiscard]] std::string Order(const std::function<char(const ENHMETARECORD&)>& letter) const
    {
        std::string order;
        ForEach([&](const ENHMETARECORD& record) {
            if (const char found = letter(record))
                order += found;
        });
        return order;
    }

    [[nodiscard]] static bool IsText(const ENHMETARECORD& record)
    {
        return record.iType == EMR_EXTTEXTOUTW &&
               reinterpret_cast<const EMREXTTEXTOUTW&>(record).emrtext.nChars > 0;
    }
    [[nodiscard]] static bool IsFill(const ENHMETARECORD& record)
    {
        return record.iType == EMR_EXTTEXTOUTW && !IsText(record);
    }

private:
    static HDC Drawn(const std::function<void(HDC)>& draw)
    {
        const HDC hDC = Begin();
        draw(hDC);
        return hDC;
    }

    HENHMETAFILE m_hFile;
};
