// The status bar of the main window: a message (or the progress of a long task), the kinds of the selected graphics,
// their pen widths, the pointer's place.
#pragma once

#include <afxcmn.h>

#include <string>

#include "orlo/win/gdi.h"

class CStatusLine : public CStatusBarCtrl {
    DECLARE_DYNAMIC(CStatusLine)
public:
    CStatusLine();
    ~CStatusLine() override;

    BOOL Create(CWnd* parent, UINT id);
    int Height() const;
    // To be called when the parent has a new size.
    void Arrange();
    // Font and panes are for a monitor of so many dots per inch from now on; its height is another one then.
    void SetDpi(int dpi);

    void ShowMessage(const std::string& text) { ShowText(kMessage, text); }
    void ShowSelection(const std::string& kinds, const std::string& widths);
    void ShowPointer(const std::string& text) { ShowText(kPointer, text); }

    // A bar in the message's place until EndProgress; painted at once, since the task leaves no time for it.
    void StartProgress(const std::string& text);
    void ShowProgress(int permille);
    void EndProgress();

private:
    enum Pane { kMessage, kSelection, kWidths, kPointer, kPanes };

    bool ShowText(Pane pane, const std::string& text); // false: it stands there already
    int Scaled(int at96) const;
    int WidthFor(const std::string& text) const;

    CProgressCtrl m_progress;
    orlo::OwnedFont m_font; // null: the system's
    int m_dpi = 96;
    std::string m_texts[kPanes];
    int m_permille = -1;
};
