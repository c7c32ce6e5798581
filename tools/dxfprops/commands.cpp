// Reads, changes and compares drawings.
#include "tools/dxfprops/commands.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <map>

#include "tools/cli/wildcard.h"

namespace dxfprops {

namespace {

// Entities of all spaces by their handles, or by their lines.
class EntityIndex {
public:
    explicit EntityIndex(const dxf::DocumentReader& drawing) {
        for (const auto& some : {drawing.Entities(), drawing.PaperEntities()})
            entities_.insert(entities_.end(), some.begin(), some.end());
        for (size_t i = 0; i < entities_.size(); ++i) {
            const dxf::RecordName name = drawing.NameOf(entities_[i]);
            if (name.handle.empty())
                byLine_[name.line] = i;
            else
                byHandle_.emplace(name.handle, i);
        }
    }

    const std::vector<dxf::EntityRef>& All() const { return entities_; }
    // Returns the position of the entity, or size(). If several entities have its handle, returns the one at that line.
    size_t Find(const dxf::DocumentReader& drawing, const dxf::RecordName& name) const {
        const auto line = byLine_.find(name.line);
        if (name.handle.empty()) return line != byLine_.end() ? line->second : entities_.size();
        const bool isOne = byHandle_.count(name.handle) == 1;
        return FindHandle(name.handle,
                          [&](size_t at) { return isOne || drawing.NameOf(entities_[at]).line == name.line; });
    }
    // Returns the position of the first matching entity with that handle, which damaged drawings can contain several
    // times, or size().
    template <class IsIt>
    size_t FindHandle(const std::string& handle, IsIt isIt) const {
        const auto [first, last] = byHandle_.equal_range(handle);
        const auto found = std::find_if(first, last, [&](const auto& entry) { return isIt(entry.second); });
        return found != last ? found->second : entities_.size();
    }

private:
    std::vector<dxf::EntityRef> entities_;
    std::multimap<std::string, size_t> byHandle_;
    std::map<uint32_t, size_t> byLine_;
};

// Compares one entity of two drawings.
class Comparer {
public:
    Comparer(const dxf::DocumentReader& before, const dxf::DocumentReader& after, Compared compared)
        : before_(before), after_(after), compared_(compared) {}

    std::vector<Difference::Value> Compare(const dxf::EntityRef& one, const dxf::EntityRef& other) const {
        std::vector<Difference::Value> values;
        if (!before_.HasSameProperties(one, after_, other)) AddValues(one, other, Compared::properties, values);
        if (compared_ == Compared::properties || before_.IsStoredLike(one, after_, other)) return values;
        const size_t properties = values.size();
        AddValues(one, other, Compared::all, values);
        std::set<std::string> reported;
        for (size_t i = properties; i < values.size(); ++i)
            reported.insert(values[i].property);
        const bool isPlacedInsertion = dxf::DocumentReader::Has(one, "BlockName") && !reported.empty();
        if (!isPlacedInsertion) AddShape(one, other, reported, values);
        return values;
    }

private:
    // Adds the properties of the sheet first and, if all values are compared, then the others.
    void AddValues(const dxf::EntityRef& one, const dxf::EntityRef& other, Compared part,
                   std::vector<Difference::Value>& values) const {
        bool isOfSheet = true;
        for (const std::string& name : dxf::DocumentReader::PropertyNames()) {
            isOfSheet = isOfSheet && name != "Tag";
            if (isOfSheet != (part == Compared::properties) || !dxf::DocumentReader::Has(one, name)) continue;
            const std::string was = before_.GetForDisplay(one, name);
            const std::string is = dxf::DocumentReader::Has(other, name) ? after_.GetForDisplay(other, name) : "";
            if (was != is) values.push_back({name, was, is});
        }
    }

    // Returns the groups of the shape without those that have been reported as Text or Position.
    static std::vector<std::string> RestOf(std::vector<std::string> shape, const std::set<std::string>& reported) {
        std::set<std::string> met;
        const auto isReported = [&](const std::string& group) {
            const std::string code = group.substr(0, group.find(' '));
            const bool isText = code == "1" || code == "2" || code == "3";
            const bool isFirstPoint = (code == "10" || code == "20" || code == "30") && met.insert(code).second;
            return (isText && reported.count("Text") != 0) || (isFirstPoint && reported.count("Position") != 0);
        };
        shape.erase(std::remove_if(shape.begin(), shape.end(), isReported), shape.end());
        return shape;
    }

    // Adds the groups that differ, such as "10 1.500000".
    void AddShape(const dxf::EntityRef& one, const dxf::EntityRef& other, const std::set<std::string>& reported,
                  std::vector<Difference::Value>& values) const {
        constexpr size_t kMax = 8;
        const std::vector<std::string> was = RestOf(before_.ShapeOf(one), reported);
        const std::vector<std::string> is = RestOf(after_.ShapeOf(other), reported);
        std::string before, after;
        size_t count = 0;
        for (size_t i = 0; i < std::max(was.size(), is.size()) && count < kMax; ++i) {
            const std::string first = i < was.size() ? was[i] : "", second = i < is.size() ? is[i] : "";
            if (first == second) continue;
            ++count;
            before += (before.empty() ? "" : "; ") + first;
            after += (after.empty() ? "" : "; ") + second;
        }
        if (count > 0) values.push_back({"Shape", before, after});
    }

    const dxf::DocumentReader& before_;
    const dxf::DocumentReader& after_;
    Compared compared_;
};

using LayerValues = std::map<std::string, Values>; // by names

LayerValues LayersOf(const dxf::DocumentReader& drawing) {
    LayerValues layers;
    for (const dxf::Contents::Layer& layer : drawing.GetContents().layers)
        layers.emplace(dxf::ToDisplayText(layer.name), ValuesOf(layer));
    return layers;
}

void AddLayerDifferences(const LayerValues& ones, const LayerValues& others, std::vector<Difference>& differences) {
    for (const auto& [name, was] : ones) {
        const auto other = others.find(name);
        if (other == others.end()) differences.push_back({{}, Difference::Kind::onlyBefore, {}, name});
        if (other == others.end() || other->second == was) continue;
        std::vector<Difference::Value> values;
        for (size_t i = 0; i < was.size(); ++i)
            if (was[i] != other->second[i]) values.push_back({was[i].first, was[i].second, other->second[i].second});
        differences.push_back({{}, Difference::Kind::changed, std::move(values), name});
    }
    for (const auto& [name, values] : others)
        if (ones.count(name) == 0) differences.push_back({{}, Difference::Kind::onlyAfter, {}, name});
}

void Finish(const DrawingFile& drawing, dxf::DocumentWriter& writer, const Target& target, SetResult& result) {
    result.notes = writer.Notes();
    const std::string bytes = writer.Finish();
    if (target.isDry)
        result.differences = FindDifferences(drawing, dxf::DocumentReader(bytes), Compared::all);
    else
        drawing.Write(bytes, target.output, target.keepsBackup);
}

// Values of attributes by tag, and all others.
struct SplitValues {
    Values plain, attributes; // these by tags
};

SplitValues Split(const Values& values) {
    SplitValues split;
    const std::string prefix = kAttribute;
    for (const auto& [name, value] : values) {
        if (dxf::IsSameName(name.substr(0, prefix.size()), prefix))
            split.attributes.emplace_back(name.substr(prefix.size()), value);
        else
            split.plain.emplace_back(name, value);
    }
    return split;
}

// Returns the values for the attribute's tag, if the attribute or its insertion is selected.
Values ForAttribute(const DrawingFile& drawing, const dxf::EntityRef& entity, Selector& selector,
                    const Values& attributes) {
    const auto insertion = dxf::DocumentReader::InsertionOf(entity);
    if (attributes.empty() || !insertion || !dxf::DocumentReader::Has(entity, "Tag")) return {};
    const std::string tag = drawing.Get(entity, "Tag");
    for (const auto& [name, value] : attributes)
        if (dxf::IsSameName(name, tag) && (selector.IsSelected(entity) || selector.IsSelected(*insertion)))
            return {{"Text", value}};
    return {};
}

} // namespace

Values ValuesOf(const dxf::Contents::Layer& layer) {
    const auto onOff = [](bool isOn) { return std::string(isOn ? "Yes" : "No"); };
    constexpr int kFrozen = 1, kLocked = 4;
    char weight[32] = "Default";
    if (layer.lineWeight >= 0) std::snprintf(weight, sizeof weight, "%g mm", layer.lineWeight / 100.0);
    return {{"Name", dxf::ToDisplayText(layer.name)},
            {"On", onOff(layer.color >= 0)},
            {"Frozen", onOff((layer.flags & kFrozen) != 0)},
            {"Locked", onOff((layer.flags & kLocked) != 0)},
            {"Plotted", onOff(layer.isPlotted)},
            {"Color", layer.colorText},
            {"LineType", dxf::ToDisplayText(layer.lineType)},
            {"LineWeight", weight}};
}

Matches ForEachEntity(const DrawingFile& drawing, const Selection& selection, const std::vector<std::string>& show,
                      const std::function<void(const EntityProperties&)>& each) {
    std::vector<std::string> names;
    for (const std::string& name : show.empty() ? dxf::DocumentReader::PropertyNames() : show)
        names.push_back(*dxf::DocumentReader::FindPropertyName(name));
    Matches matches;
    Selector selector(drawing, selection);
    for (const dxf::EntityRef& entity : drawing.Around(selection)) {
        if (!selector.IsSelected(entity)) continue;
        ++matches.count;
        each({drawing.NameOf(entity), drawing.GetAll(entity, names)});
    }
    if (matches.count == 0) matches.kinds = drawing.KindsAround(selection);
    return matches;
}

SetResult SetProperties(const DrawingFile& drawing, const Selection& selection, const Values& values,
                        const Target& target) {
    const SplitValues split = Split(values);
    dxf::DocumentWriter writer(drawing, split.plain);
    SetResult result;
    Selector selector(drawing, selection);
    for (const dxf::EntityRef& entity : drawing.Around(selection)) {
        const bool isSelected = !split.plain.empty() && selector.IsSelected(entity);
        Values own = ForAttribute(drawing, entity, selector, split.attributes);
        if (!isSelected && own.empty()) continue;
        ++result.matches.count;
        if (own.empty()) {
            result.changed += writer.Change(entity);
        } else {
            if (isSelected) own.insert(own.end(), split.plain.begin(), split.plain.end());
            result.changed += writer.Change(entity, own);
        }
    }
    if (result.matches.count == 0) result.matches.kinds = drawing.KindsAround(selection);
    Finish(drawing, writer, target, result);
    return result;
}

SetResult ApplyProperties(const DrawingFile& drawing, const std::vector<EntityProperties>& wanted,
                          const Target& target) {
    const EntityIndex index(drawing);
    const std::vector<dxf::EntityRef>& entities = index.All();
    std::map<size_t, std::map<std::string, std::string>> changes; // in the order of the file
    for (const EntityProperties& entity : wanted) {
        const size_t at = index.Find(drawing, entity.name);
        if (at == entities.size() || drawing.NameOf(entities[at]).kind != entity.name.kind)
            throw dxf::SaveError("the drawing has no " + entity.name.Text());
        for (const auto& [name, value] : entity.values) {
            if (dxf::DocumentReader::Has(entities[at], name) && drawing.Get(entities[at], name) == value) continue;
            if (changes[at].emplace(name, value).first->second != value)
                throw dxf::SaveError(entity.name.Text() + ": two values of " + name);
        }
    }
    dxf::DocumentWriter writer(drawing, {});
    SetResult result;
    result.matches.count = wanted.size();
    for (const auto& [at, values] : changes)
        result.changed += writer.Change(entities[at], Values(values.begin(), values.end()));
    Finish(drawing, writer, target, result);
    return result;
}

namespace {

// Returns the existing layers that match the patterns and, with addsMissing, the names that do not exist.
std::set<std::string> ChooseLayers(const std::vector<std::string>& existing, const std::vector<std::string>& patterns,
                                   bool addsMissing) {
    std::set<std::string> chosen;
    for (const std::string& pattern : patterns) {
        const auto matches = [&](const std::string& name) { return MatchesWildcards(name, pattern); };
        std::copy_if(existing.begin(), existing.end(), std::inserter(chosen, chosen.end()), matches);
        if (cli::HasWildcard(pattern) || std::any_of(existing.begin(), existing.end(), matches)) continue;
        if (!addsMissing) throw dxf::SaveError("layer '" + pattern + "' does not exist");
        chosen.insert(pattern);
    }
    return chosen;
}

} // namespace

SetResult SetLayers(const DrawingFile& drawing, const std::vector<std::string>& layers, const dxf::LayerValues& values,
                    bool isNew, const Target& target) {
    dxf::DocumentWriter writer(drawing, {});
    std::vector<std::string> existing;
    for (const dxf::Contents::Layer& layer : drawing.GetContents().layers)
        existing.push_back(dxf::ToDisplayText(layer.name));
    const std::set<std::string> chosen = ChooseLayers(existing, layers, isNew && !values.name);
    if (values.name && chosen.size() > 1) throw dxf::SaveError("only one layer can be renamed to " + *values.name);
    SetResult result;
    for (const std::string& name : chosen)
        result.changed += writer.ChangeLayer(name, values);
    result.matches = {chosen.size(), {existing.begin(), existing.end()}};
    Finish(drawing, writer, target, result);
    return result;
}

std::vector<Difference> FindDifferences(const dxf::DocumentReader& before, const dxf::DocumentReader& after,
                                        Compared compared) {
    const EntityIndex one(before), other(after);
    const Comparer comparer(before, after, compared);
    const std::vector<dxf::EntityRef>&ones = one.All(), &others = other.All();
    std::vector<bool> met(others.size());
    std::vector<Difference> differences;
    if (compared == Compared::all) AddLayerDifferences(LayersOf(before), LayersOf(after), differences);
    for (size_t i = 0; i < ones.size(); ++i) {
        const dxf::RecordName name = before.NameOf(ones[i]);
        const auto isFree = [&](size_t place) { return !met[place]; };
        const size_t at = name.handle.empty() ? i : other.FindHandle(name.handle, isFree);
        if (at >= others.size() || met[at] || after.NameOf(others[at]).kind != name.kind) {
            differences.push_back({name, Difference::Kind::onlyBefore, {}, {}});
            continue;
        }
        met[at] = true;
        std::vector<Difference::Value> values = comparer.Compare(ones[i], others[at]);
        if (!values.empty()) differences.push_back({name, Difference::Kind::changed, std::move(values), {}});
    }
    for (size_t i = 0; i < others.size(); ++i)
        if (!met[i]) differences.push_back({after.NameOf(others[i]), Difference::Kind::onlyAfter, {}, {}});
    return differences;
}

} // namespace dxfprops
