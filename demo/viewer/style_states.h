// All styles of a drawing at one moment, and the change since then as a step of undo.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "demo/viewer/style_book.h"
#include "demo/viewer/undo_history.h"
#include "orlo/host/owners.h"

class StyleStates {
public:
    explicit StyleStates(StyleBook& styles);

    void Restore() const;

    // Returns the change of the styles since they were so; null if at most another one has become the current style.
    // The StyleBook outlives the result.
    static std::unique_ptr<UndoableChange> ChangeSince(StyleStates before);

private:
    struct Style {
        std::string name;
        StyleBook::Parts parts;
        orlo::host::OwnedGraphic content;
    };

    bool IsAsNow() const;

    StyleBook* m_styles;
    std::vector<Style> m_all;
    std::string m_current;
};
