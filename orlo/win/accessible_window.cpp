// The accessibility object of a window: the system's own, with some of its results replaced.

#include "orlo/win/accessible_window.h"

#include <oleacc.h>

#include <algorithm>
#include <climits>

#include "orlo/win/com_owner.h"
#include "orlo/win/encoded_text.h"

namespace {

// The import library's definition of the interface identifier is wrong.
constexpr IID kAccessible = {0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

constexpr long kTextOfCombo = 1; // the system's child number of that part of a combo box

std::string WindowText(HWND window) {
    std::string text(static_cast<size_t>(::GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<size_t>(::GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::string WithoutMnemonic(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '&'), text.end());
    return text;
}

bool IsLabel(HWND window) {
    return (::SendMessageA(window, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0;
}

bool IsGroupBox(HWND window) {
    return IsLabel(window) && (::GetWindowLongA(window, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

// Returns the smallest group box whose rectangle contains the center of the control.
HWND GroupAround(HWND control) {
    RECT rect;
    ::GetWindowRect(control, &rect);
    const POINT middle = {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    HWND smallest = nullptr;
    LONG area = LONG_MAX;
    for (HWND other = ::GetWindow(control, GW_HWNDFIRST); other; other = ::GetWindow(other, GW_HWNDNEXT)) {
        if (other == control || !IsGroupBox(other)) continue;
        ::GetWindowRect(other, &rect);
        const LONG size = (rect.right - rect.left) * (rect.bottom - rect.top);
        if (!::PtInRect(&rect, middle) || size >= area) continue;
        smallest = other;
        area = size;
    }
    return smallest;
}

HRESULT ToBstr(const std::string& text, BSTR* result) {
    *result = ::SysAllocString(orlo::Widen(text, CP_ACP).c_str());
    return *result ? S_OK : E_OUTOFMEMORY;
}

// COM interfaces have no virtual destructor; an object deletes itself.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

class AccessibleWindow final : public IAccessible {
public:
    AccessibleWindow(HWND window, const AccessibleKind& kind, orlo::Owned<IAccessible> system)
        : window_(window), kind_(kind), system_(std::move(system)) {}

    // ---- IUnknown and IDispatch

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (iid != kAccessible && iid != IID_IDispatch && iid != IID_IUnknown)
            return system_->QueryInterface(iid, object);
        *object = static_cast<IAccessible*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(::InterlockedIncrement(&references_)); }
    STDMETHODIMP_(ULONG) Release() override {
        const LONG left = ::InterlockedDecrement(&references_);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return system_->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return system_->GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override {
        return system_->GetIDsOfNames(iid, names, count, locale, ids);
    }
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* argument) override {
        ITypeInfo* found = nullptr;
        const HRESULT status = system_->GetTypeInfo(0, locale, &found);
        if (FAILED(status)) return status;
        const orlo::Owned<ITypeInfo> info(found);
        return iid == IID_NULL ? ::DispInvoke(this, found, id, flags, parameters, result, exception, argument)
                               : DISP_E_UNKNOWNINTERFACE;
    }

    // ---- IAccessible

    STDMETHODIMP get_accParent(IDispatch** parent) override { return system_->get_accParent(parent); }
    STDMETHODIMP get_accChildCount(long* count) override {
        const std::optional<int> items = kind_.ItemCount(window_);
        if (!items) return system_->get_accChildCount(count);
        *count = *items;
        return S_OK;
    }
    // Items are child elements without their own objects.
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override {
        if (!HasItems()) return system_->get_accChild(child, object);
        *object = nullptr;
        return IsItem(child) ? S_FALSE : E_INVALIDARG;
    }
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        *name = nullptr;
        if (IsSelf(child)) return ReturnText(kind_.Name(window_), name);
        if (IsItem(child)) return ToBstr(kind_.ItemName(window_, IndexOf(child)), name);
        return HasItems() ? E_INVALIDARG : system_->get_accName(child, name);
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
        *value = nullptr;
        const bool isText = !HasItems() && child.vt == VT_I4 && child.lVal == kTextOfCombo;
        if (IsSelf(child) || isText) {
            if (const auto own = kind_.Value(window_)) return ToBstr(*own, value);
        }
        return IsItem(child) ? S_FALSE : system_->get_accValue(child, value);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) override {
        *text = nullptr;
        return IsItem(child) ? S_FALSE : system_->get_accDescription(child, text);
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
        if (!IsSelf(child) && !IsItem(child)) return system_->get_accRole(child, role);
        role->vt = VT_I4;
        role->lVal = IsSelf(child) ? kind_.Role() : kind_.ItemRole();
        return S_OK;
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
        if (!IsItem(child)) return system_->get_accState(child, state);
        state->vt = VT_I4;
        state->lVal = kind_.ItemState(window_, IndexOf(child));
        return S_OK;
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override {
        *help = nullptr;
        return IsItem(child) ? S_FALSE : system_->get_accHelp(child, help);
    }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override {
        *file = nullptr;
        return IsItem(child) ? S_FALSE : system_->get_accHelpTopic(file, child, topic);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* key) override {
        *key = nullptr;
        return IsItem(child) ? S_FALSE : system_->get_accKeyboardShortcut(child, key);
    }
    STDMETHODIMP get_accFocus(VARIANT* child) override {
        if (!HasItems() || ::GetFocus() != window_) return system_->get_accFocus(child);
        return ReturnItem(kind_.SelectedItem(window_), child);
    }
    STDMETHODIMP get_accSelection(VARIANT* children) override {
        return HasItems() ? ReturnItem(kind_.SelectedItem(window_), children) : system_->get_accSelection(children);
    }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
        *action = nullptr;
        return IsItem(child) ? ReturnText(kind_.ItemAction(window_, IndexOf(child)), action)
                             : system_->get_accDefaultAction(child, action);
    }
    STDMETHODIMP accSelect(long flags, VARIANT child) override {
        if (!IsItem(child)) return system_->accSelect(flags, child);
        if (flags & SELFLAG_TAKEFOCUS) ::SetFocus(window_);
        if (flags & (SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) kind_.SelectItem(window_, IndexOf(child));
        return S_OK;
    }
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) override {
        if (!IsItem(child)) return system_->accLocation(left, top, width, height, child);
        RECT rect = kind_.ItemRect(window_, IndexOf(child));
        ::MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&rect), 2);
        *left = rect.left;
        *top = rect.top;
        *width = rect.right - rect.left;
        *height = rect.bottom - rect.top;
        return S_OK;
    }
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) override {
        if (!HasItems()) return system_->accNavigate(direction, start, end);
        const int count = *kind_.ItemCount(window_);
        if (IsSelf(start) && direction == NAVDIR_FIRSTCHILD) return ReturnItem(count > 0 ? 0 : -1, end);
        if (IsSelf(start) && direction == NAVDIR_LASTCHILD) return ReturnItem(count - 1, end);
        if (!IsItem(start)) return system_->accNavigate(direction, start, end);
        const bool next = direction == NAVDIR_NEXT || direction == NAVDIR_DOWN;
        const bool previous = direction == NAVDIR_PREVIOUS || direction == NAVDIR_UP;
        const int index = IndexOf(start) + (next ? 1 : previous ? -1 : count);
        return ReturnItem(index < count ? index : -1, end);
    }
    STDMETHODIMP accHitTest(long left, long top, VARIANT* child) override {
        const int count = kind_.ItemCount(window_).value_or(0);
        POINT point = {left, top};
        ::ScreenToClient(window_, &point);
        RECT client;
        ::GetClientRect(window_, &client);
        for (int i = 0; ::PtInRect(&client, point) && i < count; ++i) {
            const RECT item = kind_.ItemRect(window_, i);
            if (::PtInRect(&item, point)) return ReturnItem(i, child);
        }
        return system_->accHitTest(left, top, child);
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) override {
        if (!IsItem(child)) return system_->accDoDefaultAction(child);
        kind_.DoItemAction(window_, IndexOf(child));
        return S_OK;
    }
    STDMETHODIMP put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

private:
    ~AccessibleWindow() = default;

    static bool IsSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }
    static int IndexOf(const VARIANT& child) { return static_cast<int>(child.lVal) - 1; }
    bool HasItems() const { return kind_.ItemCount(window_).has_value(); }
    bool IsItem(const VARIANT& child) const {
        return child.vt == VT_I4 && child.lVal > 0 && child.lVal <= kind_.ItemCount(window_).value_or(0);
    }
    static HRESULT ReturnText(const std::string& text, BSTR* result) {
        return text.empty() ? S_FALSE : ToBstr(text, result);
    }
    static HRESULT ReturnItem(int index, VARIANT* child) {
        child->vt = index >= 0 ? VT_I4 : VT_EMPTY;
        child->lVal = index + 1;
        return index >= 0 ? S_OK : S_FALSE;
    }

    LONG references_ = 1;
    HWND window_;
    const AccessibleKind& kind_;
    orlo::Owned<IAccessible> system_;
};

#pragma GCC diagnostic pop

} // namespace

std::string LabelOf(HWND control) {
    HWND before = ::GetWindow(control, GW_HWNDPREV);
    while (before && !::IsWindowVisible(before))
        before = ::GetWindow(before, GW_HWNDPREV);
    if (before && IsLabel(before)) {
        const std::string label = WithoutMnemonic(WindowText(before));
        if (!label.empty()) return label;
    }
    const HWND group = GroupAround(control);
    return group ? WithoutMnemonic(WindowText(group)) : "";
}

void NotifyValueChange(HWND window) {
    ::NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, window, OBJID_CLIENT, CHILDID_SELF);
}

LRESULT HandleGetObject(HWND window, WPARAM wParam, LPARAM lParam, const AccessibleKind& kind) {
    if (static_cast<DWORD>(lParam) != static_cast<DWORD>(OBJID_CLIENT)) return 0;
    void* found = nullptr;
    if (FAILED(::CreateStdAccessibleObject(window, OBJID_CLIENT, kAccessible, &found))) return 0;
    orlo::Owned<IAccessible> system(static_cast<IAccessible*>(found));
    const orlo::Owned<IAccessible> object(new AccessibleWindow(window, kind, std::move(system)));
    return ::LresultFromObject(kAccessible, wParam, object.get());
}

std::string AccessibleKind::Name(HWND window) const {
    return LabelOf(window);
}

std::optional<std::string> AccessibleKind::Value(HWND) const {
    return std::nullopt;
}

std::optional<int> AccessibleKind::ItemCount(HWND) const {
    return std::nullopt;
}

long AccessibleKind::ItemRole() const {
    return ROLE_SYSTEM_LISTITEM;
}

std::string AccessibleKind::ItemName(HWND, int) const {
    return "";
}

long AccessibleKind::ItemState(HWND, int) const {
    return 0;
}

RECT AccessibleKind::ItemRect(HWND, int) const {
    return {};
}

std::string AccessibleKind::ItemAction(HWND, int) const {
    return "";
}

void AccessibleKind::DoItemAction(HWND window, int index) const {
    SelectItem(window, index);
}

void AccessibleKind::SelectItem(HWND, int) const {}

int AccessibleKind::SelectedItem(HWND) const {
    return -1;
}

long AccessibleListBox::Role() const {
    return ROLE_SYSTEM_LIST;
}

std::optional<int> AccessibleListBox::ItemCount(HWND window) const {
    return std::max(static_cast<int>(::SendMessageA(window, LB_GETCOUNT, 0, 0)), 0);
}

long AccessibleListBox::ItemState(HWND window, int index) const {
    long state = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
    if (index == SelectedItem(window)) state |= STATE_SYSTEM_SELECTED;
    if (::GetFocus() == window && index == ::SendMessageA(window, LB_GETCARETINDEX, 0, 0))
        state |= STATE_SYSTEM_FOCUSED;
    RECT client;
    ::GetClientRect(window, &client);
    const RECT item = ItemRect(window, index);
    RECT visible;
    if (!::IntersectRect(&visible, &client, &item)) state |= STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE;
    return ::IsWindowEnabled(window) ? state : state | STATE_SYSTEM_UNAVAILABLE;
}

RECT AccessibleListBox::ItemRect(HWND window, int index) const {
    RECT rect = {};
    ::SendMessageA(window, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
    return rect;
}

// A list box notifies its parent only if the user selects an item.
void AccessibleListBox::SelectItem(HWND window, int index) const {
    ::SendMessageA(window, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    ::SendMessageA(::GetParent(window), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(window), LBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(window));
}

int AccessibleListBox::SelectedItem(HWND window) const {
    return static_cast<int>(::SendMessageA(window, LB_GETCURSEL, 0, 0));
}
