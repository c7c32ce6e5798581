// The status bar of the main window: a message (or the progress of an operation), the kinds of the selected graphics,
// their pen widths, and the pointer position.
#pragma once

#include <afxcmn.h>

#include <string>

#include "orlo/win/gdi.h"

class CStatusBar : public CStatusBarCtrl {
    DECLARE_DYNAMIC(CStatusBar)
public:
    CStatusBar();
    ~CStatusBar() override;

    BOOL Create(CWnd* parent, UINT id);
    int Height() const;
    // Must be called when the size of the parent has changed.
    void Arrange();
    // Sets the resolution of the monitor for font and panes; the height changes as well.
    void SetDpi(int dpi);

    void ShowMessage(const std::string& text) { ShowText(kMessage, text); }
    void ShowSelection(const std::string& kinds, const std::string& widths);
    void ShowPointer(const std::string& text) { ShowText(kPointer, text); }

    // Shows a progress bar in place of the message until EndProgress. Painted immediately, since no messages are
    // handled meanwhile.
    void StartProgress(const std::string& text);
    void ShowProgress(int permille);
    void EndProgress();

private:
    enum Pane { kMessage, kSelection, kWidths, kPointer, kPanes };

    bool ShowText(Pane pane, const std::string& text); // returns false if it was already shown
    int Scaled(int at96) const;
    int WidthFor(const std::string& text) const;

    CProgressCtrl m_progress;
    orlo::OwnedFont m_font; // null for the system's
    int m_dpi = 96;
    std::string m_texts[kPanes];
    int m_permille = -1;
};
