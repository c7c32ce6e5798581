// Settings stored as values of a registry key.

#include "demo/viewer/settings.h"

#include <windows.h>

namespace {

std::wstring& CurrentKey() {
    static std::wstring key = L"Software\\Orlo\\Demo";
    return key;
}

} // namespace

void Settings::UseKey(const std::wstring& key) {
    CurrentKey() = key;
}

const std::wstring& Settings::Key() {
    return CurrentKey();
}

void Settings::DeleteAll() {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, Key().c_str());
}

std::optional<int> Settings::Number(const wchar_t* name) {
    DWORD value = 0, size = sizeof value;
    if (::RegGetValueW(HKEY_CURRENT_USER, Key().c_str(), name, RRF_RT_REG_DWORD, nullptr, &value, &size))
        return std::nullopt;
    return static_cast<int>(value);
}

void Settings::SetNumber(const wchar_t* name, int value) {
    ::RegSetKeyValueW(HKEY_CURRENT_USER, Key().c_str(), name, REG_DWORD, &value, sizeof value);
}
