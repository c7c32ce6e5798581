// CFieldPage: validation of its table, creation of its window, and the exchange row by row.

#include "orlo/pages/field_page.h"

#include <commctrl.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <utility>

#include "orlo/exchange/ddp.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/scroll_area.h"
#include "orlo/host/graphic.h"
#include "orlo/host/walk.h"
#include "orlo/pages/field_access.h"
#include "orlo/pages/field_kinds.h"
#include "orlo/pages/field_layout.h"
#include "orlo/resources/library_text.h"
#include "orlo/win/child_windows.h"
#include "orlo/win/screen_scale.h"

IMPLEMENT_DYNAMIC(CFieldPage, CGraphicPropertyPage)

namespace {

constexpr unsigned int kLastPage = 28999; // higher numbers are used by the library
// Dialog units, of the library's own pages: the sheet can open on this page, and the others must fit as well.
constexpr int kPageWidth = 200, kPageHeight = 160;
constexpr int kLongestTip = 300; // maximum width of one line, in pixels at 96 dpi

// ---- Validation of a table

bool HasValue(const FieldRow& row) {
    return row.kind != FieldKind::Button && row.kind != FieldKind::Note;
}

// A rule for rows, and the message if a row breaks it.
struct RowRule {
    bool (*isBroken)(const FieldRow& row);
    const char* message;
};

constexpr RowRule kRowRules[] = {
    {[](const FieldRow& row) { return row.kind < FieldKind::Text || row.kind > kLastFieldKind; },
     "the kind is unknown"},
    {[](const FieldRow& row) { return row.label.empty(); }, "the label is empty"},
    {[](const FieldRow& row) { return HasValue(row) && row.property.empty() && !row.get; },
     "it has neither a property nor a function that reads the value"},
    {[](const FieldRow& row) { return !HasValue(row) && !row.property.empty(); }, "its kind cannot have a property"},
    {[](const FieldRow& row) { return !(row.min <= row.max); }, "the lower limit is above the upper one"},
    {[](const FieldRow& row) { return row.kind == FieldKind::Choice && row.choices.empty(); }, "it has no choices"},
    {[](const FieldRow& row) {
         return std::find(row.choices.begin(), row.choices.end(), std::string()) != row.choices.end();
     },
     "the text of a choice is empty"},
    {[](const FieldRow& row) { return row.kind != FieldKind::Choice && !row.choices.empty(); },
     "its kind cannot have choices"},
    {[](const FieldRow& row) { return row.set && !row.get; },
     "it has a function to write the value, but none to read it"},
    {[](const FieldRow& row) { return row.get && !row.set && !row.readOnly; },
     "it has no function that writes the value, and is not read-only"},
    {[](const FieldRow& row) { return row.kind == FieldKind::Button && !row.press; }, "the button does nothing"},
};

[[noreturn]] void ThrowRowError(size_t index, const FieldRow& row, const std::string& reason) {
    throw std::invalid_argument("row " + std::to_string(index) + " (\"" + row.label + "\"): " + reason);
}

const FieldTable& RequireValid(unsigned int page, const FieldTable& table) {
    if (page < 1 || page > kLastPage) throw std::invalid_argument("the page number is not from 1 to 28999");
    if (table.rows.empty() || table.rows.size() > CFieldPage::kMaxRows)
        throw std::invalid_argument("the table does not have 1 to " + std::to_string(CFieldPage::kMaxRows) + " rows");
    std::set<std::string> properties;
    for (size_t i = 0; i < table.rows.size(); ++i) {
        const FieldRow& row = table.rows[i];
        for (const RowRule& rule : kRowRules)
            if (rule.isBroken(row)) ThrowRowError(i, row, rule.message);
        if (!row.property.empty() && !properties.insert(row.property).second)
            ThrowRowError(i, row, "an earlier row has the property \"" + row.property + "\"");
    }
    return table;
}

// The text of a choice as an item of a list, which has no mnemonics; "&&" is an ampersand.
std::string WithoutMnemonic(const std::string& text) {
    std::string item;
    for (const char* at = text.c_str(); *at != '\0';) {
        if (*at == '&' && at[1] != '\0') ++at;
        const char* next = ::CharNextA(at);
        item.append(at, next);
        at = next;
    }
    return item;
}

bool IsFromRightToLeft(HWND window) {
    return window != nullptr && (::GetWindowLongPtrA(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
}

GraphicStruct* FirstAccepted(CGraphicPropertySheet* sheet, const FieldTable& table) {
    auto* set = sheet != nullptr ? static_cast<GraphicStruct*>(sheet->GetGraphics()) : nullptr;
    if (set == nullptr) return nullptr;
    for (GraphicStruct* graphic : orlo::host::Members(set, static_cast<uint32_t>(sheet->GetGraphicFlags())))
        if (!table.accepts || table.accepts(graphic)) return graphic;
    return nullptr;
}

bool IsFocusNotification(unsigned int code, HWND control) {
    if (IsOfClass(control, "Edit")) return code == EN_SETFOCUS;
    if (IsOfClass(control, "ComboBox")) return code == CBN_SETFOCUS;
    return IsOfClass(control, "Button") && code == BN_SETFOCUS;
}

} // namespace

// The rows of a page with their controls.
class FieldPageParts {
public:
    explicit FieldPageParts(FieldTable&& itsTable, int firstID, int idsPerField)
        : table(std::move(itsTable)), access(table) {
        for (size_t i = 0; i < table.rows.size(); ++i) {
            auto field = std::make_unique<Field>();
            field->row = &table.rows[i];
            field->kind = &TraitsOf(table.rows[i]);
            field->id = firstID + idsPerField * static_cast<int>(i);
            field->property = table.rows[i].property;
            if (table.rows[i].get) {
                if (field->property.empty()) field->property = "\x01" + std::to_string(i);
                access.Add(field->property, table.rows[i]);
            }
            fields.push_back(std::move(field));
        }
    }

    void MakeControls(CWnd& page);
    void MakeTips(HWND page);
    // Returns the size of the contents in pixels.
    CSize ContentsSize(HWND page) const {
        CRect contents(0, 0, size.cx, size.cy);
        ::MapDialogRect(page, &contents);
        return contents.Size();
    }

    FieldTable table;
    FieldAccess access;
    std::vector<std::unique_ptr<Field>> fields;
    CSize size; // of the contents, in dialog units
    ScrollArea scroll;
};

void FieldPageParts::MakeControls(CWnd& page) {
    for (const auto& field : fields) {
        const HWND control = ::GetDlgItem(page.m_hWnd, field->id);
        if (IsOfClass(control, "Edit")) ::SendMessageA(control, EM_SETLIMITTEXT, 0, 0); // instead of 32 KB
        for (const std::string& choice : field->row->choices) {                         // radio buttons ignore it
            const std::string item = WithoutMnemonic(choice);
            ::SendDlgItemMessageA(page.m_hWnd, field->id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
        }
        if (field->kind->makeControl == nullptr) continue;
        field->control = field->kind->makeControl();
        field->control->SubclassDlgItem(static_cast<UINT>(field->id), &page);
    }
}

// A single window shows the tooltips of all fields; it is destroyed with the page.
void FieldPageParts::MakeTips(HWND page) {
    const bool hasHelp = std::any_of(table.rows.begin(), table.rows.end(), [](auto& row) { return !row.help.empty(); });
    if (!hasHelp) return;
    const HWND tips = ::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr,
                                        WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                                        CW_USEDEFAULT, CW_USEDEFAULT, page, nullptr, LibraryModule(), nullptr);
    ::SendMessageA(tips, TTM_SETMAXTIPWIDTH, 0, ScreenPixels(kLongestTip));
    for (const auto& field : fields) {
        if (field->row->help.empty()) continue;
        const HWND control = ::GetDlgItem(page, field->id);
        for (const HWND part : {control, ::GetWindow(control, GW_CHILD)}) { // a combo box and its edit field
            if (part == nullptr) continue;
            TOOLINFOA tool = {};
            tool.cbSize = TTTOOLINFOA_V1_SIZE;
            tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
            tool.hwnd = page;
            tool.uId = reinterpret_cast<UINT_PTR>(part);
            tool.lpszText = const_cast<char*>(field->row->help.c_str());
            ::SendMessageA(tips, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
        }
    }
}

CFieldPage::CFieldPage(unsigned int nPage, FieldTable table) : CGraphicPropertyPage(nPage, 0) {
    RequireValid(nPage, table);
    m_parts = std::make_unique<FieldPageParts>(std::move(table), kFirstFieldID, kIDsPerField);
    if (m_parts->access.IsNeeded()) m_pProperties = &m_parts->access;
    FieldLayout layout = LayOutFields(m_parts->fields);
    m_parts->size = m_sizeWanted = layout.size;
    const SIZE size = {std::max<LONG>(layout.size.cx, kPageWidth), kPageHeight};
    m_dialogTemplate = WriteDialogTemplate(m_parts->table.caption, size, layout.items);
}

CFieldPage::~CFieldPage() = default;

// The window is created when the page is first activated; by then its sheet has an owner.
BOOL CFieldPage::OnSetActive() {
    const CPropertySheet* sheet = GetParentSheet();
    if (m_hWnd == nullptr && sheet != nullptr) {
        const HWND owner = ::GetWindow(sheet->m_hWnd, GW_OWNER);
        SetTemplateDirection(m_dialogTemplate, IsFromRightToLeft(sheet->m_hWnd) || IsFromRightToLeft(owner));
    }
    const BOOL result = CGraphicPropertyPage::OnSetActive();
    m_parts->scroll.SetContents(m_hWnd, m_parts->ContentsSize(m_hWnd));
    return result;
}

BOOL CFieldPage::OnInitDialog() {
    m_bInitializing = 1; // filling controls causes notifications
    m_parts->MakeControls(*this);
    m_parts->MakeTips(m_hWnd);
    return CGraphicPropertyPage::OnInitDialog();
}

void CFieldPage::DoDataExchange(CDataExchange* pDX) {
    for (const auto& field : m_parts->fields)
        if (field->kind->exchange != nullptr) field->kind->exchange(*this, pDX, *field);
    DDP_PostProcessing(pDX);
}

bool CFieldPage::IsFor(CGraphicPropertySheet* sheet) const {
    return FirstAccepted(sheet, m_parts->table) != nullptr;
}

void CFieldPage::Reload() {
    if (m_hWnd == nullptr) return;
    CDataExchange load(this, FALSE);
    for (const auto& field : m_parts->fields)
        if (field->kind->exchange != nullptr && !IsEdited(static_cast<unsigned int>(field->id)))
            field->kind->exchange(*this, &load, *field);
}

void* CFieldPage::CreatePreviewGraphic() {
    const auto& rows = m_parts->table.rows;
    const bool shows = std::any_of(rows.begin(), rows.end(), [](const FieldRow& row) { return row.inPreview; });
    GraphicStruct* first = shows ? FirstAccepted(GetSheet(), m_parts->table) : nullptr;
    return first != nullptr ? ::GraphicCopyEx(first, 0, 0, 7) : nullptr;
}

void CFieldPage::SetPreviewProperties(int bAll) {
    if (m_pPreviewGraphic == nullptr) return;
    CDataExchange save(this, TRUE);
    for (const auto& field : m_parts->fields) {
        const bool shows = field->row->inPreview && field->kind->preview != nullptr;
        if (shows && (bAll || GetControlStatus(static_cast<unsigned int>(field->id))))
            field->kind->preview(*this, &save, *field);
    }
    if (CGraphicPropertySheet* sheet = GetSheet()) sheet->UpdatePreview(1);
}

BOOL CFieldPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL result = CGraphicPropertyPage::OnCommand(wParam, lParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    const int row = (LOWORD(wParam) - kFirstFieldID) / kIDsPerField;
    if (control == nullptr || LOWORD(wParam) < kFirstFieldID || row >= static_cast<int>(m_parts->fields.size()))
        return result;
    const FieldRow& field = *m_parts->fields[static_cast<size_t>(row)]->row;
    if (IsFocusNotification(HIWORD(wParam), control)) {
        m_parts->scroll.Reveal(m_hWnd, control);
        if (m_parts->table.onStatus) m_parts->table.onStatus(field.help);
    }
    if (field.press && HIWORD(wParam) == BN_CLICKED && field.press()) Reload();
    return result;
}

LRESULT CFieldPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_parts->scroll.Handle(m_hWnd, message, wParam, lParam)) return 0;
    return CGraphicPropertyPage::WindowProc(message, wParam, lParam);
}

CFieldPage* AddFieldPage(CGraphicPropertySheet* sheet, unsigned int nPage, FieldTable table) {
    auto page = std::make_unique<CFieldPage>(nPage, std::move(table));
    if (sheet == nullptr || sheet->FindPage(nPage) != nullptr || !page->IsFor(sheet)) return nullptr;
    sheet->AddPage(page.get());
    return page.release();
}
