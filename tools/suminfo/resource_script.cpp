// Sections as raw-data resources: the library prints the items, this file the lines around them.

#include <algorithm>
#include <optional>
#include <string>

#include "byte_stream.h"
#include "commands.h"
#include "edited_set.h"
#include "failure.h"
#include "orlo/propset/code_page.h"
#include "orlo/propset/property_set.h"
#include "orlo/propset/rc_file.h"
#include "output_file.h"
#include "sources.h"
#include "text.h"

namespace suminfo {
namespace {

// The classes that print hold less than a stream can: values whose form they know, names in small letters of one code
// page.
bool IsSame(CProperty& printed, const orlo::ImageProperty& held) {
    orlo::Bytes form;
    for (int shift = 0; shift < 32; shift += 8)
        form.push_back(static_cast<uint8_t>(held.type >> shift));
    form.insert(form.end(), held.bytes.begin(), held.bytes.end());
    const ByteStream stream;
    if (printed.GetID() != held.id || !printed.WriteToStream(stream.get())) return false;
    const orlo::Bytes written = stream.Bytes(); // filled up to 4 bytes
    return written.size() >= form.size() && std::equal(form.begin(), form.end(), written.begin());
}

bool HasName(CPropertySection& printed, const orlo::DictionaryEntry& entry, uint16_t codePage) {
    const auto name = orlo::Utf8ToCodePage(entry.name, codePage);
    if (!name) return false;
    if (entry.id == 0) return *name == printed.GetSectionName();
    CString small(name->c_str());
    small.MakeLower(); // byte for byte: it may tear characters of two bytes
    const auto shown = orlo::CodePageToUtf8(static_cast<const char*>(small), codePage);
    DWORD id = 0;
    return shown && SameName(*shown, entry.name) && printed.GetID(small, &id) && id == entry.id;
}

void RefuseUnlessSame(CPropertySection& printed, const orlo::ImageSection& held) {
    CObList& properties = *printed.GetList();
    POSITION at = properties.GetHeadPosition();
    for (const orlo::ImageProperty& property : held.properties)
        if (!at || !IsSame(*static_cast<CProperty*>(properties.GetNext(at)), property))
            throw Failure("property " + std::to_string(property.id) + ", " + orlo::TypeName(property.type) +
                          ", can't be printed in a script");
    if (!held.dictionary) return;
    if (held.codePage == orlo::kCodePageUtf16)
        throw Failure("names in 16-bit characters can't be printed in a script");
    for (const orlo::DictionaryEntry& entry : *held.dictionary)
        if (!HasName(printed, entry, held.codePage.value_or(orlo::kUsualCodePage)))
            throw Failure("the name " + OneLine(entry.name) + " can't be printed in a script");
}

void Print(CPropertySet& set, const orlo::SetImage& held, const std::string& title, CRCFile& rc) {
    const auto plain = [&rc](const std::string& text) { rc.CStdioFile::WriteString(text.c_str()); };
    plain("// " + title + "\n");
    rc.PrintWholeTexts();
    if (held.sections.empty()) throw Failure("it has no sections");
    int number = 0;
    POSITION at = set.GetList()->GetHeadPosition();
    for (const orlo::ImageSection& section : held.sections) {
        const std::string place = "section " + std::to_string(++number);
        if (!at) throw Failure(place + " can't be printed in a script");
        auto& printed = *static_cast<CPropertySection*>(set.GetList()->GetNext(at));
        try {
            RefuseUnlessSame(printed, section);
        } catch (const Failure& failure) {
            throw Failure(place + ": " + failure.what());
        }
        plain("\n" + std::to_string(number) + " RCDATA\nBEGIN");
        rc.StartBlock();
        if (!printed.WriteToRC(&rc)) throw Failure(place + " can't be printed in a script");
        plain("\nEND\n");
    }
}

} // namespace

void SaveResourceScript(const Source& source, const std::string& script) {
    const NamedStream stream = SummaryOf(source);
    const EditedSet sound(stream.bytes); // refuses what is damaged
    CPropertySet set;
    if (!set.ReadFromStream(ByteStream(stream.bytes).get())) throw Failure("it is no property set");
    std::optional<OutputFile> file;
    OnFile(script, [&] { file.emplace(script); });
    CRCFile rc(file->HandOver());
    try {
        Print(set, sound.Held(), "Sections of " + OneLine(source.file), rc);
        rc.Close();
    } catch (CFileException* full) {
        full->Delete();
        throw Failure(script, "can't be written: the disk is full or failed");
    }
    OnFile(script, [&] { file->Finish(); });
}

} // namespace suminfo
