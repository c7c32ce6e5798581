// State of the framework for each thread with windows.
#pragma once

#include "temp_objects.h"

#include <afxapp.h>

#include <set>
#include <unordered_map>
#include <utility>

// Caches controls by their identifiers, because searching for a child is slow.
class AfxDialogItems {
public:
    // Returns the control of the dialog, or null.
    HWND Find(HWND dialog, int nID);
    // Adds a control that was found in another way, unless one with its identifier is cached.
    void Note(HWND control);

private:
    HWND* At(HWND dialog, int nID);

    struct Hash {
        std::size_t operator()(const std::pair<HWND, int>& key) const {
            return std::hash<HWND>()(key.first) * 31 + static_cast<std::size_t>(key.second);
        }
    };
    std::unordered_map<std::pair<HWND, int>, HWND, Hash> m_found;
};

struct AfxThreadState {
    std::unordered_map<HWND, CWnd*> windows; // the permanent map
    AfxTempObjects temps;
    MSG lastMessage{}; // the current message, for Default
    int procDepth = 0; // nesting depth of window procedures
    CWnd* windowInCreation = nullptr;
    HHOOK createHook = nullptr;
    CWinThread* thread = nullptr;
    bool reporting = false;       // the message box of an exception is open
    std::set<HWND> paintFailures; // windows whose exceptions while painting were reported
    AfxDialogItems items;
    int waitCursors = 0;
    HCURSOR cursorBeforeWait = nullptr;

    static AfxThreadState& Get();
};

// Guard that releases the temporary objects that were created during its lifetime.
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
