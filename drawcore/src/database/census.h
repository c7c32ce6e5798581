// How many objects are alive that a host program or the library has to give back.
#pragma once

namespace drawcore {

struct Census {
    inline static long blocks = 0; // of DrawCoreNew
    inline static long graphics = 0;
    inline static long vertices = 0; // made by VertexNewEx and its kin
    inline static long viewports = 0;
};

} // namespace drawcore
