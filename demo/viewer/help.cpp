// Finds the guide and the browser.

#include "demo/viewer/help.h"

#include <afxdlgs.h>

#include <shlwapi.h>

#include "demo/viewer/file_name.h"
#include "demo/viewer/sheet_around.h"
#include "orlo/frame/orlo_property_page.h"
#include "orlo/resources/resource.h"

namespace {

constexpr const wchar_t* kGuide = L"help\\user-guide.html"; // in the folder of the program
constexpr const char* kViewer = "the-viewer";

// The headings of the guide.
struct Topic {
    unsigned int pageTemplate;
    const char* anchor;
};
constexpr Topic kTopics[] = {{IDD_GENERAL_PAGE, "general"},
                             {IDD_PEN_PAGE, "pen"},
                             {IDD_BRUSH_PAGE, "brush"},
                             {IDD_TEXT_PAGE, "text"},
                             {IDD_INSERT_PAGE, "block-insertion"}};

std::wstring GuidePath() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))) == path.size())
        path.resize(2 * path.size());
    path.resize(length);
    return path.substr(0, path.find_last_of(L'\\') + 1) + kGuide;
}

std::wstring UrlOf(const std::wstring& path, const std::string& topic) {
    constexpr DWORD kLongest = 2084; // the system's limit
    wchar_t url[kLongest] = L"";
    DWORD size = kLongest;
    if (FAILED(::UrlCreateFromPathW(path.c_str(), url, &size, 0))) return path;
    return url + (L"#" + Wide(topic));
}

// Finds the browser program, because the system does not pass an anchor when it opens a document.
std::wstring Browser() {
    wchar_t program[MAX_PATH] = L"";
    DWORD size = MAX_PATH;
    const HRESULT result = ::AssocQueryStringW(ASSOCF_NONE, ASSOCSTR_EXECUTABLE, L".html", L"open", program, &size);
    return SUCCEEDED(result) ? program : L"";
}

bool Start(HWND owner, const std::wstring& file, const wchar_t* parameters) {
    constexpr INT_PTR kLastError = 32;
    const HINSTANCE result = ::ShellExecuteW(owner, nullptr, file.c_str(), parameters, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(result) > kLastError;
}

} // namespace

std::string HelpTopicOf(HWND window) {
    const COrloPropertySheet* sheet = SheetAround(window);
    CPropertyPage* page = sheet ? sheet->GetActivePage() : nullptr;
    for (const Topic& topic : kTopics)
        if (page && sheet->FindPage(topic.pageTemplate) == page) return topic.anchor;
    return kViewer;
}

bool ShowHelp(HWND owner, const std::string& topic) {
    const std::wstring path = GuidePath();
    std::string fault = "does not exist.";
    if (::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES) {
        const std::wstring browser = Browser(), url = UrlOf(path, topic);
        if (!browser.empty() && Start(owner, browser, (L'"' + url + L'"').c_str())) return true;
        if (Start(owner, path, nullptr)) return true;
        fault = "cannot be shown: no browser was found.";
    }
    const std::string text = "The user guide, " + SystemText(Utf8(path.c_str())) + ", " + fault;
    ::MessageBoxA(owner, text.c_str(), AfxGetAppName(), MB_OK | MB_ICONEXCLAMATION);
    return false;
}
