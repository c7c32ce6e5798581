// How many objects are alive that a host program or the library has to free.
#pragma once

namespace drawcore {

struct Census {
    inline static long blocks = 0; // of DrawCoreNew
    inline static long graphics = 0;
    inline static long vertices = 0; // made by VertexNewEx and the like
    inline static long viewports = 0;
};

} // namespace drawcore
