// Reads, changes and compares drawings.
#include "tools/dxfprops/commands.h"

#include <map>

#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/save/drawing_patch.h"
#include "drawcore/src/save/save_error.h"
namespace dxfprops {

namespace {

// Sorts the values in the order in which they are set.
std::vector<Condition> Ordered(const std::vector<Condition>& values) {
    std::vector<Condition> ordered;
    for (const std::string& name : PropertyTexts::Names())
        for (const Condition& value : values)
            if (PropertyTexts::NameOf(value.name) == name) ordered.push_back({name, value.value});
    return ordered;
}

// Verifies that the new bytes contain the requested attributes of each entity.
void Check(const DrawingFile& before, const dxf::Document& known, const std::map<uint32_t, dxf::Look>& wanted,
           const std::string& bytes) {
    const dxf::Document after = dxf::Read(bytes, {});
    const auto differ = [](const std::string& what) {
        throw dxf::SaveError("the changed drawing would not hold " + what);
    };
    const PropertyTexts ones(known), others(after);
    const auto check = [&](const Found& found, const dxf::Entity& b) {
        const auto change = wanted.find(found.entity->offset);
        const dxf::Look one = change != wanted.end() ? change->second : before.LookOf(*found.entity);
        const dxf::Look other = dxf::LookOf(after, b);
        if (SameLook(known, one, after, other)) return;
        for (const std::string& name : PropertyTexts::Names())
            if (ones.Get(name, one) != others.Get(name, other)) differ(name + " of " + before.NameOf(found).Text());
        differ("the look of " + before.NameOf(found).Text());
    };
    const std::vector<Found> a = AllOf(before.Document()), b = AllOf(after);
    if (a.size() != b.size()) differ("all entities");
    for (size_t i = 0; i < a.size(); ++i)
        check(a[i], *b[i].entity);
}

} // namespace

Listing ListProperties(const std::string& file, const std::vector<Condition>& where,
                       const std::vector<std::string>& show) {
    const DrawingFile drawing(file);
    const std::vector<std::string> names = show.empty() ? PropertyTexts::Names() : show;
    Listing listing;
    for (const Found& found : drawing.Select(where)) {
        EntityProperties& entity = listing.entities.emplace_back();
        entity.name = drawing.NameOf(found);
        const dxf::Look look = drawing.LookOf(*found.entity);
        for (const std::string& name : names)
            if (PropertyTexts::Has(*found.entity, name))
                entity.values.emplace_back(*PropertyTexts::NameOf(name), drawing.Texts().Get(name, look));
    }
    if (listing.entities.empty()) listing.kinds = drawing.KindsAround(where);
    return listing;
}

SetResult SetProperties(const std::string& file, const std::vector<Condition>& where,
                        const std::vector<Condition>& values, const std::string& output) {
    const DrawingFile drawing(file);
    const std::vector<Condition> ordered = Ordered(values);
    dxf::Look tried;
    for (const Condition& value : ordered)
        drawing.Texts().Set(value.name, value.value, tried);
    dxf::DrawingPatch patch(drawing.Text(), drawing.Document().Tables());
    std::map<uint32_t, dxf::Look> wanted;
    SetResult result;
    for (const Found& found : drawing.Select(where)) {
        ++result.matched;
        const dxf::Look was = drawing.LookOf(*found.entity);
        dxf::Look look = was;
        for (const Condition& value : ordered)
            if (PropertyTexts::Has(*found.entity, value.name)) drawing.Texts().Set(value.name, value.value, look);
        if (look == was) continue;
        try {
            patch.Change(found.entity->offset, look);
        } catch (const dxf::SaveError& error) {
            throw dxf::SaveError(drawing.NameOf(found).Text() + ": " + error.what());
        }
        wanted.emplace(found.entity->offset, std::move(look));
    }
    result.changed = wanted.size();
    for (const auto& [property, count] : patch.OnlyExtended())
        result.notes.push_back(dxf::OnlyExtendedText(property, count));
    if (result.matched == 0) result.kinds = drawing.KindsAround(where);
    std::string bytes = drawing.Bytes().substr(0, drawing.Bytes().size() - drawing.Text().size()) + patch.Finish();
    Check(drawing, patch.Known(), wanted, bytes);
    drawing.Write(bytes, output);
    return result;
}

std::vector<Difference> FindDifferences(const std::string& before, const std::string& after) {
    const DrawingFile a(before), b(after);
    const std::vector<Found> ones = a.All(), others = b.All();
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
        const dxf::Look one = a.LookOf(*ones[i].entity), other = b.LookOf(*others[at].entity);
        if (SameLook(a.Document(), one, b.Document(), other)) continue;
        Difference& difference = differences.emplace_back();
        difference.name = name;
        for (const std::string& property : PropertyTexts::Names()) {
            if (!PropertyTexts::Has(*ones[i].entity, property)) continue;
            const std::string was = a.Texts().GetWithVariety(property, one),
                              is = b.Texts().GetWithVariety(property, other);
            if (was != is) difference.values.push_back({property, was, is});
        }
    }
    for (size_t i = 0; i < others.size(); ++i)
        if (!met[i]) differences.push_back({b.NameOf(others[i]), Difference::Kind::onlyAfter, {}});
    return differences;
}

} // namespace dxfprops
