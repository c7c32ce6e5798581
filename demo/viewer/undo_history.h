// The order of the user's steps in an open drawing: changes of graphics, which the database undoes, and changes of
// layers and styles, which the viewer undoes itself.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

// A change that the database does not record.
class UndoableChange {
public:
    virtual ~UndoableChange();
    virtual void Undo() = 0;
    virtual void Redo() = 0;
    virtual std::string What() const = 0; // for the status bar, as "layers"
};

class UndoHistory {
public:
    // A step; null stands for one of the database.
    using Step = std::unique_ptr<UndoableChange>;

    // Adds the step that has just been made. What was undone before cannot be redone any more.
    void Add(Step step);
    // Removes the steps that the database no longer has, with those before them: it has dropped its oldest ones.
    void Trim(int undoable, int redoable);

    int UndoCount() const { return static_cast<int>(m_done.size()); }
    int RedoCount() const { return static_cast<int>(m_undone.size()); }

    // Undoes or redoes the next step, by the function if it is one of the database. Returns the step, null for one of
    // the database. There has to be one.
    const UndoableChange* Undo(const std::function<void()>& inDatabase);
    const UndoableChange* Redo(const std::function<void()>& inDatabase);

private:
    using Steps = std::vector<Step>; // the next one last

    static void TrimTo(Steps& steps, int databaseSteps);

    Steps m_done, m_undone;
};
