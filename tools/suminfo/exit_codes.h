// Exit codes of suminfo.
#pragma once

namespace suminfo {

constexpr int kDone = 0;
constexpr int kFailed = 1;              // a file failed, or a check found irregularities
constexpr int kUsage = 2;               // the command line is wrong
constexpr int kNeedsWindowsProgram = 3; // nothing was done: the command requires the Windows program

} // namespace suminfo
