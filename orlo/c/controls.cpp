// The controls of the library in dialogs of a program that does not use the framework.

#include <memory>
#include <optional>

#include "orlo/c/guarded_call.h"
#include "orlo/c/sheet_record.h"
#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_items.h"
#include "orlo/controls/list_control.h"
#include "orlo/controls/table_control.h"
#include "orlo/win/child_windows.h"

namespace {

using orlo::ThrowError;

// Passes the messages by which a dialog has its controls measure and draw their items.
class DialogObject final : public CWnd {
protected:
    void PostNcDestroy() override { delete this; }
};

void RequireDialogObject(HWND dialog) {
    if (CWnd::FromHandlePermanent(dialog) != nullptr) return;
    auto object = std::make_unique<DialogObject>();
    if (!object->SubclassWindow(dialog)) ThrowError(kOrloFailed, "cannot subclass the dialog");
    object.release(); // deleted with the window
}

// A control of a kind, and its items.
struct TableControl {
    unsigned kind;
    ControlItems items;
    int rowHeight;
};

std::optional<TableControl> FindControl(HWND window) {
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (auto* combo = dynamic_cast<CComboControl*>(object))
        return TableControl{combo->m_nControlID, ControlItems::OfCombo(window), MeasuredRow(*combo)};
    if (auto* list = dynamic_cast<CListControl*>(object))
        return TableControl{list->m_nControlID, ControlItems::OfList(window), MeasuredRow(*list)};
    return std::nullopt;
}

// Returns the items of a control whose values are numbers.
ControlItems RequireItems(HWND window) {
    const std::optional<TableControl> control = FindControl(window);
    if (!control) ThrowError(kOrloBadArgument, "the window is not a control of the library on this thread");
    if (control->kind == kControlFontFaces || control->kind == kControlFontSizes)
        ThrowError(kOrloWrongType, "the control shows a text");
    return control->items;
}

uint32_t NumberAt(const ControlItems& items, int index) {
    char text[kItemTextSize];
    return items.GetText(index, text, sizeof text) ? ParseControlItem(text) : 0;
}

} // namespace

OrloResult ORLO_CALL OrloFillControls(HWND dialog, DrawingStruct* drawing, OrloFillCallback fill, void* context) {
    return orlo::GuardedCall([&] {
        orlo::RequireNotNull(dialog, "dialog");
        orlo::OwnerObject{dialog}; // throws if it is not a window of this thread
        OrloSheet record = ORLO_INIT(OrloSheet);
        record.drawing = drawing;
        record.fill = fill;
        record.context = context;
        const orlo::SheetRecord scope(&record); // receives the notifications of the controls
        RequireDialogObject(dialog);
        ForEachChild(dialog, [](HWND child) {
            if (const std::optional<TableControl> control = FindControl(child))
                InitializeSubclassedWindow(child, control->items, control->rowHeight);
        });
    });
}

OrloResult ORLO_CALL OrloGetSelected(HWND control, uint32_t* value) {
    return orlo::GuardedResult(value, "the value", [&] {
        const ControlItems items = RequireItems(control);
        const int index = items.Selected();
        if (index < 0) ThrowError(kOrloNotFound, "nothing is selected");
        return NumberAt(items, index);
    });
}

OrloResult ORLO_CALL OrloSetSelected(HWND control, uint32_t value) {
    return orlo::GuardedCall([&] {
        const ControlItems items = RequireItems(control);
        int index = items.Count() - 1;
        while (index >= 0 && NumberAt(items, index) != value)
            --index;
        if (index < 0) ThrowError(kOrloNotFound, "the control does not list this value");
        items.Select(index);
    });
}
