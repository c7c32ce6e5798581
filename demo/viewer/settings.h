// Settings that the viewer keeps between sessions, stored for the user in the registry. If the registry denies access,
// nothing is stored.
#pragma once

#include <optional>
#include <string>

class Settings {
public:
    // Sets the key under HKEY_CURRENT_USER for all settings of the process, by default "Software\\Orlo\\Demo". The tour
    // and tests use their own keys.
    static void UseKey(const std::wstring& key);
    static const std::wstring& Key();
    // Deletes the key with all settings.
    static void DeleteAll();

    static std::optional<int> Number(const wchar_t* name);
    static void SetNumber(const wchar_t* name, int value);
};

constexpr const wchar_t* kSettingLightBackground = L"LightBackground"; // 0 or 1; if missing, according to the system's
                                                                       // color mode
constexpr const wchar_t* kSettingLineWeights = L"LineWeights";         // 0 or 1
constexpr const wchar_t* kSettingDecimalMark = L"DecimalMark";         // a character; 0 or missing: the system's
constexpr const wchar_t* kSettingPage = L"Page";                       // template of the last selected page
constexpr const wchar_t* kSettingPaneOpen = L"PaneOpen";               // 0 or 1
constexpr const wchar_t* kSettingPaneWidth = L"PaneWidth"; // in pixels at 96 dpi; if missing, the width of the sheet
constexpr const wchar_t* kSettingWindow[] = {L"WindowLeft", L"WindowTop", L"WindowRight", L"WindowBottom"};
constexpr const wchar_t* kSettingMaximized = L"WindowMaximized"; // 0 or 1
