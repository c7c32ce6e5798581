// A drawing that is open in the viewer: the database's drawing, its graphics, selection, styles, undo and redo.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "demo/viewer/selection.h"
#include "demo/viewer/style_book.h"
#include "demo/viewer/undo_history.h"
#include "drawcore/owned_drawing.h"
#include "orlo/host/drawing.h"

// what(): the file's name and the reason, with the line if known, in UTF-8.
class OpenError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// what(): the reason why nothing was saved, in UTF-8.
class SaveError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Opening or saving was canceled by the caller's Progress.
class Canceled : public std::exception {};

class Document {
public:
    // permille: the completed share. Return false to cancel.
    using Progress = std::function<bool(int permille)>;

    // Reads a DXF drawing (path in UTF-8) and makes it the application's current one. Throws OpenError or Canceled;
    // the current drawing then does not change.
    static std::unique_ptr<Document> Open(const std::string& path, const Progress& progress);

    const std::string& Path() const { return m_path; }
    std::string Name() const; // the file name without its folder

    // Returns whether anything, including styles, has changed since the last save. Undo and redo can return to the
    // saved state.
    bool IsModified() const;
    // Writes the drawing to a file and makes that its file. Returns false, without writing, if another program has
    // changed the file that it was opened from, unless overChanged is set. Throws SaveError or Canceled; nothing is
    // written then.
    bool Save(const std::string& path, bool overChanged, const Progress& progress);

    // Returns the parts of the file that were omitted when the drawing was opened, one line each.
    const std::vector<std::string>& Warnings() const { return m_warnings; }
    // Returns the properties of the drawing as last saved that other programs will not show, one line each.
    const std::vector<std::string>& SaveNotes() const { return m_saveNotes; }

    DrawingStruct* Drawing() const { return m_drawing.get(); }
    GraphicStruct* Root() const { return m_root; }
    Selection& Selected() { return m_selection; }
    const Selection& Selected() const { return m_selection; }
    StyleBook& Styles() { return m_styles; }
    const StyleBook& Styles() const { return m_styles; }
    std::optional<WorldBox> Extents() const { return ExtentsOf(m_root); }

    // Returns the visible and selectable graphics in drawing order.
    std::vector<GraphicStruct*> Selectable() const;
    // Returns the selected graphics except those whose layer was locked or hidden since.
    std::vector<GraphicStruct*> CurrentlySelectable() const;
    // Returns the next graphic after the last selected one, wrapping around, or null if none can be selected.
    GraphicStruct* Next(bool forward) const;

    // Formats a length in the drawing's units.
    std::string LengthText(double length) const;

    // Performs a change as one undo step. Returns the number of graphics that it changed.
    int Change(const std::function<void()>& change);
    // Does the same. If the change returns false, it is undone immediately, without a step.
    int Attempt(const std::function<bool()>& change);
    // Begins a transaction for a window that stays open. Its changes, made outside of Change and Attempt, become one
    // step when it is committed, or are rolled back. Change, Attempt, Undo and Redo commit it first.
    void BeginTransaction();
    void EndTransaction();
    int CommitTransaction();   // Returns the number of graphics changed by the step; if 0, there is no step.
    int RollBackTransaction(); // Returns the number of graphics restored.
    // Returns the number of oldest changes that the last change made impossible to undo, for lack of memory.
    int DroppedSteps() const;
    // Adds a change outside of the database as one step, unless it is null.
    void Record(std::unique_ptr<UndoableChange> change);
    int UndoSteps() const { return m_history.UndoCount(); }
    int RedoSteps() const { return m_history.RedoCount(); }
    // Undo or redo a step, which must exist. Return what it changed, such as "3 objects" or "layers".
    std::string Undo();
    std::string Redo();

private:
    class TransactionPause;

    Document(const std::string& path, OwnedDrawing drawing);
    int EndStep();
    void TrimHistory();

    std::string m_path;
    std::vector<std::string> m_warnings, m_saveNotes;
    OwnedDrawing m_drawing; // destroyed after the members that refer to its graphics
    GraphicStruct* m_root;
    Selection m_selection;
    StyleBook m_styles;
    UndoHistory m_history;
    bool m_inTransaction = false;
};
