// Compares the screen with a fresh drawing.

#include "support/fresh_drawing.h"

#include <afxwin.h>

#include <stdexcept>
#include <utility>

#include "demo/automation/user_input.h"
#include "demo/viewer/memory_picture.h"

namespace {

// Hides a blinking caret, which is not part of the drawing.
class HiddenCaret {
public:
    HiddenCaret() : m_hidden(::HideCaret(nullptr)) {}
    ~HiddenCaret() {
        if (m_hidden) ::ShowCaret(nullptr);
    }
    HiddenCaret(const HiddenCaret&) = delete;
    HiddenCaret& operator=(const HiddenCaret&) = delete;

private:
    BOOL m_hidden;
};

void HandleMessages(unsigned milliseconds = 0) {
    UserInput(0).Wait(milliseconds);
    ::GdiFlush();
}

void CopyScreen(MemoryPicture& picture, const CRect& area) {
    const orlo::WindowDC screen(nullptr);
    if (!picture.Resize(area.Size()) ||
        !::BitBlt(picture.Dc(), 0, 0, area.Width(), area.Height(), screen.get(), area.left, area.top, SRCCOPY))
        throw std::runtime_error("the screen cannot be read");
    ::GdiFlush();
}

CRect Difference(const MemoryPicture& a, const MemoryPicture& b) {
    CRect difference;
    for (int y = 0; y < a.Size().cy; ++y)
        for (int x = 0; x < a.Size().cx; ++x)
            if ((a.Row(y)[x] & 0xFFFFFF) != (b.Row(y)[x] & 0xFFFFFF))
                difference.UnionRect(CRect(difference), CRect(x, y, x + 1, y + 1));
    return difference;
}

// The window server reports an area that another window has uncovered some time later: waits for a stable screen.
void CopyStableScreen(MemoryPicture& picture, const CRect& area) {
    constexpr unsigned kPause = 30; // milliseconds
    constexpr int kMaxReads = 20;
    MemoryPicture earlier;
    CopyScreen(picture, area);
    for (int i = 0; i < kMaxReads; ++i) {
        std::swap(picture, earlier);
        HandleMessages(kPause);
        CopyScreen(picture, area);
        if (Difference(picture, earlier).IsRectEmpty()) return;
    }
}

} // namespace

std::string StalePart(HWND window) {
    const HiddenCaret hidden;
    CRect area;
    ::GetWindowRect(window, area);
    MemoryPicture shown, redrawn;
    HandleMessages();
    CopyStableScreen(shown, area);
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    HandleMessages();
    CopyScreen(redrawn, area);
    const CRect part = Difference(shown, redrawn);
    if (part.IsRectEmpty()) return "";
    const CPoint middle = area.TopLeft() + CSize(part.CenterPoint().x, part.CenterPoint().y);
    CString text;
    text.Format("control %d at %ld, %ld to %ld, %ld", ::GetDlgCtrlID(::WindowFromPoint(middle)), part.left, part.top,
                part.right, part.bottom);
    return std::string(text);
}
