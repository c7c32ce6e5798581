// CCmdTarget: routes commands and notifications through message maps.

#include "handler_as.h"
#include "thread_state.h"

#include <afxwnd.h>

#include <utility>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace {

const AFX_MSGMAP_ENTRY kNoEntries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};

bool IsFor(const AFX_MSGMAP_ENTRY& entry, UINT nID, UINT nCode) {
    return entry.nMessage == WM_COMMAND && entry.nCode == nCode && entry.nID <= nID && nID <= entry.nLastID;
}

const AFX_MSGMAP_ENTRY* FindCommand(const AFX_MSGMAP* map, UINT nID, UINT nCode) {
    for (; map != nullptr; map = map->pBaseMap) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry) {
            if (IsFor(*entry, nID, nCode)) return entry;
        }
    }
    return nullptr;
}

} // namespace

const AFX_MSGMAP CCmdTarget::messageMap = {nullptr, kNoEntries};

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return &CCmdTarget::messageMap;
}

CCmdTarget::CCmdTarget() = default;
CCmdTarget::~CCmdTarget() = default;

void CCmdTarget::OnFinalRelease() {
    delete this;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void*, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const AFX_MSGMAP_ENTRY* entry = FindCommand(GetMessageMap(), nID, static_cast<UINT>(nCode));
    if (entry == nullptr) return FALSE;
    if (pHandlerInfo != nullptr) {
        *pHandlerInfo = {this, entry->pfn};
    } else if (entry->nSig == AfxSig_vw) {
        (this->*HandlerAs<void (CCmdTarget::*)(UINT)>(entry->pfn))(nID);
    } else {
        (this->*entry->pfn)();
    }
    return TRUE;
}

void CCmdTarget::BeginWaitCursor() {
    AfxThreadState& state = AfxThreadState::Get();
    if (state.waitCursors++ == 0) state.cursorBeforeWait = ::SetCursor(::LoadCursorA(nullptr, IDC_WAIT));
}

void CCmdTarget::EndWaitCursor() {
    AfxThreadState& state = AfxThreadState::Get();
    if (--state.waitCursors == 0) ::SetCursor(std::exchange(state.cursorBeforeWait, nullptr));
}
