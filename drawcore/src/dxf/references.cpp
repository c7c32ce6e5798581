// Traverses the graph of blocks without recursion, since a file may chain any number of them.

#include "drawcore/src/dxf/references.h"

namespace dxf {

namespace {

struct Reference {
    BlockIndex* block = nullptr; // null: the entity refers to none
    double cells = 1;
};

Reference ReferenceOf(Entity& entity) {
    if (auto* insert = As<Insert>(entity)) return {&insert->block, double(insert->columns) * insert->rows};
    if (auto* dimension = As<Dimension>(entity)) return {&dimension->block};
    return {};
}

double PartsOf(const Entity& entity) {
    const auto* polyline = std::get_if<Polyline>(&entity.shape);
    return polyline ? 1 + static_cast<double>(polyline->vertices.size()) : 1;
}

class Resolver {
public:
    explicit Resolver(RecordReader& in) : in_(in), drawing_(in.document), states_(drawing_.blocks.size()) {
        size_t entities = drawing_.entities.size();
        for (const Block& block : drawing_.blocks)
            entities += block.entities.size();
        mostParts_ += kInsertedPartsPerEntity * static_cast<double>(entities);
    }

    void Resolve() {
        for (size_t i = 0; i < drawing_.blocks.size(); ++i)
            if (states_[i].progress == State::unseen) Visit(i);
        State root;
        for (Entity& entity : drawing_.entities)
            CutIfNeeded(entity, root);
        if (tooMany_ > 0)
            in_.Report(firstTooMany_, "insertions not shown because the drawing would have too many parts: " +
                                          std::to_string(tooMany_));
    }

private:
    struct State {
        enum Progress { unseen, open, done } progress = unseen;
        size_t depth = 0;         // nesting depth of the blocks in it
        double parts = 0;         // number of parts drawn by one insertion of it
        double insertedParts = 0; // number of those drawn by its insertions
    };
    struct Frame {
        size_t block;
        size_t entity;
    };

    void Visit(size_t block) {
        std::vector<Frame> frames{{block, 0}};
        states_[block].progress = State::open;
        while (!frames.empty()) {
            Frame& frame = frames.back();
            State& state = states_[frame.block];
            std::vector<Entity>& entities = drawing_.blocks[frame.block].entities;
            if (frame.entity == entities.size()) {
                state.parts += state.insertedParts;
                state.progress = State::done;
                frames.pop_back();
                continue;
            }
            Entity& entity = entities[frame.entity];
            const Reference reference = ReferenceOf(entity);
            if (reference.block && *reference.block != BlockIndex::none) {
                const auto inner = static_cast<size_t>(*reference.block);
                if (states_[inner].progress == State::unseen) {
                    states_[inner].progress = State::open;
                    frames.push_back({inner, 0});
                    continue; // revisits this entity when its block is done
                }
            }
            CutIfNeeded(entity, state);
            state.parts += PartsOf(entity);
            ++frame.entity;
        }
    }

    void CutIfNeeded(Entity& entity, State& owner) {
        const Reference reference = ReferenceOf(entity);
        if (!reference.block || *reference.block == BlockIndex::none) return;
        const auto inner = static_cast<size_t>(*reference.block);
        const State& state = states_[inner];
        const double parts = reference.cells * (1 + state.parts);
        const char* reason = nullptr;
        if (!drawing_.blocks[inner].declared)
            reason = "the block does not exist";
        else if (state.progress == State::open)
            reason = "the block contains itself";
        else if (state.depth + 1 > kDeepestNesting)
            reason = "blocks are nested too deeply";
        const bool tooMany = owner.insertedParts + parts > mostParts_;
        if (!reason && !tooMany) {
            owner.depth = std::max(owner.depth, state.depth + 1);
            owner.insertedParts += parts;
            return;
        }
        *reference.block = BlockIndex::none;
        if (!reason) {
            if (tooMany_++ == 0) firstTooMany_ = entity.line;
            return;
        }
        in_.Report(entity.line, "block " + Quoted(drawing_.blocks[inner].name) + " is not shown: " + reason);
    }

    RecordReader& in_;
    Document& drawing_;
    std::vector<State> states_;
    double mostParts_ = kMaxInsertedParts;
    size_t tooMany_ = 0;
    uint32_t firstTooMany_ = 0;
};

} // namespace

void ResolveReferences(RecordReader& in) {
    Resolver(in).Resolve();
}

} // namespace dxf
