// The bottom line of the main window: a message (or the progress of a long task), the selection, the pointer's place.
#pragma once

#include <afxcmn.h>

#include <string>

class CStatusLine : public CStatusBarCtrl {
    DECLARE_DYNAMIC(CStatusLine)
public:
    CStatusLine();
    ~CStatusLine() override;

    BOOL Create(CWnd* parent, UINT id);
    int Height() const;
    // To be called when the parent has a new size.
    void Arrange();

    void ShowMessage(const std::string& text) { ShowText(kMessage, text); }
    void ShowSelection(const std::string& text) { ShowText(kSelection, text); }
    void ShowPointer(const std::string& text) { ShowText(kPointer, text); }

    // A bar in the message's place until EndProgress; painted at once, since the task leaves no time for it.
    void StartProgress(const std::string& text);
    void ShowProgress(int permille);
    void EndProgress();

private:
    enum Pane { kMessage, kSelection, kPointer, kPanes };

    void ShowText(Pane pane, const std::string& text);

    CProgressCtrl m_progress;
    std::string m_texts[kPanes];
    int m_permille = -1;
};
