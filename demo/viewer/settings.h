// What the viewer remembers from one session to the next, in the user's part of the registry. Where the registry
// refuses access, nothing is remembered.
#pragma once

#include <optional>
#include <string>

class Settings {
public:
    // The key under HKEY_CURRENT_USER that all settings of the process are in: "Software\\Orlo\\Demo" unless set.
    // Sessions that no user has, of a tour or of tests, have a key of their own.
    static void UseKey(const std::wstring& key);
    static const std::wstring& Key();
    // Deletes the key with all settings.
    static void DeleteAll();

    static std::optional<int> Number(const wchar_t* name);
    static void SetNumber(const wchar_t* name, int value);
};

constexpr const wchar_t* kSettingLightBackground = L"LightBackground"; // 0 or 1; missing: as the system's scheme
constexpr const wchar_t* kSettingLineWeights = L"LineWeights";         // 0 or 1
constexpr const wchar_t* kSettingDecimalMark = L"DecimalMark";         // a character; 0 or missing: the system's
constexpr const wchar_t* kSettingPage = L"Page";                       // template of the page chosen last
constexpr const wchar_t* kSettingPaneOpen = L"PaneOpen";               // 0 or 1
constexpr const wchar_t* kSettingPaneWidth = L"PaneWidth"; // pixels at 96 dots per inch; missing: as the sheet needs
constexpr const wchar_t* kSettingWindow[] = {L"WindowLeft", L"WindowTop", L"WindowRight", L"WindowBottom"};
constexpr const wchar_t* kSettingMaximized = L"WindowMaximized"; // 0 or 1
