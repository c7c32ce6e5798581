// Replaces a file in one step, or writes to standard output.

#include "output_file.h"

#include <cstdio>
#include <filesystem>

#include "commands.h"
#include "console.h"
#include "files/file_error.h"
#include "files/file_replacement.h"
#include "orlo/propset/code_page.h"
#include "text.h"
#include "tools/cli/printable.h"

namespace suminfo {

void WriteOutput(const std::string& file, std::string_view bytes) {
    if (file == kStandardStream) {
        if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size() || std::fflush(stdout) != 0)
            files::ThrowLastError("the output cannot be written");
        return;
    }
    files::FileReplacement replacement(std::filesystem::u8path(file));
    replacement.Write(bytes);
    replacement.Commit();
}

void WarnOfEnding(const std::string& file, const std::string& ending, const std::string& contents) {
    const std::string has = std::filesystem::u8path(file).extension().u8string();
    if (file == kStandardStream || has.empty() || orlo::IsSameName(has, "." + ending)) return;
    Print(stderr, "suminfo: warning: " + cli::OneLine(file) + ": the file contains " + contents +
                      "; the usual extension is ." + ending + "\n");
}

} // namespace suminfo
