// Checks drawings: selects all graphics, makes one edit on each page of the sheet, presses OK, undoes, and compares the
// contents of the drawing with its previous contents.
#pragma once

#include <string>
#include <vector>

#include "demo/automation/user_input.h"

class CMainFrame;

class RoundTrip {
public:
    explicit RoundTrip(CMainFrame& frame) : m_frame(frame), m_user(0) {}

    // Paths are in UTF-8. Reports each drawing on standard output; one that cannot be opened is reported, but not a
    // failure. Returns false if a page did not change what it should, or if a drawing differs afterward.
    bool Check(const std::vector<std::string>& drawings);

private:
    bool CheckOne(const std::string& drawing);
    std::vector<std::string> EditAllPages();

    CMainFrame& m_frame;
    UserInput m_user;
};
