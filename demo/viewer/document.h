// A drawing that the viewer has open: the database's drawing, its graphics, what is selected, its styles, undo and
// redo.
#pragma once

#include <cstdint>
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

// what(): the file's name and what is wrong with it, with the line where that is known. UTF-8.
class OpenError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// what(): why nothing was saved. UTF-8.
class SaveError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Opening or saving has been given up by the caller's own Progress.
class Cancelled : public std::exception {};

class Document {
public:
    // The share done; false gives the task up.
    using Progress = std::function<bool(int permille)>;

    // Reads a DXF drawing (path in UTF-8) and makes it the application's current one. Throws OpenError or Cancelled;
    // the drawing that was current then still is.
    static std::unique_ptr<Document> Open(const std::string& path, const Progress& progress);

    const std::string& Path() const { return m_path; }
    std::string Name() const; // the path without its folders

    // Whether something has changed since the last saving; undo and redo can come back to what is saved. Styles count
    // too.
    bool IsModified() const;
    // Writes the drawing to a file, whose it is from then on. False, with nothing written, if another program has
    // changed the file that it was opened from; overChanged: writes all the same. Throws SaveError or Cancelled, with
    // nothing written either.
    bool Save(const std::string& path, bool overChanged, const Progress& progress);

    // What was left out of the drawing when it was opened, one line each.
    const std::vector<std::string>& Findings() const { return m_findings; }
    // What other programs will not show of the drawing as it was last saved, one line for each property.
    const std::vector<std::string>& SaveNotes() const { return m_saveNotes; }

    DrawingStruct* Drawing() const { return m_drawing.get(); }
    GraphicStruct* Root() const { return m_root; }
    Selection& Selected() { return m_selection; }
    const Selection& Selected() const { return m_selection; }
    StyleBook& Styles() { return m_styles; }
    const StyleBook& Styles() const { return m_styles; }
    std::optional<WorldBox> Extents() const { return ExtentsOf(m_root); }

    // In the order of drawing: those that are seen and can be selected.
    std::vector<GraphicStruct*> Selectable() const;
    // The selected graphics without those whose layer has been locked or hidden since.
    std::vector<GraphicStruct*> StillSelectable() const;
    // The next one after the last of the selection, round and round; null if nothing can be selected.
    GraphicStruct* Next(bool forward) const;

    // A length as the drawing's units write it.
    std::string LengthText(double length) const;

    // Runs a change as one step of undo. Returns the number of graphics that it changed.
    int Change(const std::function<void()>& change);
    // The same; with false from the change all is at once as if it had never been.
    int Attempt(const std::function<bool()>& change);
    // For a window that stays open: what it changes from here on, outside of Change and Attempt, gathers until it is
    // taken as one step, or dropped. Change, Attempt, Undo and Redo make a step of it first.
    void BeginGathering();
    void EndGathering();
    int TakeGathered(); // graphics that the step has changed; with 0 there is none
    int DropGathered(); // graphics changed back
    // Returns how many of the oldest changes can no longer be undone since the last change, for lack of memory.
    int DroppedSteps() const;
    // Makes a change outside of the database one step; null: there was none.
    void Record(std::unique_ptr<UndoableChange> change);
    int UndoSteps() const { return m_history.UndoCount(); }
    int RedoSteps() const { return m_history.RedoCount(); }
    // Return what the step has changed, as "3 objects" or "layers". There has to be a step.
    std::string Undo();
    std::string Redo();

private:
    class GatheringPause;

    Document(const std::string& path, OwnedDrawing drawing);
    int EndStep();
    void TrimHistory();

    std::string m_path;
    std::vector<std::string> m_findings, m_saveNotes;
    OwnedDrawing m_drawing; // goes after those who hold its graphics
    GraphicStruct* m_root;
    Selection m_selection;
    StyleBook m_styles;
    UndoHistory m_history;
    bool m_isGathering = false;
};
