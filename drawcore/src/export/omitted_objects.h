// Collects the objects of a drawing that its file cannot contain, with reasons.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/document.h"
#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

class OmittedObjects {
public:
    // The drawing must have been read from a file.
    explicit OmittedObjects(const Drawing& drawing) : drawing_(drawing) {}

    // Adds a graphic: an existing record is kept, a new graphic gets none.
    void Add(const Graphic& graphic, const std::string& reason);
    bool Has(const Graphic& graphic) const { return graphics_.count(&graphic) != 0; }
    // Adds a record that is kept although its graphic was removed.
    void AddRemoved(uint32_t offset, const std::string& reason);
    const std::set<uint32_t>& Removed() const { return removed_; }
    // Adds anything else, by name.
    void Add(const std::string& what, const std::string& reason);
    bool Has(const std::string& what) const { return others_.count(what) != 0; }

    static std::string NameOfBlock(const std::string& name) { return "block \"" + name + "\""; }
    static std::string NameOfLayer(const std::string& name) { return "layer \"" + name + "\""; }

    size_t Count() const { return graphics_.size() + removed_.size() + others_.size(); }
    // Returns all of them, with their lines in the file, in the order in which they were found.
    const std::vector<dxf::Warning>& List() const { return warnings_; }

    // Runs the work for the graphic, and adds the graphic if it throws SaveError.
    template <class Work>
    void RunOrOmit(const Graphic& graphic, const Work& work) {
        try {
            work();
        } catch (const dxf::SaveError& error) {
            Add(graphic, error.what());
        }
    }

private:
    void AddRecord(uint32_t offset, const std::string& block, const std::string& reason);
    std::string BlockOf(const Graphic& graphic) const;

    const Drawing& drawing_;
    std::set<const Graphic*> graphics_;
    std::set<uint32_t> removed_;
    std::set<std::string> others_;
    std::vector<dxf::Warning> warnings_;
};

} // namespace drawcore
