// The items of a combo box or a list box.

#include "orlo/controls/control_items.h"

struct ControlItems::Messages {
    UINT count, getSelection, setSelection, reset, add, insert, findExact, selectPrefix, length, text, rowHeight,
        remove;
    LONG hasStrings; // style
};

const ControlItems::Messages ControlItems::kCombo = {
    CB_GETCOUNT,      CB_GETCURSEL,       CB_SETCURSEL,    CB_RESETCONTENT, CB_ADDSTRING,
    CB_INSERTSTRING,  CB_FINDSTRINGEXACT, CB_SELECTSTRING, CB_GETLBTEXTLEN, CB_GETLBTEXT,
    CB_SETITEMHEIGHT, CB_DELETESTRING,    CBS_HASSTRINGS};
const ControlItems::Messages ControlItems::kList = {LB_GETCOUNT,   LB_GETCURSEL,    LB_SETCURSEL,       LB_RESETCONTENT,
                                                    LB_ADDSTRING,  LB_INSERTSTRING, LB_FINDSTRINGEXACT, LB_SELECTSTRING,
                                                    LB_GETTEXTLEN, LB_GETTEXT,      LB_SETITEMHEIGHT,   LB_DELETESTRING,
                                                    LBS_HASSTRINGS};

ControlItems ControlItems::OfCombo(HWND window) {
    return {window, kCombo};
}
ControlItems ControlItems::OfList(HWND window) {
    return {window, kList};
}

int ControlItems::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return static_cast<int>(::SendMessageA(window_, message, wParam, lParam));
}

int ControlItems::SendText(UINT message, int index, const char* text) const {
    return Send(message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
}

int ControlItems::Count() const {
    return Send(messages_->count);
}
int ControlItems::Selected() const {
    return Send(messages_->getSelection);
}
void ControlItems::Select(int index) const {
    Send(messages_->setSelection, static_cast<WPARAM>(index));
}
void ControlItems::Clear() const {
    Send(messages_->reset);
}

int ControlItems::Add(const char* text) const {
    return SendText(messages_->add, 0, text);
}
int ControlItems::Insert(int index, const char* text) const {
    return SendText(messages_->insert, index, text);
}

int ControlItems::FindExact(const char* text) const {
    return SendText(messages_->findExact, -1, text);
}

bool ControlItems::SelectPrefix(int from, const char* prefix) const {
    return SendText(messages_->selectPrefix, from, prefix) >= 0;
}

bool ControlItems::IsChange(UINT message) const {
    return message == messages_->add || message == messages_->insert || message == messages_->remove ||
           message == messages_->reset;
}

bool ControlItems::IsAddition(UINT message) const {
    constexpr LONG kDrawn = CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE;
    static_assert(kDrawn == (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE));
    if (message != messages_->add && message != messages_->insert) return false;
    const LONG style = ::GetWindowLongA(window_, GWL_STYLE);
    return !(style & kDrawn) || (style & messages_->hasStrings);
}

bool ControlItems::IsReset(UINT message) const {
    return message == messages_->reset;
}

bool ControlItems::IsSelection(UINT message) const {
    return message == messages_->setSelection || message == messages_->selectPrefix;
}

void ControlItems::SetRowHeight(int index, int height) const {
    Send(messages_->rowHeight, static_cast<WPARAM>(index), height);
}

bool ControlItems::GetText(int index, CString& text) const {
    text.Empty();
    const int length = Send(messages_->length, static_cast<WPARAM>(index));
    if (length < 0) return false;
    char* const buffer = text.GetBuffer(length);
    buffer[0] = '\0';
    const int copied = Send(messages_->text, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer));
    text.ReleaseBuffer();
    return copied >= 0;
}

bool ControlItems::GetText(int index, char* buffer, int size) const {
    buffer[0] = '\0';
    const int length = Send(messages_->length, static_cast<WPARAM>(index));
    if (length < 0) return false;
    if (length < size) return Send(messages_->text, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer)) >= 0;
    CString text;
    if (!GetText(index, text)) return false;
    ::lstrcpynA(buffer, text, size);
    return true;
}
