// The members of a drawing's root by place, so that what lies in a part of the drawing is found without a look at the
// rest.
//
// Made when it is asked for first. It hears of each member that changes (Forget) and takes up the new place when it is
// asked again: an answer is never out of date.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "drawcore/src/geometry/extents.h"

namespace drawcore {

class Graphic;
struct Pen;

class PlaceIndex {
public:
    PlaceIndex();
    ~PlaceIndex();

    // Places, in the order of drawing, of the members of the group that show in the box as seen from above; perhaps of
    // others that lie close to it too. None: of all members. paperInch: drawing units of an inch of paper.
    std::optional<std::vector<uint32_t>> Find(const Graphic& group, const Extents& box, double paperInch);

    // The member is about to change its extents, which are still known.
    void Forget(Graphic& member);
    // Members have got other places.
    void Drop();

    // Something that the group holds is drawn with this pen now.
    void NotePen(const Pen& pen);

private:
    class Tree;

    void Build(const Graphic& group);
    void TakeUp(const Graphic& group);
    void NoteMember(const Graphic& member);

    std::unique_ptr<Tree> tree_;    // null: to be made
    std::vector<uint32_t> changed_; // members that the tree lacks
    size_t known_ = 0;              // how many members there were when it was asked last
    // Half of the widest lines of all that the group holds, or ever held: how far members show beyond their extents.
    double worldReach_ = 0; // drawing units
    double paperReach_ = 0; // inches
};

} // namespace drawcore
