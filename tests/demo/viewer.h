// The demo's main window with a small drawing, and a user who operates it.
//
//   40 units wide and high: a red line, a green line, a yellow line, a text
//
//     green (5,35)-(15,35)      text at (25,30)
//     red   (5,5)-(15,5)        yellow (25,5)-(35,15)
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "demo/automation/user_input.h"
#include "demo/viewer/main_frame.h"
#include "support/drawing_state.h"

// A file in the temporary folder that exists during the object's lifetime.
class DrawingFile {
public:
    explicit DrawingFile(const char* content);
    ~DrawingFile();
    DrawingFile(const DrawingFile&) = delete;
    DrawingFile& operator=(const DrawingFile&) = delete;

    std::string Path() const; // UTF-8
    void Write(const std::string& content) const;
    std::string Read() const;

private:
    std::string m_path; // for the system's 8-bit functions
};

class Viewer : public ::testing::Test {
protected:
    Viewer();
    ~Viewer() override;

    Document& document() { return *frame->GetDocument(); }
    Selection& selection() { return document().Selected(); }
    HWND view() { return frame->View().m_hWnd; }
    CPoint Pixel(double x, double y) { return frame->View().GetCamera().ToPixels(WorldPoint{x, y}); }
    DrawingState Properties() { return DrawingState(document().Selectable()); }

    void Drag(WorldPoint from, WorldPoint to, unsigned modifiers = UserInput::kNone);
    // Returns the pixels of the view once it is idle.
    std::vector<uint32_t> ViewPixels();

    CMainFrame* frame; // deleted with its window
    DrawingFile file;  // the open file
    UserInput user{0};
};
