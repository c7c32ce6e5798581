// Opens a drawing, changes it, and saves it to another file.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <memory>

#include <windows.h>

#include "drawcore/include/drawcore/drawing.h"
#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/include/drawcore/graphic.h"
#include "drawcore/include/drawcore/undo.h"
#include "drawcore/include/drawcore/view.h"
#include "orlo/host/block.h"
#include "orlo/host/host.h"
#include "orlo/host/owners.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"
#include "tests/dxf/test_files.h"

namespace fs = std::filesystem;
using orlo::host::Members;
using orlo::host::ReadProperty;
using orlo::host::Vertices;
using orlo::host::WriteProperty;

struct DisposeDrawing {
    void operator()(DrawingStruct* drawing) const { DrawingDispose(&drawing); }
};
using OwnedDrawing = std::unique_ptr<DrawingStruct, DisposeDrawing>;

inline OwnedDrawing Open(const fs::path& path) {
    return OwnedDrawing(DrawingOpenDxf(path.c_str(), nullptr, nullptr, 0));
}

class SavedDrawing : public testing::Test {
protected:
    ~SavedDrawing() override { fs::remove(path); }

    int Write(const OwnedDrawing& drawing, uint32_t flags = 0, const DxfListener* listener = nullptr) {
        char text[256] = "not written";
        const int result = DrawingSaveDxf(drawing.get(), path.c_str(), flags, listener, text, sizeof text);
        message = text;
        return result;
    }
    bool IsWritten(const fs::path& original) const { return ReadBytes(path) == ReadBytes(original); }

    bool LeavesTemporaryFiles() const {
        return std::any_of(fs::directory_iterator(path.parent_path()), fs::directory_iterator(),
                           [](const auto& entry) { return entry.path().extension() == ".tmp"; });
    }

    const fs::path path = fs::temp_directory_path() / L"ges\u00E4ichert \u4E57.dxf";
    std::string message;
};

inline void ForDrawings(const std::function<void(const fs::path&, const OwnedDrawing&)>& work) {
    for (const auto& entry : fs::directory_iterator(fs::path(kDrawings))) {
        const OwnedDrawing drawing = Open(entry.path());
        SCOPED_TRACE(entry.path().filename().string());
        if (drawing) work(entry.path(), drawing);
    }
}

inline void ForGraphics(GraphicStruct* set, const std::function<void(GraphicStruct*)>& work) {
    for (GraphicStruct* g : Members(set)) {
        work(g);
        ForGraphics(g, work);
    }
}

// Transformations followed by a rotation of 30 degrees and a translation: stretched, mirrored, tilted into space,
// sheared.
enum class Transformation { stretched, mirrored, tilted, slanted };
inline void PutVertices(GraphicStruct* insert, Transformation transformation) {
    const double c = std::cos(0.5235987755982988), s = 0.5;
    for (VertexStruct* v : Vertices(insert)) {
        double x = v->x * 2, y = v->y * 2, z = v->z * 2;
        if (transformation == Transformation::mirrored) x = -x;
        if (transformation == Transformation::slanted) x = y + x * 3;
        if (transformation == Transformation::tilted) {
            y = (v->y * c - v->z * s) * 2;
            z = (v->y * s + v->z * c) * 2;
        }
        VertexSet(v, x * c - y * s + 10, x * s + y * c - 3, z);
    }
}
