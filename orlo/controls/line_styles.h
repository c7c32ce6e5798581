// Line styles as a StyleControl shows them: the shape of the sample, the styles offered, and drawing. Internal to the
// library.
#pragma once

#include "orlo/controls/style_kind.h"

class LineStyles : public StyleKind {
public:
    enum class In { Combo, List };
    explicit LineStyles(In control) : m_inList(control == In::List) {}

    // The list's sample has a margin and a height of 1.0.
    SampleGraphic MakeSample(int controlWidth) const override;
    // Adds the entries of the table but those for construction, in table order, and in a list the default item.
    void ForEachItem(TableStruct* table, const std::function<void(const char*)>& add) const override;
    bool DrawStyle(const DRAWITEMSTRUCT& request, const StyleItem& item) const override;

private:
    bool m_inList;
};
extern const LineStyles kComboLineStyles, kListLineStyles;

// Returns the item "by layer". "By block" is never offered.
ItemText DefaultLineItem();
