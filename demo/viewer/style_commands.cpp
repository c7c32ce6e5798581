// The commands of the Style menu.

#include "demo/viewer/style_commands.h"

#include "demo/viewer/counted.h"
#include "demo/viewer/document.h"
#include "demo/viewer/property_sheet.h"
#include "demo/viewer/style_states.h"
#include "demo/viewer/style_wizard.h"
#include "orlo/host/owners.h"
#include "orlo/host/words.h"

namespace {

std::string Quoted(const Document& document, uint16_t style) {
    return "\"" + document.Styles().Name(style) + "\"";
}

// Returns the style of an end code, or 0. In a drawing with many blocks, identifiers exceed 1000 and a code is
// ambiguous, but only one interpretation is the identifier of a style.
uint16_t StyleIn(const Document& document, int code, int kind) {
    const int id = code - kind;
    if (id <= 0 || id > 0xFFFF) return 0;
    return document.Styles().IsStyle(static_cast<uint16_t>(id)) ? static_cast<uint16_t>(id) : 0;
}

// The database does not record changes of styles: Cancel restores a copy made before. Returns the code of RunSheet.
int EditStyle(CWnd* owner, Document& document, uint16_t style) {
    StyleBook& styles = document.Styles();
    const orlo::host::OwnedGraphic copy = styles.Copy(style);
    const int code = RunSheet(owner, document.Drawing(), styles.Content(style), kWithStylePart);
    if (code == IDCANCEL && copy) styles.Restore(style, copy.get());
    return code;
}

std::string DeleteStyle(CWnd* owner, Document& document, uint16_t style) {
    const std::string name = Quoted(document, style);
    if (const int uses = document.Styles().Uses(style)) {
        const std::string text = "The style " + name + " cannot be deleted: " + Counted(uses, "graphic") +
                                 (uses == 1 ? " uses it." : " use it.");
        owner->MessageBox(text.c_str(), "Delete Style", MB_OK | MB_ICONEXCLAMATION);
        return "";
    }
    const std::string question = "Delete the style " + name + "?";
    if (owner->MessageBox(question.c_str(), "Delete Style", MB_YESNO | MB_ICONQUESTION) != IDYES) return "";
    document.Styles().Delete(style);
    return "Style " + name + " deleted";
}

// Returns the outcome of the last sheet.
std::string EditUntilClosed(CWnd* owner, Document& document) {
    StyleBook& styles = document.Styles();
    for (;;) {
        const int code = EditStyle(owner, document, styles.Current());
        if (code == kStyleAdded) {
            if (!styles.TakeAdded()) return "The style could not be added";
        } else if (const uint16_t chosen = StyleIn(document, code, kStyleChosen)) {
            styles.SetCurrent(chosen);
        } else if (const uint16_t doomed = StyleIn(document, code, kStyleToDelete)) {
            return DeleteStyle(owner, document, doomed);
        } else if (const uint16_t last = StyleIn(document, code, kStyleChosenByOk)) {
            styles.SetCurrent(last);
            return "Current style: " + Quoted(document, last);
        } else {
            return code == IDOK ? "Current style: " + Quoted(document, styles.Current()) : "";
        }
    }
}

} // namespace

std::string NewStyle(CWnd* owner, Document& document) {
    StyleStates before(document.Styles());
    if (!MakeStyleByWizard(owner, document)) return "";
    document.Record(StyleStates::ChangeSince(std::move(before)));
    return "New style " + Quoted(document, document.Styles().Current());
}

std::string EditStyles(CWnd* owner, Document& document) {
    StyleStates before(document.Styles());
    const std::string outcome = EditUntilClosed(owner, document);
    document.Record(StyleStates::ChangeSince(std::move(before)));
    return outcome;
}

std::string ApplyStyle(Document& document) {
    const int changed = document.Change([&] { document.Styles().ApplyCurrent(document.Selected().Members()); });
    return "Style " + Quoted(document, document.Styles().Current()) + " applied to " + Counted(changed, "graphic");
}
