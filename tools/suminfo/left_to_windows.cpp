// Commands that require the Windows program, which uses the system's storage to change documents and the system's
// player for metafiles. The Linux program exits before it has changed anything, and run.d/suminfo.sh starts the other
// one.

#include <cstdlib>

#include "commands.h"
#include "exit_codes.h"
#include "metafile_drawing.h"

namespace suminfo {
namespace {

[[noreturn]] void LeaveToWindows() {
    std::exit(kLeftToWindows);
}

} // namespace

void SetFields(const std::string&, const std::vector<Assignment>&, const std::vector<CustomValue>&) {
    LeaveToWindows();
}

void RemoveFields(const std::string&, const std::vector<std::string>&, const std::vector<std::string>&) {
    LeaveToWindows();
}

void CopySummary(const std::string&, const std::string&) {
    LeaveToWindows();
}

std::optional<std::vector<uint8_t>> DrawMetafile(const orlo::Bytes&, Extent) {
    LeaveToWindows();
}

} // namespace suminfo
