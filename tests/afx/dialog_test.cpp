// Dialogs: exchange, validation, order of the first messages, modal loop.

#include "afx_test_ids.h"
#include "support/message_box_watcher.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>

namespace {

class CForm : public CDialog {
public:
    explicit CForm(CWnd* parent = nullptr) : CDialog(IDD_FORM, parent) {}
    CString name = "Ann";
    int count = 3;
    int bold = 1;
    CString choice = "second";
    std::function<void(CForm&)> onOpen; // runs in the modal loop
    std::function<void(CDataExchange*)> check;

protected:
    BOOL OnInitDialog() override {
        for (LPCSTR item : {"first", "second", "second too"}) {
            ::SendDlgItemMessageA(m_hWnd, IDC_CHOICE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        }
        PostMessage(WM_APP);
        return CDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Text(pDX, IDC_NAME, name);
        DDX_Text(pDX, IDC_COUNT, count);
        DDX_Check(pDX, IDC_BOLD, bold);
        DDX_CBString(pDX, IDC_CHOICE, choice);
        if (check) check(pDX);
    }
    LRESULT OnOpen(WPARAM, LPARAM) {
        if (onOpen) onOpen(*this);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CForm, CDialog)
ON_MESSAGE(WM_APP, &CForm::OnOpen)
END_MESSAGE_MAP()

CString TextOf(const CWnd& dialog, int id) {
    CString text;
    dialog.GetDlgItem(id)->GetWindowText(text);
    return text;
}

void PressKey(UINT key) {
    ::PostMessageA(::GetFocus(), WM_KEYDOWN, key, 1);
}

TEST(Dialog, LoadsAndSavesValues) {
    CForm form;
    form.onOpen = [](CForm& dialog) {
        EXPECT_STREQ(TextOf(dialog, IDC_NAME), "Ann");
        EXPECT_STREQ(TextOf(dialog, IDC_COUNT), "3");
        EXPECT_EQ(::IsDlgButtonChecked(dialog.m_hWnd, IDC_BOLD), static_cast<UINT>(BST_CHECKED));
        EXPECT_EQ(::SendDlgItemMessageA(dialog.m_hWnd, IDC_CHOICE, CB_GETCURSEL, 0, 0), 1);
        dialog.SetDlgItemText(IDC_NAME, "Bea");
        dialog.SetDlgItemText(IDC_COUNT, " -12 ");
        ::CheckDlgButton(dialog.m_hWnd, IDC_BOLD, BST_UNCHECKED);
        dialog.SetDlgItemText(IDC_CHOICE, "none of them");
        PressKey(VK_RETURN);
    };
    EXPECT_EQ(form.DoModal(), IDOK);
    EXPECT_STREQ(form.name, "Bea");
    EXPECT_EQ(form.count, -12);
    EXPECT_EQ(form.bold, 0);
    EXPECT_STREQ(form.choice, "none of them");
    EXPECT_EQ(form.m_hWnd, nullptr);
    EXPECT_EQ(
        [] {
            CForm again;
            again.onOpen = [](CForm& dialog) { dialog.EndDialog(IDOK); };
            return again.DoModal();
        }(),
        IDOK);
}

TEST(Dialog, InvalidValueKeepsItOpenAndSelectsTheField) {
    CForm form;
    MessageBoxWatcher boxes;
    form.onOpen = [&](CForm& dialog) {
        dialog.SetDlgItemText(IDC_NAME, "changed");
        dialog.SetDlgItemText(IDC_COUNT, "12x");
        dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_BOLD));
        EXPECT_FALSE(dialog.UpdateData(TRUE));
        EXPECT_EQ(boxes.OnlyText(), "Please enter a whole number.");
        EXPECT_EQ(::GetDlgItem(dialog.m_hWnd, IDC_COUNT), ::GetFocus());
        DWORD from = 9, to = 9;
        ::SendMessageA(::GetFocus(), EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
        EXPECT_EQ(from, 0u);
        EXPECT_EQ(to, 3u);
        dialog.SendMessage(WM_COMMAND, IDOK);
        EXPECT_NE(dialog.m_hWnd, nullptr);
        PressKey(VK_ESCAPE);
    };
    EXPECT_EQ(form.DoModal(), IDCANCEL);
    EXPECT_EQ(form.count, 3);
    EXPECT_EQ(boxes.Boxes().size(), 2u);
}

TEST(Dialog, OtherExceptionsOfAnExchangeAreReported) {
    CForm form;
    MessageBoxWatcher boxes;
    form.onOpen = [&](CForm& dialog) {
        dialog.check = [](CDataExchange* pDX) { pDX->PrepareCtrl(9999); };
        EXPECT_FALSE(dialog.UpdateData(TRUE));
        EXPECT_EQ(boxes.OnlyText(), "The operation is not supported.");
        dialog.EndDialog(7);
    };
    EXPECT_EQ(form.DoModal(), 7);
}

TEST(Dialog, DoesNotOpenIfItsValuesCannotBeLoaded) {
    CForm form;
    form.check = [](CDataExchange* pDX) { pDX->Fail(); };
    EXPECT_EQ(form.DoModal(), -1);
    CDialog unknown(12345);
    EXPECT_EQ(unknown.DoModal(), -1);
    CDialog modeless;
    EXPECT_FALSE(modeless.Create(12345));
}

TEST(Dialog, DisablesItsOwnerWhileItIsOpen) {
    CWnd owner;
    ASSERT_TRUE(owner.CreateEx(0, nullptr, "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 300, nullptr, nullptr));
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &owner, 1));
    ::SetActiveWindow(owner.m_hWnd);
    CForm form(&child); // a child window, whose top-level window becomes the owner
    form.onOpen = [&](CForm& dialog) {
        EXPECT_FALSE(owner.IsWindowEnabled());
        EXPECT_EQ(owner.m_hWnd, ::GetParent(dialog.m_hWnd));
        EXPECT_EQ(dialog.m_hWnd, ::GetActiveWindow());
        EXPECT_EQ(::GetDlgItem(dialog.m_hWnd, IDC_NAME), ::GetFocus());
        dialog.EndDialog(IDOK);
    };
    EXPECT_EQ(form.DoModal(), IDOK);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(owner.m_hWnd, ::GetActiveWindow());
}

TEST(Dialog, EndsWithTheProgram) {
    CForm outer;
    outer.onOpen = [](CForm&) {
        CForm inner;
        inner.onOpen = [](CForm&) { ::PostQuitMessage(5); };
        EXPECT_EQ(inner.DoModal(), -1);
    };
    EXPECT_EQ(outer.DoModal(), -1);
    MSG message;
    ASSERT_TRUE(::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "the program's own loop ends too";
    EXPECT_EQ(message.wParam, 5u);
}

TEST(Dialog, EndsWhenItsWindowIsDestroyed) {
    CForm form;
    form.onOpen = [](CForm& dialog) { dialog.DestroyWindow(); };
    EXPECT_EQ(form.DoModal(), -1);
}

TEST(Dialog, Modeless) {
    CForm form;
    ASSERT_TRUE(form.Create(IDD_FORM));
    MSG tab = {};
    tab.hwnd = ::GetDlgItem(form.m_hWnd, IDC_NAME);
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    form.ShowWindow(SW_SHOW);
    ::SetFocus(tab.hwnd);
    EXPECT_TRUE(AfxGetThread()->PreTranslateMessage(&tab));
    EXPECT_EQ(::GetDlgItem(form.m_hWnd, IDC_COUNT), ::GetFocus());
    form.EndDialog(IDOK);
    EXPECT_EQ(form.m_hWnd, nullptr);
}

// Fills itself on WM_INITIALUPDATE, like combo boxes with the program's own data.
class CFilled : public CComboBox {
public:
    bool seen = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITIALUPDATE) {
            seen = true;
            AddString("red");
            AddString("blue");
        }
        return CComboBox::WindowProc(message, wParam, lParam);
    }
};

TEST(Dialog, InitializesControlsBeforeTheFirstExchange) {
    class CColors : public CForm {
    public:
        CFilled color;
        int selected = -2;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_INITDIALOG) color.SubclassDlgItem(IDC_COLOR, this);
            return CForm::WindowProc(message, wParam, lParam);
        }
        BOOL OnInitDialog() override {
            EXPECT_TRUE(color.seen);
            return CForm::OnInitDialog();
        }
        void DoDataExchange(CDataExchange* pDX) override {
            CString value("blue");
            DDX_CBString(pDX, IDC_COLOR, value);
            selected = color.GetCurSel();
        }
    } colors;
    colors.onOpen = [](CForm& dialog) { dialog.EndDialog(IDOK); };
    EXPECT_EQ(colors.DoModal(), IDOK);
    EXPECT_EQ(colors.selected, 1);
}

} // namespace
