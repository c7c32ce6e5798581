// Message maps, which assign member functions to messages, commands and notifications.
//
//   BEGIN_MESSAGE_MAP(CMyDialog, CDialog)
//   ON_WM_TIMER()                                     void OnTimer(UINT_PTR nIDEvent)
//   ON_BN_CLICKED(IDC_MORE, &CMyDialog::OnMore)       void OnMore()
//   ON_MESSAGE(WM_APP, &CMyDialog::OnData)            LRESULT OnData(WPARAM wParam, LPARAM lParam)
//   END_MESSAGE_MAP()
//
// A class with a message map has DECLARE_MESSAGE_MAP() at its end. The first entry that matches a message is used;
// other messages are passed to the map of the base class. A handler with a wrong signature does not compile.
#pragma once

#include <afx.h>

class CCmdTarget;

// Messages of the framework
#define WM_INITIALUPDATE 0x0364 // sent to all descendants of a dialog before OnInitDialog
#define WM_COMMANDHELP 0x0365   // lParam: help context; a handler returns non-zero if it has shown help

#define afx_msg // marks a message handler

typedef void (CCmdTarget::*AFX_PMSG)();

// Signatures of handlers, which define how the parameters of the message are converted to arguments.
enum AfxSig : UINT {
    AfxSig_end = 0,
    AfxSig_vv,    // void ()
    AfxSig_lwl,   // LRESULT (WPARAM, LPARAM)
    AfxSig_vw,    // void (UINT nID): the identifier of the command
    AfxSig_is,    // int (LPCREATESTRUCTA)
    AfxSig_vwii,  // void (UINT, int, int): wParam and the words of lParam
    AfxSig_vwp,   // void (UINT, CPoint)
    AfxSig_bwsp,  // BOOL (UINT, short, CPoint)
    AfxSig_vwww,  // void (UINT, UINT, UINT)
    AfxSig_vt,    // void (UINT_PTR)
    AfxSig_vpos,  // void (WINDOWPOS*)
    AfxSig_bD,    // BOOL (CDC*)
    AfxSig_vWl,   // void (CWnd*): the window in lParam
    AfxSig_vW,    // void (CWnd*): the window in wParam
    AfxSig_vdrop, // void (HDROP)
    AfxSig_vdraw, // void (int, LPDRAWITEMSTRUCT)
    AfxSig_vmeas, // void (int, LPMEASUREITEMSTRUCT)
    AfxSig_icomp, // int (int, LPCOMPAREITEMSTRUCT)
    AfxSig_vdel,  // void (int, LPDELETEITEMSTRUCT)
};

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode; // of a notification; otherwise CN_COMMAND
    UINT nID;   // commands and notifications: from nID to nLastID
    UINT nLastID;
    UINT nSig;
    AFX_PMSG pfn;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* pBaseMap;
    const AFX_MSGMAP_ENTRY* lpEntries; // the last one has AfxSig_end
};

#define CN_COMMAND 0

// Converts a handler to the type in message maps. The dispatcher converts it back by its signature before calling it.
template <class Handler>
AFX_PMSG AfxMessageHandler(Handler handler) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
    return reinterpret_cast<AFX_PMSG>(handler);
#pragma GCC diagnostic pop
}

#define DECLARE_MESSAGE_MAP()                                                                                          \
private:                                                                                                               \
    static const AFX_MSGMAP_ENTRY* GetMessageEntries();                                                                \
                                                                                                                       \
public:                                                                                                                \
    static const AFX_MSGMAP messageMap;                                                                                \
                                                                                                                       \
protected:                                                                                                             \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                                                \
        return &theClass::messageMap;                                                                                  \
    }                                                                                                                  \
    const AFX_MSGMAP theClass::messageMap = {&baseClass::messageMap, theClass::GetMessageEntries()};                   \
    const AFX_MSGMAP_ENTRY* theClass::GetMessageEntries() {                                                            \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        static const AFX_MSGMAP_ENTRY entries[] = {

// clang-format off
#define END_MESSAGE_MAP()                                                                                    \
            {0, 0, 0, 0, AfxSig_end, nullptr}};                                                              \
        return entries;                                                                                      \
    }
// clang-format on

// Commands of menus, accelerators and buttons, and notifications of controls
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                                         \
    {WM_COMMAND, (wNotifyCode), (id), (id), AfxSig_vv, static_cast<AFX_PMSG>(memberFxn)},
#define ON_COMMAND(id, memberFxn) ON_CONTROL(CN_COMMAND, id, memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    {WM_COMMAND, CN_COMMAND, (id),                                                                                     \
     (idLast),   AfxSig_vw,  AfxMessageHandler(static_cast<void (CCmdTarget::*)(UINT)>(memberFxn))},
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)

// Any window message
#define AFX_WM_ENTRY(message, sig, type, memberFxn)                                                                    \
    {(message), 0, 0, 0, sig, AfxMessageHandler(static_cast<type>(memberFxn))},
#define ON_MESSAGE(message, memberFxn) AFX_WM_ENTRY(message, AfxSig_lwl, LRESULT (CWnd::*)(WPARAM, LPARAM), memberFxn)

#define ON_WM_CREATE() AFX_WM_ENTRY(WM_CREATE, AfxSig_is, int (CWnd::*)(LPCREATESTRUCTA), &ThisClass::OnCreate)
#define ON_WM_NCCREATE() AFX_WM_ENTRY(WM_NCCREATE, AfxSig_is, int (CWnd::*)(LPCREATESTRUCTA), &ThisClass::OnNcCreate)
#define ON_WM_DESTROY() AFX_WM_ENTRY(WM_DESTROY, AfxSig_vv, void (CWnd::*)(), &ThisClass::OnDestroy)
#define ON_WM_NCDESTROY() AFX_WM_ENTRY(WM_NCDESTROY, AfxSig_vv, void (CWnd::*)(), &ThisClass::OnNcDestroy)
#define ON_WM_CLOSE() AFX_WM_ENTRY(WM_CLOSE, AfxSig_vv, void (CWnd::*)(), &ThisClass::OnClose)
#define ON_WM_PAINT() AFX_WM_ENTRY(WM_PAINT, AfxSig_vv, void (CWnd::*)(), &ThisClass::OnPaint)
#define ON_WM_ERASEBKGND() AFX_WM_ENTRY(WM_ERASEBKGND, AfxSig_bD, BOOL (CWnd::*)(CDC*), &ThisClass::OnEraseBkgnd)
#define ON_WM_SIZE() AFX_WM_ENTRY(WM_SIZE, AfxSig_vwii, void (CWnd::*)(UINT, int, int), &ThisClass::OnSize)
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    AFX_WM_ENTRY(WM_WINDOWPOSCHANGING, AfxSig_vpos, void (CWnd::*)(WINDOWPOS*), &ThisClass::OnWindowPosChanging)
#define ON_WM_SETFOCUS() AFX_WM_ENTRY(WM_SETFOCUS, AfxSig_vW, void (CWnd::*)(CWnd*), &ThisClass::OnSetFocus)
#define ON_WM_TIMER() AFX_WM_ENTRY(WM_TIMER, AfxSig_vt, void (CWnd::*)(UINT_PTR), &ThisClass::OnTimer)
#define ON_WM_DROPFILES() AFX_WM_ENTRY(WM_DROPFILES, AfxSig_vdrop, void (CWnd::*)(HDROP), &ThisClass::OnDropFiles)
#define ON_WM_CAPTURECHANGED()                                                                                         \
    AFX_WM_ENTRY(WM_CAPTURECHANGED, AfxSig_vWl, void (CWnd::*)(CWnd*), &ThisClass::OnCaptureChanged)

#define AFX_WM_MOUSE(message, memberFxn) AFX_WM_ENTRY(message, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), memberFxn)
#define ON_WM_LBUTTONDOWN() AFX_WM_MOUSE(WM_LBUTTONDOWN, &ThisClass::OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_WM_MOUSE(WM_LBUTTONUP, &ThisClass::OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_WM_MOUSE(WM_LBUTTONDBLCLK, &ThisClass::OnLButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_WM_MOUSE(WM_MBUTTONDOWN, &ThisClass::OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_WM_MOUSE(WM_MBUTTONUP, &ThisClass::OnMButtonUp)
#define ON_WM_MOUSEMOVE() AFX_WM_MOUSE(WM_MOUSEMOVE, &ThisClass::OnMouseMove)
#define ON_WM_MOUSEWHEEL()                                                                                             \
    AFX_WM_ENTRY(WM_MOUSEWHEEL, AfxSig_bwsp, BOOL (CWnd::*)(UINT, short, CPoint), &ThisClass::OnMouseWheel)

#define AFX_WM_KEY(message, memberFxn) AFX_WM_ENTRY(message, AfxSig_vwww, void (CWnd::*)(UINT, UINT, UINT), memberFxn)
#define ON_WM_KEYDOWN() AFX_WM_KEY(WM_KEYDOWN, &ThisClass::OnKeyDown)
#define ON_WM_KEYUP() AFX_WM_KEY(WM_KEYUP, &ThisClass::OnKeyUp)

// Messages to the parent of an owner-draw control, which CWnd passes to the object of the control
#define ON_WM_DRAWITEM()                                                                                               \
    AFX_WM_ENTRY(WM_DRAWITEM, AfxSig_vdraw, void (CWnd::*)(int, LPDRAWITEMSTRUCT), &ThisClass::OnDrawItem)
#define ON_WM_MEASUREITEM()                                                                                            \
    AFX_WM_ENTRY(WM_MEASUREITEM, AfxSig_vmeas, void (CWnd::*)(int, LPMEASUREITEMSTRUCT), &ThisClass::OnMeasureItem)
#define ON_WM_COMPAREITEM()                                                                                            \
    AFX_WM_ENTRY(WM_COMPAREITEM, AfxSig_icomp, int (CWnd::*)(int, LPCOMPAREITEMSTRUCT), &ThisClass::OnCompareItem)
#define ON_WM_DELETEITEM()                                                                                             \
    AFX_WM_ENTRY(WM_DELETEITEM, AfxSig_vdel, void (CWnd::*)(int, LPDELETEITEMSTRUCT), &ThisClass::OnDeleteItem)
