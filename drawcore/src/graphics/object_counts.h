// Counts of existing objects that a host program or the library must free.
#pragma once

namespace drawcore {

struct ObjectCounts {
    inline static long blocks = 0; // from DrawCoreNew
    inline static long graphics = 0;
    inline static long vertices = 0; // created by VertexNewEx and similar functions
    inline static long viewports = 0;
};

} // namespace drawcore
