// Queries accessibility objects.

#include "support/accessible.h"

#include <stdexcept>

#include "orlo/win/encoded_text.h"

namespace {

// The import library's definition of the interface identifier is wrong.
constexpr IID kAccessible = {0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

VARIANT Child(int number) {
    VARIANT child = {};
    child.vt = VT_I4;
    child.lVal = number;
    return child;
}

} // namespace

Accessible::Accessible(HWND window) {
    const LRESULT own = ::SendMessageA(window, WM_GETOBJECT, 0, OBJID_CLIENT);
    void* found = nullptr;
    m_isOwn = own > 0 && SUCCEEDED(::ObjectFromLresult(own, kAccessible, 0, &found));
    if (!m_isOwn && FAILED(::CreateStdAccessibleObject(window, OBJID_CLIENT, kAccessible, &found)))
        throw std::runtime_error("the window has no accessible object");
    m_object.reset(static_cast<IAccessible*>(found));
}

int Accessible::Count() const {
    long count = 0;
    m_object->get_accChildCount(&count);
    return static_cast<int>(count);
}

std::string Accessible::Text(GetText get, int child) const {
    BSTR text = nullptr;
    const HRESULT result = (m_object.get()->*get)(Child(child), &text);
    const std::string narrow = result == S_OK && text ? orlo::Narrow(text, CP_ACP) : "";
    ::SysFreeString(text);
    return narrow;
}

long Accessible::Number(GetNumber get, int child) const {
    VARIANT number = {};
    return (m_object.get()->*get)(Child(child), &number) == S_OK && number.vt == VT_I4 ? number.lVal : 0;
}

std::string Accessible::Name(int child) const {
    return Text(&IAccessible::get_accName, child);
}
std::string Accessible::Value(int child) const {
    return Text(&IAccessible::get_accValue, child);
}
std::string Accessible::DefaultAction(int child) const {
    return Text(&IAccessible::get_accDefaultAction, child);
}
long Accessible::Role(int child) const {
    return Number(&IAccessible::get_accRole, child);
}
long Accessible::State(int child) const {
    return Number(&IAccessible::get_accState, child);
}
int Accessible::Navigate(long direction, int from) const {
    VARIANT to = {};
    return m_object->accNavigate(direction, Child(from), &to) == S_OK && to.vt == VT_I4 ? to.lVal : CHILDID_SELF;
}
int Accessible::HitTest(POINT point) const {
    VARIANT child = {};
    return m_object->accHitTest(point.x, point.y, &child) == S_OK && child.vt == VT_I4 ? child.lVal : CHILDID_SELF;
}
int Accessible::Focus() const {
    VARIANT child = {};
    return m_object->get_accFocus(&child) == S_OK && child.vt == VT_I4 ? child.lVal : CHILDID_SELF;
}
RECT Accessible::Location(int child) const {
    long left = 0, top = 0, width = 0, height = 0;
    m_object->accLocation(&left, &top, &width, &height, Child(child));
    return {left, top, left + width, top + height};
}
void Accessible::Select(int child) const {
    m_object->accSelect(SELFLAG_TAKESELECTION, Child(child));
}
void Accessible::DoDefaultAction(int child) const {
    m_object->accDoDefaultAction(Child(child));
}
