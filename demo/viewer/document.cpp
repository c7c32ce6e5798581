// A drawing that the viewer has open.

#include "demo/viewer/document.h"

#include <algorithm>

#include "demo/viewer/file_name.h"
#include "drawcore/application.h"
#include "drawcore/drawing.h"
#include "drawcore/dxf.h"
#include "drawcore/layer.h"
#include "drawcore/undo.h"
#include "orlo/host/property.h"
#include "orlo/host/viewport.h"
#include "orlo/host/walk.h"

namespace {

bool IsSelectable(DrawingStruct* drawing, GraphicStruct* graphic) {
    const uint16_t layer = orlo::host::ReadProperty<uint16_t>(graphic, kPropLayer).value_or(0);
    return layer == 0 || (::LayerGetVisible(drawing, layer) && !::LayerGetReadOnly(drawing, layer));
}

struct Opening {
    const Document::Progress& progress;
    std::vector<std::string> findings;
};

void ShowProgress(void* context, int permille) {
    static_cast<Opening*>(context)->progress(permille);
}

void KeepFinding(void* context, int line, const char* text) {
    const std::string place = line ? "line " + std::to_string(line) + ": " : "";
    static_cast<Opening*>(context)->findings.push_back(place + text);
}

} // namespace

std::unique_ptr<Document> Document::Open(const std::string& path, const Progress& progress) {
    char message[512] = "";
    Opening opening = {progress, {}};
    const DxfListener listener = {&opening, ShowProgress, KeepFinding};
    DrawingStruct* drawing = ::DrawingOpenDxf(Wide(path).c_str(), &listener, message, sizeof message);
    if (!drawing) throw OpenError(path + "\n\n" + message);
    ::AppSetCurrentDrawing(drawing);
    std::unique_ptr<Document> document(new Document(path, drawing));
    document->m_findings = std::move(opening.findings);
    return document;
}

Document::Document(const std::string& path, DrawingStruct* drawing)
    : m_path(path), m_drawing(drawing), m_root(::DrawingGetRoot(drawing)), m_styles(drawing) {}

Document::~Document() {
    m_selection.Clear(); // before its members go
    ::DrawingDispose(&m_drawing);
}

std::string Document::Name() const {
    return m_path.substr(m_path.find_last_of("\\/") + 1);
}

std::vector<GraphicStruct*> Document::Selectable() const {
    std::vector<GraphicStruct*> graphics;
    for (GraphicStruct* graphic : orlo::host::Members(m_root))
        if (IsSelectable(m_drawing, graphic)) graphics.push_back(graphic);
    return graphics;
}

GraphicStruct* Document::Next(bool forward) const {
    const std::vector<GraphicStruct*> all = Selectable();
    if (all.empty()) return nullptr;
    const std::vector<GraphicStruct*> selected = m_selection.Members();
    const auto last = selected.empty() ? all.end() : std::find(all.begin(), all.end(), selected.back());
    if (last == all.end()) return forward ? all.front() : all.back();
    const size_t place = static_cast<size_t>(last - all.begin());
    return all[(place + (forward ? 1 : all.size() - 1)) % all.size()];
}

std::string Document::LengthText(double length) const {
    char text[64] = "";
    ::DrawingStdNumericToText(m_drawing, length, text, sizeof text, 0);
    return text;
}

int Document::Change(const std::function<void()>& change) {
    ::DrawingBeginUndo(m_drawing);
    try {
        change();
    } catch (...) {
        ::DrawingEndUndo(m_drawing);
        throw;
    }
    return ::DrawingEndUndo(m_drawing);
}

int Document::ForgottenSteps() const {
    return ::DrawingCountForgotten(m_drawing);
}

int Document::UndoSteps() const {
    return ::DrawingCountUndo(m_drawing);
}

int Document::Undo() {
    return ::DrawingUndo(m_drawing);
}
