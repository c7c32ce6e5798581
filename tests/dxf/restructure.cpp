// Removes every second entity from a drawing and adds one of each kind to model space and to a new block, which it
// inserts. check_saved.py examines the result with another reader.
//
// restructure IN OUT [remove]
//
// With a third argument it only removes.

#include <filesystem>
#include <fstream>
#include <iostream>

#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/save/structure_patch.h"

namespace {

using dxf::Entity;

template <class Shape>
Entity Of(Shape shape) {
    Entity entity;
    entity.shape = std::move(shape);
    return entity;
}

dxf::Polyline Bent(dxf::Polyline::Kind kind) {
    dxf::Polyline polyline;
    polyline.kind = kind;
    const bool flat = kind == dxf::Polyline::Kind::flat;
    polyline.closed = flat;
    polyline.vertices = {
        {{0, 0, 2}, flat ? 0.5 : 0.0, 0, 0}, {{4, 0, 2}, 0, 0, 0}, {{4, 3, flat ? 2.0 : 5.0}, 0, 0, 0}};
    if (flat) polyline.vertices[1].startWidth = 0.25;
    return polyline;
}

// Returns one entity of each kind that the version supports.
std::vector<Entity> OneOfEach(const std::string& version) {
    std::vector<Entity> all;
    all.push_back(Of(dxf::Line{{0, 0, 0}, {1, 2, 3}}));
    all.push_back(Of(dxf::PointMark{{1, 1, 0}}));
    all.push_back(Of(dxf::Circle{{1, 1, 0}, 2}));
    all.push_back(Of(dxf::Arc{{1, 1, 0}, 2, 30, 120}));
    all.push_back(Of(Bent(dxf::Polyline::Kind::flat)));
    all.push_back(Of(Bent(dxf::Polyline::Kind::spatial)));
    auto text = std::make_unique<dxf::Text>();
    text->text = "\u00C4 b";
    text->height = 2;
    all.push_back(Of(std::move(text)));
    if (version < "AC1012") return all;
    all.push_back(Of(dxf::Ellipse{{0, 0, 0}, {3, 1, 0}, 0.5, 0, 2}));
    auto paragraphs = std::make_unique<dxf::MText>();
    paragraphs->text = std::string(300, 'x') + "\\Pb";
    paragraphs->height = 2;
    all.push_back(Of(std::move(paragraphs)));
    auto spline = std::make_unique<dxf::Spline>();
    spline->knots = {0, 0, 0, 0, 1, 1, 1, 1};
    spline->controlPoints = {{0, 0, 0}, {1, 2, 0}, {2, -2, 0}, {3, 0, 0}};
    all.push_back(Of(std::move(spline)));
    auto hatch = std::make_unique<dxf::Hatch>();
    hatch->loops.push_back({3, Bent(dxf::Polyline::Kind::flat), {}});
    all.push_back(Of(std::move(hatch)));
    return all;
}

void Restructure(const char* from, const char* to, bool adds) {
    const std::string bytes = dxf::ReadBytes(from);
    const dxf::Document document = dxf::Read(bytes, {});
    dxf::StructurePatch patch(dxf::TextOf(bytes), document.Tables());
    size_t removed = 0;
    for (size_t i = 1; i < document.entities.size(); i += 2, ++removed)
        patch.Remove(document.entities[i].offset);
    dxf::Block block;
    block.name = "New block";
    block.extended = {{dxf::kExtendedStyleTree, "a tree", {}}};
    block.entities = OneOfEach(document.header.version);
    if (adds) patch.AddBlock(block);
    std::vector<Entity> added;
    if (adds) added = OneOfEach(document.header.version);
    auto insert = std::make_unique<dxf::Insert>();
    insert->block = patch.FindBlock(block.name);
    if (adds) added.push_back(Of(std::move(insert)));
    for (const Entity& entity : added)
        patch.Add(entity, nullptr);
    std::ofstream(to, std::ios::binary) << patch.Finish();
    for (const dxf::ReferenceRemoval::BlockingReference& blocking : patch.BlockingReferences())
        throw std::runtime_error("the entity at " + std::to_string(blocking.objectOffset) + ": " + blocking.reason);
    std::cout << document.entities.size() - removed + added.size() << " " << block.entities.size() << "\n";
}

} // namespace

int main(int count, char** words) {
    if (count < 3) return 2;
    try {
        Restructure(words[1], words[2], count == 3);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
