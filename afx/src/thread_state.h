// What the framework knows of each thread that has windows.
#pragma once

#include "temp_objects.h"

#include <afxapp.h>

#include <set>
#include <unordered_map>

struct AfxThreadState {
    std::unordered_map<HWND, CWnd*> windows; // the permanent map
    AfxTempObjects temps;
    MSG lastMessage{}; // the message now handled, for Default
    int procDepth = 0; // window procedures now running
    CWnd* windowInCreation = nullptr;
    HHOOK createHook = nullptr;
    CWinThread* thread = nullptr;
    bool reporting = false;       // an exception's message box is up
    std::set<HWND> paintFailures; // windows that have reported an exception of their painting
    HWND lastMeasured = nullptr;  // the control whose row was last asked for
    int waitCursors = 0;
    HCURSOR cursorBeforeWait = nullptr;

    static AfxThreadState& Get();
};

// Releases the temporary objects that are made while it lives.
class AfxTempScope {
public:
    explicit AfxTempScope(AfxThreadState& state) : m_state(state), m_mark(state.temps.Mark()) {}
    ~AfxTempScope() { m_state.temps.ReleaseTo(m_mark); }
    AfxTempScope(const AfxTempScope&) = delete;
    AfxTempScope& operator=(const AfxTempScope&) = delete;

private:
    AfxThreadState& m_state;
    std::size_t m_mark;
};
