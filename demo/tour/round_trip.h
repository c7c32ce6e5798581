// Takes drawings through all pages and back: selects all, changes one thing on each page of the sheet, OK, takes it
// back by undo, and compares everything that the drawing holds with what it held before.
#pragma once

#include <string>
#include <vector>

#include "demo/automation/user_input.h"

class CMainFrame;

class RoundTrip {
public:
    explicit RoundTrip(CMainFrame& frame) : m_frame(frame), m_user(0) {}

    // Paths in UTF-8. Reports each drawing on standard output; one that cannot be opened is reported, and is not a
    // fault. False: a page did not change what it should, or a drawing was not as before.
    bool Check(const std::vector<std::string>& drawings);

private:
    bool CheckOne(const std::string& drawing);
    std::vector<std::string> EditAllPages();

    CMainFrame& m_frame;
    UserInput m_user;
};
