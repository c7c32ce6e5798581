// Modal loops.

#include "modal.h"
#include "guarded_call.h"
#include "thread_state.h"

#include <afxapp.h>

#include <utility>

AfxModalOwner::AfxModalOwner(CWnd* pParentWnd) : m_hWnd(nullptr), m_bDisabled(false) {
    if (pParentWnd == nullptr) pParentWnd = AfxGetMainWnd();
    if (pParentWnd == nullptr || pParentWnd->m_hWnd == nullptr) return;
    m_hWnd = ::GetAncestor(pParentWnd->m_hWnd, GA_ROOT);
    m_bDisabled = ::IsWindowEnabled(m_hWnd);
    if (m_bDisabled) ::EnableWindow(m_hWnd, FALSE);
}

void AfxModalOwner::Release() {
    if (std::exchange(m_bDisabled, false)) ::EnableWindow(m_hWnd, TRUE);
}

bool AfxPumpOneMessage(int& nExitCode) {
    AfxThreadState& state = AfxThreadState::Get();
    const AfxTempScope scope(state);
    MSG message;
    if (!::GetMessageA(&message, nullptr, 0, 0)) {
        nExitCode = static_cast<int>(message.wParam);
        return false;
    }
    // A message whose pretranslation throws is not dispatched.
    const bool dispatch = AfxGuardedCall([&] {
        return !(state.thread != nullptr ? state.thread->PreTranslateMessage(&message)
                                         : CWnd::WalkPreTranslateTree(nullptr, &message));
    });
    if (dispatch) {
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
    return true;
}

int CWnd::RunModalLoop() {
    if (m_modal == Modal::none) m_modal = Modal::running;
    while (m_modal == Modal::running) {
        int exitCode = 0;
        if (AfxPumpOneMessage(exitCode)) continue;
        // Ends the outer loops too.
        ::PostQuitMessage(exitCode);
        EndModalLoop(-1);
    }
    m_modal = Modal::none;
    return m_nModalResult;
}

void CWnd::EndModalLoop(int nResult) {
    if (m_modal != Modal::running) return;
    m_nModalResult = nResult;
    m_modal = Modal::ended;
    // Wakes up the loop, which may be waiting for a message.
    ::PostThreadMessageA(::GetCurrentThreadId(), WM_NULL, 0, 0);
}

bool CWnd::IsModal() const {
    return m_modal == Modal::running;
}

void CWnd::CloseModal(int nResult) {
    if (m_modal == Modal::none) {
        DestroyWindow();
        return;
    }
    if (m_modal == Modal::running && m_pModalOwner != nullptr) m_pModalOwner->Release();
    EndModalLoop(nResult);
    ::ShowWindow(m_hWnd, SW_HIDE); // the window is destroyed when the loop has ended
}
