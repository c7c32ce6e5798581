// A drawing that is open in the viewer.

#include "demo/viewer/document.h"

#include <algorithm>

#include "demo/viewer/counted.h"
#include "demo/viewer/file_name.h"
#include "demo/viewer/value_counts.h"
#include "drawcore/application.h"
#include "drawcore/dxf.h"
#include "drawcore/layer.h"
#include "drawcore/undo.h"
#include "orlo/host/walk.h"

namespace {

template <class Range>
std::vector<GraphicStruct*> SelectableOf(DrawingStruct* drawing, const Range& graphics) {
    std::vector<GraphicStruct*> selectable;
    for (GraphicStruct* graphic : graphics) {
        const uint16_t layer = LayerOf(graphic);
        if (layer == 0 || (::LayerGetVisible(drawing, layer) && !::LayerGetReadOnly(drawing, layer)))
            selectable.push_back(graphic);
    }
    return selectable;
}

// State of the listener while a drawing is opened or saved.
struct Operation {
    const Document::Progress& progress;
    std::vector<std::string> warnings;
    bool isCanceled = false;
};

int ShowProgress(void* context, int permille) {
    Operation& operation = *static_cast<Operation*>(context);
    if (!operation.progress(permille)) operation.isCanceled = true;
    return !operation.isCanceled;
}

void AddWarning(void* context, int line, const char* text) {
    const std::string place = line ? "line " + std::to_string(line) + ": " : "";
    static_cast<Operation*>(context)->warnings.push_back(place + text);
}

} // namespace

std::unique_ptr<Document> Document::Open(const std::string& path, const Progress& progress) {
    char message[512] = "";
    Operation opening = {progress, {}};
    const DxfListener listener = {&opening, ShowProgress, AddWarning};
    OwnedDrawing drawing(::DrawingOpenDxf(Wide(path).c_str(), &listener, message, sizeof message));
    if (!drawing && opening.isCanceled) throw Canceled();
    if (!drawing) throw OpenError(path + "\n\n" + message);
    ::AppSetCurrentDrawing(drawing.get());
    std::unique_ptr<Document> document(new Document(path, std::move(drawing)));
    document->m_warnings = std::move(opening.warnings);
    return document;
}

Document::Document(const std::string& path, OwnedDrawing drawing)
    : m_path(path), m_drawing(std::move(drawing)), m_root(::DrawingGetRoot(Drawing())), m_styles(Drawing()) {}

std::string Document::Name() const {
    return WithoutFolder(m_path);
}

bool Document::IsModified() const {
    return ::DrawingIsModified(Drawing());
}

bool Document::Save(const std::string& path, bool overChanged, const Progress& progress) {
    char message[512] = "";
    Operation saving = {progress, {}};
    const DxfListener listener = {&saving, ShowProgress, AddWarning};
    const uint32_t flags = overChanged ? kSaveOverChanged : 0;
    switch (::DrawingSaveDxf(Drawing(), Wide(path).c_str(), flags, &listener, message, sizeof message)) {
    case kSaveDone:
        m_path = path;
        m_saveNotes = std::move(saving.warnings);
        return true;
    case kSaveFileChanged:
        return false;
    case kSaveCanceled:
        throw Canceled();
    default:
        throw SaveError(path + "\n\n" + Utf8FromSystem(message));
    }
}

std::vector<GraphicStruct*> Document::Selectable() const {
    return SelectableOf(Drawing(), orlo::host::Members(m_root));
}

std::vector<GraphicStruct*> Document::CurrentlySelectable() const {
    return SelectableOf(Drawing(), m_selection.Members());
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
    ::DrawingStdNumericToText(Drawing(), length, text, sizeof text, 0);
    return text;
}

// Commits the open transaction, and begins the next one at the end of the scope.
class Document::TransactionPause {
public:
    explicit TransactionPause(Document& document) : m_document(document) {
        if (m_document.m_inTransaction) m_document.EndStep();
    }
    ~TransactionPause() {
        if (m_document.m_inTransaction) ::DrawingBeginUndo(m_document.Drawing());
    }
    TransactionPause(const TransactionPause&) = delete;
    TransactionPause& operator=(const TransactionPause&) = delete;

private:
    Document& m_document;
};

int Document::Change(const std::function<void()>& change) {
    return Attempt([&] {
        change();
        return true;
    });
}

int Document::Attempt(const std::function<bool()>& change) {
    const TransactionPause pause(*this);
    ::DrawingBeginUndo(Drawing());
    try {
        if (change()) return EndStep();
    } catch (...) {
        EndStep();
        throw;
    }
    ::DrawingCancelUndo(Drawing());
    return 0;
}

void Document::BeginTransaction() {
    m_inTransaction = true;
    ::DrawingBeginUndo(Drawing());
}

void Document::EndTransaction() {
    m_inTransaction = false;
    EndStep();
}

int Document::CommitTransaction() {
    const int changed = EndStep();
    ::DrawingBeginUndo(Drawing());
    return changed;
}

int Document::RollBackTransaction() {
    const int changed = ::DrawingCancelUndo(Drawing());
    ::DrawingBeginUndo(Drawing());
    return changed;
}

int Document::DroppedSteps() const {
    return ::DrawingCountDroppedUndo(Drawing());
}

// Ends the step in the database.
int Document::EndStep() {
    const int changed = ::DrawingEndUndo(Drawing());
    if (changed) m_history.Add(nullptr);
    TrimHistory();
    return changed;
}

void Document::TrimHistory() {
    m_history.Trim(::DrawingCountUndo(Drawing()), ::DrawingCountRedo(Drawing()));
}

void Document::Record(std::unique_ptr<UndoableChange> change) {
    if (!change) return;
    const TransactionPause pause(*this);
    m_history.Add(std::move(change));
}

std::string Document::Undo() {
    const TransactionPause pause(*this);
    int graphics = 0;
    const UndoableChange* change = m_history.Undo([&] { graphics = ::DrawingUndo(Drawing()); });
    m_styles.RenumberGraphics();
    TrimHistory();
    return change ? change->Description() : Counted(graphics, "object");
}

std::string Document::Redo() {
    const TransactionPause pause(*this);
    int graphics = 0;
    const UndoableChange* change = m_history.Redo([&] { graphics = ::DrawingRedo(Drawing()); });
    m_styles.RenumberGraphics();
    TrimHistory();
    return change ? change->Description() : Counted(graphics, "object");
}
