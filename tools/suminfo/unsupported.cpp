// The Windows program plays metafiles by the system. This one ends before it has touched anything, and run.d/suminfo.sh
// starts the other.

#include <cstdlib>

#include "exit_codes.h"
#include "metafile_drawing.h"

namespace suminfo {
namespace {

[[noreturn]] void ExitForWindowsProgram() {
    std::exit(kNeedsWindowsProgram);
}

} // namespace

std::optional<std::vector<uint8_t>> DrawMetafile(const orlo::Bytes&, Extent) {
    ExitForWindowsProgram();
}

} // namespace suminfo
