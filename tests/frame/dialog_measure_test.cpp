// The size of dialog templates in pixels, compared with the dialog that the system creates from the same template.

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "support/test_sheet.h"

namespace {

CSize Measure(const void* dialog) {
    class Page : public CGraphicPropertyPage {
    public:
        explicit Page(void* resource) : CGraphicPropertyPage(kTestPage, 0) { SetDialogResource(resource); }
        CSize Size() const { return m_sizePage; }
    };
    return Page(const_cast<void*>(dialog)).Size(); // freeing memory that is not a resource does nothing
}

// Composes a template.
class Template {
public:
    void Add(std::initializer_list<unsigned> words) {
        for (const unsigned word : words)
            m_words.push_back(static_cast<WORD>(word));
    }
    void AddLong(DWORD value) { Add({LOWORD(value), HIWORD(value)}); }
    void AddText(const std::wstring& text) {
        for (const wchar_t letter : text)
            m_words.push_back(letter);
        m_words.push_back(0);
    }
    const void* Data() const { return m_words.data(); }

private:
    std::vector<WORD> m_words;
};

struct Font {
    unsigned points;
    std::wstring face;
};

INT_PTR CALLBACK HandlesNothing(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

// Returns the size of a dialog that the system creates with that font in bold, in which pages are measured.
CSize SizeOfDialog(const Font& font, int width, int height) {
    Template dialog;
    dialog.Add({1, 0xFFFF});
    dialog.AddLong(0); // help
    dialog.AddLong(0);
    dialog.AddLong(DS_SETFONT | WS_POPUP);
    dialog.Add({0, 0, 0, 0, 0, 0, 0, 0, font.points, FW_BOLD, DEFAULT_CHARSET << 8});
    dialog.AddText(font.face);
    const HWND window = ::CreateDialogIndirectParamA(nullptr, static_cast<const DLGTEMPLATE*>(dialog.Data()), nullptr,
                                                     HandlesNothing, 0);
    CRect rect(0, 0, width, height);
    ::MapDialogRect(window, rect);
    ::DestroyWindow(window);
    return rect.Size();
}

// Menu, class and title are names or numbers, and do not matter for the size.
TEST(DialogMeasure, IsTheSizeOfTheDialogInBold) {
    const Font fonts[] = {{8, L"DejaVu Sans"}, {14, L"DejaVu Serif"}, {8, L"MS Sans Serif"}, {11, L"DejaVu Sans Mono"}};
    for (const Font& font : fonts)
        for (const bool named : {false, true}) {
            Template dialog;
            dialog.AddLong(DS_SETFONT | WS_CHILD);
            dialog.AddLong(0);
            dialog.Add({0, 5, 6, 200, 160}); // no controls; position and size
            if (named) {
                dialog.AddText(L"menu");
                dialog.AddText(L"class");
                dialog.AddText(L"A long title of the dialog");
            } else {
                dialog.Add({0xFFFF, 10, 0xFFFF, 0x8002, 0});
            }
            dialog.Add({font.points});
            dialog.AddText(font.face);
            EXPECT_EQ(Measure(dialog.Data()), SizeOfDialog(font, 200, 160)) << font.points << " " << named;
        }
}

TEST(DialogMeasure, HasDefaultsForWhatIsMissing) {
    const Font system = {8, L"System"};
    EXPECT_EQ(Measure(nullptr), SizeOfDialog(system, 250, 62));
    Template dialog;
    dialog.AddLong(WS_CHILD); // no font
    dialog.AddLong(0);
    dialog.Add({0, 0, 0, 100, 90, 0, 0, 0, 20});
    dialog.AddText(L"DejaVu Sans");
    EXPECT_EQ(Measure(dialog.Data()), SizeOfDialog(system, 100, 90));
}

// A template of a few words at the end of its mapping is not read beyond it.
TEST(DialogMeasure, AcceptsATruncatedTemplate) {
    void* pages = ::VirtualAlloc(nullptr, 0x2000, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    DWORD before;
    ::VirtualProtect(static_cast<char*>(pages) + 0x1000, 0x1000, PAGE_NOACCESS, &before);
    for (const size_t size : {2, 14, 18, 20, 24, 40}) {
        char* start = static_cast<char*>(pages) + 0x1000 - size;
        std::memset(start, 0x41, size); // DS_SETFONT, and names without a NUL
        EXPECT_GT(Measure(start).cx, 0);
    }
    ::VirtualFree(pages, 0, MEM_RELEASE);
}

} // namespace
