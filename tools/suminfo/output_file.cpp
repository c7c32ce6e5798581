// The stream over the part file.

#include "output_file.h"

#include <windows.h>

#include "failure.h"
#include "text.h"

namespace suminfo {

OutputFile::OutputFile(const std::string& file)
    : part_(ToWide(file)), stream_(::_wfopen(part_.Path().c_str(), L"w+b")) {
    if (!stream_) FailBySystem("can't be made");
}

OutputFile::~OutputFile() {
    if (stream_) std::fclose(stream_);
}

void OutputFile::Finish() {
    const bool written = std::fflush(stream_) == 0 && !std::ferror(stream_);
    const bool closed = std::fclose(stream_) == 0;
    stream_ = nullptr;
    if (!written || !closed) FailBySystem("can't be written");
    part_.TakePlace();
}

} // namespace suminfo
