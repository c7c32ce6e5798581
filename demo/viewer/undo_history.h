// The user's steps in chronological order: changes of graphics, which the database undoes, and changes of layers and
// styles, which the viewer undoes.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// A change that the database does not record.
class UndoableChange {
public:
    virtual ~UndoableChange() = default;
    virtual void Undo() = 0;
    virtual void Redo() = 0;
    virtual std::string Description() const = 0; // Returns text for the status bar, such as "layers".
};

// A change from one state, which has Restore(), to another one.
template <class State>
class StateChange : public UndoableChange {
public:
    StateChange(const char* description, State before, State after)
        : m_description(description), m_before(std::move(before)), m_after(std::move(after)) {}
    void Undo() override { m_before.Restore(); }
    void Redo() override { m_after.Restore(); }
    std::string Description() const override { return m_description; }

private:
    const char* m_description;
    State m_before, m_after;
};

class UndoHistory {
public:
    // A step; null for a step of the database.
    using Step = std::unique_ptr<UndoableChange>;

    // Adds a new step. Undone steps can no longer be redone.
    void Add(Step step);
    // Removes the steps that the database has discarded, its oldest ones, and all earlier steps.
    void Trim(int undoable, int redoable);

    int UndoCount() const { return static_cast<int>(m_done.size()); }
    int RedoCount() const { return static_cast<int>(m_undone.size()); }

    // Undo or redo the next step, which must exist, calling the function for a step of the database. Return the step,
    // or null for one of the database.
    const UndoableChange* Undo(const std::function<void()>& inDatabase);
    const UndoableChange* Redo(const std::function<void()>& inDatabase);

private:
    using Steps = std::vector<Step>; // the next step is last

    static void TrimTo(Steps& steps, int databaseSteps);

    Steps m_done, m_undone;
};
