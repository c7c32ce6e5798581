// Sets properties, and compares the changed document with the requested values.
#include <map>

#include "drawcore/src/document/property_texts.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/save/drawing_patch.h"

namespace dxf {

struct DocumentWriter::Parts {
    explicit Parts(const DocumentReader& from)
        : reader(from), patch(reader.Text(), reader.document_->Tables()), known(*reader.document_) {}

    // Throws SaveError unless the changed document has the requested appearances.
    void RequireWanted(const DocumentReader& after) const;

    const DocumentReader& reader;
    Values values; // in the order in which they are set
    DrawingPatch patch;
    const Document& known;
    std::map<uint32_t, Appearance> wanted; // by offset of the entity
};

DocumentWriter::DocumentWriter(const DocumentReader& reader, const Values& values)
    : parts_(std::make_unique<Parts>(reader)) {
    for (const std::string& name : DocumentReader::PropertyNames())
        for (const auto& [property, text] : values)
            if (IsSameName(property, name)) parts_->values.emplace_back(name, text);
    Appearance tried;
    for (const auto& [property, text] : parts_->values)
        reader.texts_->Set(property, text, tried);
}

DocumentWriter::~DocumentWriter() = default;

bool DocumentWriter::Change(const EntityRef& entity) {
    const DocumentReader& reader = parts_->reader;
    const Appearance was = AppearanceOf(parts_->known, *entity.entity_);
    Appearance appearance = was;
    for (const auto& [property, text] : parts_->values)
        if (PropertyTexts::Has(*entity.entity_, property)) reader.texts_->Set(property, text, appearance);
    if (appearance == was) return false;
    try {
        parts_->patch.Change(entity.entity_->offset, appearance);
    } catch (const SaveError& error) {
        throw SaveError(reader.NameOf(entity).Text() + ": " + error.what());
    }
    parts_->wanted.emplace(entity.entity_->offset, std::move(appearance));
    return true;
}

std::vector<std::string> DocumentWriter::Notes() const {
    std::vector<std::string> notes;
    for (const auto& [property, count] : parts_->patch.OnlyExtended())
        notes.push_back(OnlyExtendedText(property, count));
    return notes;
}

void DocumentWriter::Parts::RequireWanted(const DocumentReader& after) const {
    const auto differ = [](const std::string& what) { throw SaveError("the changed drawing would not hold " + what); };
    const Document &tables = patch.Known(), &read = *after.document_;
    const PropertyTexts texts(tables);
    const std::vector<EntityRef> before = reader.Entities(), now = after.Entities();
    if (before.size() != now.size()) differ("all entities");
    for (size_t i = 0; i < before.size(); ++i) {
        const auto change = wanted.find(before[i].entity_->offset);
        const Appearance one = change != wanted.end() ? change->second : AppearanceOf(known, *before[i].entity_);
        const Appearance other = AppearanceOf(read, *now[i].entity_);
        if (SameAppearance(tables, one, read, other)) continue;
        for (const std::string& name : DocumentReader::PropertyNames())
            if (texts.Get(name, one) != after.texts_->Get(name, other))
                differ(name + " of " + reader.NameOf(before[i]).Text());
        differ("the appearance of " + reader.NameOf(before[i]).Text());
    }
}

std::string DocumentWriter::Finish() {
    const std::string& bytes = parts_->reader.Bytes();
    DocumentReader after(bytes.substr(0, bytes.size() - parts_->reader.Text().size()) + parts_->patch.Finish());
    parts_->RequireWanted(after);
    return after.Bytes();
}

} // namespace dxf
