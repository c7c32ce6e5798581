// The lists of fonts on the Text page.

#include "orlo/controls/font_list.h"

#include <set>

#include "orlo/controls/control_items.h"
#include "orlo/controls/fill_scope.h"
#include "orlo/controls/font_size_control.h"
#include "orlo/host/drawing.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"
#include "orlo/samples/pen_width_list.h"
#include "orlo/win/gdi.h"

namespace {

uint16_t UnitOf(uint16_t coordSpace) {
    return coordSpace == kSpaceWorld ? kUnitDrawing : kUnitTextSize;
}

// Fills a control with texts that may repeat, adding each only once. Adding n texts takes O(n log n) comparisons,
// because the control itself is not searched.
class DistinctItems {
public:
    // The control must be empty.
    explicit DistinctItems(const ControlItems& items) : items_(items) {}

    // Adds the text unless it was added before, ignoring case.
    void Add(const char* text) {
        if (added_.insert(text).second) items_.Add(text);
    }

private:
    // Compares as the control does when it finds a text.
    struct ComesBefore {
        bool operator()(const CString& a, const CString& b) const { return ::lstrcmpiA(a, b) < 0; }
    };

    ControlItems items_;
    std::set<CString, ComesBefore> added_;
};

int CALLBACK EnumFaceProc(const LOGFONTA* font, const TEXTMETRICA*, DWORD fontType, LPARAM items) {
    if (fontType & TRUETYPE_FONTTYPE) reinterpret_cast<DistinctItems*>(items)->Add(font->lfFaceName);
    return 1;
}

class SizeList {
public:
    SizeList(CFontSizeControl& control, DistinctItems& items) : control_(control), items_(items) {}

    // Configured sizes are lengths on paper. In world coordinates the same numbers of drawing units are offered.
    void AddConfigured() const {
        DrawingStruct* const drawing = control_.m_pDrawing;
        if (!drawing) return;
        CPenWidthList sizes;
        for (const char* text = sizes.First(drawing->pApplication, drawing->pUnits, "FontSizes", kUnitTextSize); text;
             text = sizes.Next())
            Add(text);
    }
    void AddRaster(const TEXTMETRICA& metrics) const {
        CString text;
        control_.RasterSizeText(metrics, text);
        if (!text.IsEmpty()) items_.Add(text);
    }

private:
    void Add(const char* text) const {
        if (control_.m_nCoordSpace != kSpaceWorld) {
            items_.Add(text);
            return;
        }
        double size = 0.0;
        char converted[kFontSizeTextSize];
        if (TextToFontSize(control_.m_pDrawing, kSpacePaper, text, &size) &&
            FontSizeToText(control_.m_pDrawing, kSpaceWorld, size, converted, sizeof converted))
            items_.Add(converted);
    }

    CFontSizeControl& control_;
    DistinctItems& items_;
};

int CALLBACK EnumSizeProc(const LOGFONTA*, const TEXTMETRICA* metrics, DWORD fontType, LPARAM lParam) {
    const SizeList& list = *reinterpret_cast<const SizeList*>(lParam);
    if (fontType & TRUETYPE_FONTTYPE)
        list.AddConfigured();
    else
        list.AddRaster(*metrics);
    return 1;
}

void AddSizes(HDC dc, const FontListRequest* request, DistinctItems& items) {
    if (!request || !request->pControl || !request->pszFace || !*request->pszFace) return;
    SizeList list(*request->pControl, items);
    ::EnumFontFamiliesA(dc, request->pszFace, EnumSizeProc, reinterpret_cast<LPARAM>(&list));
}

void AddStyles(const ControlItems& items) {
    for (const UINT id : {IDS_REGULAR, IDS_ITALIC, IDS_BOLD, IDS_BOLD_ITALIC})
        items.Add(LibraryText(id));
}

// Returns the kind of list for a combo box: that of the library's control object, whatever its dialog identifier.
int ListedIn(HWND combo) {
    static_assert(kControlFontFaces == IDC_FONT_FACE && kControlFontSizes == IDC_FONT_SIZE);
    const CComboControl* object = ComboControlOf(combo);
    return object != nullptr ? static_cast<int>(object->m_nControlID) : ::GetDlgCtrlID(combo);
}

} // namespace

int FillFontDropDown(HWND hWnd, LPARAM lParam) {
    const orlo::WindowDC screen(nullptr);
    const HDC dc = screen.get();
    if (!dc) return 0;
    const FillScope scope(hWnd);
    const ControlItems items = ControlItems::OfCombo(hWnd);
    items.Clear();
    DistinctItems distinct(items);
    const int control = ListedIn(hWnd);
    switch (control) {
    case IDC_FONT_FACE:
    case IDC_FONT_FACE_2:
        ::EnumFontFamiliesA(dc, nullptr, EnumFaceProc, reinterpret_cast<LPARAM>(&distinct));
        break;
    case IDC_FONT_SIZE:
        AddSizes(dc, reinterpret_cast<const FontListRequest*>(lParam), distinct);
        break;
    case IDC_FONT_STYLE:
        AddStyles(items);
        break;
    }
    return control == IDC_FONT_FACE || control == IDC_FONT_FACE_2 || control == IDC_FONT_SIZE;
}

int TextToFontSize(DrawingStruct* drawing, uint16_t coordSpace, const char* text, double* value) {
    if (!drawing || coordSpace == kSpaceDevice) return 0;
    return ::DrawingStdTextToNumericEx(drawing, text, value, coordSpace, UnitOf(coordSpace));
}

int FontSizeToText(DrawingStruct* drawing, uint16_t coordSpace, double value, char* buffer, int size) {
    if (!drawing || coordSpace == kSpaceDevice) return 0;
    return ::DrawingStdNumericToTextEx(drawing, value, buffer, size, coordSpace, UnitOf(coordSpace));
}
