// Property sheets, driven like a user does.

#include "afx_test_ids.h"
#include "support/object_counts.h"
#include "support/sheet_driver.h"

#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

class CTestPage : public CPropertyPage {
public:
    explicit CTestPage(UINT nIDTemplate, UINT nIDCaption = 0) : CPropertyPage(nIDTemplate, nIDCaption) {}
    explicit CTestPage(LPCSTR name) : CPropertyPage(name) {}
    CString value;
    std::string log;
    bool accepts = true;
    bool opens = true;

    BOOL OnSetActive() override {
        log += 'a';
        return opens && CPropertyPage::OnSetActive();
    }
    BOOL OnKillActive() override {
        log += accepts ? 'k' : 'r';
        return accepts && CPropertyPage::OnKillActive();
    }
    void OnOK() override { log += 'o'; }
    void OnCancel() override { log += 'c'; }
    BOOL Changed() const { return m_bChanged; }
    LPCSTR TemplateName() const { return m_lpszTemplateName; }

protected:
    BOOL OnInitDialog() override {
        log += 'i';
        return CPropertyPage::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, IDC_FIELD, value); }
    void OnPress() { log += 'p'; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CTestPage, CPropertyPage)
ON_BN_CLICKED(IDC_PRESS, &CTestPage::OnPress)
END_MESSAGE_MAP()

class Sheet : public ::testing::Test {
protected:
    CTestPage first{IDD_PAGE_ONE};
    CTestPage second{IDD_PAGE_TWO};
    CTestPage tall{"TALL_PAGE"};
    CPropertySheet sheet{"Properties"};
    SheetDriver driver;

    void SetUp() override {
        for (CTestPage* page : {&first, &second, &tall})
            sheet.AddPage(page);
    }
    int Run(SheetDriver::Script script) { return driver.Run(sheet, std::move(script)); }

    CRect Place(HWND window) const { // in client coordinates of the sheet
        CRect rect;
        ::GetWindowRect(window, &rect);
        sheet.ScreenToClient(&rect);
        return rect;
    }
    bool Exists(int id) const { return ::GetDlgItem(sheet.m_hWnd, id) != nullptr; }
};

std::string TabText(const CPropertySheet& sheet, int index) {
    char text[64] = "";
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = sizeof text;
    sheet.GetTabControl()->SendMessage(TCM_GETITEMA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    return text;
}

TEST_F(Sheet, OpensOnItsFirstPage) {
    CTestPage named(IDD_PAGE_ONE, IDS_TAB_TEXT);
    sheet.AddPage(&named);
    first.value = "loaded";
    const int result = Run([&](SheetDriver& user) {
        CString caption;
        sheet.GetWindowText(caption);
        EXPECT_STREQ(caption, "Properties");
        EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 4);
        EXPECT_EQ(TabText(sheet, 0), "&First");
        EXPECT_EQ(TabText(sheet, 2), "Tall") << "of an extended template";
        EXPECT_EQ(TabText(sheet, 3), "From a string");
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        EXPECT_EQ(user.Text(IDC_FIELD), "loaded");
        EXPECT_TRUE(::IsWindowEnabled(user.Page())) << "disabled by the template";
        EXPECT_EQ(user.Control(IDC_FIELD), ::GetFocus());
        EXPECT_EQ(second.m_hWnd, nullptr) << "created on demand";
        for (int id : {IDOK, IDCANCEL, ID_APPLY_NOW, ID_HELP})
            EXPECT_TRUE(Exists(id)) << id;
        user.Type(IDC_FIELD, "typed");
        user.Ok();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(first.log, "aiko");
    EXPECT_STREQ(first.value, "typed");
    EXPECT_EQ(second.log, "");
    EXPECT_EQ(first.m_hWnd, nullptr);
}

TEST_F(Sheet, ChangesPagesByClickAndByKey) {
    Run([&](SheetDriver& user) {
        user.Type(IDC_FIELD, "one");
        user.SelectPage(1);
        EXPECT_EQ(sheet.GetActiveIndex(), 1);
        EXPECT_STREQ(first.value, "one");
        EXPECT_FALSE(first.IsWindowVisible());
        EXPECT_TRUE(second.IsWindowVisible());
        user.Focus(IDC_FIELD);
        user.Key(VK_TAB, false, true);
        EXPECT_EQ(sheet.GetActiveIndex(), 2);
        EXPECT_EQ(sheet.GetTabControl()->GetCurSel(), 2);
        EXPECT_EQ(user.Control(IDC_FIELD), ::GetFocus()) << "the new page's first field";
        user.Key(VK_NEXT, false, true); // wraps around to the first
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        user.Key(VK_TAB, true, true);
        EXPECT_EQ(sheet.GetActiveIndex(), 2);
        user.Key(VK_PRIOR, false, true);
        EXPECT_EQ(sheet.GetActiveIndex(), 1);
    });
    EXPECT_EQ(first.log, "aikakc") << "created once, left twice";
    EXPECT_EQ(second.log, "aikac");
}

TEST_F(Sheet, LaterPagesHaveThePositionOfTheFirst) {
    Run([&](SheetDriver& user) {
        const CRect place = Place(user.Page());
        CRect client;
        sheet.GetClientRect(&client);
        EXPECT_GT(place.top, Place(sheet.GetTabControl()->m_hWnd).top);
        EXPECT_EQ(place.top, Place(sheet.GetTabControl()->m_hWnd).bottom);
        for (int id : {IDOK, IDCANCEL, ID_APPLY_NOW, ID_HELP}) {
            const CRect button = Place(::GetDlgItem(sheet.m_hWnd, id));
            EXPECT_GT(button.top, place.bottom) << id;
            EXPECT_LE(button.right, client.right) << id;
            EXPECT_LE(button.bottom, client.bottom) << id;
        }
        for (int page : {1, 2}) {
            user.SelectPage(page);
            EXPECT_EQ(place, Place(user.Page())) << page;
            EXPECT_EQ(::GetWindowLongPtrA(user.Page(), GWL_STYLE) & (WS_CAPTION | WS_POPUP), 0u) << page;
        }
    });
}

TEST_F(Sheet, PageThatCannotBeLeftStaysActive) {
    first.accepts = false;
    const int result = Run([&](SheetDriver& user) {
        user.SelectPage(1);
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        EXPECT_EQ(sheet.GetTabControl()->GetCurSel(), 0);
        user.Focus(IDC_FIELD);
        user.Key(VK_TAB, false, true);
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        EXPECT_TRUE(first.IsWindowVisible());
        EXPECT_FALSE(sheet.SetActivePage(&second));
        user.Ok();
        EXPECT_NE(sheet.m_hWnd, nullptr);
        first.accepts = true;
        EXPECT_TRUE(sheet.SetActivePage(1));
        user.Ok();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(first.log, "airrrrk");
    EXPECT_EQ(second.log, "aiko");
}

TEST_F(Sheet, PreviousPageStaysIfTheNextCannotBeOpened) {
    second.opens = false;
    Run([&](SheetDriver& user) {
        user.SelectPage(1);
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        EXPECT_EQ(sheet.GetTabControl()->GetCurSel(), 0);
        EXPECT_TRUE(first.IsWindowVisible());
    });
    EXPECT_EQ(first.log, "aikac") << "active again";
}

TEST_F(Sheet, OpensOnTheFirstUsablePageOrFails) {
    CPropertySheet empty("Empty");
    EXPECT_EQ(empty.DoModal(), -1);
    first.opens = false;
    Run([](SheetDriver& user) { EXPECT_EQ(user.ActivePage(), 1); });
    second.opens = tall.opens = false;
    EXPECT_EQ(sheet.DoModal(), -1);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST_F(Sheet, KeyboardClosesItAndReachesButtons) {
    EXPECT_EQ(Run([](SheetDriver& user) { user.Key(VK_RETURN); }), IDOK);
    EXPECT_EQ(Run([](SheetDriver& user) { user.Key(VK_ESCAPE); }), IDCANCEL);
    EXPECT_EQ(Run([&](SheetDriver&) { sheet.PostMessage(WM_CLOSE); }), IDCANCEL);
    EXPECT_EQ(IDCANCEL, Run([](SheetDriver& user) {
                  user.Focus(IDC_LINES); // a multiline edit control sends Escape to the page
                  user.Key(VK_ESCAPE);
              }));
    first.log.clear();
    EXPECT_EQ(IDCANCEL, Run([&](SheetDriver& user) {
                  user.Mnemonic('p');
                  const auto press = reinterpret_cast<WPARAM>(user.Control(IDC_PRESS));
                  sheet.SendMessage(WM_NEXTDLGCTL, press, TRUE); // like the Tab key
                  user.Key(VK_RETURN);
                  user.Key(VK_SPACE);
                  EXPECT_NE(sheet.m_hWnd, nullptr) << "Return presses the focused button, not OK";
              }));
    EXPECT_EQ(first.log, "aipppc");
}

TEST_F(Sheet, TabKeyGoesFromThePageToTheButtonsToTheTabs) {
    Run([&](SheetDriver& user) {
        ::EnableWindow(::GetDlgItem(sheet.m_hWnd, ID_APPLY_NOW), TRUE);
        user.Focus(IDC_PRESS);
        std::vector<int> order;
        user.Focus(IDC_FIELD);
        for (int i = 0; i < 2; ++i)
            user.Key(VK_TAB);
        ::SetFocus(user.Control(IDC_PRESS)); // the multiline edit control handles the key itself
        ::SendMessageA(sheet.m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(::GetDlgItem(sheet.m_hWnd, IDOK)), TRUE);
        for (int i = 0; i < 6; ++i) {
            order.push_back(::GetDlgCtrlID(::GetFocus()));
            user.Key(VK_TAB);
        }
        EXPECT_EQ(order, (std::vector<int>{IDOK, IDCANCEL, ID_APPLY_NOW, ID_HELP, AFX_IDC_TAB_CONTROL, IDC_FIELD}));
    });
}

TEST_F(Sheet, CancelCallsOnCancelOfAllOpenedPages) {
    EXPECT_EQ(Run([](SheetDriver& user) {
                  user.Type(IDC_FIELD, "dropped");
                  user.SelectPage(1);
                  user.Type(IDC_FIELD, "dropped too");
                  user.Cancel();
              }),
              IDCANCEL);
    EXPECT_EQ(first.log, "aikc");
    EXPECT_EQ(second.log, "aic");
    EXPECT_EQ(tall.log, "");
    EXPECT_TRUE(second.value.IsEmpty());
}

TEST_F(Sheet, ApplySavesAndStaysOpen) {
    EXPECT_EQ(Run([&](SheetDriver& user) {
                  HWND apply = ::GetDlgItem(sheet.m_hWnd, ID_APPLY_NOW);
                  EXPECT_FALSE(::IsWindowEnabled(apply));
                  user.Type(IDC_FIELD, "applied");
                  first.SetModified();
                  EXPECT_TRUE(::IsWindowEnabled(apply));
                  user.ClickSheetButton(ID_APPLY_NOW);
                  EXPECT_STREQ(first.value, "applied");
                  EXPECT_FALSE(first.Changed());
                  EXPECT_FALSE(::IsWindowEnabled(apply));
              }),
              IDCANCEL);
    EXPECT_EQ(first.log, "aikoc");
}

TEST_F(Sheet, HelpRequestStartsAtTheSheet) {
    class CHelped : public CPropertySheet {
    public:
        using CPropertySheet::CPropertySheet;
        int helped = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message != WM_COMMANDHELP) return CPropertySheet::WindowProc(message, wParam, lParam);
            return ++helped;
        }
    } helped("Help");
    CTestPage page(IDD_PAGE_ONE);
    helped.AddPage(&page);
    driver.Run(helped, [](SheetDriver& user) { user.ClickSheetButton(ID_HELP); });
    EXPECT_EQ(helped.helped, 1);
}

TEST_F(Sheet, EndsWithAnyCode) {
    EXPECT_EQ(Run([&](SheetDriver&) { sheet.EndDialog(3017); }), 3017);
    EXPECT_EQ(first.log, "ai") << "no prompt";
}

TEST_F(Sheet, PagesCanBeRemovedWhileItIsOpen) {
    Run([&](SheetDriver& user) {
        const CRect place = Place(user.Page());
        user.SelectPage(1);
        sheet.RemovePage(&first); // before the active page
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        EXPECT_EQ(&second, sheet.GetActivePage());
        EXPECT_EQ(first.m_hWnd, nullptr);
        EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
        sheet.RemovePage(0); // the active page
        EXPECT_EQ(&tall, sheet.GetActivePage());
        EXPECT_TRUE(tall.IsWindowVisible());
        EXPECT_EQ(place, Place(tall.m_hWnd));
        sheet.AddPage(&first);
        user.SelectPage(1);
        EXPECT_EQ(&first, sheet.GetActivePage());
    });
    EXPECT_EQ(second.GetParentSheet(), nullptr);
    EXPECT_EQ(sheet.GetPageIndex(&first), 1);
    sheet.RemovePage(7);
    EXPECT_EQ(sheet.GetPageCount(), 2);
}

TEST(SheetOwnership, SheetOrPageCanBeDestroyedFirst) {
    auto sheet = std::make_unique<CPropertySheet>(IDS_SHEET);
    auto page = std::make_unique<CTestPage>(IDD_PAGE_ONE);
    sheet->AddPage(page.get());
    page.reset();
    EXPECT_EQ(sheet->GetPageCount(), 0);
    EXPECT_EQ(sheet->GetActivePage(), nullptr);
    page = std::make_unique<CTestPage>(IDD_PAGE_ONE);
    sheet->AddPage(page.get());
    sheet.reset();
    EXPECT_EQ(page->GetParentSheet(), nullptr);
}

TEST_F(Sheet, OpensOnTheRequestedPage) {
    EXPECT_TRUE(sheet.SetActivePage(1));
    Run([&](SheetDriver&) { EXPECT_EQ(&second, sheet.GetActivePage()); });
    CPropertySheet other("Other", nullptr, 9); // out of range: the last page is used
    sheet.RemovePage(0);
    sheet.RemovePage(0);
    sheet.RemovePage(0);
    other.AddPage(&first);
    driver.Run(other, [&](SheetDriver&) { EXPECT_EQ(&first, other.GetActivePage()); });
}

TEST_F(Sheet, Modeless) {
    CWnd owner;
    ASSERT_TRUE(owner.CreateEx(0, nullptr, "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 300, nullptr, nullptr));
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_TRUE(sheet.IsWindowVisible());
    EXPECT_TRUE(owner.IsWindowEnabled());
    for (int id : {IDOK, IDCANCEL, ID_APPLY_NOW, ID_HELP})
        EXPECT_FALSE(Exists(id)) << id;
    MSG tab = {};
    tab.hwnd = ::GetDlgItem(first.m_hWnd, IDC_FIELD);
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    ::SetFocus(tab.hwnd);
    EXPECT_TRUE(AfxGetThread()->PreTranslateMessage(&tab));
    EXPECT_EQ(::GetDlgItem(first.m_hWnd, IDC_PRESS), ::GetFocus());
    sheet.SendMessage(WM_COMMAND, IDOK);
    EXPECT_NE(sheet.m_hWnd, nullptr) << "OK saves and keeps the sheet open";
    EXPECT_EQ(first.log, "aiko");
    sheet.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

// Has its own layout: a tab row at the top that determines its own height.
class CStrip : public CPropertySheet {
public:
    CStrip() : CPropertySheet("Strip") { m_bHasApply = FALSE; }
    int tabHeight = 0;

protected:
    int OnCreate(LPCREATESTRUCT lpCreateStruct) {
        if (CPropertySheet::OnCreate(lpCreateStruct) == -1) return -1;
        EXPECT_GT(m_sizeButton.cx, m_sizeButton.cy);
        EXPECT_GT(m_sizeTabMargin.cx, 0);
        EXPECT_EQ(m_sizeTabMargin.cx, m_cxButtonGap);
        m_tabRow.SetWindowPos(nullptr, 6, 6, 400, 0, SWP_NOZORDER | SWP_NOACTIVATE);
        CRect tabs;
        m_tabRow.GetWindowRect(&tabs);
        tabHeight = tabs.Height();
        GetDlgItem(IDCANCEL)->MoveWindow(350, 10, m_sizeButton.cx, m_sizeButton.cy);
        SetWindowPos(nullptr, 0, 0, 450, 333, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CStrip, CPropertySheet)
ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(SheetLayout, IsNotChangedInADerivedSheetWithItsOwn) {
    CStrip strip;
    CTestPage page(IDD_PAGE_ONE);
    strip.AddPage(&page);
    SheetDriver().Run(strip, [&](SheetDriver&) {
        CRect window;
        strip.GetWindowRect(&window);
        EXPECT_EQ(CSize(450, 333), window.Size());
        CRect tab;
        strip.GetTabControl()->GetItemRect(0, &tab);
        EXPECT_GE(strip.tabHeight, tab.bottom);
        EXPECT_LT(strip.tabHeight, tab.bottom + 6);
        EXPECT_EQ(::GetDlgItem(strip.m_hWnd, ID_APPLY_NOW), nullptr);
    });
}

TEST(SheetLeaks, ManySheetsLeakNothing) {
    const auto cycle = [] {
        CTestPage one(IDD_PAGE_ONE), two(IDD_PAGE_TWO);
        CPropertySheet sheet("Leak");
        sheet.AddPage(&one);
        sheet.AddPage(&two);
        SheetDriver().Run(sheet, [](SheetDriver& user) { user.SelectPage(1); });
    };
    cycle();
    const int gdi = GdiObjectCount();
    const int user = UserObjectCount();
    for (int i = 0; i < 200; ++i)
        cycle();
    EXPECT_EQ(gdi, GdiObjectCount());
    EXPECT_EQ(user, UserObjectCount());
}

} // namespace
