// Implements the DDP_ functions.

#include "orlo/exchange/ddp.h"

#include <algorithm>
#include <array>
#include <exception>
#include <memory>

#include "orlo/binding/ddp_record.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/loaded_controls.h"
#include "orlo/frame/write_outcome.h"
#include "orlo/host/walk.h"

CMapWordToOb& PendingWritesOf(CGraphicPropertyPage* page) {
    return page->m_mapDDP;
}

namespace {

CGraphicPropertyPage* PageOf(CDataExchange* pDX) {
    return static_cast<CGraphicPropertyPage*>(pDX->m_pDlgWnd);
}

// Lives as long as an exchange, and discards the writes that are still pending at its end, since their members may have
// been local variables.
class PendingWritesEnd : public CObject {
public:
    explicit PendingWritesEnd(CMapWordToOb& records) : m_records(records) {}
    ~PendingWritesEnd() override { delete TakeRecords(m_records); }

private:
    CMapWordToOb& m_records;
};

// Accesses the value that a record points to: a member, or the pair that begins there.
template <class T>
struct Single {
    using Member = T;
    using Value = T;
    static Value Get(const T* member) { return *member; }
    static void Set(T* member, const Value& value) { *member = value; }
    static bool IsMarker(const T* member) { return IsIndeterminate(*member); }
};

struct Pair {
    using Member = unsigned short;
    using Value = std::array<unsigned short, 2>;
    static Value Get(const unsigned short* pair) { return {pair[0], pair[1]}; }
    static void Set(unsigned short* pair, const Value& value) { std::copy(value.begin(), value.end(), pair); }
    static bool IsMarker(const unsigned short*) { return false; }
};

template <class Form>
using EndFunction = void (*)(CDataExchange*, int, typename Form::Member*, const char*);

// Carries out the record of a member with an edited control.
template <class Form, EndFunction<Form> End>
void WriteMember(CDataExchange* pDX, int nID, void* pMember, const char* pszPropName) {
    auto* member = static_cast<typename Form::Member*>(pMember);
    End(pDX, nID, member, pszPropName);
    if (!Form::IsMarker(member)) LoadedControls::Of(*PageOf(pDX)).Write(pszPropName, Form::Get(member));
}

// Carries out the record of an unedited member: restores its value, which the exchange may have overwritten by parsing
// the text.
template <class Form>
void KeepMember(CDataExchange* pDX, int, void* pMember, const char* pszPropName) {
    auto* member = static_cast<typename Form::Member*>(pMember);
    auto value = Form::Get(member);
    LoadedControls::Of(*PageOf(pDX)).Restore(pszPropName, value);
    Form::Set(member, value);
}

// A member with several controls is written if at least one of them has been edited.
template <class Form, EndFunction<Form> End>
void RecordIfDirty(CDataExchange* pDX, int nID, typename Form::Member* pMember, const char* pszPropName) {
    CGraphicPropertyPage* page = PageOf(pDX);
    if (!page->GetControlStatus(nID)) return;
    CMapWordToOb& records = PendingWritesOf(page);
    auto value = Form::Get(pMember);
    const bool isUnedited = LoadedControls::Of(*page).RestoreUnedited(nID, pszPropName, value);
    if (isUnedited && HasRecord(records, pMember)) return;
    Form::Set(pMember, value);
    if (records.IsEmpty()) pDX->Keep(std::make_unique<PendingWritesEnd>(records));
    const DDPEnd end = isUnedited ? KeepMember<Form> : WriteMember<Form, End>;
    AddRecord(records, new CDDPRecord(end, nID, pMember, pszPropName));
}

// load(page) merges the property into the member.
template <class Form, EndFunction<Form> End, class Load>
void Bind(CDataExchange* pDX, int nID, typename Form::Member* pMember, const char* pszPropName, Load load) {
    if (pDX->m_bSaveAndValidate) {
        RecordIfDirty<Form, End>(pDX, nID, pMember, pszPropName);
        return;
    }
    CGraphicPropertyPage* page = PageOf(pDX);
    load(page);
    LoadedControls::Of(*page).Load(pDX, nID, pszPropName, Form::Get(pMember));
}

} // namespace

// The overloads of a function differ only in the type of the member.
#define ORLO_DDP(kind, T, argument)                                                                                    \
    void DDP_End##kind(CDataExchange* pDX, int, T* pMember, const char* pszPropName) {                                 \
        if (pDX->m_bSaveAndValidate) PageOf(pDX)->SetProp##kind(pszPropName, argument, 0);                             \
    }                                                                                                                  \
    void DDP_##kind(CDataExchange* pDX, int nID, T& member, const char* pszPropName) {                                 \
        Bind<Single<T>, DDP_End##kind>(pDX, nID, &member, pszPropName, [&](CGraphicPropertyPage* page) {               \
            page->GetProp##kind(pszPropName, &member, 0);                                                              \
        });                                                                                                            \
    }

// Not exported: only used by the record of an unsigned short.
static void DDP_EndText(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName);

ORLO_DDP(Text, unsigned char, *pMember)
ORLO_DDP(Text, unsigned short, *pMember)
ORLO_DDP(Text, int, *pMember)
ORLO_DDP(Text, unsigned int, *pMember)
ORLO_DDP(Text, long, *pMember)
ORLO_DDP(Text, unsigned long, *pMember)
ORLO_DDP(Text, float, *pMember)
ORLO_DDP(Text, double, *pMember)
ORLO_DDP(Text, CString, *pMember)
ORLO_DDP(Check, int, *pMember)
ORLO_DDP(Check, unsigned short, *pMember)
ORLO_DDP(Radio, int, *pMember)
ORLO_DDP(Radio, unsigned short, *pMember)

#undef ORLO_DDP

void DDP_EndBits(CDataExchange* pDX, int, unsigned short* pMember, const char* pszPropName) {
    if (pDX->m_bSaveAndValidate) PageOf(pDX)->SetPropBits(pszPropName, pMember, 0);
}

void DDP_Bits(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName) {
    Bind<Pair, DDP_EndBits>(pDX, nID, pMember, pszPropName,
                            [&](CGraphicPropertyPage* page) { page->GetPropBits(pszPropName, pMember, 0); });
}

void DDP_TextSetAt(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName) {
    if (pDX->m_bSaveAndValidate)
        RecordIfDirty<Pair, DDP_EndBits>(pDX, nID, pMember, pszPropName);
    else
        LoadedControls::Of(*PageOf(pDX)).Show(pDX, nID, pszPropName);
}

namespace {

class WaitCursor {
public:
    explicit WaitCursor(CWnd* window) : m_window(window) { m_window->BeginWaitCursor(); }
    ~WaitCursor() { m_window->EndWaitCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    CWnd* m_window;
};

// An exception thrown by the host ends only this write. The other properties are still written.
void CarryOut(const CDDPRecord& record, CDataExchange* pDX, WriteOutcome& outcome) {
    try {
        record.m_pfnEnd(pDX, record.m_nID, record.m_pMember, record.m_pszPropName);
    } catch (CException* exception) {
        exception->Delete();
    } catch (const std::exception& exception) {
        outcome.AddFailure(exception.what());
    } catch (...) {
        outcome.AddFailure("");
    }
}

// Returns the number of selected graphics. GetFirstObject is not used because it changes the flag kFlagPreview.
int StampSelection(CGraphicPropertyPage* page) {
    CGraphicPropertySheet* sheet = page->GetSheet();
    if (sheet == nullptr) return 0;
    int count = 0;
    auto* set = static_cast<GraphicStruct*>(sheet->GetGraphics());
    for (GraphicStruct* graphic : orlo::host::Members(set, sheet->GetGraphicFlags())) {
        graphic->wLastPage = LOWORD(page->GetTemplateNumber());
        ++count;
    }
    return count;
}

int WriteBack(CDataExchange* pDX, CGraphicPropertyPage* page, WriteOutcome& outcome) {
    const WaitCursor wait(page);
    const std::unique_ptr<CDDPRecord> records(TakeRecords(PendingWritesOf(page)));
    for (const CDDPRecord* record = records.get(); record != nullptr; record = record->m_pNext)
        CarryOut(*record, pDX, outcome);
    return StampSelection(page);
}

} // namespace

void DDP_PostProcessing(CDataExchange* pDX) {
    if (!pDX->m_bSaveAndValidate) return;
    CGraphicPropertyPage* page = PageOf(pDX);
    WriteOutcome outcome(page);
    outcome.Report(WriteBack(pDX, page, outcome));
}
