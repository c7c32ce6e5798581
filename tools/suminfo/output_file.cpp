// The part file beside the real one.

#include "output_file.h"

#include <windows.h>

#include "failure.h"
#include "text.h"

namespace suminfo {

OutputFile::OutputFile(const std::string& file)
    : path_(PathOf(file)), part_(PathOf(file + ".part")), stream_(::_wfopen(part_.c_str(), L"w+b")) {
    if (!stream_) throw Failure("can't be made");
}

OutputFile::~OutputFile() {
    if (!stream_) return;
    std::fclose(stream_);
    ::DeleteFileW(part_.c_str());
}

void OutputFile::Finish() {
    const bool written = std::fflush(stream_) == 0 && !std::ferror(stream_);
    const bool closed = std::fclose(stream_) == 0;
    stream_ = nullptr;
    if (written && closed && ::MoveFileExW(part_.c_str(), path_.c_str(), MOVEFILE_REPLACE_EXISTING)) return;
    ::DeleteFileW(part_.c_str());
    throw Failure("can't be written");
}

} // namespace suminfo
