// Three-state check boxes, and radio groups.

#include "exchange_dialog.h"

#include "orlo/exchange/ddx_button.h"

namespace {

class ButtonExchange : public ExchangeDialog {
protected:
    LRESULT State(int id) { return Send(id, BM_GETCHECK); }
    void SetState(int id, WPARAM state) { Send(id, BM_SETCHECK, state); }
    std::string Radios() {
        std::string states;
        for (const int id : {IDC_RADIO_FIRST, IDC_RADIO_SECOND, IDC_RADIO_THIRD, IDC_BEHIND_RADIOS})
            states += State(id) ? 'X' : '.';
        return states;
    }
};

TEST_F(ButtonExchange, ExchangesStatesInBothDirections) {
    for (int state = 0; state <= 2; ++state) {
        int value = state;
        EXPECT_EQ(DDX_Check(1, &m_load, IDC_THREE_STATE, value), 1);
        EXPECT_EQ(state, State(IDC_THREE_STATE));
        value = 77;
        EXPECT_EQ(DDX_Check(1, &m_save, IDC_THREE_STATE, value), 1);
        EXPECT_EQ(state, value);
        const auto word = static_cast<unsigned short>(state == BST_INDETERMINATE ? 0xFFFF : state);
        unsigned short shown = word;
        SetState(IDC_THREE_STATE, BST_UNCHECKED);
        DDX_Check(1, &m_load, IDC_THREE_STATE, shown);
        EXPECT_EQ(state, State(IDC_THREE_STATE));
        shown = 77;
        DDX_Check(1, &m_save, IDC_THREE_STATE, shown);
        EXPECT_EQ(word, shown) << "the third state is the word's marker";
    }
}

TEST_F(ButtonExchange, InvalidStateIsSetToOff) {
    for (const int wrong : {3, -1, 0xFFFF}) {
        SetState(IDC_THREE_STATE, BST_CHECKED);
        int value = wrong;
        DDX_Check(1, &m_load, IDC_THREE_STATE, value);
        EXPECT_EQ(value, 0);
        EXPECT_EQ(State(IDC_THREE_STATE), BST_UNCHECKED);
    }
    unsigned short two = 2;
    DDX_Check(1, &m_load, IDC_THREE_STATE, two);
    EXPECT_EQ(two, 0);
}

struct RadioRow {
    int value;
    unsigned short word;
    const char* states;
};

TEST_F(ButtonExchange, RadioGroupEndsAtTheNextAndSkipsOtherControls) {
    const RadioRow rows[] = {{0, 0, "X..X"}, {1, 1, ".X.X"}, {2, 2, "..XX"}, {-1, 0xFFFF, "...X"}};
    SetState(IDC_BEHIND_RADIOS, BST_CHECKED);
    for (const RadioRow& row : rows) {
        int value = row.value;
        EXPECT_EQ(DDX_Radio(1, &m_load, IDC_RADIO_FIRST, value), 1);
        EXPECT_EQ(row.states, Radios());
        value = 77;
        EXPECT_EQ(DDX_Radio(1, &m_save, IDC_RADIO_FIRST, value), 1);
        EXPECT_EQ(row.value, value);

        unsigned short word = row.word;
        DDX_Radio(1, &m_load, IDC_RADIO_FIRST, word);
        EXPECT_EQ(row.states, Radios());
        word = 77;
        DDX_Radio(1, &m_save, IDC_RADIO_FIRST, word);
        EXPECT_EQ(row.word, word);
    }
    SetState(IDC_RADIO_FIRST, BST_CHECKED);
    SetState(IDC_RADIO_SECOND, BST_CHECKED);
    int value = -1;
    DDX_Radio(1, &m_save, IDC_RADIO_FIRST, value);
    EXPECT_EQ(value, 1) << "the last of several is used";
}

} // namespace
