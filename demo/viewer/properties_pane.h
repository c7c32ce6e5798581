// The properties pane beside the drawing: the library's modeless sheet for the selection of a document.
//
// Everything written since the last Apply becomes one undo step at the next Apply. Escape and Reset undo it. Typed text
// is applied before the selection changes or the window closes; Apply returns whether that may proceed.
#pragma once

#include <functional>
#include <optional>

#include "demo/viewer/document.h"
#include "demo/viewer/property_sheet.h"
#include "orlo/frame/sheet_pane.h"

class CPropertiesPane : public CSheetPane {
    DECLARE_DYNAMIC(CPropertiesPane)
public:
    // Called after an Apply that has changed that many graphics.
    using Applied = std::function<void(int changed)>;

    explicit CPropertiesPane(Applied applied);

    // Must be called before the displayed document is deleted; null for none.
    void SetDocument(Document* document);

protected:
    CGraphicPropertySheet* NewSheet() override;
    void DeleteSheet() override;
    bool HasGraphics() const override;
    unsigned int LastPage() const override;
    void SetLastPage(unsigned int page) override;
    void OnOpen() override;
    void OnClose() override;
    void OnApplied() override;
    void OnReset() override;
    void OnCloseButton() override;
    void OnEscape() override;

private:
    // The sheet with its set of graphics: a copy of the selection, which changes before the sheet does.
    struct Edited {
        Edited(CWnd* owner, const Document& document);
        Selection graphics;
        SelectionSheet sheet;
    };

    Applied m_applied;
    Document* m_document = nullptr;
    std::optional<Edited> m_edited;
};
