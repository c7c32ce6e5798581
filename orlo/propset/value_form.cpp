// The table of types and their stored forms.

#include "orlo/propset/value_form.h"

#include <array>

namespace orlo {

namespace {

constexpr uint32_t kLastType = 75;

constexpr TypeForm Fixed(const char* name, uint8_t size) {
    return {name, Form::fixed, size, false, true};
}
constexpr TypeForm Text(const char* name) {
    return {name, Form::bytes, 0, true, true};
}
constexpr TypeForm Counted(const char* name) {
    return {name, Form::bytes, 0, false, true};
}
constexpr TypeForm ImageOnly(const char* name, uint8_t size) {
    return {name, Form::fixed, size, false, false};
}

constexpr std::array<TypeForm, kLastType + 1> MakeForms() {
    std::array<TypeForm, kLastType + 1> forms{};
    forms[VT_EMPTY] = Fixed("VT_EMPTY", 0);
    forms[VT_I2] = Fixed("VT_I2", 2);
    forms[VT_I4] = Fixed("VT_I4", 4);
    forms[VT_R4] = Fixed("VT_R4", 4);
    forms[VT_R8] = Fixed("VT_R8", 8);
    forms[VT_CY] = Fixed("VT_CY", 8);
    forms[VT_DATE] = Fixed("VT_DATE", 8);
    forms[VT_BOOL] = Fixed("VT_BOOL", 4); // two bytes and padding
    forms[VT_UI2] = Fixed("VT_UI2", 2);
    forms[VT_UI4] = Fixed("VT_UI4", 4);
    forms[VT_I8] = Fixed("VT_I8", 8);
    forms[VT_FILETIME] = Fixed("VT_FILETIME", 8);
    forms[VT_CLSID] = Fixed("VT_CLSID", 16);
    forms[VT_BSTR] = Text("VT_BSTR");
    forms[VT_LPSTR] = Text("VT_LPSTR");
    forms[VT_LPWSTR] = {"VT_LPWSTR", Form::chars, 0, true, true};
    forms[VT_STREAM] = Text("VT_STREAM");
    forms[VT_STORAGE] = Text("VT_STORAGE");
    forms[VT_STREAMED_OBJECT] = Text("VT_STREAMED_OBJECT");
    forms[VT_STORED_OBJECT] = Text("VT_STORED_OBJECT");
    forms[VT_BLOB] = Counted("VT_BLOB");
    forms[VT_BLOB_OBJECT] = Counted("VT_BLOB_OBJECT");
    forms[VT_CF] = Counted("VT_CF");
    forms[VT_VERSIONED_STREAM] = Counted("VT_VERSIONED_STREAM");
    forms[74] = Counted("type 0x004A");
    forms[75] = Counted("type 0x004B");

    forms[VT_NULL] = ImageOnly("VT_NULL", 0);
    forms[VT_I1] = ImageOnly("VT_I1", 1);
    forms[VT_UI1] = ImageOnly("VT_UI1", 1);
    forms[VT_INT] = ImageOnly("VT_INT", 4);
    forms[VT_UINT] = ImageOnly("VT_UINT", 4);
    forms[VT_ERROR] = ImageOnly("VT_ERROR", 4);
    forms[VT_UI8] = ImageOnly("VT_UI8", 8);
    forms[VT_DECIMAL] = ImageOnly("VT_DECIMAL", 16);
    return forms;
}

constexpr std::array<TypeForm, kLastType + 1> kForms = MakeForms();
constexpr TypeForm kNone{};

} // namespace

const TypeForm& FormOf(uint32_t type) {
    return type <= kLastType ? kForms[type] : kNone;
}

uint64_t CountedSize(Form form, uint32_t count) {
    return 4 + uint64_t{count} * (form == Form::chars ? 2 : 1);
}

} // namespace orlo
