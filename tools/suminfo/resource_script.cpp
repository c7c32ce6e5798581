// Sections as raw-data resources: the library prints the items, this file what stands around them.

#include <memory>
#include <objbase.h>
#include <optional>
#include <string>
#include <windows.h>

#include "commands.h"
#include "edited_set.h"
#include "failure.h"
#include "orlo/propset/property_set.h"
#include "orlo/propset/rc_file.h"
#include "output_file.h"
#include "owned.h"
#include "sources.h"
#include "text.h"

namespace suminfo {
namespace {

void Load(const orlo::Bytes& bytes, CPropertySet& set) {
    IStream* made = nullptr;
    HRESULT result = ::CreateStreamOnHGlobal(nullptr, TRUE, &made);
    if (FAILED(result)) Fail(result, "it can't be read");
    const Owned<IStream> stream(made);
    result = stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    if (FAILED(result)) Fail(result, "it can't be read");
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    if (!set.ReadFromStream(stream.get())) throw Failure("it is no property set");
}

void Print(CPropertySet& set, const std::string& title, CRCFile& rc) {
    const auto plain = [&rc](const std::string& text) { rc.CStdioFile::WriteString(text.c_str()); };
    plain("// " + title + "\n");
    int number = 0;
    CObList& sections = *set.GetList();
    for (POSITION at = sections.GetHeadPosition(); at;) {
        auto& section = *static_cast<CPropertySection*>(sections.GetNext(at));
        plain("\n" + std::to_string(++number) + " RCDATA\nBEGIN");
        if (!section.WriteToRC(&rc))
            throw Failure("section " + std::to_string(number) +
                          " holds a type of value that can't be printed");
        plain("\nEND\n");
    }
}

} // namespace

void SaveResourceScript(const Source& source, const std::string& script) {
    const NamedStream stream = SummaryOf(source);
    const EditedSet sound(stream.bytes); // refuses what is damaged
    CPropertySet set;
    Load(stream.bytes, set);
    std::optional<OutputFile> file;
    OnFile(script, [&] { file.emplace(script); });
    CRCFile rc(file->Stream());
    try {
        Print(set, "Sections of " + source.file, rc);
    } catch (CFileException* full) {
        full->Delete();
        throw Failure(script, "can't be written: the disk is full or failed");
    }
    OnFile(script, [&] { file->Finish(); });
}

} // namespace suminfo
