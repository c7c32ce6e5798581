// The main window's file commands: opening, saving, and the prompt for unsaved changes.

#include "demo/viewer/main_frame.h"

#include <afxdlgs.h>

#include "demo/viewer/counted.h"
#include "demo/viewer/file_name.h"
#include "demo/viewer/long_operation.h"
#include "demo/viewer/named_buttons.h"
#include "demo/viewer/recent_files.h"
#include "demo/viewer/resource.h"
#include "demo/viewer/warnings_dialog.h"

namespace {

constexpr const char* kTitle = "Orlo Demo";
constexpr const char* kFilter = "Drawings (*.dxf)|*.dxf|All files (*.*)|*.*||";

class BusyMark {
public:
    explicit BusyMark(bool& mark) : m_mark(mark) { m_mark = true; }
    ~BusyMark() { m_mark = false; }
    BusyMark(const BusyMark&) = delete;
    BusyMark& operator=(const BusyMark&) = delete;

private:
    bool& m_mark;
};

std::vector<std::string> DroppedFiles(HDROP drop) {
    std::vector<std::string> files;
    const UINT count = ::DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::wstring path(::DragQueryFileW(drop, i, nullptr, 0) + 1, L'\0');
        ::DragQueryFileW(drop, i, path.data(), static_cast<UINT>(path.size()));
        files.push_back(Utf8(path.c_str()));
    }
    return files;
}

} // namespace

// ---- Opening

bool CMainFrame::Open(const std::string& path) {
    if (!CanCloseDocument()) return false;
    const std::string name = SystemText(WithoutFolder(path));
    try {
        std::unique_ptr<Document> opened;
        {
            const BusyMark busy(m_isBusy);
            LongOperation operation(*this, m_status, "Opening " + name);
            opened = Document::Open(path, [&](int permille) { return operation.Update(permille); });
        }
        Show(std::move(opened));
        RecentFiles::Add(path);
        return true;
    } catch (const Canceled&) {
        m_status.ShowMessage("Opening " + name + " was canceled");
    } catch (const OpenError& error) {
        AfxMessageBox(SystemText(error.what()).c_str());
    }
    return false;
}

void CMainFrame::Show(std::unique_ptr<Document> document) {
    m_pane.SetDocument(nullptr);
    m_view.SetDocument(document.get());
    m_document = std::move(document); // closes the previous one
    m_pane.SetDocument(m_document.get());
    ShowOpenedDocument();
    OnSelectionChanged();
    ShowTitle();
}

void CMainFrame::ShowOpenedDocument() {
    std::string text = Counted(static_cast<int>(m_document->Selectable().size()), "graphic");
    const std::vector<std::string>& warnings = m_document->Warnings();
    if (warnings.size() > 1) text += "; " + Counted(static_cast<int>(warnings.size()), "warning") + " (File, Warnings)";
    if (!warnings.empty()) text += "; " + warnings.front();
    m_status.ShowMessage(text);
}

void CMainFrame::OnFileWarnings() {
    if (CanDo(ID_FILE_WARNINGS)) CWarningsDialog(this, m_document->Warnings()).DoModal();
}

void CMainFrame::ShowTitle() {
    const char* mark = m_document->IsModified() ? "*" : "";
    SetWindowText((mark + SystemText(m_document->Name()) + " - " + kTitle).c_str());
}

void CMainFrame::OnFileOpen() {
    CFileDialog dialog(TRUE, "dxf", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, kFilter, this);
    if (dialog.DoModal() == IDOK) Open(Utf8FromSystem(dialog.GetPathName()));
}

// A window shows one drawing: the first file. The others are added to the recent files.
void CMainFrame::OnDropFiles(HDROP drop) {
    const std::vector<std::string> files = DroppedFiles(drop);
    ::DragFinish(drop);
    if (files.empty() || !IsWindowEnabled()) return;
    ::SetForegroundWindow(m_hWnd); // activate, because the program that the files came from was active
    for (size_t i = files.size(); i > 1; --i)
        RecentFiles::Add(files[i - 1]);
    if (Open(files.front()) && files.size() > 1)
        m_status.ShowMessage("1 of " + std::to_string(files.size()) +
                             " files opened; the others are in File, Recent Files");
}

void CMainFrame::OnRecentFile(UINT command) {
    const std::vector<std::string> files = RecentFiles::List();
    const size_t place = command - ID_FILE_RECENT_FIRST;
    if (place >= files.size()) return;
    const std::string& path = files[place];
    if (::GetFileAttributesW(Wide(path).c_str()) != INVALID_FILE_ATTRIBUTES) {
        Open(path);
        return;
    }
    RecentFiles::Remove(path);
    AfxMessageBox((SystemText(path) + "\n\nThis file no longer exists.").c_str());
}

// ---- Saving

bool CMainFrame::Save(const std::string& path) {
    constexpr const char* kChanged = "\n\nAnother program has changed this file since it was opened. Overwrite it?";
    if (!m_pane.Apply()) return false;
    try {
        if (!SaveTo(path, false)) {
            if (AfxMessageBox((SystemText(path) + kChanged).c_str(), MB_YESNO | MB_ICONEXCLAMATION) != IDYES)
                return false;
            SaveTo(path, true);
        }
    } catch (const Canceled&) {
        m_status.ShowMessage("Saving was canceled; the file was not changed");
        return false;
    } catch (const SaveError& error) {
        AfxMessageBox(SystemText(error.what()).c_str());
        return false;
    }
    RecentFiles::Add(path);
    std::string text = "Saved " + SystemText(m_document->Name());
    for (const std::string& note : m_document->SaveNotes())
        text += "; " + note;
    m_status.ShowMessage(text);
    ShowTitle();
    return true;
}

bool CMainFrame::SaveTo(const std::string& path, bool overChanged) {
    const BusyMark busy(m_isBusy);
    LongOperation operation(*this, m_status, "Saving " + SystemText(m_document->Name()));
    return m_document->Save(path, overChanged, [&](int permille) { return operation.Update(permille); });
}

void CMainFrame::OnFileSave() {
    if (CanDo(ID_FILE_SAVE)) Save(m_document->Path());
}

void CMainFrame::OnFileSaveAs() {
    if (!CanDo(ID_FILE_SAVE_AS)) return;
    CFileDialog dialog(FALSE, "dxf", SystemText(m_document->Path()).c_str(), OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       kFilter, this);
    if (dialog.DoModal() == IDOK) Save(Utf8FromSystem(dialog.GetPathName()));
}

bool CMainFrame::CanCloseDocument() {
    if (!m_pane.Apply()) return false;
    if (!m_document || !m_document->IsModified()) return true;
    const std::string question = "Save the changes to " + SystemText(m_document->Name()) + "?";
    switch (MessageBoxWithButtons(m_hWnd, question.c_str(), kTitle, MB_YESNOCANCEL | MB_ICONQUESTION,
                                  {{IDYES, "&Save"}, {IDNO, "Do&n't Save"}})) {
    case IDYES:
        return Save(m_document->Path());
    case IDNO:
        return true;
    default:
        return false;
    }
}

void CMainFrame::OnClose() {
    if (CanCloseDocument()) CFrameWnd::OnClose();
}

LRESULT CMainFrame::OnQueryEndSession(WPARAM, LPARAM) {
    return !m_isBusy && IsWindowEnabled() && CanCloseDocument(); // not while a dialog is open
}

void CMainFrame::OnAppExit() {
    PostMessage(WM_CLOSE);
}
