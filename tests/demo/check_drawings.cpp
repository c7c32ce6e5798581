// Edits drawings on all pages of the sheet and undoes the edits: check_drawings FILE...

#include "demo/round_trip.h"
#include "demo/viewer/file_name.h"
#include "demo/viewer/main_frame.h"
#include "demo/viewer/settings.h"
#include "orlo/entry/entry.h"

int wmain(int count, wchar_t** words) {
    CWinApp application("check");
    ::PropPageInit();
    Settings::UseKey(L"Software\\Orlo\\Demo Tests");
    Settings::DeleteAll();
    auto* frame = new CMainFrame; // deleted with its window
    if (!frame->Create()) return 1;
    AfxGetThread()->m_pMainWnd = frame;
    frame->ShowWindow(SW_SHOW);
    std::vector<std::string> drawings;
    for (int i = 1; i < count; ++i)
        drawings.push_back(Utf8(words[i]));
    const bool passed = RoundTrip(*frame).Check(drawings);
    frame->DestroyWindow();
    return !passed;
}
