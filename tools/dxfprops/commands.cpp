// Reading, changing and comparing drawings.
#include "tools/dxfprops/commands.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include <nlohmann/json.hpp>

#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/save/drawing_patch.h"
#include "drawcore/src/save/file_replacement.h"
#include "drawcore/src/save/save_error.h"
#include "tools/dxfprops/list_drawings.h"

namespace dxfprops {

namespace {

// On one line, as a command line takes it.
std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '\n')
            quoted += "\\n";
        else if (static_cast<unsigned char>(c) < ' ' || c == '\x7F')
            quoted += '?';
        else
            quoted += c;
    }
    return quoted + "\"";
}

// Values in the order in which they are set.
std::vector<Condition> Ordered(const std::vector<Condition>& values) {
    std::vector<Condition> ordered;
    for (const std::string& name : PropertyTexts::Names())
        for (const Condition& value : values)
            if (PropertyTexts::NameOf(value.name) == name) ordered.push_back({name, value.value});
    return ordered;
}

// What is written has to be what was wanted, of each entity.
void Check(const DrawingFile& before, const dxf::Document& known, const std::map<uint32_t, dxf::Look>& wanted,
           const std::string& bytes) {
    const dxf::Document after = dxf::Read(bytes, {});
    const auto differ = [](const std::string& what) {
        throw dxf::SaveError("the changed drawing would not hold " + what);
    };
    const PropertyTexts ones(known), others(after);
    const auto check = [&](const dxf::Entity& a, const dxf::Entity& b) {
        const auto found = wanted.find(a.offset);
        const dxf::Look one = found != wanted.end() ? found->second : before.LookOf(a);
        const dxf::Look other = dxf::LookOf(after, b);
        if (SameLook(known, one, after, other)) return;
        for (const std::string& name : PropertyTexts::Names())
            if (ones.Get(name, one) != others.Get(name, other))
                differ(name + " of " + before.NameOf(a).Text());
        differ("the look of " + before.NameOf(a).Text());
    };
    const std::vector<dxf::Entity>&a = before.Document().entities, &b = after.entities;
    if (a.size() != b.size()) differ("all entities");
    for (size_t i = 0; i < a.size(); ++i) {
        check(a[i], b[i]);
        const auto* one = std::get_if<dxf::Apart<dxf::Insert>>(&a[i].shape);
        const auto* other = std::get_if<dxf::Apart<dxf::Insert>>(&b[i].shape);
        if (!one || !other) continue;
        if ((*one)->attributes.size() != (*other)->attributes.size()) differ("all entities");
        for (size_t k = 0; k < (*one)->attributes.size(); ++k)
            check((*one)->attributes[k], (*other)->attributes[k]);
    }
}

} // namespace

void PrintSummary(const std::string& file, std::ostream& out) {
    const auto drawing = Describe(dxf::ReadFile(std::filesystem::u8path(file), {}));
    out << file << "\n  version   " << drawing["acadver"].dump() << "\n  blocks    " << drawing["blocks"]
        << "\n  layers    ";
    for (const auto& layer : drawing["layers"])
        out << Quoted(layer["name"]) << " ";
    out << "\n  entities ";
    for (const auto& [kind, count] : drawing["entities"].items())
        out << " " << kind << " " << count;
    out << "\n  extents   " << drawing["extents"] << "\n";
    if (drawing.contains("findings"))
        for (const auto& finding : drawing["findings"])
            out << "  line " << finding["line"] << ": " << finding["text"].get<std::string>() << "\n";
}

void PrintProperties(const std::string& file, const std::vector<Condition>& where,
                     const std::vector<std::string>& show, std::ostream& out) {
    const DrawingFile drawing(file);
    const std::vector<std::string> names = show.empty() ? PropertyTexts::Names() : show;
    for (const dxf::Entity* entity : drawing.Select(where)) {
        out << drawing.NameOf(*entity).Text();
        const dxf::Look look = drawing.LookOf(*entity);
        for (const std::string& name : names)
            if (PropertyTexts::Has(*entity, name))
                out << " " << *PropertyTexts::NameOf(name) << "=" << Quoted(drawing.Texts().Get(name, look));
        out << "\n";
    }
}

size_t SetProperties(const std::string& file, const std::vector<Condition>& where,
                     const std::vector<Condition>& values, const std::string& output) {
    const DrawingFile drawing(file);
    const std::vector<Condition> ordered = Ordered(values);
    dxf::DrawingPatch patch(drawing.Text(), drawing.Document().Tables());
    std::map<uint32_t, dxf::Look> wanted;
    for (const dxf::Entity* entity : drawing.Select(where)) {
        const dxf::Look was = drawing.LookOf(*entity);
        dxf::Look look = was;
        for (const Condition& value : ordered)
            if (PropertyTexts::Has(*entity, value.name)) drawing.Texts().Set(value.name, value.value, look);
        if (look == was) continue;
        patch.Change(entity->offset, look);
        wanted.emplace(entity->offset, std::move(look));
    }
    std::string bytes =
        drawing.Bytes().substr(0, drawing.Bytes().size() - drawing.Text().size()) + patch.Finish();
    Check(drawing, patch.Known(), wanted, bytes);
    const std::filesystem::path target = std::filesystem::u8path(output);
    if (output == file && !dxf::Holds(target, drawing.Bytes()))
        throw dxf::SaveError("the file was changed while this program worked on it");
    dxf::FileReplacement replacement(target);
    replacement.Write(bytes, {});
    replacement.TakePlace();
    return wanted.size();
}

size_t PrintDifferences(const std::string& before, const std::string& after, std::ostream& out) {
    const DrawingFile a(before), b(after);
    const std::vector<const dxf::Entity*> ones = a.Select({}), others = b.Select({});
    std::map<std::string, size_t> byHandle;
    for (size_t i = 0; i < others.size(); ++i)
        if (const std::string handle = b.NameOf(*others[i]).handle; !handle.empty())
            byHandle.emplace(handle, i);
    std::vector<bool> met(others.size());
    size_t count = 0;
    for (size_t i = 0; i < ones.size(); ++i) {
        const EntityName name = a.NameOf(*ones[i]);
        const auto found = byHandle.find(name.handle);
        const size_t at = name.handle.empty() ? i : found != byHandle.end() ? found->second : others.size();
        if (at >= others.size() || met[at] || b.NameOf(*others[at]).kind != name.kind) {
            out << name.Text() << " is only in " << before << "\n";
            ++count;
            continue;
        }
        met[at] = true;
        const dxf::Look one = a.LookOf(*ones[i]), other = b.LookOf(*others[at]);
        if (SameLook(a.Document(), one, b.Document(), other)) continue;
        out << name.Text();
        for (const std::string& property : PropertyTexts::Names()) {
            if (!PropertyTexts::Has(*ones[i], property)) continue;
            const std::string was = a.Texts().Get(property, one), is = b.Texts().Get(property, other);
            if (was != is) out << " " << property << ": " << Quoted(was) << " -> " << Quoted(is);
        }
        out << "\n";
        ++count;
    }
    for (size_t i = 0; i < others.size(); ++i) {
        if (met[i]) continue;
        out << b.NameOf(*others[i]).Text() << " is only in " << after << "\n";
        ++count;
    }
    return count;
}

} // namespace dxfprops
