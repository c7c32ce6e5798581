// The accessibility object of a window, as a screen reader sees it: the window's own, else the system's.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <string>

#include "orlo/win/com_owner.h"

class Accessible {
public:
    explicit Accessible(HWND window);

    bool IsOwn() const { return m_isOwn; } // the window supplies its own object
    int Count() const;
    // child is counted from 1; 0 is the window itself.
    std::string Name(int child = CHILDID_SELF) const;
    std::string Value(int child = CHILDID_SELF) const;
    std::string DefaultAction(int child) const;
    long Role(int child = CHILDID_SELF) const;
    long State(int child) const;
    // These return a child, or 0 for the window itself or none.
    int Navigate(long direction, int from) const;
    int HitTest(POINT point) const; // on the screen
    int Focus() const;
    RECT Location(int child) const; // on the screen
    void Select(int child) const;
    void DoDefaultAction(int child) const;

private:
    using GetText = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
    using GetNumber = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, VARIANT*);
    std::string Text(GetText get, int child) const;
    long Number(GetNumber get, int child) const;

    orlo::Owned<IAccessible> m_object;
    bool m_isOwn = false;
};
