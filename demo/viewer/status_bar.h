// The status bar of the main window: a message (or the progress of an operation), the kinds of the selected graphics,
// their pen widths, and the pointer position. If the texts are wider than the bar, the pen widths and then the kinds
// are abbreviated; a text that is still too wide ends with an ellipsis, and a tooltip shows the whole text.
#pragma once

#include <afxcmn.h>

#include <string>

#include "orlo/win/gdi.h"

struct StatusText {
    std::string full, brief;
};

class CStatusBar : public CStatusBarCtrl {
    DECLARE_DYNAMIC(CStatusBar)
public:
    BOOL Create(CWnd* parent, UINT id);
    int Height() const;
    // Must be called when the size of the parent has changed.
    void Arrange();
    // Sets the resolution of the monitor for font and panes; the height changes as well.
    void SetDpi(int dpi);

    void ShowMessage(const std::string& text);
    void ShowSelection(const StatusText& kinds, const StatusText& widths);
    void ShowPointer(const std::string& text);

    // Shows a progress bar in place of the message until EndProgress. Painted immediately, since no messages are
    // handled meanwhile.
    void StartProgress(const std::string& text);
    void ShowProgress(int permille);
    void EndProgress();

private:
    enum Pane { kMessage, kSelection, kWidths, kPointer, kPanes };

    void ArrangePanes();
    void PlaceProgress(int& messageWidth);
    void SetPane(int pane, const std::string& text, int width);
    int Scaled(int at96) const;
    // Both measure with the margins of a pane.
    int WidthFor(const std::string& text) const;
    std::string Fitting(const std::string& text, int width) const;

    CProgressCtrl m_progress;
    orlo::OwnedFont m_font; // null for the system's
    int m_dpi = 96;
    StatusText m_texts[kPanes];
    int m_pointerWidth = 0; // of the widest position so far, so that the panes do not move with the pointer
    int m_permille = -1;
};
