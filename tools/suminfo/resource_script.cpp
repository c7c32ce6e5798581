// Writes sections as raw-data resources with the bytes of their stream form.

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "commands.h"
#include "edited_set.h"
#include "failure.h"
#include "files/file_error.h"
#include "files/file_replacement.h"
#include "orlo/propset/code_page.h"
#include "orlo/propset/rc_file.h"
#include "output_file.h"
#include "sources.h"
#include "text.h"
#include "tools/cli/printable.h"

namespace fs = std::filesystem;

namespace suminfo {
namespace {

constexpr size_t kBeforeSection = 48; // bytes of a set before its only section

// Prints the stream form of a section from beginning to end.
class SectionPrinter {
public:
    SectionPrinter(const orlo::ImageSection& section, CRCFile& rc) : section_(section), rc_(rc) {
        orlo::SetImage set;
        set.sections.push_back(section);
        auto bytes = orlo::WriteSetImage(set);
        if (!bytes) throw Failure("a name in the dictionary cannot be represented in the code page");
        bytes_.assign(bytes->begin() + kBeforeSection, bytes->end());
    }

    void Print() {
        rc_.NewLine();
        PrintNumbers(2); // size and count
        const size_t count = Number(4);
        for (size_t i = 0; i < count; ++i) {
            rc_.NewLine();
            PrintNumbers(2);
        }
        for (size_t i = 0; i < count; ++i) {
            const size_t end = i + 1 < count ? Number(20 + 8 * i) : bytes_.size();
            if (i == 0 && section_.dictionary)
                PrintDictionary();
            else
                PrintValue(Number(8 + 8 * i), end);
            PrintBytes(end - at_); // padding
        }
    }

private:
    uint32_t Number(size_t at) const {
        uint32_t number;
        std::memcpy(&number, bytes_.data() + at, sizeof number);
        return number;
    }
    uint32_t PrintNumbers(int count) {
        uint32_t number = 0;
        for (; count > 0; --count, at_ += sizeof number) {
            number = Number(at_);
            rc_.WriteDWord(number);
        }
        return number;
    }
    void PrintBytes(size_t size) {
        rc_.WriteBytes(bytes_.data() + at_, static_cast<int>(size));
        at_ += size;
    }
    void PrintText(size_t size) {
        if (section_.codePage == orlo::kCodePageUtf16) return PrintBytes(size);
        rc_.WriteCString(reinterpret_cast<const char*>(bytes_.data() + at_), static_cast<DWORD>(size));
        at_ += size;
    }

    void PrintDictionary() {
        const bool isWide = section_.codePage == orlo::kCodePageUtf16;
        rc_.NewLine();
        for (uint32_t names = PrintNumbers(1); names > 0; --names) {
            rc_.NewLine();
            const size_t size = size_t{PrintNumbers(2)} * (isWide ? 2 : 1); // after the ID
            PrintText(size);
            if (isWide) PrintBytes(size % 4);
        }
    }

    void PrintValue(uint32_t id, size_t end) {
        char comment[32];
        std::snprintf(comment, sizeof comment, "// [ 0x%x ]\n    ", static_cast<unsigned>(id));
        rc_.NewLine();
        rc_.Format();
        rc_.CStdioFile::WriteString(comment);
        rc_.StartBlock();
        const uint32_t type = PrintNumbers(1);
        const uint32_t base = type & ~uint32_t{VT_VECTOR};
        if (base != VT_LPSTR && base != VT_BSTR) return PrintBytes(end - at_);
        for (uint32_t count = base == type ? 1 : PrintNumbers(1); count > 0; --count)
            PrintText(PrintNumbers(1));
    }

    const orlo::ImageSection& section_;
    CRCFile& rc_;
    orlo::Bytes bytes_;
    size_t at_ = 0;
};

void Print(const orlo::SetImage& set, const std::string& title, CRCFile& rc) {
    const auto plain = [&rc](const std::string& text) { rc.CStdioFile::WriteString(text.c_str()); };
    if (set.sections.empty()) throw Failure("the property set has no sections");
    plain("// " + title + "\n");
    rc.PrintWholeTexts();
    int number = 0;
    for (const orlo::ImageSection& section : set.sections) {
        plain("\n" + std::to_string(++number) + " RCDATA\nBEGIN");
        rc.StartBlock();
        SectionPrinter(section, rc).Print();
        plain("\nEND\n");
    }
}

FILE* OpenStream(const fs::path& path) {
#ifdef _WIN32
    FILE* stream = ::_wfopen(path.c_str(), L"wb");
#else
    FILE* stream = std::fopen(path.c_str(), "wb");
#endif
    if (stream == nullptr) files::ThrowLastError("the file cannot be written");
    return stream;
}

// The script's own stream is closed at its end.
FILE* StandardOutput() {
#ifdef _WIN32
    FILE* stream = ::_fdopen(::_dup(::_fileno(stdout)), "wb");
#else
    FILE* stream = ::fdopen(::dup(::fileno(stdout)), "wb");
#endif
    if (stream == nullptr) files::ThrowLastError("the output cannot be written");
    return stream;
}

} // namespace

void SaveResourceScript(const Source& source, const std::string& script) {
    const EditedSet summary(SummaryOf(source).bytes); // fails for a damaged stream
    const bool isFile = script != kStandardStream;
    WarnOfEnding(script, "rc", "a resource script");
    std::optional<files::FileReplacement> file;
    if (isFile) OnFile(script, [&] { file.emplace(fs::u8path(script)); });
    try {
        CRCFile rc(isFile ? OpenStream(file->Path()) : StandardOutput());
        Print(summary.Set(), "Sections of " + cli::OneLine(source.file), rc);
        rc.Close();
    } catch (CFileException* full) {
        full->Delete();
        throw Failure(script, "cannot be written: the disk is full or failed");
    }
    if (isFile) OnFile(script, [&] { file->Commit(); });
}

} // namespace suminfo
