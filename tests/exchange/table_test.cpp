// Entries of host tables as items: filling plain controls, and exchanging identifiers with a selection.

#include "exchange_dialog.h"

#include "orlo/binding/indeterminate.h"
#include "orlo/controls/combo_control.h"
#include "orlo/exchange/ddx_table.h"
#include "support/test_drawing.h"

namespace {

class TableExchange : public ExchangeDialog {
protected:
    TableExchange() : m_table(DrawingAddTable(m_drawing.Get(), "_Test_")) {}

    uint16_t Add(const char* name, const char* data = nullptr) {
        return TableEntryAdd(m_table, name, const_cast<char*>(data));
    }
    std::string Items(int id) {
        const bool list = id == IDC_LIST;
        std::string items;
        for (int i = 0; i < Send(id, list ? LB_GETCOUNT : CB_GETCOUNT); ++i) {
            char text[256] = "";
            Send(id, list ? LB_GETTEXT : CB_GETLBTEXT, static_cast<WPARAM>(i), text);
            items += std::string(text) + ";";
        }
        return items;
    }

    TestDrawing m_drawing;
    TableStruct* m_table;
};

TEST_F(TableExchange, PlainControlsAreFilledFromATable) {
    CComboBox combo;
    combo.Attach(Control(IDC_COMBO));
    EXPECT_EQ(FillComboTable(&combo, m_table, 0), 0);
    Add("Zinc", "first");
    Add("Amber");
    EXPECT_EQ(FillComboTable(&combo, m_table, 0), 2);
    EXPECT_EQ(FillComboTable(&combo, m_table, 1), 1) << "an entry without data is skipped";
    EXPECT_EQ(Items(IDC_COMBO), "Zinc;Amber;first;") << "in the table's order, after the existing items";
    combo.Detach();

    CListBox list;
    list.Attach(Control(IDC_LIST));
    EXPECT_EQ(FillListBoxTable(&list, m_table, 0), 0);
    EXPECT_EQ(FillListBoxTable(&list, m_table, 1), 2);
    EXPECT_EQ(FillListBoxTable(&list, m_table, 2), 1);
    EXPECT_EQ(FillListBoxTable(&list, m_table, 3), 2);
    EXPECT_EQ(Items(IDC_LIST), "Zinc;Amber;first;Zinc\tfirst;Amber;");
    Add(std::string(200, 'n').c_str());
    list.ResetContent();
    FillListBoxTable(&list, m_table, 1);
    EXPECT_GE(64u + 11, Items(IDC_LIST).size()) << "a name that is too long is truncated";
    list.Detach();
}

TEST_F(TableExchange, LinesOfAStringAreItems) {
    CComboBox combo;
    combo.Attach(Control(IDC_COMBO));
    EXPECT_EQ(FillComboStringTable(&combo, IDS_LINES, 0), 0);
    EXPECT_EQ(FillComboStringTable(&combo, IDS_LINES, -1), 0);
    EXPECT_EQ(FillComboStringTable(&combo, IDS_LINES, 1), 1);
    EXPECT_EQ(FillComboStringTable(&combo, IDS_LINES, 99), 3) << "the empty line does not become an item";
    EXPECT_EQ(Items(IDC_COMBO), "One;One;Two;Four;");
    combo.Detach();
}

// ---- Identifiers

TEST_F(TableExchange, ListKeysAreFoundIgnoringCase) {
    Send(IDC_LIST, LB_ADDSTRING, 0, "0000ABCD\tBlue");
    Send(IDC_LIST, LB_ADDSTRING, 0, "0000ABCE\tGreen");
    unsigned int value = 0xABCE;
    EXPECT_EQ(DDX_LBTableIndex(1, &m_load, IDC_LIST, value), 1);
    EXPECT_EQ(Send(IDC_LIST, LB_GETCURSEL), 1);
    value = 0xABCD;
    DDX_LBTableIndex(1, &m_load, IDC_LIST, value);
    EXPECT_EQ(Send(IDC_LIST, LB_GETCURSEL), 0);
    value = 0;
    DDX_LBTableIndex(1, &m_save, IDC_LIST, value);
    EXPECT_EQ(value, 0xABCDu);
    value = 0xABC;
    DDX_LBTableIndex(1, &m_load, IDC_LIST, value);
    EXPECT_EQ(Send(IDC_LIST, LB_GETCURSEL), 0) << "an unknown identifier keeps the selection";
}

// The search starts after the first item and reaches it last.
TEST_F(TableExchange, FirstOfEqualListKeysIsFoundLast) {
    for (const char* item : {"0000ABCD\tBlue", "0000ABCD\tAzure", "0000ABCD\tNavy"})
        Send(IDC_LIST, LB_ADDSTRING, 0, item);
    unsigned int value = 0xABCD;
    EXPECT_EQ(DDX_LBTableIndex(1, &m_load, IDC_LIST, value), 1);
    EXPECT_EQ(Send(IDC_LIST, LB_GETCURSEL), 1);
}

TEST_F(TableExchange, WithoutASelectionTheVariableIsUnchanged) {
    unsigned int value = kIndeterminateId;
    unsigned long color = kIndeterminateId;
    EXPECT_EQ(DDX_LBTableIndex(1, &m_save, IDC_LIST, value), 1);
    EXPECT_EQ(DDX_CBTableIndex(1, &m_save, IDC_COMBO, value), 1);
    EXPECT_EQ(DDX_CBTableColor(1, &m_save, IDC_DROP_LIST, color), 1);
    EXPECT_EQ(value, kIndeterminateId);
    EXPECT_EQ(color, kIndeterminateId);
}

TEST_F(TableExchange, ExchangesComboKeysInBothDirections) {
    Send(IDC_COMBO, CB_ADDSTRING, 0, "0000001F\tA name that is longer than eight characters");
    Send(IDC_COMBO, CB_ADDSTRING, 0, "00000020\tB");
    for (const unsigned int id : {0x20u, 0x1Fu}) {
        unsigned int value = id;
        DDX_CBTableIndex(1, &m_load, IDC_COMBO, value);
        value = 0;
        DDX_CBTableIndex(1, &m_save, IDC_COMBO, value);
        EXPECT_EQ(id, value);
    }
    unsigned int unknown = 0x21;
    DDX_CBTableIndex(1, &m_load, IDC_COMBO, unknown);
    EXPECT_EQ(Text(IDC_COMBO), "00000021\t") << "the combo box shows the key";
}

TEST_F(TableExchange, ColorsAre32BitKeys) {
    for (const char* item : {"000000FF\tRed", "FFFFFFFD\tBy layer", "000000FF\tRed again", "FFFFFFFB\tLast"})
        Send(IDC_DROP_LIST, CB_ADDSTRING, 0, item);
    const struct {
        unsigned long color;
        int index;
    } rows[] = {{kColorByLayer, 1}, {0xFF, 2}, {kColorOfPen, 3}, {kColorIndeterminate, -1}, {0x00123456, -1}};
    for (const auto& row : rows) {
        unsigned long value = row.color;
        EXPECT_EQ(DDX_CBTableColor(1, &m_load, IDC_DROP_LIST, value), 1);
        EXPECT_EQ(row.index, Send(IDC_DROP_LIST, CB_GETCURSEL)) << std::hex << row.color;
        value = 0x77;
        DDX_CBTableColor(1, &m_save, IDC_DROP_LIST, value);
        EXPECT_EQ(row.index < 0 ? 0x77 : row.color, value);
    }
    SetText(IDC_COMBO, "no key");
    unsigned long color = 5;
    DDX_CBTableColor(1, &m_save, IDC_COMBO, color);
    EXPECT_EQ(color, 0u);
}

TEST_F(TableExchange, NamesAreLookedUpInTheControlsTable) {
    const uint16_t first = Add("Walls"), second = Add("Doors");
    unsigned int value = first;
    EXPECT_EQ(DDX_CBTableLookupIndex(0, &m_load, IDC_COMBO, value), 0) << "a plain combo";
    CComboControl control(kControlStyleNames);
    control.SubclassWindow(Control(IDC_COMBO));
    EXPECT_EQ(DDX_CBTableLookupIndex(0, &m_load, IDC_COMBO, value), 0) << "no table yet";
    EXPECT_TRUE(Fails([&] { DDX_CBTableLookupIndex(1, &m_save, IDC_COMBO, value); }));

    control.m_pTable = m_table;
    control.AddString("Walls");
    DDX_CBTableLookupIndex(1, &m_load, IDC_COMBO, value);
    EXPECT_EQ(control.GetCurSel(), 0);
    value = second;
    DDX_CBTableLookupIndex(1, &m_load, IDC_COMBO, value);
    EXPECT_EQ(Text(IDC_COMBO), "Doors") << "in the table but in no list";
    value = 0;
    DDX_CBTableLookupIndex(1, &m_save, IDC_COMBO, value);
    EXPECT_EQ(second, value);

    SetText(IDC_COMBO, "Windows");
    DDX_CBTableLookupIndex(1, &m_save, IDC_COMBO, value);
    EXPECT_EQ(value, 0u);
    for (const unsigned int none : {0u, 0xFFFFu, 0xFFFFFFFFu, 0x7777u}) {
        control.SetCurSel(0);
        value = none;
        EXPECT_EQ(DDX_CBTableLookupIndex(1, &m_load, IDC_COMBO, value), 1);
        EXPECT_EQ(control.GetCurSel(), -1) << none;
    }
    SetText(IDC_COMBO, "");
    value = kIndeterminateId;
    DDX_CBTableLookupIndex(1, &m_save, IDC_COMBO, value);
    EXPECT_EQ(value, kIndeterminateId) << "an indeterminate value survives";

    // After the host has closed the drawing, its table behaves like an empty one.
    m_drawing.Close();
    SetText(IDC_COMBO, "Walls");
    DDX_CBTableLookupIndex(1, &m_save, IDC_COMBO, value);
    EXPECT_EQ(value, 0u);
    control.UnsubclassWindow();
}

} // namespace
