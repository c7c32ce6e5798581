// Reads, changes and compares drawings.
#include "tools/dxfprops/commands.h"

#include <map>

namespace dxfprops {

Listing ListProperties(const std::string& file, const std::vector<Condition>& where,
                       const std::vector<std::string>& show) {
    const DrawingFile drawing(file);
    const std::vector<std::string> names = show.empty() ? DrawingFile::PropertyNames() : show;
    Listing listing;
    for (const dxf::EntityRef& found : drawing.Select(where)) {
        EntityProperties& entity = listing.entities.emplace_back();
        entity.name = drawing.NameOf(found);
        for (const std::string& name : names)
            if (DrawingFile::Has(found, name))
                entity.values.emplace_back(*DrawingFile::FindPropertyName(name), drawing.Get(found, name));
    }
    if (listing.entities.empty()) listing.kinds = drawing.KindsAround(where);
    return listing;
}

SetResult SetProperties(const std::string& file, const std::vector<Condition>& where,
                        const std::vector<Condition>& values, const std::string& output) {
    const DrawingFile drawing(file);
    dxf::DocumentWriter::Values wanted;
    for (const Condition& value : values)
        wanted.emplace_back(value.name, value.value);
    dxf::DocumentWriter writer(drawing, wanted);
    SetResult result;
    for (const dxf::EntityRef& entity : drawing.Select(where)) {
        ++result.matched;
        result.changed += writer.Change(entity);
    }
    result.notes = writer.Notes();
    if (result.matched == 0) result.kinds = drawing.KindsAround(where);
    drawing.Write(writer.Finish(), output);
    return result;
}

std::vector<Difference> FindDifferences(const std::string& before, const std::string& after) {
    const DrawingFile a(before), b(after);
    const std::vector<dxf::EntityRef> ones = a.Entities(), others = b.Entities();
    std::map<std::string, size_t> byHandle;
    for (size_t i = 0; i < others.size(); ++i)
        if (const std::string handle = b.NameOf(others[i]).handle; !handle.empty()) byHandle.emplace(handle, i);
    std::vector<bool> met(others.size());
    std::vector<Difference> differences;
    for (size_t i = 0; i < ones.size(); ++i) {
        const dxf::RecordName name = a.NameOf(ones[i]);
        const auto found = byHandle.find(name.handle);
        const size_t at = name.handle.empty() ? i : found != byHandle.end() ? found->second : others.size();
        if (at >= others.size() || met[at] || b.NameOf(others[at]).kind != name.kind) {
            differences.push_back({name, Difference::Kind::onlyBefore, {}});
            continue;
        }
        met[at] = true;
        if (a.IsLike(ones[i], b, others[at])) continue;
        Difference& difference = differences.emplace_back();
        difference.name = name;
        for (const std::string& property : DrawingFile::PropertyNames()) {
            if (!DrawingFile::Has(ones[i], property)) continue;
            const std::string was = a.GetWithVariety(ones[i], property), is = b.GetWithVariety(others[at], property);
            if (was != is) difference.values.push_back({property, was, is});
        }
    }
    for (size_t i = 0; i < others.size(); ++i)
        if (!met[i]) differences.push_back({b.NameOf(others[i]), Difference::Kind::onlyAfter, {}});
    return differences;
}

} // namespace dxfprops
