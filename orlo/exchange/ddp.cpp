// The DDP_ family.

#include "orlo/exchange/ddp.h"

#include <exception>
#include <memory>

#include "orlo/binding/ddp_record.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/write_outcome.h"
#include "orlo/host/graphic.h"

CMapWordToOb& PendingWritesOf(CGraphicPropertyPage* page) {
    return page->m_mapDDP;
}

namespace {

CGraphicPropertyPage* PageOf(CDataExchange* pDX) {
    return static_cast<CGraphicPropertyPage*>(pDX->m_pDlgWnd);
}

// Calls an end function through the untyped signature of a record.
template <class T, void (*End)(CDataExchange*, int, T*, const char*)>
void CallTypedEnd(CDataExchange* pDX, int nID, void* pMember, const char* pszPropName) {
    End(pDX, nID, static_cast<T*>(pMember), pszPropName);
}

// Ends with an exchange, and drops the writes that it leaves pending: their members may have been local variables.
class PendingWritesEnd : public CObject {
public:
    explicit PendingWritesEnd(CMapWordToOb& records) : m_records(records) {}
    ~PendingWritesEnd() override { delete TakeRecords(m_records); }

private:
    CMapWordToOb& m_records;
};

void RecordIfDirty(CDataExchange* pDX, int nID, void* pMember, const char* pszPropName, DDPEnd pfnEnd) {
    CGraphicPropertyPage* page = PageOf(pDX);
    if (!page->GetControlStatus(nID)) return;
    CMapWordToOb& records = PendingWritesOf(page);
    if (records.IsEmpty()) pDX->Keep(std::make_unique<PendingWritesEnd>(records));
    AddRecord(records, new CDDPRecord(pfnEnd, nID, pMember, pszPropName));
}

// load(page) merges the property into the member.
template <class T, void (*End)(CDataExchange*, int, T*, const char*), class Load>
void Bind(CDataExchange* pDX, int nID, T* pMember, const char* pszPropName, Load load) {
    if (pDX->m_bSaveAndValidate) {
        RecordIfDirty(pDX, nID, pMember, pszPropName, CallTypedEnd<T, End>);
        return;
    }
    load(PageOf(pDX));
    PageOf(pDX)->SetControlStatus(nID, 0);
}

} // namespace

// The overloads of a name differ only in the type of the member.
#define ORLO_DDP(kind, T, argument)                                                                          \
    void DDP_End##kind(CDataExchange* pDX, int, T* pMember, const char* pszPropName) {                       \
        if (pDX->m_bSaveAndValidate) PageOf(pDX)->SetProp##kind(pszPropName, argument, 0);                   \
    }                                                                                                        \
    void DDP_##kind(CDataExchange* pDX, int nID, T& member, const char* pszPropName) {                       \
        Bind<T, DDP_End##kind>(pDX, nID, &member, pszPropName, [&](CGraphicPropertyPage* page) {             \
            page->GetProp##kind(pszPropName, &member, 0);                                                    \
        });                                                                                                  \
    }

// Not a public overload: its only caller is the record of an unsigned short.
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
    Bind<unsigned short, DDP_EndBits>(pDX, nID, pMember, pszPropName, [&](CGraphicPropertyPage* page) {
        page->GetPropBits(pszPropName, pMember, 0);
    });
}

void DDP_TextSetAt(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName) {
    Bind<unsigned short, DDP_EndBits>(pDX, nID, pMember, pszPropName, [](CGraphicPropertyPage*) {});
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

// An exception of the host ends that one write only: the other properties are still written.
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

// Returns the number of selected graphics. Not GetFirstObject: this walk does not touch the preview mark.
int StampSelection(CGraphicPropertyPage* page) {
    CGraphicPropertySheet* sheet = page->GetSheet();
    auto* set = sheet != nullptr ? static_cast<GraphicStruct*>(sheet->GetGraphics()) : nullptr;
    if (set == nullptr) return 0;
    const uint32_t filter = sheet->GetGraphicFlags();
    uint32_t position = 0;
    int count = 0;
    for (GraphicStruct* graphic = ::GraphicFirst(set, &position, 1, filter); graphic != nullptr;
         graphic = ::GraphicNext(set, &position, 1, filter)) {
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
