// The layers dialog: objects on hidden or locked layers cannot be selected, locked ones stay visible, and Cancel undoes
// changes.

#include <commctrl.h>

#include "demo/automation/control_text.h"
#include "demo/viewer.h"
#include "demo/viewer/resource.h"
#include "drawcore/layer.h"
#include "drawcore/table.h"
#include "orlo/host/drawing.h"
#include "orlo/win/gdi.h"
#include "support/fresh_drawing.h"

namespace {

class Layers : public Viewer {
protected:
    void InDialog(const std::function<void(HWND)>& play) {
        user.InDialog([&] { user.Key('L', UserInput::kControl); }, play);
    }
    static std::string Cell(HWND dialog, int row, int column) {
        char text[64] = "";
        LVITEMA item = {};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = sizeof text;
        ::SendDlgItemMessageA(dialog, IDC_LAYER_LIST, LVM_GETITEMTEXTA, static_cast<WPARAM>(row),
                              reinterpret_cast<LPARAM>(&item));
        return text;
    }
    static std::string Row(HWND dialog, int row) {
        std::string text = Cell(dialog, row, 0);
        for (int column = 1; column < 5; ++column)
            text += " " + Cell(dialog, row, column);
        return text;
    }
    static LRESULT Box(HWND dialog, int id) { return ::SendDlgItemMessageA(dialog, id, BM_GETCHECK, 0, 0); }
    int SelectAll() {
        user.Key('A', UserInput::kControl);
        return selection().Count();
    }
};

TEST_F(Layers, AreLockedByKeysAndStayVisible) {
    const std::vector<uint32_t> seen = ViewPixels();
    ASSERT_EQ(SelectAll(), 4);
    InDialog([&](HWND dialog) {
        EXPECT_EQ(Row(dialog, 0), "0 yes - - 3");
        EXPECT_EQ(Row(dialog, 1), "A & B yes - - 1");
        ASSERT_EQ(::GetDlgCtrlID(::GetFocus()), IDC_LAYER_LIST);
        user.Key(VK_DOWN);
        user.Mnemonic('k');
        EXPECT_EQ(Row(dialog, 1), "A & B yes - yes 1");
        user.Key(VK_RETURN);
    });
    EXPECT_EQ(selection().Count(), 3) << "the text was deselected";
    EXPECT_EQ(WindowText(frame->m_hWnd)[0], '*') << "the file will contain it";
    EXPECT_EQ(SelectAll(), 3);
    user.Click(view(), Pixel(26, 31));
    EXPECT_EQ(selection().Count(), 0);
    user.Key(VK_ESCAPE);
    EXPECT_EQ(ViewPixels(), seen);
}

TEST_F(Layers, HaveTitlesThatFitTheirColumns) {
    InDialog([&](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, IDC_LAYER_LIST);
        WPARAM column = 0;
        for (const char* title : {"Name", "On", "Frozen", "Locked", "Graphics"}) {
            const auto text = ::SendMessageA(list, LVM_GETSTRINGWIDTHA, 0, reinterpret_cast<LPARAM>(title));
            const auto margins = 2 * 9; // margins of a title
            EXPECT_GE(::SendMessageA(list, LVM_GETCOLUMNWIDTH, column++, 0), text + margins) << title;
        }
        user.Key(VK_ESCAPE);
    });
}

TEST_F(Layers, AreSortedByColumnAndFilteredByName) {
    const auto clickTitle = [&](HWND dialog, int column) {
        const HWND header = reinterpret_cast<HWND>(::SendDlgItemMessageA(dialog, IDC_LAYER_LIST, LVM_GETHEADER, 0, 0));
        CRect place;
        ::SendMessageA(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&place));
        user.Click(header, place.CenterPoint());
    };
    const auto names = [&](HWND dialog) {
        std::string text;
        const LRESULT count = ::SendDlgItemMessageA(dialog, IDC_LAYER_LIST, LVM_GETITEMCOUNT, 0, 0);
        for (int row = 0; row < count; ++row)
            text += Cell(dialog, row, 0) + ";";
        return text;
    };
    InDialog([&](HWND dialog) {
        EXPECT_EQ(Cell(dialog, 0, 5), "White");
        user.Mnemonic('k'); // locks "0"
        clickTitle(dialog, 4);
        EXPECT_EQ(names(dialog), "A & B;0;") << "1 and 3 graphics";
        EXPECT_EQ(Box(dialog, IDC_LAYER_LOCKED), BST_CHECKED) << "the selected layer is kept";
        clickTitle(dialog, 4);
        EXPECT_EQ(names(dialog), "0;A & B;");
        clickTitle(dialog, 0);
        user.Mnemonic('i');
        user.Type("& b");
        EXPECT_EQ(names(dialog), "A & B;");
        EXPECT_EQ(Box(dialog, IDC_LAYER_LOCKED), BST_UNCHECKED);
        user.Mnemonic('o');
        EXPECT_EQ(Row(dialog, 0), "A & B - - - 1");
        user.Mnemonic('i'); // with all its text selected
        user.Type("\b");
        EXPECT_EQ(names(dialog), "0;A & B;");
        user.Key(VK_RETURN);
    });
    EXPECT_EQ(SelectAll(), 0) << "one layer is locked, one is off";
}

// The color is the background of the cell.
TEST_F(Layers, ShowTheirColors) {
    ::LayerSet(document().Drawing(), 1, RGB(255, 0, 0), 0, 0);
    InDialog([&](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, IDC_LAYER_LIST);
        EXPECT_EQ(Cell(dialog, 0, 5), "Red");
        ListView_SetItemState(list, -1, 0, LVIS_SELECTED);
        user.Wait(0);
        RECT cell = {LVIR_BOUNDS, 5, 0, 0};
        ::SendMessageA(list, LVM_GETSUBITEMRECT, 0, reinterpret_cast<LPARAM>(&cell));
        EXPECT_EQ(::GetPixel(orlo::WindowDC(list).get(), cell.right - 3, (cell.top + cell.bottom) / 2), RGB(255, 0, 0));
        user.Key(VK_ESCAPE);
    });
}

TEST_F(Layers, ThousandsCanBeChangedAtOnce) {
    TableStruct* layers = ::DrawingGetTable(document().Drawing(), kTableLayers);
    for (int i = 0; i < 3000; ++i)
        ::TableEntryAdd(layers, ("Layer " + std::to_string(i)).c_str(), nullptr);
    InDialog([&](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, IDC_LAYER_LIST);
        EXPECT_EQ(::SendMessageA(list, LVM_GETITEMCOUNT, 0, 0), 3002);
        user.Key(VK_END, UserInput::kShift);
        EXPECT_EQ(ListView_GetSelectedCount(list), 3002u);
        EXPECT_EQ(StalePart(dialog), "");
        user.Key(VK_HOME);
        EXPECT_EQ(ListView_GetSelectedCount(list), 1u);
        EXPECT_EQ(StalePart(dialog), "");
        user.Key('A', UserInput::kControl);
        EXPECT_EQ(ListView_GetSelectedCount(list), 3002u);
        EXPECT_EQ(StalePart(dialog), "");
        user.Mnemonic('f');
        EXPECT_EQ(Cell(dialog, 3001, 2), "yes");
        user.Key(VK_RETURN);
    });
    user.Key('Z', UserInput::kControl);
    EXPECT_EQ(SelectAll(), 4);
}

TEST_F(Layers, AreHiddenForSeveralRowsAndRestoredByCancel) {
    const std::vector<uint32_t> seen = ViewPixels();
    for (const int state : {IDC_LAYER_ON, IDC_LAYER_FROZEN}) {
        InDialog([&](HWND dialog) {
            user.Click(::GetDlgItem(dialog, state)); // in the first row
            EXPECT_NE(ViewPixels(), seen);
            user.MoveFocus(::GetDlgItem(dialog, IDC_LAYER_LIST));
            user.Key(VK_DOWN, UserInput::kShift); // both rows
            EXPECT_EQ(Box(dialog, state), BST_INDETERMINATE);
            user.Click(::GetDlgItem(dialog, state));
            EXPECT_EQ(Box(dialog, state), BST_CHECKED) << "all of them; previously none";
            EXPECT_EQ(Cell(dialog, 0, 1 + state - IDC_LAYER_ON), "yes");
            user.Click(::GetDlgItem(dialog, state));
            EXPECT_EQ(Cell(dialog, 1, 1 + state - IDC_LAYER_ON), "-");
            user.Key(VK_ESCAPE);
        });
        EXPECT_EQ(ViewPixels(), seen);
        EXPECT_NE(WindowText(frame->m_hWnd)[0], '*');
        EXPECT_EQ(SelectAll(), 4);
        user.Key(VK_ESCAPE);
    }
}

TEST_F(Layers, ClickOnAStateChangesOnlyItsRow) {
    InDialog([&](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, IDC_LAYER_LIST);
        RECT cell = {LVIR_BOUNDS, 1, 0, 0}; // the same column in the second row
        ::SendMessageA(list, LVM_GETSUBITEMRECT, 1, reinterpret_cast<LPARAM>(&cell));
        const CPoint middle = CRect(cell).CenterPoint();
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP}) // the list handles both in its own loop
            ::PostMessageA(list, message, 0, MAKELPARAM(middle.x, middle.y));
        user.Wait(0);
        EXPECT_EQ(Row(dialog, 1), "A & B - - - 1");
        EXPECT_EQ(Row(dialog, 0), "0 yes - - 3");
        user.Click(::GetDlgItem(dialog, IDOK));
    });
    EXPECT_EQ(SelectAll(), 3);
}

} // namespace
