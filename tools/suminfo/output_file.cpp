// The stream over the part file.

#include "output_file.h"

#include "failure.h"

namespace suminfo {

OutputFile::OutputFile(const std::string& file) : part_(file), stream_(part_.Open()) {
    if (!stream_) FailBySystem("can't be made");
}

OutputFile::~OutputFile() {
    if (stream_) std::fclose(stream_);
}

void OutputFile::Finish() {
    if (FILE* stream = HandOver()) {
        const bool written = std::fflush(stream) == 0 && !std::ferror(stream);
        const bool closed = std::fclose(stream) == 0;
        if (!written || !closed) FailBySystem("can't be written");
    }
    part_.TakePlace();
}

} // namespace suminfo
