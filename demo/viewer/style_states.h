// Records all styles of a drawing, and creates an undo step for changes since then.
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

    // Returns the change since `before`; null if nothing has changed except the current style. The StyleBook must
    // outlive the result.
    static std::unique_ptr<UndoableChange> ChangeSince(StyleStates before);

private:
    struct Style {
        std::string name;
        StyleBook::Parts parts;
        orlo::host::OwnedGraphic content;
    };

    bool IsCurrent() const;

    StyleBook* m_styles;
    std::vector<Style> m_all;
    std::string m_current;
};
