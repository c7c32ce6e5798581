// CInsertPage: exchange and merging of position, scale and rotation, and the preview.

#include "orlo/pages/insert_page.h"

#include <string>
#include <vector>

#include "orlo/binding/fuzzy.h"
#include "orlo/binding/indeterminate.h"
#include "orlo/binding/object_set.h"
#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "orlo/exchange/indeterminate_text.h"
#include "orlo/exchange/number_text.h"
#include "orlo/exchange/window_text.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/loaded_controls.h"
#include "orlo/frame/page_state.h"
#include "orlo/frame/write_outcome.h"
#include "orlo/host/units.h"
#include "orlo/pages/current_drawing.h"
#include "orlo/pages/insert_parts.h"
#include "orlo/pages/insert_preview.h"
#include "orlo/resources/resource.h"

IMPLEMENT_DYNAMIC(CInsertPage, CGraphicPropertyPage)

namespace {

constexpr double kMaxScale = 1000.0;
constexpr double kFarthest = 1e38;

// Calls visit for each insertion of the set until it returns false. visit can clear withRotationZ for the following
// insertions.
template <class Visit>
void ForEachInsertion(const ObjectSet& set, const bool& withRotationZ, Visit visit) {
    uint32_t position = 0;
    InsertParts parts;
    for (GraphicStruct* graphic = set.First(&position); graphic != nullptr; graphic = set.Next(&position)) {
        const bool isInsertion = graphic->bType == kGraphicInsert && ReadInsertParts(graphic, parts, withRotationZ);
        if (isInsertion && !visit(graphic, parts)) break;
    }
}

// Sets each merged part to the marker where it differs from the insertion's. Returns false once all parts are the
// marker.
bool Merge(const double (&parts)[3], double (&merged)[3]) {
    bool definite = false;
    for (int i = 0; i < 3; ++i) {
        // Comparing bit for bit first is faster, as most are identical.
        if (parts[i] != merged[i] && !IsIndeterminate(merged[i]) && CompareDoubles(&parts[i], &merged[i]) != 0)
            merged[i] = Indeterminate<double>::Value();
        definite = definite || !IsIndeterminate(merged[i]);
    }
    return definite;
}

} // namespace

// A control, its member, and its index in a record of parts.
struct CInsertPage::Field {
    unsigned int nID;
    double CInsertPage::*member;
    double (InsertParts::*group)[3];
    int axis;
    double limit; // in both directions; 0 for an angle

    double& Of(InsertParts& parts) const { return (parts.*group)[axis]; }
    std::string Name() const { return std::to_string(nID); }
};

// In the order of the exchange.
const CInsertPage::Field CInsertPage::kFields[9] = {
    {IDC_SCALE_X, &CInsertPage::m_dScaleX, &InsertParts::scale, 0, kMaxScale},
    {IDC_SCALE_Y, &CInsertPage::m_dScaleY, &InsertParts::scale, 1, kMaxScale},
    {IDC_SCALE_Z, &CInsertPage::m_dScaleZ, &InsertParts::scale, 2, kMaxScale},
    {IDC_POSITION_X, &CInsertPage::m_dPositionX, &InsertParts::position, 0, kFarthest},
    {IDC_POSITION_Y, &CInsertPage::m_dPositionY, &InsertParts::position, 1, kFarthest},
    {IDC_POSITION_Z, &CInsertPage::m_dPositionZ, &InsertParts::position, 2, kFarthest},
    {IDC_ROTATION_X, &CInsertPage::m_dRotateX, &InsertParts::rotation, 0, 0},
    {IDC_ROTATION_Y, &CInsertPage::m_dRotateY, &InsertParts::rotation, 1, 0},
    {IDC_ROTATION_Z, &CInsertPage::m_dRotateZ, &InsertParts::rotation, 2, 0}};

CInsertPage::CInsertPage()
    : CGraphicPropertyPage(kTemplate, 0), m_dScaleX(1.0), m_dScaleY(1.0), m_dScaleZ(1.0), m_dRotateX(0.0),
      m_dRotateY(0.0), m_dRotateZ(0.0), m_dPositionX(0.0), m_dPositionY(0.0), m_dPositionZ(0.0) {}

void CInsertPage::ExchangeField(CDataExchange* pDX, const Field& field) {
    const int id = static_cast<int>(field.nID);
    double& value = this->*field.member;
    LoadedControls& loaded = LoadedControls::Of(*this);
    if (!pDX->m_bSaveAndValidate)
        loaded.Load(pDX, field.nID, field.Name(), value);
    else if (loaded.RestoreUnedited(field.nID, field.Name(), value))
        return;
    DDX_Text(1, pDX, id, value);
    if (IsNearlyIndeterminate(value)) return;
    if (field.limit == 0) {
        DDX_TextRadians(1, pDX, field.nID, value);
        DDV_Radians(1, pDX, value);
        return;
    }
    DDV_MinMaxDouble(1, pDX, value, -field.limit, field.limit);
}

void CInsertPage::DoDataExchange(CDataExchange* pDX) {
    if (!pDX->m_bSaveAndValidate) LoadInsertParts(0);
    for (const Field& field : kFields)
        ExchangeField(pDX, field);
    const WriteOutcome outcome(this);
    if (pDX->m_bSaveAndValidate) ApplyInsertParts(0);
    DDP_PostProcessing(pDX);
}

void CInsertPage::LoadInsertParts(int bPreview) {
    InsertParts merged{};
    bool found = false, withRotationZ = true;
    ForEachInsertion(
        PageState::Of(*this).Objects(bPreview), withRotationZ, [&](GraphicStruct*, const InsertParts& parts) {
            if (!found) merged = parts;
            found = true;
            const bool position = Merge(parts.position, merged.position), scale = Merge(parts.scale, merged.scale),
                       rotation = Merge(parts.rotation, merged.rotation);
            withRotationZ = !IsIndeterminate(merged.rotation[2]);
            return position || scale || rotation;
        });
    if (!found) return;
    for (const Field& field : kFields)
        this->*field.member = field.Of(merged);
}

void CInsertPage::ApplyInsertParts(int bPreview) {
    std::vector<const Field*> written;
    for (const Field& field : kFields)
        if (!IsIndeterminate(this->*field.member) && (bPreview || IsEdited(field.nID))) written.push_back(&field);
    WriteOutcome* outcome = WriteOutcome::Of(*this);
    auto* const changed = outcome != nullptr && !bPreview && !written.empty() ? outcome->Changed() : nullptr;
    ForEachInsertion(PageState::Of(*this).Objects(bPreview), true,
                     [&](GraphicStruct* graphic, const InsertParts& parts) {
                         InsertParts wanted = parts;
                         for (const Field* field : written)
                             field->Of(wanted) = this->*field->member;
                         ChangeInsertParts(graphic, parts, wanted);
                         if (changed != nullptr) changed->insert(graphic);
                         return true;
                     });
    if (bPreview) return;
    for (const Field* field : written)
        LoadedControls::Of(*this).Write(field->Name(), this->*field->member);
}

void* CInsertPage::CreatePreviewGraphic() {
    return m_preview.NewInsertion(CurrentDrawing());
}

// A rotation that begins with a number is validated only when the field is left, since "12d" may become "12d30".
bool CInsertPage::IsTyped(const Field& field) const {
    const CString text = WindowText(::GetDlgItem(m_hWnd, static_cast<int>(field.nID)));
    if (IsBeginningOfReal(text)) return false;
    float number = 0;
    if (field.limit != 0 || !HasFocus(field) || ScanRealText(text, number)) return true;
    char* end = nullptr;
    ::StringToDouble(0, text, &end);
    return end == static_cast<const char*>(text);
}

bool CInsertPage::HasFocus(const Field& field) const {
    return ::GetFocus() == ::GetDlgItem(m_hWnd, static_cast<int>(field.nID));
}

// Validates only when the focus moves to another field of the page. The buttons of the sheet validate all fields, or
// none.
BOOL CInsertPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL result = CGraphicPropertyPage::OnCommand(wParam, lParam);
    if (HIWORD(wParam) != EN_KILLFOCUS || !::IsChild(m_hWnd, ::GetFocus())) return result;
    for (const Field& field : kFields) {
        if (field.nID != LOWORD(wParam) || field.limit != 0 || !GetControlStatus(field.nID)) continue;
        CDataExchange dx(this, TRUE);
        if (IsTyped(field)) ExchangeField(&dx, field);
    }
    return result;
}

void CInsertPage::SetPreviewProperties(int bAll) {
    if (m_pPreviewGraphic == nullptr) return;
    CDataExchange dx(this, TRUE);
    for (const Field& field : kFields)
        if ((bAll || GetControlStatus(field.nID)) && IsTyped(field)) ExchangeField(&dx, field);
    ApplyInsertParts(1);
    if (CGraphicPropertySheet* sheet = GetSheet()) sheet->UpdatePreview(1);
}
